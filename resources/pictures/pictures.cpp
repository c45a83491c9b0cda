#include "resources/pictures/pictures.h"

namespace orbisol {

QString MoonPicturePath() { return QStringLiteral(":/pictures/moon.png"); }
QString BackgroundPicturePath() { return QStringLiteral(":/pictures/background.jpg"); }
QString IconPath(const QString& name) { return QStringLiteral(":/pictures/icons/%1.svg").arg(name); }

}  // namespace orbisol

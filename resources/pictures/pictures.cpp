#include "resources/pictures/pictures.h"

namespace orbisol {

QString MoonPicturePath() { return QStringLiteral(":/pictures/moon.png"); }
QString BackgroundPicturePath() { return QStringLiteral(":/pictures/background.jpg"); }

}  // namespace orbisol

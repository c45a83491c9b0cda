#include "resources/pictures/icons/icons.h"

namespace orbisol {

QString IconPath(const QString& name) { return QStringLiteral(":/icons/%1.svg").arg(name); }

}  // namespace orbisol

// The icons inside the program, by their resource paths.
#pragma once

#include <QString>

namespace orbisol {

// Of a drawing by its name; whether there is one is seen when it is opened.
QString IconPath(const QString& name);

}  // namespace orbisol

// The pictures inside the program, by their resource paths.
#pragma once

#include <QString>

namespace orbisol {

QString MoonPicturePath();  // four glyphs of 48 x 48 side by side: new, first quarter, full, last quarter
QString BackgroundPicturePath();  // 336 x 248, made to be stretched over a month

}  // namespace orbisol

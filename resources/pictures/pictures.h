// The pictures inside the program, by their resource paths.
#pragma once

#include <QString>

namespace orbisol {

// Path of four glyphs of 48 x 48 side by side: new moon, first quarter, full moon, last quarter.
QString MoonPicturePath();

// Path of a picture of 336 x 248 that is made to be stretched over a month.
QString BackgroundPicturePath();

// Returns the path of an icon by its name, "copy" or "copy-16". Whether there is such an icon is seen when it
// is opened.
QString IconPath(const QString& name);

}  // namespace orbisol

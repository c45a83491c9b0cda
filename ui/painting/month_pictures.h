// The pictures of the month view: a background, and the phases of the moon.
#pragma once

#include <QImage>
#include <QRectF>

#include "core/moon.h"
#include "settings/display_settings.h"

class QPainter;

namespace orbisol {

// The background that the settings ask for: the picture of their path, else the built-in one. Null when none
// is wanted and when the file cannot be read; a very large picture comes in the size of a large screen.
QImage LoadBackground(const DisplaySettings& settings);

// The glyph of a phase from the built-in strip, scaled to a square of `side` pixels.
QImage MoonGlyph(MoonPhase phase, int side);

// The same on paper: a black and white disc of sharp shapes, whatever the resolution. `pen` is the width of
// its rim.
void DrawMoonOnPaper(QPainter& painter, const QRectF& square, MoonPhase phase, double pen);

}  // namespace orbisol

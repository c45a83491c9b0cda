// The built-in pictures of the month view: a background, and the phases of the moon.
#pragma once

#include <QImage>
#include <QRectF>

#include "core/moon.h"

class QPainter;

namespace orbisol {

// Returns the default background, made to be stretched over a month.
QImage BuiltInBackground();

// Returns the glyph of a phase from the built-in strip, scaled to a square of `side` pixels.
QImage MoonGlyph(MoonPhase phase, int side);

// Draws a phase on paper, as a black and white disc of sharp shapes, whatever the resolution. `pen` is the
// width of its rim.
void DrawMoonOnPaper(QPainter& painter, const QRectF& square, MoonPhase phase, double pen);

}  // namespace orbisol

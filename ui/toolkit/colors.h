// Conversion of colors to the toolkit's, and their legibility.
#pragma once

#include <QColor>
#include <QPalette>

#include "content/calendar_look.h"

namespace orbisol {

inline QColor ToQColor(Color color) {
  return {static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
          static_cast<int>(color >> 16 & 0xFF)};
}

// Returns the contrast of two opaque colors, 1 (none) to 21 (black on white), as the Web Content
// Accessibility Guidelines 2.1 define it. Small texts are read with ease from 4.5 on.
double Contrast(const QColor& a, const QColor& b);

// Returns `ink` if a small text in it is easy to read on `ground`; else the nearest darker or lighter color
// of the same hue that is.
QColor LegibleOn(const QColor& ground, QColor ink);

// Returns the color of notes and hints on a ground of the palette: that of placeholders, where it is legible.
QColor NoteColor(const QPalette& colors, QPalette::ColorRole ground);

}  // namespace orbisol

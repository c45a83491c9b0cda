// Conversion of rectangles and positions between ours and the toolkit's.
#pragma once

#include <QPointF>
#include <QRect>

#include <cmath>

#include "core/rect.h"

namespace orbisol {

inline QRect ToQRect(const Rect& rect) { return {rect.left, rect.top, rect.Width(), rect.Height()}; }

// Returns the pixel in which the position of an event lies. On a screen of a fractional ratio the
// position often lies inside the pixel, not at its corner.
inline QPoint PixelAt(const QPointF& position) {
  return {static_cast<int>(std::floor(position.x())), static_cast<int>(std::floor(position.y()))};
}

inline Rect ToRect(const QRect& rect) {
  return {rect.x(), rect.y(), rect.x() + rect.width(), rect.y() + rect.height()};
}

}  // namespace orbisol

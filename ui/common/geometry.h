// Places on their way to the toolkit.
#pragma once

#include <QRect>

#include "core/rect.h"

namespace orbisol {

inline QRect ToQRect(const Rect& rect) { return {rect.left, rect.top, rect.Width(), rect.Height()}; }

}  // namespace orbisol

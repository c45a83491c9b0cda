// Where a window that was stored on other screens stands on those of today.
//
//   FitRectToScreen({-100, 10, 700, 500}, {0, 0, 1920, 1080});  // {0, 10, 800, 500}
#pragma once

#include "core/rect.h"

namespace orbisol {

// No larger than the screen, then moved into it by the shortest way. `screen` is the smallest rectangle
// around all screens. Any integers are accepted.
Rect FitRectToScreen(Rect rect, const Rect& screen);

}  // namespace orbisol

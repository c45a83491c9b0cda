#include "settings/window_layout.h"

#include <algorithm>

#include "core/packed_date.h"

namespace orbisol {
namespace {

// One direction: left and right, or top and bottom. Any ints fit its sums.
struct Extent {
  std::int64_t low;
  std::int64_t high;
};

Extent Fit(Extent extent, const Extent& screen) {
  extent.high = std::min(extent.high, extent.low + screen.high - screen.low);
  std::int64_t shift = 0;
  if (extent.low < screen.low) {
    shift = screen.low - extent.low;
  } else if (extent.high > screen.high) {
    shift = screen.high - extent.high;
  }
  return {extent.low + shift, extent.high + shift};
}

}  // namespace

Rect FitRectToScreen(Rect rect, const Rect& screen) {
  const Extent across = Fit({rect.left, rect.right}, {screen.left, screen.right});
  const Extent down = Fit({rect.top, rect.bottom}, {screen.top, screen.bottom});
  return {Saturate(across.low), Saturate(down.low), Saturate(across.high), Saturate(down.high)};
}

}  // namespace orbisol

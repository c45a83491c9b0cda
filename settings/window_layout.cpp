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

// Visits the fields of a layout in the order of their bytes.
template <typename Layout, typename Integer, typename Byte>
void VisitFields(Layout& layout, Integer integer, Byte byte) {
  integer(layout.rect.left);
  integer(layout.rect.top);
  integer(layout.rect.right);
  integer(layout.rect.bottom);
  byte(layout.maximized);
  byte(layout.statusBarShown);
  byte(layout.reserved);
  byte(layout.rightPaneShown);
  integer(layout.rightPaneWidth);
}

}  // namespace

std::array<std::uint8_t, kWindowLayoutBytes> LayoutToBytes(const WindowLayout& layout) {
  std::array<std::uint8_t, kWindowLayoutBytes> bytes{};
  std::size_t at = 0;
  VisitFields(
      layout,
      [&](int value) {
        const auto bits = static_cast<std::uint32_t>(value);
        for (int shift = 0; shift < 32; shift += 8) bytes[at++] = static_cast<std::uint8_t>(bits >> shift);
      },
      [&](std::uint8_t value) { bytes[at++] = value; });
  return bytes;
}

void LayoutFromBytes(std::span<const std::uint8_t> bytes, WindowLayout& layout) {
  VisitFields(
      layout,
      [&](int& value) {
        if (bytes.size() < 4) {
          bytes = {};  // a field that is cut off ends the record
          return;
        }
        std::uint32_t bits = 0;
        for (unsigned i = 0; i < 4; ++i) bits |= std::uint32_t{bytes[i]} << (8 * i);
        value = static_cast<int>(bits);
        bytes = bytes.subspan(4);
      },
      [&](std::uint8_t& value) {
        if (bytes.empty()) return;
        value = bytes[0];
        bytes = bytes.subspan(1);
      });
}

Rect FitRectToScreen(Rect rect, const Rect& screen) {
  const Extent across = Fit({rect.left, rect.right}, {screen.left, screen.right});
  const Extent down = Fit({rect.top, rect.bottom}, {screen.top, screen.bottom});
  return {Saturate(across.low), Saturate(down.low), Saturate(across.high), Saturate(down.high)};
}

}  // namespace orbisol

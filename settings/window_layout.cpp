#include "settings/window_layout.h"

#include <algorithm>
#include <type_traits>

#include "core/packed_date.h"

namespace orbisol {
namespace {

// Extent in one direction, left to right or top to bottom, in 64 bits, which hold sums of any ints.
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
template <typename Layout, typename Visitor>
void VisitFields(Layout& layout, Visitor visit) {
  visit(layout.rect.left);
  visit(layout.rect.top);
  visit(layout.rect.right);
  visit(layout.rect.bottom);
  visit(layout.maximized);
  visit(layout.statusBarShown);
  visit(layout.reserved);
  visit(layout.rightPaneShown);
  visit(layout.rightPaneWidth);
}

// Number of bytes that a field takes.
template <typename Field>
constexpr std::size_t kBytesOf = std::is_same_v<Field, int> ? 4 : 1;

}  // namespace

std::array<std::uint8_t, kWindowLayoutBytes> LayoutToBytes(const WindowLayout& layout) {
  std::array<std::uint8_t, kWindowLayoutBytes> bytes{};
  std::size_t at = 0;
  VisitFields(layout, [&]<typename Field>(const Field& field) {
    const auto bits = static_cast<std::uint32_t>(field);
    for (std::size_t i = 0; i < kBytesOf<Field>; ++i) bytes[at++] = static_cast<std::uint8_t>(bits >> 8 * i);
  });
  return bytes;
}

void LayoutFromBytes(std::span<const std::uint8_t> bytes, WindowLayout& layout) {
  VisitFields(layout, [&]<typename Field>(Field& field) {
    if (bytes.size() < kBytesOf<Field>) {
      bytes = {};  // nothing is read after a field that is cut off
      return;
    }
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < kBytesOf<Field>; ++i) bits |= std::uint32_t{bytes[i]} << 8 * i;
    field = static_cast<Field>(bits);
    bytes = bytes.subspan(kBytesOf<Field>);
  });
}

Rect FitRectToScreen(Rect rect, const Rect& screen) {
  const Extent across = Fit({rect.left, rect.right}, {screen.left, screen.right});
  const Extent down = Fit({rect.top, rect.bottom}, {screen.top, screen.bottom});
  return {Saturate(across.low), Saturate(down.low), Saturate(across.high), Saturate(down.high)};
}

WindowLayout ClosingLayout(WindowLayout layout, const ClosingFrame& frame, const Rect& screen) {
  layout.maximized = frame.maximized;
  layout.rightPaneShown = frame.paneShown;
  layout.rightPaneWidth = frame.paneWidth;
  if (HasRoom(frame.rect)) {
    layout.rect = frame.rect;
    if (!frame.paneShown) layout.rect.right = Saturate(std::int64_t{layout.rect.right} + frame.paneWidth);
  }
  layout.rect = FitRectToScreen(layout.rect, screen);
  return layout;
}

}  // namespace orbisol

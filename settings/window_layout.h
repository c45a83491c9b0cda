// The layout of a top-level window: the record, its bytes under the key, and its place on the present
// screens.
//
//   WindowLayout layout;
//   LayoutFromBytes(bytes, layout);
//   layout.rect = FitRectToScreen(layout.rect, {0, 0, 1920, 1080});
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "core/rect.h"

namespace orbisol {

struct WindowLayout {
  Rect rect{50, 50, 900, 450};  // rectangle on the screen, with the frame and, shown or not, the pane
  bool maximized = false;
  bool statusBarShown = true;
  std::uint8_t reserved = 1;    // byte without a meaning, kept as it was
  bool rightPaneShown = false;  // a fresh window shows the month alone
  int rightPaneWidth = 0;       // width in pixels, for information; computed anew at every start

  bool operator==(const WindowLayout&) const = default;
};

constexpr std::size_t kWindowLayoutBytes = 24;

// Returns the fields in little-endian order: four integers, four bytes, one integer. A flag is 0 or 1.
std::array<std::uint8_t, kWindowLayoutBytes> LayoutToBytes(const WindowLayout& layout);

// Sets as many whole fields as there are bytes; the others keep their value. Any byte but 0 sets a flag.
// Bytes past the 24th are ignored.
void LayoutFromBytes(std::span<const std::uint8_t> bytes, WindowLayout& layout);

// Returns whether a rectangle has an area: false for one that is empty or, in a damaged value, inverted.
constexpr bool HasRoom(const Rect& rect) { return rect.right > rect.left && rect.bottom > rect.top; }

// Returns a rectangle no larger than the screen, moved into it by the shortest way:
//
//   FitRectToScreen({-100, 10, 700, 500}, {0, 0, 1920, 1080});  // {0, 10, 800, 500}
//
// `screen` is the smallest rectangle around all screens. Any integers are accepted.
Rect FitRectToScreen(Rect rect, const Rect& screen);

// The state of a window that closes.
struct ClosingFrame {
  Rect rect;  // rectangle with the frame, of a maximized window that of its normal size; empty if unknown
  bool maximized = false;
  bool minimized = false;
  bool paneShown = true;
  int paneWidth = 0;  // width of the right pane, in pixels
};

// Returns what a closing window stores: its rectangle with the right pane, also when that is hidden, moved
// onto the screen. Where the rectangle is not known that of `layout` stays.
WindowLayout ClosingLayout(WindowLayout layout, const ClosingFrame& frame, const Rect& screen);

}  // namespace orbisol

// Where a top-level window stands: the record, its bytes under the key, and its place on the screens of
// today.
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

// Stored in 24 bytes.
struct WindowLayout {
  Rect rect{50, 50, 900, 450};  // screen coordinates with the frame; of the main window always with its pane
  std::uint8_t maximized = 0;
  std::uint8_t statusBarShown = 1;
  std::uint8_t reserved = 1;        // carried along
  std::uint8_t rightPaneShown = 0;  // a fresh window shows the month alone
  int rightPaneWidth = 0;           // pixels; informative, measured anew at every start

  bool operator==(const WindowLayout&) const = default;
};
constexpr std::size_t kWindowLayoutBytes = 24;
// Little-endian: four integers, four bytes, one integer.
std::array<std::uint8_t, kWindowLayoutBytes> LayoutToBytes(const WindowLayout& layout);
// Takes as many whole fields as there are bytes; the others keep their value. Bytes past the 24th are
// ignored.
void LayoutFromBytes(std::span<const std::uint8_t> bytes, WindowLayout& layout);

// No larger than the screen, then moved into it by the shortest way:
//
//   FitRectToScreen({-100, 10, 700, 500}, {0, 0, 1920, 1080});  // {0, 10, 800, 500}
//
// `screen` is the smallest rectangle around all screens. Any integers are accepted.
Rect FitRectToScreen(Rect rect, const Rect& screen);

}  // namespace orbisol

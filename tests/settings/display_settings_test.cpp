#include "settings/display_settings.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "settings/window_layout.h"

namespace orbisol {
namespace {

TEST(WindowLayoutTest, IsStoredLittleEndianAndFewerBytesFillTheFieldsTheyHold) {
  constexpr std::array<std::uint8_t, kWindowLayoutBytes> kBytes = {
      0xFE, 0xFF, 0xFF, 0xFF, 2, 1, 0, 0, 0, 0, 1, 0, 0xFF, 0xFF, 0xFF, 0x7F, 1, 0, 7, 1, 3, 0, 0, 0x80};
  const WindowLayout layout{{-2, 258, 65536, 2147483647}, true, false, 7, true, -2147483645};
  EXPECT_EQ(LayoutToBytes(layout), kBytes);
  constexpr std::size_t kEnds[] = {0, 4, 8, 12, 16, 17, 18, 19, 20, 24};  // ends of the fields, in bytes
  for (std::size_t size = 0; size <= 30; ++size) {
    std::vector<std::uint8_t> bytes(kBytes.begin(), kBytes.end());
    bytes.resize(size, 0x55);
    WindowLayout read;
    auto expected = LayoutToBytes(read);
    std::copy_n(kBytes.begin(), *std::prev(std::upper_bound(std::begin(kEnds), std::end(kEnds), size)),
                expected.begin());
    LayoutFromBytes(bytes, read);
    EXPECT_EQ(LayoutToBytes(read), expected) << size;
  }
}

TEST(ScreenFitTest, RectanglesComeOntoTheScreen) {
  constexpr Rect kFullHd = {0, 0, 1920, 1080};
  constexpr int kMost = 2147483647;
  constexpr std::tuple<const char*, Rect, Rect, Rect> kRows[] = {
      {"too large", {50, 50, 5050, 3050}, kFullHd, {0, 0, 1920, 1080}},
      {"left and below", {-100, 900, 700, 1390}, kFullHd, {0, 590, 800, 1080}},
      {"right and above", {1800, -30, 2600, 500}, kFullHd, {1120, 0, 1920, 530}},
      {"as far away as can be", {kMost - 10, kMost - 10, kMost, kMost}, kFullHd, {1910, 1070, 1920, 1080}},
      {"as large as can be", {-kMost - 1, -kMost - 1, kMost, kMost}, kFullHd, kFullHd},
      {"inside out", {100, 100, 50, 60}, kFullHd, {100, 100, 50, 60}},
  };
  for (const auto& [what, stored, screen, fitted] : kRows)
    EXPECT_EQ(FitRectToScreen(stored, screen), fitted) << what;
}

}  // namespace
}  // namespace orbisol

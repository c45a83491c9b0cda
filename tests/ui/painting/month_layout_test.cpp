#include "ui/painting/month_layout.h"

#include <gtest/gtest.h>

namespace orbisol {
namespace {

// Sizes are ordinary ones, and ones where divisions leave a remainder, columns of a pixel or nothing.
TEST(MonthLayoutTest, EveryPixelBelongsToTheCellWhoseRectangleHoldsIt) {
  for (const auto& [width, height] :
       {std::pair{900, 420}, {97, 61}, {29, 48}, {7, 7}, {6, 300}, {300, 6}, {0, 0}})
    for (const bool weekNumbers : {false, true}) {
      const MonthLayout layout(width, height, weekNumbers, true);
      for (int y = -3; y < height + 3; ++y)
        for (int x = -3; x < width + 3; ++x) {
          int cell = 1;
          while (cell <= kDayPlaces && !layout.CellRect(cell).Contains(x, y)) ++cell;
          ASSERT_EQ(layout.CellAt(x, y), cell <= kDayPlaces ? cell : kNoCell) << x << ", " << y;
        }
    }
}

// On purpose: some stand right of 28/29 of the width.
TEST(MonthLayoutTest, WeekNumbersStandRightOfTheLineThatPartsThem) {
  for (int width = 60; width < 2000; ++width) {
    const MonthLayout layout(width, 400, true, true);
    const int line = layout.VerticalLines(false).at(0);
    const Rect number = layout.WeekNumberRect(1);
    ASSERT_TRUE(line < number.left && number.left <= line + 4 + width / 290) << width;
  }
}

}  // namespace
}  // namespace orbisol

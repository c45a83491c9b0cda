#include "ui/shell/main_layout.h"

#include <gtest/gtest.h>

namespace orbisol {
namespace {

MainMeasures Measures(int width, int height, bool weekNumbers, bool paneShown) {
  MainMeasures measures;
  measures.width = width;
  measures.height = height;
  measures.headerTop = 24;
  measures.weekNumbers = weekNumbers;
  measures.paneShown = paneShown;
  measures.paneWidth = 336;
  return measures;
}

TEST(MainLayoutTest, SevenColumnsComeOutEqualAtEveryWidth) {
  for (int width = 500; width < 1500; ++width) {
    const MainLayout places = LayOutMain(Measures(width, 400, false, width % 2 == 0));
    ASSERT_EQ(places.grid.Width() % kDayColumns, 0) << width;
    ASSERT_EQ(places.header.Width(), places.grid.Width());
    // No more is given away than that takes.
    const int right = places.group.right + kMargin + (width % 2 == 0 ? 336 : 0);
    ASSERT_TRUE(right <= width && width - right < kDayColumns) << width;
  }
  EXPECT_EQ(LayOutMain(Measures(851, 400, true, true)).group.Width(), 851 - 2 * kMargin - 336);
}

TEST(MainLayoutTest, HidingThePaneWithItsWidthLeavesTheMonthAsItIs) {
  for (const bool weekNumbers : {false, true})
    for (int width = 700; width < 720; ++width) {
      const MainLayout with = LayOutMain(Measures(width + 336, 500, weekNumbers, true));
      const MainLayout without = LayOutMain(Measures(width, 500, weekNumbers, false));
      ASSERT_EQ(with.group, without.group) << width;
      ASSERT_EQ(with.grid, without.grid) << width;
      ASSERT_GE(without.pane.left, width - kDayColumns) << width;
    }
}

TEST(MainLayoutTest, HeaderAndGridShareTheHeight) {
  const MainLayout places = LayOutMain(Measures(850, 403, true, true));
  EXPECT_EQ(places.group, (Rect{kMargin, kTopMargin, kMargin + 850 - 2 * kMargin - 336, 403 - kTopMargin}));
  EXPECT_EQ(places.header.top, 24);
  EXPECT_EQ(places.header.Height(), 403 / 7);
  EXPECT_EQ(places.grid.top, 24 + 403 / 7 + 4);
  EXPECT_EQ(places.grid.bottom, places.group.bottom - kGap);
  EXPECT_EQ(places.grid.left - places.group.left, kGap);
  EXPECT_GT(places.separator.left, places.group.right);
  EXPECT_LT(places.separator.right, places.pane.left);
}

TEST(MainLayoutTest, NothingIsTurnedInsideOutInAWindowOfNoSize) {
  for (int size = 0; size < 60; ++size) {
    const MainLayout places = LayOutMain(Measures(size, size, size % 2 == 0, true));
    for (const Rect& rect : {places.group, places.header, places.grid, places.separator, places.pane}) {
      ASSERT_GE(rect.Width(), 0);
      ASSERT_GE(rect.Height(), 0);
    }
  }
}

}  // namespace
}  // namespace orbisol

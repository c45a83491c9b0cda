#include "ui/shell/main_layout.h"

#include <gtest/gtest.h>

namespace orbisol {
namespace {

MainLayout LaidOut(int width, int height, bool weekNumbers, bool paneShown) {
  return LayOutMain({width, height, 24, 0, weekNumbers, paneShown, 336});
}

TEST(MainLayoutTest, SevenColumnsComeOutEqualAtEveryWidth) {
  for (int width = 500; width < 1500; ++width) {
    const MainLayout places = LaidOut(width, 400, false, width % 2 == 0);
    ASSERT_EQ(places.grid.Width() % kDayColumns, 0) << width;
    ASSERT_EQ(places.header.Width(), places.grid.Width());
    ASSERT_EQ(LaidOut(width, 400, false, false).grid, LaidOut(width + 336, 400, false, true).grid)
        << "as it was";
    // No more is given away than that takes.
    const int right = places.group.right + kMargin + (width % 2 == 0 ? 336 : 0);
    ASSERT_TRUE(right <= width && width - right < kDayColumns) << width;
  }
  EXPECT_EQ(LaidOut(851, 400, true, true).group.Width(), 851 - 2 * kMargin - 336);
}

TEST(MainLayoutTest, PartsFollowOneAnotherAndWeeksCanBeEquallyHigh) {
  for (int height = 200; height < 900; ++height) {
    const int even = EvenHeight(height, 24);
    ASSERT_TRUE(even <= height && height - even <= 8) << height;
    const MainLayout places = LaidOut(850, even, true, true);
    ASSERT_EQ(places.grid.Height() % 7, 0) << height;
    ASSERT_GE(places.header.top, 24);
    ASSERT_GT(places.grid.top, places.header.bottom);
    ASSERT_TRUE(places.grid.bottom < places.group.bottom && places.group.bottom < even);
    ASSERT_GT(places.grid.Height(), 4 * places.header.Height());
    ASSERT_TRUE(places.group.right < places.separator.left && places.separator.right < places.pane.left);
  }
}

TEST(MainLayoutTest, NothingIsTurnedInsideOutInAWindowOfNoSize) {
  for (int size = 0; size < 60; ++size) {
    const MainLayout places = LaidOut(size, size, size % 2 == 0, true);
    for (const Rect& rect : {places.group, places.header, places.grid, places.separator, places.pane}) {
      ASSERT_GE(rect.Width(), 0);
      ASSERT_GE(rect.Height(), 0);
    }
  }
}

}  // namespace
}  // namespace orbisol

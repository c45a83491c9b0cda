#include "ui/month/month_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace orbisol {
namespace {

struct Size {
  int width, height;
};

// Ordinary ones, and those where divisions leave rests, columns of one pixel or nothing at all.
constexpr Size kSizes[] = {{900, 420}, {561, 397}, {290, 203}, {97, 61}, {29, 48}, {13, 13},
                           {7, 7},     {6, 300},   {300, 6},   {4, 4},   {1, 1},   {0, 0}};

std::vector<MonthLayout> AllLayouts() {
  std::vector<MonthLayout> layouts;
  for (const Size& size : kSizes)
    for (const bool weekNumbers : {false, true})
      for (const bool mondayFirst : {false, true})
        layouts.emplace_back(size.width, size.height, weekNumbers, mondayFirst);
  return layouts;
}

TEST(MonthLayoutTest, EveryPixelBelongsToTheCellWhoseRectangleHoldsIt) {
  for (const MonthLayout& layout : AllLayouts()) {
    for (int y = -3; y < layout.height + 3; ++y) {
      for (int x = -3; x < layout.width + 3; ++x) {
        int expected = kNoCell;
        for (int tool = 1; tool <= kToolCount && expected == kNoCell; ++tool)
          if (layout.CellRect(layout.CellOfTool(tool)).Contains(x, y)) expected = layout.CellOfTool(tool);
        ASSERT_EQ(layout.CellAt(x, y), expected)
            << x << ", " << y << " in " << layout.width << " x " << layout.height;
      }
    }
  }
}

TEST(MonthLayoutTest, PointsFarOutsideHitNothing) {
  const MonthLayout layout(700, 392, true, true);
  constexpr int kFar = 2147483647;
  for (const auto& [x, y] : {std::pair{kFar, 100}, {100, kFar}, {-kFar, 100}, {100, -kFar}, {800, 100}})
    EXPECT_EQ(layout.CellAt(x, y), kNoCell) << x << ", " << y;
}

TEST(MonthLayoutTest, ColumnsShareTheWidthWithTheWeekNumbers) {
  const MonthLayout without(900, 423, false, true);
  EXPECT_EQ(without.columnWidth, 128);
  EXPECT_EQ(without.rowHeight, 60);
  EXPECT_EQ(without.CellRect(1), (Rect{0, 60, 128, 120}));
  EXPECT_EQ(without.CellRect(14), (Rect{6 * 128, 120, 7 * 128, 180}));

  const MonthLayout with(900, 423, true, false);
  EXPECT_EQ(with.columnWidth, 124);
  EXPECT_EQ(with.CellRect(0), (Rect{0, 60, 124, 120}));
  EXPECT_EQ(with.WeekHeaderRect(), (Rect{869, 0, 900, 60}));  // from 28/29 of the width
  EXPECT_EQ(with.WeekNumberRect(6), (Rect{869, 360, 899, 420}));
  EXPECT_EQ(with.FontHeight(), 60);
  EXPECT_EQ(with.SmallFontHeight(), 24);
}

TEST(MonthLayoutTest, WeekNumbersStandRightOfTheLineThatPartsThem) {
  for (int width = 60; width < 2000; ++width) {
    const MonthLayout layout(width, 400, true, true);
    ASSERT_GT(layout.WeekNumberRect(1).left, kColumns * layout.columnWidth) << width;
  }
}

TEST(MonthLayoutTest, GridHasALineBeforeEachColumnAndRowAndOneThatCloses) {
  const MonthLayout plain(700, 423, false, true);
  EXPECT_EQ(plain.VerticalLines(true), (std::vector{0, 100, 200, 300, 400, 500, 600, 700}));
  EXPECT_EQ(plain.HorizontalLines(true), (std::vector{0, 60, 120, 180, 240, 300, 360, 423}));
  EXPECT_TRUE(plain.VerticalLines(false).empty());
  EXPECT_TRUE(plain.HorizontalLines(false).empty());

  const MonthLayout weeks(725, 423, true, true);
  EXPECT_EQ(weeks.VerticalLines(true), (std::vector{0, 100, 200, 300, 400, 500, 600, 700, 725}));
  EXPECT_EQ(weeks.VerticalLines(false), std::vector{700});
}

TEST(MonthLayoutTest, StrokesOfAFrameMeetWithoutOverlap) {
  for (const int pen : {1, 2, 3}) {
    for (const Rect& frame : {Rect{10, 10, 50, 40}, Rect{10, 10, 12, 12}, Rect{10, 10, 13, 30}}) {
      const std::vector<Rect> strokes = MonthLayout::FrameStrokes(frame, pen);
      // The ring that a square brush of `pen` leaves when it is drawn along the frame.
      const auto isInked = [&](int x, int y) {
        const auto near = [&](int line, int at) { return at >= line - pen / 2 && at < line - pen / 2 + pen; };
        const bool inX = x >= frame.left - pen / 2 && x < frame.right - pen / 2 + pen;
        const bool inY = y >= frame.top - pen / 2 && y < frame.bottom - pen / 2 + pen;
        return inX && inY &&
               (near(frame.left, x) || near(frame.right, x) || near(frame.top, y) || near(frame.bottom, y));
      };
      for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 60; ++x)
          ASSERT_EQ(
              std::count_if(strokes.begin(), strokes.end(), [&](const Rect& r) { return r.Contains(x, y); }),
              isInked(x, y) ? 1 : 0)
              << "pen " << pen << " at " << x << ", " << y;
    }
  }
}

// What a mark inks is inside of what is repainted when it moves, and inside of the window.
TEST(MonthLayoutTest, MarksStayInWhatIsRepainted) {
  const auto holds = [](const Rect& outer, const Rect& inner) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
  };
  for (const MonthLayout& layout : AllLayouts()) {
    if (layout.columnWidth < 4 || layout.rowHeight < 4) continue;
    const Rect window{0, 0, layout.width, layout.height};
    for (int tool = 1; tool <= kToolCount; ++tool) {
      const int cell = layout.CellOfTool(tool);
      EXPECT_TRUE(holds(layout.CellRect(cell), layout.CircleRect(cell)));
      for (const int pen : {1, 2, 3}) {
        for (const Rect& stroke : MonthLayout::FrameStrokes(layout.FrameRect(cell, pen), pen)) {
          EXPECT_TRUE(holds(layout.DirtyRect(cell), stroke)) << cell;
          EXPECT_TRUE(holds(window, stroke)) << cell << " pen " << pen << " width " << layout.width;
        }
      }
    }
  }
}

TEST(MonthLayoutTest, FillsAndGlyphFollowTheCell) {
  const MonthLayout screen(700, 420, false, true);
  EXPECT_EQ(screen.BandRect(1), (Rect{0, 60, 100, 72}));
  EXPECT_EQ(screen.RoundedRect(1), (Rect{4, 64, 96, 116}));
  EXPECT_EQ(screen.RoundedDiameter(), 12);
  EXPECT_EQ(screen.GlyphRect(1, 40, 48), (Rect{70, 84, 82, 96}));

  const MonthLayout paper(700, 420, false, true, 6);
  EXPECT_EQ(paper.RoundedRect(1), (Rect{24, 84, 76, 96}));
  EXPECT_EQ(paper.RoundedDiameter(), 2);
}

}  // namespace
}  // namespace orbisol

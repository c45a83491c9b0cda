#include "ui/month/header_layout.h"

#include <gtest/gtest.h>

namespace orbisol {
namespace {

HeaderMeasures Ordinary() {
  HeaderMeasures measures;
  measures.width = 600;
  measures.height = 62;
  measures.band = 14;
  measures.space = 8;
  measures.month = 120;
  measures.year = 71;
  measures.widestYear = 90;
  measures.spinButtons = 24;
  return measures;
}

TEST(HeaderLayoutTest, ArrowsStandInTheMiddleThirdOfTheirSquares) {
  const HeaderLayout layout(Ordinary());
  EXPECT_EQ(layout.previous, (Rect{0, 20, 20, 41}));
  EXPECT_EQ(layout.next, (Rect{580, 20, 600, 41}));
  EXPECT_EQ(layout.previousArrow, (std::array<HeaderLayout::Point, 3>{{{0, 31}, {20, 20}, {20, 41}}}));
  EXPECT_EQ(layout.nextArrow, (std::array<HeaderLayout::Point, 3>{{{600, 31}, {580, 20}, {580, 41}}}));
  EXPECT_EQ(layout.previousTip, (Rect{0, 0, 62, 48}));
  EXPECT_EQ(layout.nextTip, (Rect{538, 0, 600, 48}));
}

TEST(HeaderLayoutTest, MonthAndYearAreCenteredTogetherBetweenTheBands) {
  const HeaderLayout layout(Ordinary());
  EXPECT_LE(std::abs(layout.month.left - (600 - layout.year.right)), 1);
  EXPECT_EQ(layout.year.left - layout.month.right, 8);
  EXPECT_EQ(layout.month.top, layout.topBand.bottom);
  EXPECT_EQ(layout.month.bottom, layout.bottomBand.top);
  EXPECT_EQ(layout.bottomBand.bottom, 62);
  EXPECT_EQ(layout.yearEditor.left, layout.year.left);
  EXPECT_EQ(layout.yearEditor.Width(), 90 + 24);
}

TEST(HeaderLayoutTest, ThePointsOfAPartBelongToItAndThoseAroundItToNone) {
  const HeaderLayout layout(Ordinary());
  EXPECT_EQ(layout.PartAt(0, 20), HeaderPart::kPrevious);
  EXPECT_EQ(layout.PartAt(20, 30), HeaderPart::kNone);
  EXPECT_EQ(layout.PartAt(10, 41), HeaderPart::kNone);
  EXPECT_EQ(layout.PartAt(599, 40), HeaderPart::kNext);
  EXPECT_EQ(layout.PartAt(layout.month.right - 1, 30), HeaderPart::kMonth);
  EXPECT_EQ(layout.PartAt(layout.month.right + 3, 30), HeaderPart::kNone);
  EXPECT_EQ(layout.PartAt(layout.year.left, 30), HeaderPart::kYear);
  EXPECT_EQ(layout.PartAt(layout.year.left, 10), HeaderPart::kNone);
}

TEST(HeaderLayoutTest, TheYearEditorStaysInsideANarrowHeader) {
  HeaderMeasures measures = Ordinary();
  measures.width = 230;
  const HeaderLayout layout(measures);
  EXPECT_EQ(layout.yearEditor.right, 230);
}

TEST(HeaderLayoutTest, BandsAreAFifthHigherThanTheFontWhicheverSignItsHeightHas) {
  EXPECT_EQ(HeaderBandHeight(12), 14);
  EXPECT_EQ(HeaderBandHeight(-12), 14);
  EXPECT_EQ(HeaderBandHeight(13), 16);
}

}  // namespace
}  // namespace orbisol

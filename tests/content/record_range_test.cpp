#include "content/record_range.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orbisol {
namespace {

bool Holds(const std::vector<RecordBounds>& pieces, PackedDate date) {
  return std::any_of(pieces.begin(), pieces.end(),
                     [=](const RecordBounds& piece) { return piece.from <= date && date <= piece.to; });
}

TEST(RecordRangeTest, PiecesHoldTheDaysOfTheRangeAndNoOther) {
  std::vector<PackedDate> dates;
  for (int year : {-3999, -3998, -45, -44, -43, -42, -2, -1, 0, 1, 2024, 3998, 3999})
    for (const int day : {101, 102, 315, 630, 1230, 1231}) dates.push_back(Pack(year, day / 100, day % 100));
  for (std::size_t i = 0; i < dates.size(); ++i) {
    EXPECT_TRUE(i == 0 || BoundsOf({dates[i], dates[i - 1]}).empty());
    for (std::size_t j = i; j < dates.size(); ++j) {
      const DayRange range{dates[i], dates[j]};
      std::vector<RecordBounds> pieces = BoundsOf(range);
      for (std::size_t k = 0; k < dates.size(); ++k)
        ASSERT_EQ(Holds(pieces, dates[k]), i <= k && k <= j) << range.first << " to " << range.last;
      const std::size_t count = pieces.size();
      pieces.push_back({kAlwaysFrom, kAlwaysTo});  // a neighbor that belongs to something else
      const JoinedRange joined = JoinRanges(pieces);
      ASSERT_EQ(joined.records, count) << range.first << " to " << range.last;
      ASSERT_EQ(joined.range, range);
    }
  }
  EXPECT_EQ(BoundsOf(kAlways), (std::vector<RecordBounds>{{kAlwaysFrom, kAlwaysTo}}));
}

TEST(RecordRangeTest, WhatIsNoRangeStaysAsItIs) {
  const std::pair<const char*, RecordBounds> kRows[] = {
      {"without dates", {0, 0}},
      {"no day of a month", {20240101, 39999999}},
      {"backwards", {20240102, 20240101}},
      {"1 January to 15 March -44 and all days from -43 on", {-440315, 20240101}},
      {"the years up to -45 and the end of -44", {-991231, -440315}},
  };
  for (const auto& [what, bounds] : kRows) {
    EXPECT_EQ(RangeOf(bounds), std::nullopt) << what;
    EXPECT_EQ(JoinRanges(std::vector<RecordBounds>{bounds, bounds}).records, 1U) << what;
  }
}

}  // namespace
}  // namespace orbisol

#include "content/selected_date.h"

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

TEST(SelectedDateTest, IsTodayAtFirstAndKeepsWhatIsSelected) {
  const ScopedPlatform inForce(FakeLocale(), FakeClock({4711, 5, 1}));
  EXPECT_EQ(Selected().Packed(), kLastDateShown) << "a clock beyond the range shown is clamped";
  SelectDate(Selected(), 2024, 5, 1);
  EXPECT_EQ(Selected().Packed(), 20240501);
}

TEST(SelectedDateTest, DatesAreClampedToTheRangeShown) {
  const struct {
    YearMonthDay asked;
    PackedDate selected;
  } kRows[] = {
      {{2024, 5, 1}, 20240501},    {{-3999, 1, 1}, -39990101},   {{-3999, 1, 0}, -39990101},
      {{-3999, 0, 31}, -39990101}, {{-4000, 12, 31}, -39990101}, {{-2147483647 - 1, 6, 15}, -39990101},
      {{3999, 12, 31}, 39991231},  {{3999, 12, 32}, 39991231},   {{3999, 13, 1}, 39991231},
      {{3999, 12, 1}, 39991201},   {{4000, 1, 1}, 39991231},     {{2147483647, 6, 15}, 39991231},
      {{2025, 2, 29}, 20250229},  // exists as little as the next two, and stays
      {{2024, 4, 31}, 20240431},   {{1582, 10, 10}, 15821010},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.selected);
    Date date(2000, 1, 1);
    date.dateOrder = 2;
    SelectDate(date, row.asked.year, row.asked.month, row.asked.day);
    EXPECT_EQ(date.Packed(), row.selected);
    EXPECT_EQ(date.dateOrder, 2);
    EXPECT_TRUE(IsWithinBounds(date));
    const Date asked(row.asked.year, row.asked.month, row.asked.day);
    EXPECT_EQ(IsWithinBounds(asked), asked.SameDay(date));
  }
}

TEST(SelectedDateTest, StepsOfDaysMonthsAndYears) {
  constexpr int kMost = 2147483647;
  constexpr int kLeast = -2147483647 - 1;
  const struct {
    const char* what;
    void (*step)(Date&, int);
    PackedDate from;
    int by;
    PackedDate to;
  } kRows[] = {
      {"right over the reform", StepDays, 15821004, 1, 15821015},
      {"left over the reform", StepDays, 15821015, -1, 15821004},
      {"up over the reform", StepDays, 15821015, -7, 15820928},
      {"down at the last day", StepDays, 39991228, 7, 39991231},
      {"left at the first day", StepDays, -39990101, -1, -39990101},
      {"any number", StepDays, 20240501, kMost, 39991231},
      {"any number back", StepDays, 20240501, kLeast, -39990101},
      {"left to 29 February -8", StepDays, -80301, -1, -80229},
      {"left from it", StepDays, -80229, -1, -80228},
      {"right to it", StepDays, -80228, 1, -80229},
      {"right from it", StepDays, -80229, 1, -80302},
      {"up from it", StepDays, -80229, -7, -80223},
      {"left from a day that does not exist", StepDays, 20250229, -1, 20250228},

      {"page down into a shorter month", StepMonths, 20230131, 1, 20230228},
      {"page up over the year", StepMonths, 20240115, -1, 20231215},
      {"page down into dropped days", StepMonths, 15820910, 1, 15821010},
      {"page up at the beginning", StepMonths, -39990115, -1, -39990101},
      {"page down at the end", StepMonths, 39991215, 1, 39991231},
      {"any number", StepMonths, 20240501, kMost, 39991231},
      {"any number back", StepMonths, 20240501, kLeast, -39990101},

      {"a year from 29 February", StepYears, 20240229, 1, 20250229},
      {"and on to one that has it", StepYears, 20250229, -1, 20240229},
      {"a century over the era", StepYears, 500615, -100, -500615},
      {"past the end", StepYears, 39990102, 1, 39991231},
      {"past the beginning", StepYears, -39501231, -100, -39990101},
      {"any number", StepYears, 20240501, kMost, 39991231},
      {"any number back", StepYears, -20240501, kLeast, -39990101},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    Date date(row.from);
    row.step(date, row.by);
    EXPECT_EQ(date.Packed(), row.to);
  }
}

// From the last day shown to the first, then back: a key that is held down always gets on. After the earliest
// reforms some dates come twice.
TEST(SelectedDateTest, OneDayBackIsAlwaysEarlierAndOneDayOnLater) {
  const struct {
    PackedDate reform;
    bool proleptic;
  } kRows[] = {{15821015, false}, {17000301, true}, {10101, false}, {-39990101, true}, {-39000101, true}};
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.reform);
    const ScopedRules inForce(RulesWith(row.reform, {.proleptic = row.proleptic}));
    const PackedDate turn = row.reform == 15821015 ? kLastDateShown : row.reform + 4000000;
    Date date(turn);
    int steps = 0;
    for (; date.Packed() != kFirstDateShown && steps < 3000000; ++steps) {
      const Date before = date;
      StepDays(date, -1);
      ASSERT_TRUE(date.IsBefore(before.Packed())) << "from " << before.Packed();
    }
    EXPECT_EQ(date.Packed(), kFirstDateShown);
    for (; date.Packed() != turn && steps < 6000000; ++steps) {
      const PackedDate before = date.Packed();
      StepDays(date, 1);
      ASSERT_TRUE(Date(before).IsBefore(date.Packed())) << "from " << before;
    }
    EXPECT_EQ(date.Packed(), turn);
  }
}

TEST(SelectedDateTest, AnyIntegersEndWithinTheBounds) {
  const int kAny[] = {-2147483647 - 1, -2147483647, -40000000, -3999, -1, 0, 1, 12, 99, 3999,
                      40000000,        2147483647};
  for (const int year : kAny)
    for (const int month : kAny)
      for (const int day : kAny)
        for (const int by : kAny)
          for (const auto step : {StepDays, StepMonths, StepYears}) {
            Date date(year, month, day);
            step(date, by);
            ASSERT_TRUE(IsWithinBounds(date)) << year << ' ' << month << ' ' << day << " by " << by;
          }
}

}  // namespace
}  // namespace orbisol

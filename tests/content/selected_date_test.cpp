#include "content/selected_date.h"

#include <gtest/gtest.h>

#include <climits>

#include "tests/support/fakes.h"

namespace orbisol {
namespace {

TEST(SelectedDateTest, IsTodayAtFirstAndKeepsWhatIsSelected) {
  const ScopedPlatform inForce(FakeLocale(), FakeClock({4711, 5, 1}));
  EXPECT_EQ(Selected().Packed(), kLastDateShown) << "a clock beyond the range shown is clamped";
  EXPECT_FALSE(IsWithinBounds(Date(47110501)));
  SelectDate(Selected(), 2024, 5, 1);
  EXPECT_EQ(Selected().Packed(), 20240501);
}

TEST(SelectedDateTest, StepsOfDaysMonthsAndYears) {
  const std::tuple<const char*, void (*)(Date&, int), PackedDate, int, PackedDate> kRows[] = {
      {"up over the reform", StepDays, 15821015, -7, 15820928},
      {"left to 29 February -8", StepDays, -80301, -1, -80229},
      {"right from it", StepDays, -80229, 1, -80302},
      {"up from it", StepDays, -80229, -7, -80223},
      {"left from a day that does not exist", StepDays, 20250229, -1, 20250228},
      {"page down into a shorter month", StepMonths, 20230131, 1, 20230228},
      {"page up at the beginning", StepMonths, -39990115, -1, -39990101},
      {"page down at the end", StepMonths, 39991215, 1, 39991231},
      {"on purpose: a year from 29 February", StepYears, 20240229, 1, 20250229},
      {"any number of months", StepMonths, 20240501, INT_MAX, 39991231},
      {"any number of years", StepYears, -20240501, INT_MIN, -39990101},
      {"from the day before the first", StepYears, -39990100, 0, -39990101},
      {"from the month after the last", StepYears, 39991301, 0, 39991231},
  };
  for (const auto& [what, step, from, by, to] : kRows) {
    Date date(from);
    step(date, by);
    EXPECT_EQ(date.Packed(), to) << what;
  }
}

// A key that is held down always moves on. After the earliest reforms some dates come twice.
TEST(SelectedDateTest, OneDayBackIsAlwaysEarlierAndOneDayOnLater) {
  for (const PackedDate reform : {15821015, 10101, -39990101, -39000101}) {
    const ScopedRules inForce(RulesWith(reform));
    const PackedDate turn = reform == kRomanReform ? kLastDateShown : reform + 4000000;
    Date date(turn);
    for (const int step : {-1, 1}) {
      while (date.Packed() != (step < 0 ? kFirstDateShown : turn)) {
        const Date before = date;
        StepDays(date, step);
        ASSERT_TRUE(step < 0 ? date.IsBefore(before.Packed()) : before.IsBefore(date.Packed()))
            << before.Packed();
      }
    }
  }
}

}  // namespace
}  // namespace orbisol

#include "core/week_number.h"

#include <gtest/gtest.h>

#include "tests/support/plain_calendar.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

// ISO 8601: the week belongs to the year of its Thursday, and is counted from that year's first one.
int PlainIsoWeek(int dayNumber, const plain::Reform& reform) {
  const std::int64_t thursday = dayNumber - dayNumber % 7 + 3;
  const std::int64_t year = plain::DateOfDayNumber(thursday, reform).year;
  return static_cast<int>((thursday - plain::DayNumber({year, 1, 1}, reform)) / 7) + 1;
}

TEST(WeekNumberTest, IsoWeeksArePlainOnesButAroundTheReformAndInTheEarlyCycles) {
  constexpr std::tuple<plain::Reform, PackedDate, PackedDate> kStretches[] = {
      {{kRomanReform, false}, -480101, 15821004},  // Julian with early leap years
      {{kNeverGregorian, true}, -39990101, 39991231},
      {{kRomanReform, false}, 15830103, 39991231},  // the year of the reform ended on a Friday,
      {{19190318, false}, 19191229, 22001231},      // on a Wednesday,
      {{17520914, false}, 17530101, 22001231},      // and on a Sunday
  };
  for (const auto& [reform, first, end] : kStretches) {
    SCOPED_TRACE(first);
    const ScopedRules inForce(RulesWith(reform.startGregorian, {.proleptic = reform.proleptic}));
    const int last = Date(end).DayNumber();
    for (int n = Date(first).DayNumber(); n <= last; ++n) {
      const Date date = DateOfDayNumber(n);
      ASSERT_TRUE(IsoWeekNumber(date) == PlainIsoWeek(date.DayNumber(), reform)) << date.Packed();
    }
  }
}

// Worked out by hand from the definition of the Julian and early cycles, and of years that began on 25 March.
TEST(WeekNumberTest, KnownIsoWeeksAroundTheReformAndInTheEarlyCycles) {
  // On purpose: the weeks of the reform stay Julian to the end of its year; the early cycles are their own.
  constexpr std::pair<PackedDate, int> kWeeks[] = {
      {15821010, 41}, {15821231, 51}, {15830102, 51}, {15830103, 1},
      {10101, 52},    {-60101, 52},   {-491231, 52},  {-39990101, 48},
  };
  for (const auto& [date, week] : kWeeks) EXPECT_EQ(WeekNumber(Date(date)), week) << date;
  for (const auto& [reform, date] : {std::pair(15871101, 15871231), std::pair(19181231, 19181231)}) {
    const ScopedRules inForce(RulesWith(reform));
    EXPECT_EQ(WeekNumber(Date(date)), 51) << date;
  }
  for (const bool plusOne : {false, true}) {
    const ScopedRules inForce(RulesWith(17520914, {.rows = {{15000325, plusOne}}}));
    EXPECT_EQ(WeekNumber(Date(15010325)), plusOne ? 1 : 53);
    EXPECT_EQ(WeekNumber(Date(15011231)), plusOne ? 41 : 40);
    EXPECT_EQ(WeekNumber(Date(17521231)), 39);
  }
}

}  // namespace
}  // namespace orbisol

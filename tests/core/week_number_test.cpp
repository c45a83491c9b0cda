#include "core/week_number.h"

#include <gtest/gtest.h>

#include "core/civil_year.h"
#include "tests/support/plain_calendar.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

constexpr CalendarRules kRoman;

// ISO 8601: the week belongs to the year of its Thursday, and is counted from that year's first one.
int PlainIsoWeek(int dayNumber, const plain::Reform& reform) {
  const std::int64_t thursday = dayNumber - dayNumber % 7 + 3;
  const std::int64_t year = plain::DateOfDayNumber(thursday, reform).year;
  return static_cast<int>((thursday - plain::DayNumber({year, 1, 1}, reform)) / 7) + 1;
}

TEST(WeekNumberTest, KnownIsoWeeks) {
  const ScopedRules inForce(kRoman);
  // The Gregorian rows as `date +%V` of GNU coreutils 9.1 has them; the others are worked out by hand from
  // the definition of the Julian and early cycles.
  constexpr struct {
    const char* what;
    PackedDate date;
    int week;
  } kRows[] = {
      {"Friday, 1 January 2010", 20100101, 53},
      {"Monday, 4 January 2010", 20100104, 1},
      {"Tuesday, 31 December 2024", 20241231, 1},
      // On purpose: the weeks around the reform stay Julian to the end of its year.
      {"last Julian day", 15821004, 40},
      {"first Gregorian day", 15821015, 40},
      {"a dropped day, read as Julian", 15821010, 41},
      {"end of the reform year", 15821231, 51},
      {"Saturday after it", 15830101, 51},
      {"Sunday after it", 15830102, 51},
      {"first Gregorian week", 15830103, 1},
      {"1 January of year 1, early Julian", 10101, 52},
      {"2 January of year 1", 10102, 1},
      {"last early year of 365-day weeks", -60101, 52},
      {"first of the three-year cycle", -70101, 53},
      {"three-year cycle before the early leap years", -491231, 52},
      {"first day shown", -39990101, 48},
  };
  for (const auto& row : kRows) EXPECT_EQ(IsoWeekNumber(Date(row.date)), row.week) << row.what;
}

TEST(WeekNumberTest, IsoWeeksFollowTheCivilYearOfTheTable) {
  constexpr struct {
    bool plusOne;
    PackedDate date;
    int week;
  } kRows[] = {
      {false, 15000324, 13}, {false, 15000325, 1},  {false, 15010325, 53}, {false, 15011231, 40},
      {false, 16001231, 41}, {false, 17520914, 24}, {false, 17521231, 39}, {true, 15000324, 13},
      {true, 15000325, 1},   {true, 15010325, 1},   {true, 15011231, 41},
  };
  for (const auto& row : kRows) {
    const ScopedRules inForce(RulesWith(17520914, {.rows = {{15000325, row.plusOne}}}));
    EXPECT_EQ(IsoWeekNumber(Date(row.date)), row.week) << row.date;
  }
}

TEST(WeekNumberTest, IsoWeeksArePlainOnesOutsideTheListedStretches) {
  constexpr struct {
    const char* what;
    PackedDate reform;
    bool proleptic;
    PackedDate first, last;
  } kStretches[] = {
      {"Gregorian", kRomanReform, false, 15830103, 39991231},
      {"Gregorian after a year that ended on a Tuesday", 19180214, false, 19181230, 22001231},
      {"Gregorian after a year that ended on a Sunday", 17520914, false, 17530101, 22001231},
      {"Julian with early leap years", kRomanReform, false, -480101, 15821004},
      {"Julian", kNeverGregorian, true, -39990101, 39991231},
  };
  for (const auto& stretch : kStretches) {
    SCOPED_TRACE(stretch.what);
    const ScopedRules inForce(RulesWith(stretch.reform, {.proleptic = stretch.proleptic}));
    const plain::Reform reform{stretch.reform, stretch.proleptic};
    const int last = Date(stretch.last).DayNumber();
    for (int n = Date(stretch.first).DayNumber(); n <= last; ++n) {
      const Date date = DateOfDayNumber(n);
      ASSERT_TRUE(IsoWeekNumber(date) == PlainIsoWeek(date.DayNumber(), reform)) << date.Packed();
    }
  }
  const ScopedRules inForce(kRoman);
  bool differs = false;
  for (int n = Date(-490101).DayNumber(); n < Date(-480101).DayNumber(); ++n)
    differs |= IsoWeekNumber(DateOfDayNumber(n)) != PlainIsoWeek(n, {kRomanReform, false});
  EXPECT_TRUE(differs) << "-49 is the last year that differs";
}

// Sunday to Saturday, the first week being that of the first day; the last belongs to the next year unless it
// is whole.
TEST(WeekNumberTest, CivilWeeksAreCountedFromTheFirstDayOfTheCivilYear) {
  const struct {
    const char* what;
    PackedDate first, last;
    CalendarRules rules;
  } kTables[] = {
      {"Roman", -39990101, 39991231, RulesWith(kRomanReform, {.iso8601 = false})},
      {"England", 11000101, 18001231,
       RulesWith(17520914, {.rows = {{17520101, false}, {11550325, false}}, .iso8601 = false})},
      {"ahead", 9000101, 18001231,
       RulesWith(kNeverGregorian, {.proleptic = true, .rows = {{9990901, true}}, .iso8601 = false})},
  };
  for (const auto& table : kTables) {
    SCOPED_TRACE(table.what);
    const ScopedRules inForce(table.rules);
    const int last = Date(table.last).DayNumber();
    for (int n = Date(table.first).DayNumber(); n <= last; ++n) {
      const Date date = DateOfDayNumber(n);
      const int number = date.DayNumber();
      const int saturday = number - (number + 1) % 7 + 6;
      const int firstDay = number - DayOfCivilYear(date) + 1;
      const int firstSaturday = firstDay - (firstDay + 1) % 7 + 6;
      const bool isNextYears = saturday > number + DaysLeftInCivilYear(date);
      const int week = WeekNumber(date);
      ASSERT_TRUE(week == (isNextYears ? 1 : (saturday - firstSaturday) / 7 + 1)) << date.Packed();
      ASSERT_TRUE(week >= 1 && week <= 53) << date.Packed();
    }
  }
}

TEST(WeekNumberTest, TheRulesInForceChooseTheNumbering) {
  constexpr struct {
    PackedDate date;
    int iso, civil;
  } kRows[] = {{20230101, 52, 1}, {20230107, 1, 1}, {20230108, 1, 2}, {20231231, 52, 1}, {20100101, 53, 1}};
  for (const auto& row : kRows) {
    const ScopedRules iso(RulesWith(kRomanReform));
    EXPECT_EQ(WeekNumber(Date(row.date)), row.iso) << row.date;
    const ScopedRules civil(RulesWith(kRomanReform, {.iso8601 = false}));
    EXPECT_EQ(WeekNumber(Date(row.date)), row.civil) << row.date;
  }
}

// Weeks change on Mondays alone, but for a new row of the table, and for the Sunday that has the day number
// of a Monday.
TEST(WeekNumberTest, IsoWeeksChangeOnMondays) {
  const struct {
    CalendarRules rules;
    PackedDate first, last;
    std::vector<PackedDate> others;
  } kTables[] = {
      {kRoman, -39990101, 101, {-80229}},
      {RulesWith(17520914, {.rows = {{17520101, false}, {11550325, false}}}),
       10000101,
       18001231,
       {11550325, 17520101}},
      {RulesWith(19180214, {.proleptic = true, .rows = {{12000901, true}}}), 11000101, 20001231, {12000901}},
  };
  for (const auto& table : kTables) {
    const ScopedRules inForce(table.rules);
    const int last = Date(table.last).DayNumber();
    int before = 0;
    std::vector<PackedDate> others;
    for (int n = Date(table.first).DayNumber(); n <= last; ++n) {
      const Date date = DateOfDayNumber(n);
      const int week = IsoWeekNumber(date);
      ASSERT_TRUE(week >= 1 && week <= 53) << date.Packed();
      if (n % 7 != 0 && before != 0 && week != before) others.push_back(date.Packed());
      before = week;
    }
    EXPECT_EQ(others, table.others);
  }
}

}  // namespace
}  // namespace orbisol

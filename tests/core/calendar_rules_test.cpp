// The rules that all calendar arithmetic reads, and the civil years and their weeks that follow from them.

#include <gtest/gtest.h>

#include <climits>
#include <random>

#include "core/civil_year.h"
#include "core/week_number.h"
#include "tests/support/fakes.h"
#include "tests/support/plain_calendar.h"

namespace orbisol {
namespace {

TEST(CalendarConfigTest, DroppedDaysAreCountedFrom10October1500On) {
  constexpr std::pair<PackedDate, int> kStarts[] = {
      {17520914, 11}, {19120101, 13}, {15001020, 10}, {15001019, 0}, {14000615, 0}, {-80229, -3},
  };
  for (const auto& [start, dropped] : kStarts) EXPECT_EQ(RulesWith(start).droppedDays, dropped) << start;
  EXPECT_EQ(RulesWith(-80229, {.proleptic = true}).droppedDays, 0);
  EXPECT_EQ(RulesWith(17000301).droppedDays, 10) << "though 11 dates are removed";
  EXPECT_EQ(RulesWith(kRomanReform), CalendarRules()) << "the members begin as the Roman reform leaves them";
}

TEST(CalendarConfigTest, ResetPutsTheDefaultsInForceAndAsksTheLocaleForTheWeeks) {
  const ScopedRules inForce(RulesWith(17520914, {.proleptic = true, .rows = {{15000325, true}}}));
  ResetCalendarConfig();
  EXPECT_EQ(Rules(), CalendarRules()) << "in France";
  FakeLocale american;
  american.firstDay = 6;
  american.firstWeek = 1;
  const ScopedPlatform platform(american);
  ResetCalendarConfig();
  EXPECT_EQ(Rules(), RulesWith(kRomanReform, {.iso8601 = false}));
}

TEST(CalendarConfigTest, AStartThatIsNoDateBecomesTheRomanReform) {
  for (const PackedDate date : {20000229, -80229, 101, -10101})
    EXPECT_EQ(GregorianStartOrDefault(date), date);
  for (const PackedDate none : {0, 100, -10000, 17521301, 17520014, 17520900, 19000229, INT_MAX, INT_MIN})
    EXPECT_EQ(GregorianStartOrDefault(none), kRomanReform) << none;
}

TEST(CalendarConfigTest, FirstBadRowLooksFromTheLastRowUp) {
  constexpr struct {
    const char* what;
    CivilYearStart rows[kCivilYearRows];
    int bad;
  } kTables[] = {
      {"empty", {}, -1},
      {"full, from the day of the reform", {{15821015}, {15000325}, {12000301}, {10000101}}, -1},
      {"after the reform", {{15821016}}, 0},
      {"equal; a gap, which is met later", {{15640101}, {}, {12000301}, {12000301}}, 2},
      {"a gap", {{15640101}, {}, {12000301}}, 1},
      {"before the era in packed order", {{101}, {-10101}, {-440315}, {-440401}}, -1},
      {"before the era in order of days", {{-440401}, {-440315}}, 0},
  };
  for (const auto& table : kTables) EXPECT_EQ(FirstBadRow(table.rows, kRomanReform), table.bad) << table.what;
}

TEST(CivilYearTest, KnownDays) {
  const struct {
    const char* what;
    std::vector<CivilYearStart> rows;
    PackedDate date;
    int rowIndex, startDay, year, day, left;
  } kRows[] = {
      {"Florence, from its first day", {{15000325, false}}, 15000325, 0, 325, 1500, 1, 364},
      {"Pisa", {{15000325, true}}, 16000325, 0, 325, 1601, 1, 364},
      {"Pisa, its last day", {{15000325, true}}, 16000324, 0, 325, 1600, 366, 0},
      {"a start before 1 January", {{15000050, false}}, 16000601, 0, 101, 1600, 135, 231},
      {"1564 begins early", {{15640101, false}, {10000325, false}}, 15631231, 1, 325, 1563, 282, 84},
      {"Francis I died before the Easter of 1547", {{15460410, false}}, 15470331, 0, 410, 1546, 356, 9},
      {"1566 ends early", {{15670101, false}, {15660414, false}}, 15661231, 1, 414, 1566, 262, 103},
      {"Charlemagne was crowned at Christmas", {{7511225, true}}, 8001225, 0, 1225, 801, 1, 364},
      // On purpose: dates before the era are compared as integers, which run backwards in a year.
      {"later, governed", {{-440315, false}}, -440101, 0, 315, -44, 293, 73},
      {"earlier, not governed", {{-440315, false}}, -440316, 1, 101, -44, 76, 363},
      // The Julian day that its first day would have been lies after the reform.
      {"dropped", {{15000910, false}}, 17520914, 0, 910, 1752, -6, 360},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    const ScopedRules inForce(RulesWith(17520914, {.rows = row.rows}));
    const Date date(row.date);
    EXPECT_EQ(CivilRowIndex(date), row.rowIndex);
    EXPECT_EQ(CivilYearStartDay(date), row.startDay);
    EXPECT_EQ(CivilYearOf(date), row.year);
    EXPECT_EQ(DayOfCivilYear(date), row.day);
    EXPECT_EQ(DaysLeftInCivilYear(date), row.left);
  }
}

// Weeks go from Sunday to Saturday. The first holds the first day of the year; the last belongs to the next
// year unless it is whole.
TEST(CivilYearTest, DaysOfTheYearRiseByOneDaysLeftFallToZeroAndWeeksAreCountedFromTheFirst) {
  const std::tuple<std::vector<CivilYearStart>, PackedDate, PackedDate> kWalks[] = {
      {{}, -39990101, 39991231},
      {{{12000901, true}, {-7520421, false}}, 12020101, 20001231},
      {{{17520101, false}, {11550325, false}, {-7520421, false}}, -7500101, 11531231},
      {{{17520101, false}, {11550325, false}, {-7520421, false}}, 11570101, 17501231},
  };
  for (const auto& [rows, first, last] : kWalks) {
    const ScopedRules inForce(RulesWith(17520914, {.proleptic = true, .rows = rows, .iso8601 = false}));
    Date before(first);
    for (int n = before.DayNumber() + 1; n <= Date(last).DayNumber(); ++n) {
      const Date date = DateOfDayNumber(n);
      const bool begins = MonthDay(date.month, date.day) == CivilYearStartDay(date);
      const int day = DayOfCivilYear(date);
      const int left = DaysLeftInCivilYear(date);
      ASSERT_EQ(CivilYearOf(date), CivilYearOf(before) + (begins ? 1 : 0)) << n;
      ASSERT_EQ(day, begins ? 1 : DayOfCivilYear(before) + 1) << n;
      ASSERT_EQ(DaysLeftInCivilYear(before), begins ? 0 : left + 1) << n;

      const int firstWeekday = WeekdayOfDayNumber(n - day + 1);
      const bool isNextYears = left < 6 - date.Weekday(true);
      ASSERT_EQ(WeekNumber(date), isNextYears ? 1 : (day - 1 + firstWeekday) / 7 + 1) << n;
      before = date;
    }
  }
}

TEST(CivilYearTest, SetCivilYearTriesTheYearsAroundTheTarget) {
  std::mt19937 random(1);
  const auto upTo = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  const std::vector<CivilYearStart> rows = {{15000325, true}, {12000301, false}, {-440401, true}};
  const ScopedRules inForce(RulesWith(17520914, {.rows = rows}));
  for (int i = 0; i < 100'000; ++i) {
    const Date before(upTo(7998) - 3999, 1 + upTo(12), 1 + upTo(28));
    const auto civil = [&](int year) { return CivilYear(Pack(year, before.month, before.day)); };
    const int target = before.year + upTo(7) - 3;
    int expected = target - 1;
    while (expected <= target && civil(expected) != target) ++expected;
    // On purpose: the civil year reached is compared with the historical year before the call.
    if (civil(target) == before.year) expected = target;

    Date date = before;
    ASSERT_EQ(SetCivilYear(date, target), civil(expected)) << before.Packed() << " to " << target;
    ASSERT_TRUE(date.SameDay({expected, before.month, before.day})) << before.Packed() << " to " << target;
  }
}

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

#include "core/date.h"

#include <gtest/gtest.h>

#include <chrono>

#include "tests/support/fakes.h"
#include "tests/support/plain_calendar.h"
#include "tests/support/test_data.h"

namespace orbisol {
namespace {

constexpr PackedDate kFirst = -39990101;
constexpr PackedDate kLast = 39991231;
constexpr int kUnixEpoch = 2440588;  // day number of 1 January 1970

TEST(DateTest, GregorianDaysAreThoseOfTheStandardLibrary) {
  const ScopedRules inForce(RulesWith(kAlwaysGregorian, {.proleptic = true}));
  for (int n = Date(kFirst).DayNumber(); n <= Date(kLast).DayNumber(); ++n) {
    const Date date = DateOfDayNumber(n);
    const auto day = std::chrono::year{date.year} / date.month / date.day;
    ASSERT_TRUE(day.ok() && std::chrono::sys_days(day).time_since_epoch().count() == n - kUnixEpoch) << n;
  }
}

// Months have DaysInMonth() days less those dropped; early reforms go back to dates that were used before.
TEST(DateTest, EveryDayIsThatOfTheReferenceAndNoneIsLost) {
  std::vector<plain::Reform> reforms = {
      {kRomanReform, true}, {kNeverGregorian, false}, {40227, false}, {-440315, false}, {-20000701, true}};
  for (const std::vector<std::string>& national : DataRows("national_reforms.txt")) {
    const PackedDate firstGregorian = std::stoi(national[1]);
    const ScopedRules inForce(RulesWith(firstGregorian));
    EXPECT_EQ(DateOfDayNumber(Date(std::stoi(national[0])).DayNumber() + 1).Packed(), firstGregorian);
    reforms.push_back({firstGregorian, false});
  }
  for (const plain::Reform& reform : reforms) {
    SCOPED_TRACE(reform.startGregorian);
    const ScopedRules inForce(RulesWith(reform.startGregorian, {.proleptic = reform.proleptic}));
    const int last = Date(kLast).DayNumber();
    int days = 0;  // days of the month so far
    for (int n = Date(reform.startGregorian > kRomanReform ? 15000101 : kFirst).DayNumber(); n <= last; ++n) {
      const Date date = DateOfDayNumber(n);
      const plain::CivilDate reference = plain::DateOfDayNumber(n, reform);
      ASSERT_TRUE((reference == plain::CivilDate{date.year, date.month, date.day})) << n;
      // The day opposite in its month, also where that is none: 30 February, (on purpose Julian) a gap.
      const int number = Date(date.year, date.month, 32 - date.day).DayNumber();
      ASSERT_TRUE(number == plain::DayNumber({date.year, date.month, 32 - date.day}, reform)) << n;
      ASSERT_FALSE(Rules().IsDropped(date.Packed())) << n;
      if (reform.startGregorian < kRomanReform) continue;

      // On purpose: 29 February -8 shares the number of 1 March.
      ASSERT_TRUE(date.DayNumber() == (n == 1718198 && !reform.proleptic ? n + 1 : n)) << n;
      ++days;
      if (DateOfDayNumber(n + 1).month == date.month) continue;
      for (int day = 1; day <= date.DaysInMonth(); ++day)
        days += Rules().IsDropped(Pack(date.year, date.month, day)) ? 1 : 0;
      ASSERT_EQ(days, date.DaysInMonth()) << date.Packed();
      days = 0;
    }
  }
}

// On purpose: month lengths follow the civil year and the reform year's Julian rule, day numbers do not.
TEST(DateTest, AddMonthsPullsTheDayIntoAShorterMonth) {
  constexpr struct {
    const char* what;
    PackedDate reform, civilYearsFrom, date;
    int months;
    PackedDate expected;
    int length;
  } kRows[] = {
      {"from a day that does not exist", 15821015, 0, 20250229, 12, 20260228, 28},
      {"a dropped day is kept", 15821015, 0, 15820910, 1, 15821010, 31},
      {"the 10th still in civil 1599", 17520914, 15000215, 16000110, 1, 16000210, 28},
      {"the 20th in civil 1600", 17520914, 15000215, 16000120, 1, 16000220, 29},
      {"the reform year is Julian", 19000101, 0, 19000131, 1, 19000229, 29},
      {"and the next Gregorian", 18990301, 0, 19000131, 1, 19000228, 28},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    const ScopedRules inForce(RulesWith(row.reform, {.rows = {{row.civilYearsFrom, false}}}));
    Date date(row.date);
    EXPECT_EQ(date.AddMonths(row.months), row.length);
    EXPECT_EQ(date.Packed(), row.expected);
  }
}

TEST(DateTest, IsBeforeComparesDaysAlsoBeforeTheEra) {
  constexpr PackedDate kRising[] = {-39990101, -440101, -440315, -441231, -430101, 101, 1231, 10101};
  for (const PackedDate& a : kRising)
    for (const PackedDate& b : kRising) EXPECT_EQ(Date(a).IsBefore(b), &a < &b) << a << " and " << b;
}

TEST(DateTest, JulianFormIsTheSameDayWithoutTheErrorsOfTheEarlyLeapYears) {
  EXPECT_EQ(Date(-80229).JulianForm(), -80229) << "a Julian date is its own";
  {
    const ScopedRules early(RulesWith(-440315));
    EXPECT_EQ(Date(-440401).JulianForm(), -440401) << "on purpose: the packed values are compared";
  }
  for (int n = Rules().firstGregorianDayNumber; n <= Date(kLast).DayNumber(); ++n) {
    const auto [year, month, day] = Unpack(DateOfDayNumber(n).JulianForm());
    ASSERT_TRUE(plain::DayNumber({year, month, day}, {kNeverGregorian, true}) == n) << n;
  }
}

TEST(DateTest, TodayIsTheGregorianDayOfTheClockInTheCalendarInForce) {
  const auto now = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()).time_since_epoch();
  EXPECT_LE(std::abs(Date::Today().DayNumber() - kUnixEpoch - now.count()), 1) << "in any time zone";

  FakeLocale locale;
  locale.dateOrder = 2;
  const ScopedPlatform platform(locale, FakeClock({2024, 5, 1}));
  EXPECT_EQ(Date::Today().dateOrder, 2);
  const ScopedRules julian(RulesWith(kNeverGregorian));
  EXPECT_EQ(Date::Today().Packed(), 20240418);
  Rules().startGregorian = 0;
  EXPECT_EQ(Date::Today().Packed(), 20240501);
  EXPECT_EQ(Rules(), CalendarRules()) << "the Roman reform, where none was set";
}

}  // namespace
}  // namespace orbisol

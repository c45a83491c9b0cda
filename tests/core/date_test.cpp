#include "core/date.h"

#include <gtest/gtest.h>

#include <chrono>
#include <climits>

#include "tests/support/fakes.h"
#include "tests/support/plain_calendar.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

constexpr CalendarRules kRoman;

struct KnownDay {
  const char* what;
  PackedDate date;
  int dayNumber;
};

void ExpectBothWays(const KnownDay& known) {
  SCOPED_TRACE(known.what);
  EXPECT_EQ(Date(known.date).DayNumber(), known.dayNumber);
  EXPECT_EQ(DateOfDayNumber(known.dayNumber).Packed(), known.date);
}

// J. Meeus, Astronomical Algorithms, chapter 7: the day whose noon lies in the given Julian date.
TEST(DateTest, DayNumbersOfMeeusConvertBothWays) {
  const ScopedRules inForce(RulesWith(kRomanReform, {.proleptic = true}));
  for (const KnownDay& known :
       {KnownDay{"origin of the count", -47120101, 0}, KnownDay{"17.9 August -1001", -10010817, 1355671},
        KnownDay{"29.0 February -1000", -10000229, 1355867}, KnownDay{"12.5 July -1000", -10000712, 1356001},
        KnownDay{"31.0 December -123", -1231231, 1676497}, KnownDay{"1.0 January -122", -1220101, 1676498},
        KnownDay{"27.5 January 333", 3330127, 1842713}, KnownDay{"10.3 April 837", 8370410, 2026872},
        KnownDay{"1.0 January 1600", 16000101, 2305448}, KnownDay{"31.0 December 1600", 16001231, 2305813},
        KnownDay{"1.0 January 1900", 19000101, 2415021},
        KnownDay{"4.81 October 1957, Sputnik 1", 19571004, 2436116},
        KnownDay{"27.0 January 1987", 19870127, 2446823}, KnownDay{"19.5 June 1987", 19870619, 2446966},
        KnownDay{"1.5 January 2000", 20000101, 2451545}})
    ExpectBothWays(known);
}

TEST(DateTest, DayNumbersAtTheJointsOfTheCalendar) {
  const ScopedRules inForce(kRoman);
  for (const KnownDay& known :
       {KnownDay{"last day before the early leap years", -451231, 1704986},
        KnownDay{"first day of the early leap years", -440101, 1704987},
        KnownDay{"1 March after the last early leap day", -80301, 1718199},
        KnownDay{"last day without leap years", 40228, 1722578},
        KnownDay{"first ordinary Julian day", 40301, 1722579},
        KnownDay{"first ordinary leap day", 80229, 1724039}, KnownDay{"last Julian day", 15821004, 2299160},
        KnownDay{"first Gregorian day", 15821015, 2299161}})
    ExpectBothWays(known);
}

// An independent calendar over all the years shown.
TEST(DateTest, GregorianDaysAreThoseOfTheStandardLibrary) {
  const ScopedRules inForce(RulesWith(kAlwaysGregorian, {.proleptic = true}));
  constexpr int kUnixEpoch = 2440588;  // day number of 1 January 1970
  for (int n = Date(-39990101).DayNumber(); n <= Date(39991231).DayNumber(); ++n) {
    const std::chrono::year_month_day expected{std::chrono::sys_days{std::chrono::days{n - kUnixEpoch}}};
    const Date date = DateOfDayNumber(n);
    ASSERT_TRUE(date.year == int{expected.year()} &&
                date.month == static_cast<int>(unsigned{expected.month()}) &&
                date.day == static_cast<int>(unsigned{expected.day()}))
        << "day number " << n;
  }
}

TEST(DateTest, NationalReformsGoFromTheLastJulianDayToTheFirstGregorianOne) {
  for (const NationalReform& reform : kNationalReforms) {
    SCOPED_TRACE(reform.firstGregorian);
    const ScopedRules inForce(RulesWith(reform.firstGregorian));
    Date date(reform.lastJulian);
    date.AddDays(1);
    EXPECT_EQ(date.Packed(), reform.firstGregorian);
    date.AddDays(-1);
    EXPECT_EQ(date.Packed(), reform.lastJulian);
    EXPECT_FALSE(Rules().IsDropped(reform.lastJulian));
    EXPECT_TRUE(Rules().IsDropped(Rules().julianEquivalentOfStart));
    EXPECT_FALSE(Rules().IsDropped(reform.firstGregorian));
    const ScopedRules julianForEver(RulesWith(kNeverGregorian));
    date.AddDays(1);
    EXPECT_EQ(date.Packed(), RulesWith(reform.firstGregorian).julianEquivalentOfStart);
  }
}

TEST(DateTest, TwentyNinthOfFebruaryMinus8SharesADayNumber) {
  const ScopedRules inForce(kRoman);
  Date date = DateOfDayNumber(1718198);
  EXPECT_EQ(date.Packed(), -80229);
  EXPECT_EQ(date.DayNumber(), 1718199);
  date.AddDays(1);
  EXPECT_EQ(date.Packed(), -80302);
  date.SetPacked(-80229);
  date.AddDays(-1);
  EXPECT_EQ(date.Packed(), -80229);
}

TEST(DateTest, LeapYearsAroundTheEra) {
  const auto leapYears = [](int from, int to) {
    std::vector<int> years;
    for (int year = from; year <= to; ++year) {
      Date date(year, 2, 28);
      date.AddDays(1);
      EXPECT_EQ(date.DaysInMonth(2), date.month == 2 ? 29 : 28) << year;
      if (date.month == 2) years.push_back(year);
    }
    return years;
  };
  {
    const ScopedRules inForce(kRoman);
    EXPECT_EQ(leapYears(-52, 8),
              (std::vector{-52, -48, -44, -41, -38, -35, -32, -29, -26, -23, -20, -17, -14, -11, -8, 8}));
  }
  const ScopedRules inForce(RulesWith(kRomanReform, {.proleptic = true}));
  EXPECT_EQ(leapYears(-12, 8), (std::vector{-12, -8, -4, 0, 4, 8}));
}

TEST(DateTest, DatesThatDoNotExistAreReadAsTheDayTheyCountAs) {
  const ScopedRules inForce(kRoman);
  constexpr struct {
    const char* what;
    PackedDate date, counted;
  } kRows[] = {
      {"a dropped day is Julian", 15821010, 15821020},
      {"29 February of a common year", 20250229, 20250301},
      {"31 April", 20240431, 20240501},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    Date date(row.date);
    EXPECT_EQ(date.Packed(), row.date);
    EXPECT_EQ(date.Weekday(true), Date(row.counted).Weekday(true));
    date.AddDays(0);
    EXPECT_EQ(date.Packed(), row.counted);
  }
}

TEST(DateTest, PackedDatesUnpackToTheirFields) {
  constexpr struct {
    PackedDate packed;
    YearMonthDay fields;
  } kRows[] = {
      {15821015, {1582, 10, 15}}, {-440315, {-44, 3, 15}}, {301, {0, 3, 1}},  {101, {0, 1, 1}},
      {-10101, {-1, 1, 1}},       {-101, {0, 1, 1}},       {-99, {0, 0, 99}}, {INT_MIN, {-214748, 36, 48}},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.packed);
    EXPECT_EQ(Unpack(row.packed), row.fields);
    Date date(19990101);
    const PackedDate back = date.SetPacked(row.packed);
    EXPECT_EQ((YearMonthDay{date.year, date.month, date.day}), row.fields);
    EXPECT_EQ(back, row.fields.year == 0 ? row.fields.month * 100 + row.fields.day : row.packed);
  }
  EXPECT_EQ(Pack(214749, 1, 1), INT_MAX);
  EXPECT_EQ(Pack(-214749, 1, 1), INT_MIN);
}

TEST(DateTest, AddMonthsPullsTheDayIntoAShorterMonth) {
  const ScopedRules inForce(kRoman);
  constexpr struct {
    PackedDate date;
    int months;
    PackedDate expected;
    int length;
  } kRows[] = {
      {20240331, -1, 20240229, 29}, {20250331, -1, 20250228, 28},  {20240131, 1, 20240229, 29},
      {20240115, -1, 20231215, 31}, {20241215, 1, 20250115, 31},   {20240831, 1, 20240930, 30},
      {20240229, 12, 20250228, 28}, {20241130, -23, 20221230, 31}, {20240731, 25, 20260831, 31},
      {10131, -13, -11231, 31},     {19000131, 1, 19000228, 28},   {15000131, 1, 15000229, 29},
      {-80331, -1, -80229, 29},     {40331, -1, 40228, 28},        {-11231, 2, 228, 28},
      {15820910, 1, 15821010, 31},  // a dropped day is kept
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(testing::Message() << row.date << " and " << row.months << " months");
    Date date(row.date);
    EXPECT_EQ(date.AddMonths(row.months), row.length);
    EXPECT_EQ(date.Packed(), row.expected);
  }
}

// On purpose: month lengths follow the civil year and the reform year's Julian rule, day numbers do not.
TEST(DateTest, FebruaryFollowsTheCivilYearUpToTheYearOfTheReform) {
  constexpr struct {
    const char* what;
    PackedDate reform;
    CivilYearStart row;
    PackedDate date;
    int length;
  } kRows[] = {
      {"civil 1599", 17520914, {15000325, false}, 16000201, 28},
      {"civil 1600", 17520914, {15000325, false}, 16010201, 29},
      {"ahead from 25 March on", 17520914, {15000325, true}, 16000201, 29},
      {"the 10th still in civil 1599", 17520914, {15000215, false}, 16000210, 28},
      {"the 20th in civil 1600", 17520914, {15000215, false}, 16000220, 29},
      {"the reform year is Julian", 19000101, {}, 19000201, 29},
      {"and the next Gregorian", 18990301, {}, 19000201, 28},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    const ScopedRules inForce(RulesWith(row.reform, {.rows = {row.row}}));
    EXPECT_EQ(Date(row.date).DaysInMonth(), row.length);
  }
}

TEST(DateTest, SundayIs7OnlyForIso8601AndNeverRaw) {
  CalendarRules rules = kRoman;
  const Date saturday(20000101);
  const Date sunday(20000102);
  for (const bool iso : {true, false}) {
    rules.iso8601 = iso;
    const ScopedRules inForce(rules);
    EXPECT_EQ(saturday.Weekday(false), 6);
    EXPECT_EQ(sunday.Weekday(false), iso ? 7 : 0);
    EXPECT_EQ(sunday.Weekday(true), 0);
  }
  EXPECT_EQ(WeekdayOfDayNumber(0), 1);
  EXPECT_EQ(WeekdayOfDayNumber(-1), 0);
  EXPECT_EQ(WeekdayOfDayNumber(-8), 0);
  EXPECT_EQ(WeekdayOfDayNumber(-2), 6);
  EXPECT_EQ(WeekdayOfDayNumber(INT_MAX), 2);  // 2^31 is 2 more than a multiple of 7
}

TEST(DateTest, IsBeforeComparesDaysAlsoBeforeTheEra) {
  constexpr PackedDate kRising[] = {-39990101, -451231, -440101, -440315, -441231,  -430101, -10101,
                                    -11231,    101,     1231,    10101,   15821015, 39991231};
  for (const PackedDate& a : kRising)
    for (const PackedDate& b : kRising) EXPECT_EQ(Date(a).IsBefore(b), &a < &b) << a << " and " << b;
}

TEST(DateTest, JulianFormOfKnownDays) {
  constexpr struct {
    PackedDate reform, date, julian;
  } kRows[] = {
      {15821015, 15821015, 15821005}, {15821015, 15821004, 15821004}, {15821015, 17000228, 17000218},
      {15821015, 17000311, 17000229}, {15821015, 20240101, 20231219}, {15821015, 39991231, 39991203},
      {19180214, 19180214, 19180201}, {19180214, 19180131, 19180131}, {15821015, -80229, -80229},
  };
  for (const auto& row : kRows) {
    const ScopedRules inForce(RulesWith(row.reform));
    EXPECT_EQ(Date(row.date).JulianForm(), row.julian) << row.date;
  }
}

TEST(DateTest, TodayIsTheGregorianDayOfTheClockInTheCalendarInForce) {
  FakeLocale locale;
  locale.dateOrder = 2;
  const ScopedPlatform platform(locale, FakeClock({2024, 5, 1}));
  {
    const ScopedRules inForce(kRoman);
    EXPECT_EQ(Date::Today().Packed(), 20240501);
    EXPECT_EQ(Date::Today().dateOrder, 2);
  }
  {
    const ScopedRules inForce(RulesWith(kNeverGregorian));
    EXPECT_EQ(Date::Today().Packed(), 20240418);
  }
  CalendarRules unset = kRoman;
  unset.startGregorian = 0;
  unset.firstGregorianDayNumber = 0;
  const ScopedRules inForce(unset);
  EXPECT_EQ(Date::Today().Packed(), 20240501);
  EXPECT_EQ(Rules(), kRoman);
}

TEST(DateTest, TheClockOfTheComputerGivesADate) {
  const YearMonthDay today = LocalClock().Today();
  const auto now = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
  const auto local = std::chrono::sys_days{std::chrono::year{today.year} / today.month / today.day};
  EXPECT_LE(std::chrono::abs(now - local).count(), 1);  // time zones, and midnight between the two readings
}

TEST(DateTest, TheSameDayIsThatOfTheFieldsWhateverTheOrderOfTexts) {
  Date date(20240229);
  Date other = date;
  other.dateOrder = 2 - date.dateOrder;
  EXPECT_TRUE(date.SameDay(other));
  for (const PackedDate different : {20230229, 20240329, 20240228})
    EXPECT_FALSE(date.SameDay(Date(different)));
}

}  // namespace
}  // namespace orbisol

// Numbers that no calendar has: nothing may crash, loop without end or compute what C++ leaves undefined.
// Meant to run under the sanitizers too; here only what must still hold is asked for.

#include <gtest/gtest.h>

#include <climits>
#include <random>

#include "core/civil_year.h"
#include "core/date_text.h"
#include "core/easter.h"
#include "core/moon.h"
#include "core/republican.h"
#include "core/week_number.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

class CAnyNumbers {
 public:
  // One in four from the ends of a type or of a range of ours, the others of any size.
  int Any() {
    constexpr int kEdges[] = {INT_MIN, INT_MIN + 1, INT_MAX, INT_MAX - 1, 0,         1,
                              -1,      12,          13,      31,          -47120101, -80229,
                              -440101, 40228,       101,     15821015,    1 << 30,   -(1 << 30),
                              1718198, 1704987,     2299161, -21474836,   214748,    -214748,
                              -32045,  -32000,      -4801,   -4800,       1000000,   365000000};
    if (m_random() % 4 == 0) return kEdges[m_random() % std::size(kEdges)];
    return static_cast<int>(m_random()) >> (m_random() % 32);
  }

  CalendarRules Rules() {
    CalendarRules rules;
    rules.proleptic = m_random() % 2 == 0;
    rules.iso8601 = m_random() % 2 == 0;
    for (int i = 0, rows = static_cast<int>(m_random() % (kCivilYearRows + 1)); i < rows; ++i)
      rules.firstDayOfYear[i] = {Any(), m_random() % 2 == 0};
    if (m_random() % 4 != 0) rules.ApplyGregorianStart(Any());
    return rules;
  }

  Date ADate() {
    Date date(Any());
    if (m_random() % 2 == 0) date = Date(Any(), Any(), Any());
    if (m_random() % 4 == 0) date.dateOrder = Any();
    return date;
  }

 private:
  std::mt19937 m_random{1};
};

constexpr int kRounds = 30'000;

// A date goes through everything that takes one.
TEST(AnyInputTest, EveryFunctionTakesAnyDateUnderAnyRules) {
  CAnyNumbers numbers;
  for (int i = 0; i < kRounds; ++i) {
    const ScopedRules inForce(numbers.Rules());
    const Date date = numbers.ADate();
    SCOPED_TRACE(testing::Message() << date.year << " " << date.month << " " << date.day << " from "
                                    << Rules().startGregorian);

    const int weekday = date.Weekday(true);
    ASSERT_TRUE(weekday >= 0 && weekday <= 6);
    ASSERT_EQ(date.Weekday(false), weekday == 0 && Rules().iso8601 ? 7 : weekday);
    ASSERT_EQ(weekday, WeekdayOfDayNumber(date.DayNumber()));
    ASSERT_FALSE(date.IsBefore(numbers.Any()) && !date.IsBefore(INT_MAX));
    const int length = date.DaysInMonth(numbers.Any());
    ASSERT_TRUE(length >= 28 && length <= 31);
    date.JulianForm();

    Date moved = date;
    const int newLength = moved.AddMonths(numbers.Any());
    ASSERT_TRUE(moved.month >= 1 && moved.month <= 12 && moved.day <= newLength && newLength <= 31);
    moved.AddDays(numbers.Any());
    ASSERT_TRUE(moved.month >= 1 && moved.month <= 12 && moved.day >= 1 && moved.day <= 31);
    ASSERT_EQ(moved.dateOrder, date.dateOrder);

    const int row = CivilRowIndex(date);
    ASSERT_TRUE(row >= -1 && row <= kCivilYearRows);
    ASSERT_GE(CivilYearStartDay(date), 101);
    const int year = CivilYearOf(date);
    const int packedYear = Unpack(date.Packed()).year;
    ASSERT_TRUE(year >= packedYear - 1 && year <= packedYear + 1);
    DayOfCivilYear(date);
    DaysLeftInCivilYear(date);
    WeekNumber(date);
    Date set = date;
    const int reached = SetCivilYear(set, numbers.Any());
    ASSERT_EQ(reached, CivilYearOf(set));

    Date easter = date;
    RomanEaster(easter);
    if (date.year >= kFirstEasterYear) {
      ASSERT_TRUE(easter.month == 3 ? easter.day >= 22 && easter.day <= 31
                                    : easter.month == 4 && easter.day >= 1 && easter.day <= 25);
    }
    ASSERT_EQ(OrthodoxEaster(date.year, numbers.Any()) == 0, date.year < kFirstEasterYear);

    ToRepublican(date);
    ASSERT_LT(RepublicanText(date).size(), 80U);
    ASSERT_LT(LongDate(date, i % 2 == 0).size(), 60U);
    ASSERT_LT(JulianLongDate(date, i % 2 == 0).size(), 60U);
    if (i % 8 == 0) MoonPhaseOfDay(date);
  }
}

TEST(AnyInputTest, EveryDayNumberIsADateThatHasIt) {
  CAnyNumbers numbers;
  for (int i = 0; i < kRounds; ++i) {
    CalendarRules rules;
    rules.proleptic = i % 2 == 0;
    if (i % 4 < 2) rules.ApplyGregorianStart(19180214);
    const ScopedRules inForce(rules);
    const int n = numbers.Any();
    const Date date = DateOfDayNumber(n);
    ASSERT_TRUE(date.month >= 1 && date.month <= 12 && date.day >= 1 && date.day <= date.DaysInMonth()) << n;
    ASSERT_EQ(date.DayNumber(), n == 1718198 && !rules.proleptic ? n + 1 : n);
  }
}

TEST(AnyInputTest, NumbersAloneAreTakenToo) {
  CAnyNumbers numbers;
  for (int i = 0; i < kRounds; ++i) {
    const ScopedRules inForce(numbers.Rules());
    const PackedDate packed = numbers.Any();
    CivilYear(packed);
    Rules().IsDropped(packed);
    const PackedDate start = GregorianStartOrDefault(packed);
    ASSERT_TRUE(start == packed || start == kRomanReform);
    const int bad = FirstBadRow(Rules().firstDayOfYear, packed);
    ASSERT_TRUE(bad >= -1 && bad <= kCivilYearRows);
    if (Date date(packed); date.month >= 1 && date.month <= 12) {
      ASSERT_EQ(date.SetPacked(packed), packed < 0 && packed > -10000 ? -packed : packed);
    }

    FromRepublican(numbers.Any(), numbers.Any(), numbers.Any());
    const int extra = ComplementaryDays(numbers.Any());
    ASSERT_TRUE(extra == 5 || extra == 6);
    ASSERT_LE(RomanNumeral(numbers.Any()).size(), 17U);
    RepublicanMonthName(numbers.Any());

    ASSERT_LT(CenturyText(numbers.Any()).size(), 60U);
    DayMonthYear(numbers.Any(), numbers.Any(), u"mai", numbers.Any());
    MonthName(numbers.Any());
    MonthAbbrev(numbers.Any());
    WeekdayName(numbers.Any());
    WeekdayAbbrev(numbers.Any());
    DatePattern(numbers.Any());
    YearBeforeEra(numbers.Any());
    YearOfRome(numbers.Any());
  }
}

TEST(AnyInputTest, AnyFiniteTimeHasAnElongation) {
  CAnyNumbers numbers;
  const auto expectAngle = [](double t) {
    const int angle = MoonElongation(t);
    EXPECT_TRUE(angle >= 0 && angle <= 359) << t;
    for (const int phase : {0, 90, 180, 270}) IsPhaseDay(t, angle, phase);
  };
  for (int i = 0; i < 10'000; ++i) expectAngle(numbers.Any() + 0.25);
  for (const double t : {1e15, -1e15, 1e100, -1e100, 1.7e308, -1.7e308, 5e-324}) expectAngle(t);

  MoonPhase phases[3];
  for (const int n : {INT_MIN, -(1 << 30), 1 << 30, INT_MAX - 2}) MoonPhasesOfDays(n, 3, phases);
}

}  // namespace
}  // namespace orbisol

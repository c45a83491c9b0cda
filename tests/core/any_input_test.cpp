// Arithmetic on arbitrary numbers, which must not crash, loop without end or have undefined behavior.

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

// Returns a number, one in four near the end of a type or of a range of ours, the others of any size.
int Any() {
  constexpr int kEdges[] = {INT_MIN, INT_MAX, 0,      101,     -47120101, -80229, 40228,   15821015,
                            1718198, 2299161, 214748, -214748, -32045,    -4801,  1000000, 365000000};
  static std::mt19937 random(1);
  if (random() % 4 == 0) return kEdges[random() % std::size(kEdges)];
  return static_cast<int>(random()) >> (random() % 32);
}

bool Coin() { return Any() < 0; }

TEST(AnyInputTest, EveryFunctionTakesAnyNumbersUnderAnyRules) {
  for (int i = 0; i < 30'000; ++i) {
    CalendarRules rules;
    rules.proleptic = Coin();
    rules.iso8601 = Coin();
    for (int row = 0; row < kCivilYearRows && Coin(); ++row) rules.firstDayOfYear[row] = {Any(), Coin()};
    if (Coin()) rules.ApplyGregorianStart(Any());
    const ScopedRules inForce(rules);

    Date date = Coin() ? Date(Any()) : Date(Any(), Any(), Any());
    if (Coin()) date.dateOrder = Any();
    SCOPED_TRACE(testing::Message() << date.Packed() << " under " << rules.startGregorian);
    const int civilYear = SetCivilYear(date, Any());
    ASSERT_EQ(civilYear, CivilYearOf(date));
    DayOfCivilYear(date);
    DaysLeftInCivilYear(date);
    WeekNumber(date);
    ASSERT_EQ(OrthodoxEaster(date.year, Any()) == 0, date.year < kFirstEasterYear);
    FromRepublican(Any(), Any(), Any());
    ASSERT_LT(RepublicanText(date).size(), 80U);
    ASSERT_LT(LongDate(date, Coin()).size() + JulianLongDate(date, Coin()).size(), 120U);
    ASSERT_LT(CenturyText(Any()).size(), 60U);
    MoonPhaseOfDay(date);
    const int length = date.AddMonths(Any());
    ASSERT_TRUE(date.month >= 1 && date.month <= 12 && date.day <= length && length <= 31);
    date.AddDays(Any());
    ASSERT_EQ(date.Weekday(true), WeekdayOfDayNumber(date.DayNumber()));
    RomanEaster(date);

    const ScopedRules roman(RulesWith(kRomanReform, {.proleptic = true}));
    const int n = Any();
    ASSERT_EQ(DateOfDayNumber(n).DayNumber(), n) << "also where no walk comes";
  }
  for (const double t : {1e15, -1e100, 1.7e308, 5e-324}) ASSERT_LE(MoonElongation(t), 359) << t;
}

// Around the ends of the everyday years, a reform and the early leap years, also for days that do not exist.
TEST(AnyInputTest, TheEverydayWayAgreesWithTheGeneralOne) {
  std::mt19937 random(2);
  const auto between = [&random](int low, int high) {
    return std::uniform_int_distribution(low, high)(random);
  };
  for (const int reformYear : {-50, 3, 1582, -4800, 95200}) {
    for (int i = 0; i < 20'000; ++i) {
      const int around[] = {-4800, 95200, -43, 4, reformYear};
      CalendarRules rules;
      rules.proleptic = i % 2 == 0;
      rules.ApplyGregorianStart(Pack(reformYear, between(0, 17), between(0, 35)));
      const ScopedRules inForce(rules);
      const Date date(around[random() % 5] + between(-1, 1), between(-1, 17), between(-1, 33));
      const int expected =
          DayNumberUnder(date.year, date.month, date.day, rules.startGregorian, rules.proleptic);
      ASSERT_EQ(date.DayNumber(), expected)
          << date.year << ' ' << date.month << ' ' << date.day << " under " << rules.startGregorian;
    }
  }
}

}  // namespace
}  // namespace orbisol

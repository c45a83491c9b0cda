#include "core/calendar_config.h"

#include <gtest/gtest.h>

#include <climits>

#include "core/date.h"
#include "tests/support/fakes.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

TEST(CalendarConfigTest, ApplyGregorianStartDerivesTheOtherFields) {
  constexpr struct {
    const char* what;
    PackedDate start;
    bool proleptic;
    PackedDate julian;
    int dropped, firstDayNumber, lastDayNumber, lastWeekday;
  } kRows[] = {
      {"Rome", 15821015, false, 15821005, 10, 2299161, 2299238, 5},
      {"Great Britain", 17520914, false, 17520903, 11, 2361222, 2361330, 0},
      {"Russia", 19180214, false, 19180201, 13, 2421639, 2421959, 2},
      {"Denmark, across a month end", 17000301, false, 17000219, 10, 2342032, 2342337, 5},
      {"China, across a year end", 19120101, false, 19111219, 13, 2419403, 2419768, 2},
      {"the last that counts no dropped days", 15001019, false, 15001009, 0, 2269215, 2269288, 1},
      {"the first that counts them", 15001020, false, 15001010, 10, 2269216, 2269288, 1},
      {"early", 14000615, false, 14000606, 0, 2232565, 2232764, 3},
      {"no leap years yet: less than none", 40226, false, 40228, -1, 1722577, 1722886, 5},
      {"leap years from the first", 40101, true, 40103, 0, 1722521, 1722886, 5},
      {"in the early leap years", -80229, false, -80302, -3, 1718197, 1718503, 4},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    const CalendarRules rules = RulesWith(row.start, {.proleptic = row.proleptic});
    EXPECT_EQ(rules.startGregorian, row.start);
    EXPECT_EQ(rules.julianEquivalentOfStart, row.julian);
    EXPECT_EQ(rules.droppedDays, row.dropped);
    EXPECT_EQ(rules.firstGregorianDayNumber, row.firstDayNumber);
    EXPECT_EQ(rules.reformYearLastDayNumber, row.lastDayNumber);
    EXPECT_EQ(rules.reformYearLastWeekday, row.lastWeekday);
  }
  // The members begin as the Roman reform leaves them, and nothing of the rules in force takes part.
  const ScopedRules inForce(RulesWith(19180214, {.proleptic = true}));
  EXPECT_EQ(RulesWith(kRomanReform), CalendarRules());
}

TEST(CalendarConfigTest, WeeksFollowIso8601UnlessTheLocaleBeginsOnSundayWithAFullWeek) {
  for (int firstDay = 0; firstDay <= 6; ++firstDay)
    for (int firstWeek = 0; firstWeek <= 2; ++firstWeek)
      EXPECT_EQ(Iso8601ByLocale(firstDay, firstWeek), firstDay != 6 || firstWeek != 1);
}

TEST(CalendarConfigTest, ResetPutsTheDefaultsInForce) {
  FakeLocale locale;
  locale.firstDay = 6;
  locale.firstWeek = 1;
  const ScopedRules inForce(
      RulesWith(17520914, {.proleptic = true, .rows = {{15000325, true}}, .iso8601 = false}));
  ResetCalendarConfig();
  CalendarRules expected;
  EXPECT_EQ(Rules(), expected) << "in French";
  const ScopedPlatform platform(locale);
  ResetCalendarConfig();
  expected.iso8601 = false;
  EXPECT_EQ(Rules(), expected);
}

TEST(CalendarConfigTest, ScopedRulesPutBackWhatWasInForce) {
  const CalendarRules before = Rules();
  {
    const ScopedRules outer(RulesWith(17520914));
    {
      const ScopedRules inner(RulesWith(19180214));
      EXPECT_EQ(Rules().startGregorian, 19180214);
    }
    EXPECT_EQ(Rules(), RulesWith(17520914));
  }
  EXPECT_EQ(Rules(), before);
}

TEST(CalendarConfigTest, AStartThatIsNoDateBecomesTheRomanReform) {
  for (const PackedDate date : {17520914, 20000229, -440315, -80229, 101, -10101, 39991231})
    EXPECT_EQ(GregorianStartOrDefault(date), date);
  for (const PackedDate none : {0, 50, 100, -50, -10050, -10099, 17520931, 17521301, 17520014, 17520900,
                                19000229, 20240431, INT_MAX, INT_MIN})
    EXPECT_EQ(GregorianStartOrDefault(none), kRomanReform) << none;
}

TEST(CalendarConfigTest, FirstBadRowLooksFromTheLastRowUp) {
  constexpr struct {
    const char* what;
    PackedDate from[kCivilYearRows];
    int bad;
  } kTables[] = {
      {"empty", {0, 0, 0, 0}, -1},
      {"one row", {15000325, 0, 0, 0}, -1},
      {"full, most recent first", {15640101, 15000325, 12000301, 10000101}, -1},
      {"on the day of the reform", {15821015, 0, 0, 0}, -1},
      {"after the reform", {15821016, 15000325, 0, 0}, 0},
      {"rising", {15000325, 15640101, 0, 0}, 0},
      {"equal", {15000325, 12000301, 12000301, 0}, 1},
      {"a gap", {15640101, 0, 12000301, 0}, 1},
      {"a gap at the top", {0, 0, 0, 10000101}, 2},
      {"two faults: the lower is met first", {15830101, 12000301, 15000325, 0}, 1},
      {"before the era in packed order", {-440315, -440401, -450101, 0}, -1},
      {"before the era in order of days", {-440401, -440315, 0, 0}, 0},
      {"below the last day: the era after it", {101, -10101, 0, 0}, -1},
  };
  for (const auto& table : kTables) {
    SCOPED_TRACE(table.what);
    CivilYearStart rows[kCivilYearRows];
    for (int i = 0; i < kCivilYearRows; ++i) rows[i].from = table.from[i];
    EXPECT_EQ(FirstBadRow(rows, kRomanReform), table.bad);
  }
  EXPECT_EQ(FirstBadRow({}, kRomanReform), -1);
}

}  // namespace
}  // namespace orbisol

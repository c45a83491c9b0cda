// Which rules and periods a calendar takes.

#include <gtest/gtest.h>

#include "tests/content/rule_builder.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

constexpr auto kFixed = DayEventType::kFixedDate;
constexpr auto kRoman = DayEventType::kRomanEaster;
constexpr auto kNth = DayEventType::kNthWeekday;
constexpr auto kBefore = DayEventType::kWeekdayBefore;
constexpr auto kAfter = DayEventType::kWeekdayAfter;
constexpr auto kBank = DayEventType::kBankHoliday;
constexpr auto kNotSunday = DayEventType::kExceptSunday;

TEST(DayEventTest, RulesAreAcceptedOrRefused) {
  const struct {
    const char* what;
    DayEvent rule;
    bool accepted;
  } kRows[] = {
      {"fixed date", Rule(kFixed, {.month = 7, .day = 14}), true},
      {"29 February", Rule(kFixed, {.month = 2, .day = 29}), true},
      {"30 February", Rule(kFixed, {.month = 2, .day = 30}), false},
      {"31 April", Rule(kBank, {.month = 4, .day = 31}), false},
      {"30 November", Rule(kNotSunday, {.month = 11, .day = 30}), true},
      {"31 August", Rule(kBank, {.month = 8, .day = 31}), true},
      {"32 August", Rule(kBank, {.month = 8, .day = 32}), false},
      {"day 0", Rule(kFixed, {.month = 7, .day = 0}), false},
      {"month 13", Rule(kFixed, {.month = 13, .day = 1}), false},
      {"month 13 of a rule that ignores it", Rule(kRoman, {.month = 13}), false},
      {"month 0 takes days up to 99", Rule(kFixed, {.month = 0, .day = 99}), true},
      {"and not 100", Rule(kFixed, {.month = 0, .day = 100}), false},
      {"a month below 0 has 31 days", Rule(kFixed, {.month = -4, .day = 31}), true},
      {"and not 32", Rule(kFixed, {.month = -4, .day = 32}), false},
      {"any distance from Easter", Rule(kRoman, {.day = -2147483647}), true},
      {"n-th weekday", Rule(kNth, {.month = 5, .weekday = 7, .weeknum = 5}), true},
      {"n-th weekday ignores the day", Rule(kNth, {.month = 5, .day = 77, .weekday = 1, .weeknum = 1}), true},
      {"weekday 0", Rule(kNth, {.month = 5, .weekday = 0, .weeknum = 1}), false},
      {"weekday 8", Rule(kNth, {.month = 5, .weekday = 8, .weeknum = 1}), false},
      {"the 0th weekday", Rule(kNth, {.month = 5, .weekday = 1, .weeknum = 0}), false},
      {"the 6th weekday", Rule(kNth, {.month = 5, .weekday = 1, .weeknum = 6}), false},
      {"weekday before the 2nd", Rule(kBefore, {.month = 5, .day = 2, .weekday = 1, .weeknum = 1}), true},
      {"before the 1st", Rule(kBefore, {.month = 5, .day = 1, .weekday = 1, .weeknum = 1}), false},
      {"after the 1st", Rule(kAfter, {.month = 5, .day = 1, .weekday = 1, .weeknum = 1}), false},
      {"after 31 June", Rule(kAfter, {.month = 6, .day = 31, .weekday = 1, .weeknum = 1}), false},
      {"the second weekday after", Rule(kAfter, {.month = 6, .day = 3, .weekday = 1, .weeknum = 2}), false},
      {"weekday 8 after", Rule(kAfter, {.month = 6, .day = 3, .weekday = 8, .weeknum = 1}), false},
      {"no such kind", Rule(static_cast<DayEventType>(8), {.month = 7, .day = 14}), false},
      {"nor a negative one", Rule(static_cast<DayEventType>(-1), {.month = 7, .day = 14}), false},
      {"no name", Rule(kFixed, {.month = 7, .day = 14, .name = u""}), false},
      {"one day long", Rule(kFixed, {.month = 7, .day = 14, .from = 20240714, .to = 20240714}), true},
      {"ends before it begins", Rule(kFixed, {.month = 7, .day = 14, .from = 2, .to = 1}), false},
      {"without dates", Rule(kFixed, {.month = 7, .day = 14, .from = 0, .to = 0}), true},
      {"begins in -4000", Rule(kFixed, {.month = 7, .day = 14, .from = -40000101}), false},
      {"ends in 4000", Rule(kFixed, {.month = 7, .day = 14, .to = 40000101}), false},
      {"months and days of its dates are not looked at",
       Rule(kFixed, {.month = 7, .day = 14, .to = 39999999}), true},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(AcceptDayEvent(row.rule), row.accepted);
  }
}

TEST(VacationTest, PeriodsAreAcceptedOrRefused) {
  const struct {
    const char* what;
    PackedDate from, to;
    bool accepted;
  } kRows[] = {
      {"a summer", 20240701, 20240831, true},
      {"two days", 20240701, 20240702, true},
      {"one day", 20240701, 20240701, false},
      {"backwards", 20240702, 20240701, false},
      {"before the era in packed order", -440315, -440310, true},
      {"before the era in the order of days", -440310, -440315, false},
      {"all that is shown", -39990101, 39991231, true},
      {"from -4000", -40001231, 20240101, false},
      {"into 4000", 20240101, 40000101, false},
      {"month 0", 20240001, 20240102, false},
      {"month 13", 20240101, 20241301, false},
      {"31 April", 20240401, 20240431, false},
      {"29 February 2024", 20240201, 20240229, true},
      {"29 February 2023", 20230201, 20230229, false},
      {"29 February 1500, Julian", 15000201, 15000229, true},
      {"29 February 1700, Gregorian", 17000201, 17000229, false},
      {"day 0 is not looked at", 20240700, 20240702, true},
      {"nor whether a date was dropped", 15821001, 15821010, true},
      {"no dates", 0, 0, false},
      {"any integers", -2147483647 - 1, 2147483647, false},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(AcceptPeriod(Period(row.from, row.to)), row.accepted);
  }

  const ScopedRules british(RulesWith(17520914));
  EXPECT_TRUE(AcceptPeriod(Period(17000201, 17000229))) << "Julian there";
}

TEST(VacationTest, TheFirstPeriodInTheListHoldsADay) {
  const HolidayPeriod periods[] = {Period(20240701, 20240831, u"été"), Period(20240714, 20240716, u"fête"),
                                   Period(-440315, -440310, u"ides")};
  const auto titleOf = [&](PackedDate ymd) {
    const HolidayPeriod* const period = PeriodOfDay(periods, ymd);
    return period == nullptr ? std::u16string_view(u"none") : period->title.View();
  };
  EXPECT_EQ(titleOf(20240714), u"été");
  EXPECT_EQ(titleOf(20240701), u"été");
  EXPECT_EQ(titleOf(20240831), u"été");
  EXPECT_EQ(titleOf(20240630), u"none");
  EXPECT_EQ(titleOf(20240901), u"none");
  EXPECT_EQ(titleOf(-440312), u"ides");
}

}  // namespace
}  // namespace orbisol

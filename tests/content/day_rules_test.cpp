#include "content/day_rules.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "core/easter.h"
#include "tests/content/rule_builder.h"

namespace orbisol {
namespace {

TEST(DayEventTest, RulesAreAcceptedOrRefused) {
  const std::tuple<const char*, DayEvent, bool> kRows[] = {
      {"29 February", Rule(kFixedDate, {.month = 2, .day = 29}), true},
      {"30 February", Rule(kFixedDate, {.month = 2, .day = 30}), false},
      {"31 April", Rule(kBankHoliday, {.month = 4, .day = 31}), false},
      {"day 0", Rule(kFixedDate, {.month = 7, .day = 0}), false},
      {"month 13 of a rule that ignores it", Rule(kRomanEaster, {.month = 13}), false},
      {"on purpose: month 0 takes days up to 99", Rule(kFixedDate, {.month = 0, .day = 99}), true},
      {"on purpose: a month below 0 has 31 days", Rule(kFixedDate, {.month = -4, .day = 31}), true},
      {"n-th weekday, ignores the day", Rule(kNthWeekday, {.day = 77, .weekday = 7, .weeknum = 5}), true},
      {"weekday 0", Rule(kNthWeekday, {.weekday = 0, .weeknum = 1}), false},
      {"weekday 0 after", Rule(kWeekdayAfter, {.month = 6, .day = 3, .weekday = 0, .weeknum = 1}), false},
      {"the 6th weekday", Rule(kNthWeekday, {.weekday = 1, .weeknum = 6}), false},
      {"before the 2nd", Rule(kWeekdayBefore, {.month = 5, .day = 2, .weekday = 1, .weeknum = 1}), true},
      {"on purpose: the 1st", Rule(kWeekdayAfter, {.month = 5, .day = 1, .weekday = 1, .weeknum = 1}), false},
      {"the second after", Rule(kWeekdayAfter, {.month = 6, .day = 3, .weekday = 1, .weeknum = 2}), false},
      {"weekday 8 after", Rule(kWeekdayAfter, {.month = 6, .day = 3, .weekday = 8, .weeknum = 1}), false},
      {"no such kind", Rule(DayEventType{8}, {.month = 7, .day = 14}), false},
      {"no name", Rule(kRomanEaster, {.name = u""}), false},
      {"valid for one day", Rule(kRomanEaster, {.from = 20240501, .to = 20240501}), true},
      {"ends before it begins", Rule(kRomanEaster, {.from = 2, .to = 1}), false},
      {"begins in -4000", Rule(kRomanEaster, {.from = -40000101}), false},
      {"ends in 4000", Rule(kRomanEaster, {.to = 40000101}), false},
      {"ends in 3999, whatever the day", Rule(kRomanEaster, {.to = 39999999}), true},
  };
  for (const auto& [what, rule, accepted] : kRows) EXPECT_EQ(IsAcceptableDayEvent(rule), accepted) << what;
}

TEST(VacationTest, PeriodsAreAcceptedOrRefused) {
  const std::tuple<const char*, PackedDate, PackedDate, bool> kRows[] = {
      {"two days", 20240701, 20240702, true},
      {"on purpose: one day", 20240701, 20240701, false},
      {"before the era in packed order", -440315, -440310, true},
      {"into 4000", 20240101, 40000101, false},
      {"month 0", 20240001, 20240102, false},
      {"29 February 1700, Gregorian", 17000201, 17000229, false},
      {"on purpose: day 0", 20240700, 20240702, true},
  };
  for (const auto& [what, from, to, accepted] : kRows)
    EXPECT_EQ(IsAcceptablePeriod(Period(from, to)), accepted) << what;
  const ScopedRules british(RulesWith(17520914));
  EXPECT_TRUE(IsAcceptablePeriod(Period(17000201, 17000229))) << "Julian there";
}

TEST(DayRulesTest, NamesAreJoinedInListOrderAndCutAt260Units) {
  const std::u16string longest(kMaxNameUnits, u'a');  // 254
  const DayEvent events[] = {
      EveryYear(5, 8, u"Anniversaire", false), EveryYear(5, 8, u"Victoire 1945"),
      EveryYear(5, 8, u"Rendez-vous", false),  EveryYear(5, 9, longest),
      EveryYear(5, 9, u"bc\U0001F382"),        EveryYear(5, 9, u"nothing behind the cut"),
  };
  const DayMatch match = MatchDay(events, 20240508);
  EXPECT_EQ(match.publicNames + u"|" + match.eventNames, u"Victoire 1945|Anniversaire + Rendez-vous");
  EXPECT_EQ(MatchDay(events, 20240509).publicNames, longest + u" + bc");
  std::u16string names;
  EXPECT_EQ(MatchDayEvents(events, 20240508, &names, kHolidayMark | kEventMark), kHolidayMark | kEventMark);
  EXPECT_EQ(names, u"Anniversaire + Victoire 1945 + Rendez-vous");
  EXPECT_EQ(MatchDayEvents(events, 20240509, &names, kEventMark), kHolidayMark);
  EXPECT_EQ(names, u"");
}

// Reference implementation of the matcher: one rule on one day, each kind by its definition.
bool PlainlyFallsOn(const DayEvent& e, PackedDate ymd) {
  if (e.ymdFrom > ymd || ymd > e.ymdTo) return false;
  const Date date(ymd);
  const std::int64_t m = date.month, day = e.day, n = e.weeknum;
  const int weekday = date.Weekday(true) == 0 ? 7 : date.Weekday(true);
  const std::int64_t diff = std::int64_t{date.DayNumber()} - Date(date.year, e.month, e.day).DayNumber();
  switch (e.type) {
    case kFixedDate:
      return e.month == m && day == date.day;
    case kRomanEaster: {
      Date easter = date;
      RomanEaster(easter);
      return date.year >= kFirstEasterYear && date.DayNumber() - std::int64_t{easter.DayNumber()} == day;
    }
    case kOrthodoxEaster:
      return date.year >= kFirstEasterYear && OrthodoxEaster(date.year, e.day) == ymd;
    case kNthWeekday: {
      // If the reform removed dates inside one month, only the days that existed are counted.
      const Date start(Rules().startGregorian), dropped(Rules().julianEquivalentOfStart);
      const bool inside =
          dropped.year == start.year && dropped.month == start.month && dropped.day <= date.day;
      const int gap = inside && date.year == start.year && m == start.month ? Rules().droppedDays : 0;
      const bool isLast = date.DaysInMonth() - date.day < 7;
      return e.month == m && e.weekday == weekday &&
             (n == 5 ? isLast : n >= 1 && n < 5 && (date.day - gap + 6) / 7 == n);
    }
    case kWeekdayBefore:
      return e.weekday == weekday && -7 * n < diff && diff <= -7 * n + 7;
    case kWeekdayAfter:
      return e.weekday == weekday && 7 * (n - 1) <= diff && diff < 7 * n;
    case kBankHoliday:
      return e.month == m &&
             ((date.day == day && weekday <= 5) || (date.day > day && date.day <= day + 2 && weekday == 1));
    case kExceptSunday:
      return e.month == m && ((date.day == day && weekday != 7) || (date.day == day + 1 && weekday == 1));
  }
  return false;
}

// Finds rules that matching a whole month would miss, and sums that overflow an int.
TEST(DayRulesTest, AnyRuleFallsOnTheDaysOfItsDefinition) {
  std::mt19937 random(20240501);
  const auto from = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
  for (const PackedDate reform :
       {15821015, 17000301, 17530301, 19120101, 19180214, 39010301, 10101, -440315}) {
    // How weeks are shown never moves a holiday.
    const ScopedRules inForce(RulesWith(reform, {.proleptic = from(0, 1) == 1, .iso8601 = from(0, 1) == 1}));
    for (int round = 0; round < 3000; ++round) {
      const int years[] = {reform / 10000, reform / 10000 + 1, from(-3999, 3999), from(-48, 8),
                           from(326, 330)};
      const int year = years[from(0, 4)];
      const int month = from(1, 12);
      DayEvent events[4];
      for (DayEvent& event : events) {
        event = Rule(DayEventType{from(0, 7)}, {.isPublic = from(0, 1) == 1,
                                                .month = from(0, 2) != 0 ? month : from(-1, 13),
                                                .day = from(0, 1) == 1 ? from(1, 31) : from(-99, 99),
                                                .weekday = from(1, 7),
                                                .weeknum = from(0, 2) != 0 ? 1 : from(0, 6)});
        if (from(0, 3) == 0) event.ymdFrom = Pack(year, month, from(1, 31));
        if (from(0, 3) == 0) event.ymdTo = Pack(year, month, from(1, 31));
        int* const fields[] = {&event.month, &event.day, &event.weekday, &event.weeknum};
        if (from(0, 4) == 0) *fields[from(0, 3)] = static_cast<int>(random());
        if (from(0, 19) == 0) event.type = DayEventType{static_cast<int>(random())};
      }

      std::vector<RuleDay> days;
      for (int day = 1; day <= 31; ++day) days.push_back(RuleDayOf(Date(year, month, day)));
      std::vector<DayMatch> matches(days.size(), {.bits = 3, .publicNames = u"left", .eventNames = u"over"});
      MatchDaysOfMonth(events, days, matches);
      for (std::size_t i = 0; i < days.size(); ++i) {
        unsigned expected = 0;
        for (const DayEvent& event : events)
          if (PlainlyFallsOn(event, days[i].ymd)) expected |= event.isPublic ? kHolidayMark : kEventMark;
        ASSERT_EQ(matches[i].bits, expected) << days[i].ymd << " under " << reform << ", round " << round;
        ASSERT_EQ(matches[i].publicNames.empty(), (expected & kHolidayMark) == 0) << "nothing is left over";
        ASSERT_EQ(MatchDayEvents(events, days[i].ymd, nullptr, 0), expected) << days[i].ymd;
      }
    }
  }
  MatchDaysOfMonth({}, {}, {});
}

}  // namespace
}  // namespace orbisol

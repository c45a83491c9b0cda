#include "content/day_rules.h"

#include <cstdlib>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "core/easter.h"
#include "tests/content/rule_builder.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

constexpr auto kFixed = DayEventType::kFixedDate;
constexpr auto kRoman = DayEventType::kRomanEaster;
constexpr auto kOrthodox = DayEventType::kOrthodoxEaster;
constexpr auto kNth = DayEventType::kNthWeekday;
constexpr auto kBefore = DayEventType::kWeekdayBefore;
constexpr auto kAfter = DayEventType::kWeekdayAfter;
constexpr auto kBank = DayEventType::kBankHoliday;
constexpr auto kNotSunday = DayEventType::kExceptSunday;

bool FallsOn(const DayEvent& event, PackedDate ymd) {
  return MatchDayEvents({&event, 1}, ymd, nullptr, 0) != 0;
}

struct Row {
  const char* what;
  DayEvent rule;
  PackedDate ymd;
  bool falls;
};

void CheckRows(std::span<const Row> rows) {
  for (const bool iso8601 : {true, false}) {  // how weeks are shown never changes a holiday
    CalendarRules rules = Rules();
    rules.iso8601 = iso8601;
    const ScopedRules inForce(rules);
    for (const Row& row : rows) {
      SCOPED_TRACE(row.what);
      SCOPED_TRACE(row.ymd);
      EXPECT_EQ(FallsOn(row.rule, row.ymd), row.falls);
    }
  }
}

TEST(DayRulesTest, RulesFallOnTheirDays) {
  const DayEvent bastille = Rule(kFixed, {.month = 7, .day = 14});
  const DayEvent easter = Rule(kRoman, {.day = 0});
  const DayEvent thanksgiving = Rule(kNth, {.month = 11, .weekday = 4, .weeknum = 4});
  const DayEvent springBank = Rule(kNth, {.month = 5, .weekday = 1, .weeknum = 5});
  const DayEvent fourthMonday = Rule(kNth, {.month = 5, .weekday = 1, .weeknum = 4});
  const DayEvent repentance = Rule(kBefore, {.month = 11, .day = 22, .weekday = 3, .weeknum = 1});
  const DayEvent weekBefore = Rule(kBefore, {.month = 11, .day = 22, .weekday = 3, .weeknum = 2});
  const DayEvent midsummer = Rule(kAfter, {.month = 6, .day = 20, .weekday = 6, .weeknum = 1});
  const DayEvent weekAfter = Rule(kAfter, {.month = 6, .day = 20, .weekday = 6, .weeknum = 2});
  const DayEvent christmas = Rule(kBank, {.month = 12, .day = 25});
  const DayEvent lastOfYear = Rule(kBank, {.month = 12, .day = 31});
  const DayEvent newYear = Rule(kNotSunday, {.month = 1, .day = 1});
  const DayEvent notSundayThe31st = Rule(kNotSunday, {.month = 12, .day = 31});
  const DayEvent saturdayAfterThe28th = Rule(kAfter, {.month = 12, .day = 28, .weekday = 6, .weeknum = 1});
  const DayEvent mondayBeforeThe3rd = Rule(kBefore, {.month = 1, .day = 3, .weekday = 1, .weeknum = 1});
  const Row kRows[] = {
      {"fixed date", bastille, 17890714, true},
      {"fixed date before the era", bastille, -440714, true},
      {"day before", bastille, 17890713, false},
      {"other month", bastille, 17890614, false},

      {"Easter", easter, 20240331, true},
      {"Easter", easter, 20240401, false},
      {"Julian Easter", easter, 15810326, true},
      {"first Easter", easter, 3260403, true},
      {"no Easter before, not even on 1 January", easter, 3250101, false},
      {"no Easter in -44", easter, -440404, false},
      {"Good Friday", Rule(kRoman, {.day = -2}), 20240329, true},
      {"Ascension", Rule(kRoman, {.day = 39}), 20240509, true},
      {"Whit Monday", Rule(kRoman, {.day = 50}), 20240520, true},
      {"far from Easter, in its year", Rule(kRoman, {.day = -90}), 20240101, true},
      {"not in the year before", Rule(kRoman, {.day = -91}), 20231231, false},

      {"Orthodox Easter", Rule(kOrthodox, {.day = 0}), 20240505, true},
      {"Orthodox Good Friday", Rule(kOrthodox, {.day = -2}), 20240503, true},
      {"Orthodox Whit Monday", Rule(kOrthodox, {.day = 50}), 20240624, true},
      {"no Orthodox Easter before 326", Rule(kOrthodox, {.day = 0}), 0, false},
      {"before the reform the distance is ignored", Rule(kOrthodox, {.day = 1}), 15000419, true},

      {"Thanksgiving", thanksgiving, 20241128, true},
      {"third Thursday", thanksgiving, 20241121, false},
      {"other weekday", thanksgiving, 20241127, false},
      {"last Monday of May", springBank, 20240527, true},
      {"which is the fourth too", fourthMonday, 20240527, true},
      {"last but one Monday", springBank, 20240520, false},
      {"last of five Mondays", springBank, 20230529, true},
      {"which is not the fourth", fourthMonday, 20230529, false},

      {"Wednesday before 23 November", repentance, 20241120, true},
      {"on the date itself", repentance, 20231122, true},
      {"not a week earlier", repentance, 20231115, false},
      {"not the Wednesday after", repentance, 20241127, false},
      {"a week earlier", weekBefore, 20241113, true},
      {"a week earlier only", weekBefore, 20241120, false},
      {"Midsummer Day", midsummer, 20240622, true},
      {"on the date itself", midsummer, 20260620, true},
      {"not a week later", midsummer, 20260627, false},
      {"not before", midsummer, 20240615, false},
      {"a week later", weekAfter, 20240629, true},
      {"a week later only", weekAfter, 20240622, false},
      {"in its year", saturdayAfterThe28th, 20241228, true},
      {"not across the end of the year", saturdayAfterThe28th, 20260103, false},
      {"in its year", mondayBeforeThe3rd, 20240101, true},
      {"nor across its beginning", mondayBeforeThe3rd, 20191230, false},

      {"Christmas on a Wednesday", christmas, 20241225, true},
      {"the day after", christmas, 20241226, false},
      {"Christmas on a Saturday", christmas, 20211225, false},
      {"the Sunday after", christmas, 20211226, false},
      {"the Monday after", christmas, 20211227, true},
      {"Christmas on a Sunday", christmas, 20221225, false},
      {"the Monday after", christmas, 20221226, true},
      {"the Tuesday after", christmas, 20221227, false},
      {"31st on a Saturday", lastOfYear, 20221231, false},
      {"is not moved to the next month", lastOfYear, 20230102, false},

      {"New Year on a Monday", newYear, 20240101, true},
      {"on a Saturday", newYear, 20220101, true},
      {"on a Sunday", newYear, 20230101, false},
      {"the Monday after", newYear, 20230102, true},
      {"2 January otherwise", newYear, 20240102, false},
      {"31st on a Sunday", notSundayThe31st, 20231231, false},
      {"is not moved to the next month", notSundayThe31st, 20240101, false},

      {"no such kind", Rule(static_cast<DayEventType>(8), {.month = 7, .day = 14}), 20240714, false},
      {"a date that does not exist", Rule(kFixed, {.month = 2, .day = 29}), 20250229, true},
  };
  CheckRows(kRows);
}

TEST(DayRulesTest, TheReformShiftsOrdinalsInsideItsMonthOnly) {
  const auto nth = [](int month, int weekday, int n) {
    return Rule(kNth, {.month = month, .weekday = weekday, .weeknum = n});
  };
  {
    const Row kRows[] = {
        {"Friday the 15th was the fifth day", nth(10, 5, 1), 15821015, true},
        {"not in the third week", nth(10, 5, 3), 15821015, false},
        {"the next is the second", nth(10, 5, 2), 15821022, true},
        {"and the third the last", nth(10, 5, 5), 15821029, true},
        {"the third", nth(10, 5, 3), 15821029, true},
        {"days before the gap keep their place", nth(10, 4, 1), 15821004, true},
        {"and are not the last", nth(10, 4, 5), 15821004, false},
        {"the same days of another year", nth(10, 6, 3), 15831015, true},
    };
    CheckRows(kRows);
  }
  {
    // 19 to 29 February were dropped: days of March have the place that their number says.
    const ScopedRules danish(RulesWith(17000301));
    const Row kRows[] = {
        {"first Monday", nth(3, 1, 1), 17000301, true},
        {"fourth Monday", nth(3, 1, 4), 17000322, true},
        {"not the second", nth(3, 1, 2), 17000322, false},
        {"last Sunday of February, by its length", nth(2, 7, 5), 17000218, false},
    };
    CheckRows(kRows);
  }
  {
    const ScopedRules russian(RulesWith(19180214));
    const Row kRows[] = {
        {"the month begins on Thursday the 14th", nth(2, 4, 1), 19180214, true},
        {"last Thursday", nth(2, 4, 5), 19180228, true},
        {"which is the third", nth(2, 4, 3), 19180228, true},
    };
    CheckRows(kRows);
  }
}

TEST(DayRulesTest, ARuleHoldsFromItsFirstToItsLastDay) {
  const auto bastille = [](PackedDate from, PackedDate to) {
    return Rule(kFixed, {.month = 7, .day = 14, .from = from, .to = to});
  };
  const Row kRows[] = {
      {"first day", bastille(18800714, 20250713), 18800714, true},
      {"the year before", bastille(18800714, 20250713), 18790714, false},
      {"last year", bastille(18800714, 20250713), 20240714, true},
      {"a day too late", bastille(18800714, 20250713), 20250714, false},
      {"last day", bastille(18800715, 20250714), 20250714, true},
      {"a day too early", bastille(18800715, 20250714), 18800714, false},
      {"packed order before the era", bastille(-440801, -440601), -440714, true},
      {"always, first year", bastille(kAlwaysFrom, kAlwaysTo), -39990714, true},
      {"always, last year", bastille(kAlwaysFrom, kAlwaysTo), 39990714, true},
      {"without dates", bastille(0, 0), 714, false},
  };
  CheckRows(kRows);
}

TEST(DayRulesTest, NamesAreThoseOfTheMaskInListOrder) {
  const DayEvent events[] = {
      Rule(kFixed, {.isPublic = false, .month = 5, .day = 8, .name = u"Anniversaire"}),
      Rule(kFixed, {.month = 5, .day = 8, .name = u"Victoire 1945"}),
      Rule(kFixed, {.month = 5, .day = 9, .name = u"Demain"}),
      Rule(kFixed, {.isPublic = false, .month = 5, .day = 8, .name = u"Rendez-vous"}),
  };
  std::u16string names = u"left over";
  EXPECT_EQ(MatchDayEvents(events, 20240508, &names, 3), 3);
  EXPECT_EQ(names, u"Anniversaire + Victoire 1945 + Rendez-vous");
  EXPECT_EQ(MatchDayEvents(events, 20240508, &names, kPublicMark), 3);
  EXPECT_EQ(names, u"Victoire 1945");
  EXPECT_EQ(MatchDayEvents(events, 20240508, &names, kEventMark), 3);
  EXPECT_EQ(names, u"Anniversaire + Rendez-vous");
  EXPECT_EQ(MatchDayEvents(events, 20240508, &names, 0), 3);
  EXPECT_EQ(names, u"");
  names = u"left over";
  EXPECT_EQ(MatchDayEvents(events, 20240510, &names, 3), 0);
  EXPECT_EQ(names, u"");

  const DayMatch match = MatchDay(events, 20240508);
  EXPECT_EQ(match.bits, 3);
  EXPECT_EQ(match.publicNames, u"Victoire 1945");
  EXPECT_EQ(match.eventNames, u"Anniversaire + Rendez-vous");
}

TEST(DayRulesTest, JoinedNamesAreCutAt260UnitsAndNotInsideAPair) {
  const std::u16string longest(kMaxNameUnits, u'a');  // 254
  const auto joined = [&](std::u16string_view second, std::u16string_view third) {
    const DayEvent events[] = {Rule(kFixed, {.month = 5, .day = 8, .name = longest}),
                               Rule(kFixed, {.month = 5, .day = 8, .name = second}),
                               Rule(kFixed, {.month = 5, .day = 8, .name = third})};
    const DayMatch match = MatchDay(events, 20240508);
    std::u16string names;
    MatchDayEvents(events, 20240508, &names, kPublicMark);
    EXPECT_EQ(names, match.publicNames);
    return names;
  };
  EXPECT_EQ(joined(u"bcd", u"e"), longest + u" + bcd");
  EXPECT_EQ(joined(u"bcdef", u"g"), longest + u" + bcd");
  EXPECT_EQ(joined(u"bc\U0001F382", u"g"), longest + u" + bc") << "and nothing behind the cut";
  EXPECT_EQ(joined(u"b\U0001F382", u"g"), longest + u" + b\U0001F382");
}

// The judge: one rule on one day, each kind as it is defined, nothing left out or computed once.
bool PlainlyFallsOn(const DayEvent& e, PackedDate ymd) {
  if (e.ymdFrom > ymd || ymd > e.ymdTo) return false;
  const Date date(ymd);
  const std::int64_t m = date.month, day = e.day, n = e.weeknum;
  std::int64_t d = date.day;
  const std::int64_t weekday = date.Weekday(true) == 0 ? 7 : date.Weekday(true);
  const std::int64_t diff = std::int64_t{date.DayNumber()} - Date(date.year, e.month, e.day).DayNumber();
  switch (e.type) {
    case 0:
      return e.month == m && day == d;
    case 1: {
      Date easter = date;
      RomanEaster(easter);
      return date.year >= kFirstEasterYear && date.DayNumber() - std::int64_t{easter.DayNumber()} == day;
    }
    case 2:
      return date.year >= kFirstEasterYear && OrthodoxEaster(date.year, e.day) == ymd;
    case 3: {
      std::int64_t length = date.DaysInMonth();
      const Date start(Rules().startGregorian), dropped(Rules().julianEquivalentOfStart);
      if (date.year == start.year && m == start.month && dropped.year == start.year &&
          dropped.month == start.month && d >= dropped.day) {
        d -= Rules().droppedDays;
        length -= Rules().droppedDays;
      }
      const bool fits = (n == 1 && d >= 1 && d <= 7) || (n == 2 && d >= 8 && d <= 14) ||
                        (n == 3 && d >= 15 && d <= 21) || (n == 4 && d >= 22 && d <= 28) ||
                        (n == 5 && length - d < 7);
      return e.month == m && e.weekday == weekday && fits;
    }
    case 4:
      return e.weekday == weekday && -7 * n < diff && diff <= -7 * n + 7;
    case 5:
      return e.weekday == weekday && 7 * (n - 1) <= diff && diff < 7 * n;
    case 6:
      return e.month == m &&
             ((d == day && weekday <= 5) || (d == day + 1 && weekday == 1) || (d == day + 2 && weekday == 1));
    case 7:
      return e.month == m && ((d == day && weekday != 7) || (d == day + 1 && weekday == 1));
    default:
      return false;
  }
}

// Finds a rule that the view of a whole month passes by, and sums that leave the range of an int.
TEST(DayRulesTest, AnyRuleFallsOnTheDaysOfItsDefinition) {
  std::mt19937 random(20240501);
  const auto from = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
  const auto any = [&] { return static_cast<int>(random()); };

  const PackedDate kReforms[] = {15821015, 17000301, 17530301, 19120101,       19180214,
                                 39010301, 10101,    -440315,  kNeverGregorian};
  for (const PackedDate reform : kReforms) {
    const int reformYear = std::min(Unpack(reform).year, 3999);
    for (const bool proleptic : {false, true}) {
      const ScopedRules inForce(RulesWith(reform, {.proleptic = proleptic}));
      int found = 0;
      for (int round = 0; round < 1500; ++round) {
        const int years[] = {reformYear,        reformYear,   reformYear + 1,
                             from(-3999, 3999), from(-48, 8), from(326, 330)};
        const int year = years[from(0, 5)];
        const int month = from(1, 12);

        DayEvent events[4];
        for (DayEvent& event : events) {
          event = Rule(static_cast<DayEventType>(from(0, 7)),
                       {.isPublic = from(0, 1) == 1,
                        .month = from(0, 2) != 0 ? month : from(-1, 13),
                        .day = from(0, 1) == 1 ? from(1, 31) : from(-99, 99),
                        .weekday = from(1, 7),
                        .weeknum = from(0, 2) != 0 ? 1 : from(0, 6)});
          if (from(0, 3) == 0) event.ymdFrom = Pack(year, month, from(1, 31));
          if (from(0, 3) == 0) event.ymdTo = Pack(year, month, from(1, 31));
          // One field in some rules is any integer.
          int* const fields[] = {&event.type,    &event.month,   &event.day,  &event.weekday,
                                 &event.weeknum, &event.ymdFrom, &event.ymdTo};
          if (from(0, 4) == 0) *fields[from(0, 6)] = any();
        }

        std::vector<RuleDay> days;
        for (int day = 1; day <= 31; ++day) days.push_back(RuleDayOf(Date(year, month, day)));
        std::vector<DayMatch> matches(days.size());
        MatchDaysOfMonth(events, days, matches);
        for (std::size_t i = 0; i < days.size(); ++i) {
          int expected = 0;
          for (const DayEvent& event : events)
            if (PlainlyFallsOn(event, days[i].ymd)) expected |= event.isPublic ? 1 : 2;
          ASSERT_EQ(matches[i].bits, expected) << days[i].ymd << " under " << reform << ", round " << round;
          ASSERT_EQ(MatchDayEvents(events, days[i].ymd, nullptr, 0), expected) << days[i].ymd;
          found += expected != 0 ? 1 : 0;
        }
        MatchDay(events, any());  // returns, whatever the date
      }
      EXPECT_GT(found, 1000);
    }
  }
}

TEST(DayRulesTest, AMonthWithoutDaysAndAListWithoutRulesMatchNothing) {
  const DayEvent always = Rule(kFixed, {.month = 5, .day = 8});
  MatchDaysOfMonth({&always, 1}, {}, {});
  EXPECT_EQ(MatchDayEvents({}, 20240508, nullptr, 3), 0);

  const RuleDay day = RuleDayOf(Date(20240509));
  DayMatch match{.bits = 3, .publicNames = u"left", .eventNames = u"over"};
  MatchDaysOfMonth({&always, 1}, {&day, 1}, {&match, 1});
  EXPECT_EQ(match.bits, 0);
  EXPECT_EQ(match.publicNames + match.eventNames, u"");
}

}  // namespace
}  // namespace orbisol

// The public calendars that come with the program.

#include <gtest/gtest.h>

#include <cmath>
#include <iostream>
#include <set>

#include "content/day_rules.h"
#include "core/date.h"
#include "tests/files/shipped_calendars.h"

namespace orbisol {
namespace {

constexpr double kShareOfLists = 0.15;  // of the public days; above it the source tells the reason
constexpr char kReason[] = "\n# One-day rules: ";

TEST(PublicCalendarsTest, EveryShippedCalendarIsWhatTheWriterWrites) {
  const std::vector<HolidaySource> sources = HolidaySources();
  EXPECT_GE(sources.size(), 109U);
  for (const HolidaySource& source : sources) {
    SCOPED_TRACE(source.name);
    const std::string bytes = BytesOfCalendar(source.name);
    const CalendarFile calendar = ReadCalendar(bytes);
    EXPECT_EQ(WriteCalendar(calendar, CalendarForm::kPublic), bytes);
    EXPECT_FALSE(WouldLoseData(bytes, CalendarForm::kPublic));
    EXPECT_FALSE(calendar.info.empty());
    for (const DayEvent& rule : calendar.content.dayEvents) {
      const std::string name = ToUtf8(rule.name.View());
      EXPECT_TRUE(name.find("  ") > name.size() && name.front() != ' ' && name.back() != ' ') << name;
      EXPECT_TRUE(!rule.isPublic || rule.ymdFrom > 0) << name << " is older than any law";
    }
  }
}

TEST(PublicCalendarsTest, NoNameStandsTwiceOnADay) {
  for (const HolidaySource& source : HolidaySources()) {
    const CalendarContent content = ContentOfCalendar(source.name);
    for (const bool arePublic : {true, false})
      for (const auto& [ymd, rules] : MarkedDays(content, arePublic, 1800, 2050)) {
        std::set<std::u16string_view> names;
        for (const DayEvent* rule : rules)
          EXPECT_TRUE(names.insert(rule->name.View()).second)
              << source.name << ", " << ymd << ": " << ToUtf8(rule->name.View());
      }
  }
}

// Rules, not lists, are asked for: a list ends some day and hides the law.
TEST(PublicCalendarsTest, FewDaysComeFromRulesOfOneDay) {
  for (const HolidaySource& source : HolidaySources()) {
    const CalendarContent content = ContentOfCalendar(source.name);
    const RulesByDay days = MarkedDays(content, true, 2000, 2040);
    if (days.empty()) continue;
    const auto listed = std::count_if(days.begin(), days.end(), [](const auto& day) {
      return std::all_of(day.second.begin(), day.second.end(),
                         [](const DayEvent* rule) { return rule->ymdFrom / 10000 == rule->ymdTo / 10000; });
    });
    const double share = static_cast<double>(listed) / static_cast<double>(days.size());
    std::cout << source.name << ": " << days.size() << " days, " << std::lround(100 * share)
              << " % by rules of one day\n";
    EXPECT_TRUE(share <= kShareOfLists || source.text.find(kReason) != std::string::npos) << source.name;
  }
}

// Holidays by year, from the year of each change on: no holiday is older than its law. Alsace and Moselle
// keep nothing French from 1871 to 1918.
TEST(PublicCalendarsTest, FrenchHolidaysBeginAndEndWithTheirLaws) {
  using Changes = std::map<int, std::size_t>;
  const Changes france = {{1792, 0},  {1802, 4},  {1811, 5},  {1880, 6},  {1886, 8},  {1922, 9},
                          {1947, 10}, {1953, 11}, {1959, 10}, {1965, 11}, {1966, 10}, {1982, 11}};
  const Changes alsace = {{1792, 0},  {1802, 4},  {1811, 5},  {1871, 1},  {1872, 0},
                          {1892, 3},  {1893, 9},  {1919, 10}, {1922, 11}, {1947, 12},
                          {1953, 13}, {1959, 12}, {1965, 13}, {1966, 12}, {1982, 13}};
  for (const auto& [name, changes] :
       {std::pair("France", france), std::pair("France (Alsace-Moselle)", alsace)}) {
    const CalendarContent content = ContentOfCalendar(name);
    for (int year = 1792; year <= 2040; ++year) {
      std::size_t days = 0;
      for (const DayEvent& rule : content.dayEvents)
        if (rule.isPublic) days += RuleDatesInYear(rule, year).size();
      EXPECT_EQ(days, std::prev(changes.upper_bound(year))->second) << name << ", " << year;
    }
  }
}

// The feast of mothers gives way to Whit Sunday, which with Easter is the only event of the years before the
// laws.
TEST(PublicCalendarsTest, TheFeastOfMothersMovesToJuneBeforeWhitSunday) {
  const CalendarContent france = ContentOfCalendar("France");
  std::set<PackedDate> days;
  for (const auto& [ymd, rules] : MarkedDays(france, false, 1951, 2100))
    for (const DayEvent* rule : rules)
      if (ToUtf8(rule->name.View()) == "Fête des mères") days.insert(ymd);
  EXPECT_EQ(days.size(), 150U);
  for (const PackedDate known : {20120603, 20190526, 20200607, 20210530, 20230604, 20240526, 20500605})
    EXPECT_EQ(days.count(known), 1U) << known;
  for (const char* const name : {"France", "France (Alsace-Moselle)"}) {
    const CalendarContent content = ContentOfCalendar(name);
    const RulesByDay early = MarkedDays(content, false, 1581, 1581);
    ASSERT_EQ(early.size(), 2U) << name;
    EXPECT_EQ(early.begin()->first, 15810326);
    EXPECT_EQ(early.rbegin()->first, 15810514);
  }
}

TEST(PublicCalendarsTest, TheSaintsGiveOneNameToEachDay) {
  const CalendarContent saints = ContentOfCalendar("France (saints du calendrier)");
  const RulesByDay days = MarkedDays(saints, false, 2024, 2024);
  EXPECT_EQ(days.size(), 366U);
  for (const auto& [ymd, rules] : days) EXPECT_EQ(rules.size(), 1U) << ymd;
  EXPECT_EQ(ToUtf8(days.at(20240229).at(0)->name.View()), "Auguste");
  EXPECT_EQ(ToUtf8(days.at(20241231).at(0)->name.View()), "Sylvestre");
}

}  // namespace
}  // namespace orbisol

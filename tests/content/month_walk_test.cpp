// Laws of the month model on every page from January -3999 to December 3999, one page after the other. The
// judge knows how long a month is and which dates the reform removed; where neighbouring days are taken from,
// it reads off the pages before and after.

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "content/day_rules.h"
#include "content/month_model.h"
#include "content/selected_date.h"
#include "core/week_number.h"
#include "tests/content/rule_builder.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

struct Page {
  std::vector<PackedDate> before, own, after;  // leading, of the month, trailing
};

// What each cell says of its own date.
std::string FaultOfCell(const DayCell& cell, const CalendarContent& content, bool own, int week) {
  const Date date(cell.ymd);
  if (cell.day != date.day || cell.month != date.month) return "day and month";
  if (cell.weekday != WeekdayOfDayNumber(date.DayNumber())) return "weekday";
  if (cell.week != week) return "week";
  const HolidayPeriod* const period = PeriodOfDay(content.holidays, cell.ymd);
  if (((cell.marks & kVacationCell) != 0) != (period != nullptr)) return "vacation";
  const int bits = own ? MatchDayEvents(content.dayEvents, cell.ymd, nullptr, 0) : 0;
  if (((cell.marks & kHolidayCell) != 0) != ((bits & kPublicMark) != 0)) return "holiday";
  if (((cell.marks & kEventCell) != 0) != (bits == kEventMark)) return "event";
  if (cell.holidayText.empty() == ((cell.marks & kHolidayCell) != 0)) return "name of a holiday";
  if (cell.eventText.empty() == ((cell.marks & kEventCell) != 0)) return "name of an event";
  if (cell.vacationTitle.empty() == (own && period != nullptr)) return "title of a period";
  return "";
}

std::string FaultOfPage(const MonthModel& model, const CalendarContent& content, bool columnsAgree,
                        Page& page) {
  const int first = Rules().iso8601 ? 1 : 0;
  if (model.FirstCell() != first) return "first cell";
  int week = 0;
  for (int i = 0; i < kCellCount; ++i) {
    const DayCell& cell = model.cells[static_cast<std::size_t>(i)];
    if (cell.day == 0) {
      // Only the very first page begins with empty cells.
      const bool begins = model.year == -3999 && model.month == 1 && page.own.empty();
      if (i >= first && i <= model.LastCell() && !begins) return "a hole";
      continue;
    }
    if (i < first || i > model.LastCell()) return "a day outside of the rows";
    const bool own = cell.month == model.month;
    if (!own && !page.own.empty()) {
      if (page.after.empty()) week = WeekNumber(Date(cell.ymd));
      page.after.push_back(cell.ymd);
    } else {
      week = WeekNumber(Date(cell.ymd));
      (own ? page.own : page.before).push_back(cell.ymd);
    }
    std::string fault = FaultOfCell(cell, content, own, week);
    if (!fault.empty()) return fault + " of " + std::to_string(cell.ymd);
    // On purpose: 29 February -8 has the day number of 1 March.
    const bool agrees = columnsAgree && (cell.ymd != -80229 || Rules().proleptic);
    if (agrees && (i - first) % 7 != (cell.weekday - first + 7) % 7) return "column";
    if (model.CellOf(cell.month, cell.day) != i) return "finding " + std::to_string(cell.ymd);
  }

  std::vector<PackedDate> expected;
  const Date month(model.year, model.month, model.day);
  for (int day = 1; day <= month.DaysInMonth(); ++day)
    if (!Rules().IsDropped(Pack(model.year, model.month, day)))
      expected.push_back(Pack(model.year, model.month, day));
  return page.own == expected ? "" : "days of the month";
}

// The pages of some years, until the first fault, which is returned.
std::string FaultOnTheWalk(int fromYear, int toYear, const CalendarContent& content, bool columnsAgree) {
  constexpr std::array<Color, kColorCount> kColors{};
  std::vector<PackedDate> days;  // of all months, one after the other
  std::vector<Page> pages;
  MonthModel model;
  for (int year = fromYear; year <= toYear; ++year) {
    for (int month = 1; month <= 12; ++month) {
      model.year = year;
      model.month = month;
      model.day = 1;
      model.Build(content, kColors, MonthModel::kWithoutMoon);
      if (model.month != month) continue;  // a month that was dropped whole has no page

      Page page;
      std::string fault = FaultOfPage(model, content, columnsAgree, page);
      const bool begins = page.own.front() == kFirstDateShown;
      const bool ends =
          page.own.back() == kLastDateShown || (!page.after.empty() && page.after.back() == kLastDateShown);
      const int filled = model.LastCell() - model.FirstCell() + 1;
      if (fault.empty() && columnsAgree && !begins && !ends && filled % 7 != 0) fault = "rows";
      if (!fault.empty()) return fault + " on the page " + std::to_string(year * 100 + month);
      days.insert(days.end(), page.own.begin(), page.own.end());
      pages.push_back(page);
    }
  }

  // The neighbours of a page are the end of the one before and the beginning of the one after.
  std::size_t first = 0;
  for (const Page& page : pages) {
    const std::size_t end = first + page.own.size();
    const bool hasBefore = first >= page.before.size();
    const bool hasAfter = end + page.after.size() <= days.size();
    const auto at = [&](std::size_t i) { return days.begin() + static_cast<std::ptrdiff_t>(i); };
    if (!hasBefore && fromYear == -3999) return "days before the range shown";
    if (!hasAfter && toYear == 3999) return "days after the range shown";
    if (hasBefore && !std::equal(page.before.begin(), page.before.end(), at(first - page.before.size())))
      return "days before the page of " + std::to_string(days[first]);
    if (hasAfter && !std::equal(page.after.begin(), page.after.end(), at(end)))
      return "days after the page of " + std::to_string(days[first]);
    first = end;
  }
  return "";
}

CalendarContent SomeContent() {
  CalendarContent content;
  content.dayEvents = {
      Rule(DayEventType::kFixedDate, {.month = 7, .day = 14, .name = u"Fête nationale"}),
      Rule(DayEventType::kFixedDate, {.isPublic = false, .month = 2, .day = 29, .name = u"Bissextile"}),
      Rule(DayEventType::kRomanEaster, {.day = 1, .name = u"Lundi de Pâques"}),
      Rule(DayEventType::kRomanEaster, {.isPublic = false, .day = 1, .name = u"Chasse aux œufs"}),
      Rule(DayEventType::kOrthodoxEaster, {.isPublic = false, .day = 0, .name = u"Pascha"}),
      Rule(DayEventType::kNthWeekday, {.month = 10, .weekday = 7, .weeknum = 5, .name = u"Heure d'hiver"}),
      Rule(DayEventType::kWeekdayBefore,
           {.month = 3, .day = 3, .weekday = 2, .weeknum = 1, .name = u"Avant"}),
      Rule(DayEventType::kWeekdayAfter,
           {.month = 2, .day = 27, .weekday = 6, .weeknum = 1, .name = u"Après"}),
      Rule(DayEventType::kBankHoliday, {.month = 12, .day = 25, .name = u"Noël"}),
      Rule(DayEventType::kExceptSunday, {.month = 1, .day = 1, .name = u"Jour de l'an"}),
  };
  content.holidays = {Period(15821001, 15821020, u"Réforme"), Period(-441231, -440101, u"Une année"),
                      Period(17000210, 17000305, u"Hiver"), Period(-5, 5, u"Rien")};
  return content;
}

struct Walk {
  const char* what;
  PackedDate reform;
  RuleOptions options;
  int fromYear, toYear;
  bool columnsAgree = true;
};

void PrintTo(const Walk& walk, std::ostream* out) { *out << walk.what; }

class MonthWalkTest : public testing::TestWithParam<Walk> {};

TEST_P(MonthWalkTest, EveryPageKeepsTheLaws) {
  const Walk& walk = GetParam();
  const CalendarContent content = SomeContent();
  for (const bool iso8601 : {true, false}) {
    SCOPED_TRACE(iso8601 ? "Monday first" : "Sunday first");
    RuleOptions options = walk.options;
    options.iso8601 = iso8601;
    const ScopedRules inForce(RulesWith(walk.reform, options));
    EXPECT_EQ(FaultOnTheWalk(walk.fromYear, walk.toYear, content, walk.columnsAgree), "");
  }
}

const std::vector<CivilYearStart> kFlorence = {{15000325, false}};
const std::vector<CivilYearStart> kPisa = {{14000325, true}, {9991225, false}};

INSTANTIATE_TEST_SUITE_P(
    , MonthWalkTest,
    testing::Values(
        Walk{"Roman", 15821015, {}, -3999, 3999}, Walk{"Proleptic", 15821015, {.proleptic = true}, -60, 20},
        Walk{"FirstOfMonthDropped", 19180214, {}, 1890, 1930},
        Walk{"AllButTheFirst", 19180215, {}, 1910, 1920}, Walk{"FromMidMonth", 17520914, {}, 1690, 1760},
        Walk{"ToTheEndOfAMonth", 17000301, {}, 1690, 1710},
        Walk{"OverTheEndOfAMonth", 17530301, {}, 1740, 1760},
        Walk{"FromTheFirstOfAMonth", 16550311, {}, 1640, 1660},
        Walk{"ToTheEndOfAYear", 19120101, {}, 1900, 1920},
        Walk{"OverTheEndOfAYear", 15840106, {}, 1570, 1590}, Walk{"AWholeMonth", 39010301, {}, 3890, 3999},
        Walk{"AtTheLastDay", 39991231, {}, 3990, 3999},
        Walk{"NeverGregorian", kNeverGregorian, {}, 3000, 3999},
        Walk{"AlwaysGregorian", kAlwaysGregorian, {.proleptic = true}, -3999, -3900},
        // On purpose: months have the length of the civil year, day numbers do not.
        Walk{"Florence", 17500101, {.rows = kFlorence}, 1390, 1760, false},
        Walk{"Pisa", 17500101, {.rows = kPisa}, 990, 1760, false}),
    [](const auto& walk) { return walk.param.what; });

// What the table of civil years does to February: the page follows the year that it belongs to, weekdays the
// days.
TEST(MonthModelTest, FebruaryFollowsTheCivilYear) {
  const ScopedRules inForce(RulesWith(17500101, {.rows = kFlorence}));
  MonthModel model;
  model.year = 1504;
  model.month = 2;
  constexpr std::array<Color, kColorCount> kColors{};
  model.Build({}, kColors, MonthModel::kWithoutMoon);
  EXPECT_EQ(model.CellOf(2, 29), kNoCell) << "it belongs to 1503";
  model.month = 3;
  model.Build({}, kColors, MonthModel::kWithoutMoon);
  const int first = model.CellOf(3, 1);
  ASSERT_GT(first, model.FirstCell());
  EXPECT_EQ(model.cells[static_cast<std::size_t>(first - 1)].ymd, 15040228);
  EXPECT_EQ(model.cells[static_cast<std::size_t>(first - 1)].weekday, 3) << "not the column's";
}

}  // namespace
}  // namespace orbisol

#include "content/month_model.h"

#include <gtest/gtest.h>

#include <vector>

#include "content/day_rules.h"
#include "content/selected_date.h"
#include "core/moon.h"
#include "core/week_number.h"
#include "tests/content/rule_builder.h"

namespace orbisol {
namespace {

// Each color is its own index, so that a test reads which one a cell took.
constexpr std::array<Color, kColorCount> kIndexColors = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};

CalendarContent SomeContent() {
  return {{Rule(kRomanEaster, {.isPublic = false, .day = 1, .name = u"Chasse aux œufs"}),
           Rule(kRomanEaster, {.day = 1, .name = u"Lundi de Pâques"}),
           Rule(kFixedDate, {.isPublic = false, .month = 2, .day = 29, .name = u"Bissextile"}),
           Rule(kFixedDate, {.month = 10, .day = 17, .name = u"Fête"}),
           Rule(kNthWeekday, {.isPublic = false, .month = 10, .weekday = 7, .weeknum = 5, .name = u"Hiver"})},
          {Period(15821001, 15821020, u"Réforme"), Period(15821018, 15821101, u"Toussaint"),
           Period(-441231, -440101, u"Une année"), Period(-430320, -430310, u"Ides"),
           Period(19180131, 19180731, u"Guerre")}};
}

MonthModel Built(const YearMonthDay& date, const CalendarContent& content) {
  MonthModel model;
  model.year = date.year;
  model.month = date.month;
  model.day = date.day;
  model.Build(content, kIndexColors, MonthModel::kWithMoon);
  return model;
}

// Colors of text and background by the marks of a day. On purpose: their orders of precedence differ.
constexpr Color kColorsOf[][2] = {
    {kStandardTextColor, kStandardBgColor},
    {kHolidayText, kHolidayBack},
    {kEventText, kEventBack},
    {},  // on purpose: a holiday hides the events of its day
    {kVacationText, kVacationBack},
    {kHolidayText, kVacationBack},
    {kEventText, kVacationBack},
};

// Returns the cell that a date must have. On purpose: the weekday is that of the day's number.
DayCell ExpectedCell(PackedDate ymd, bool own, int week, const CalendarContent& content) {
  const Date date(ymd);
  const HolidayPeriod* const period = PeriodOfDay(content.vacations, ymd);
  const DayMatch match = own ? MatchDay(content.dayEvents, ymd) : DayMatch();
  const unsigned ofRules = match.bits == kEventMark ? kEventMark : match.bits != 0 ? kHolidayMark : 0;
  const unsigned marks = ofRules | (period != nullptr ? kVacationMark : 0);
  return {.day = date.day,
          .weekday = WeekdayOfDayNumber(date.DayNumber()),
          .week = week,
          .month = date.month,
          .ymd = ymd,
          .moonPhase = own ? MoonPhaseOfDay(date) : kNoPhase,
          .marks = marks,
          .backColor = kColorsOf[marks][1],
          .textColor = own ? kColorsOf[marks][0] : Color{kGrayTextColor},
          .vacationTitle = std::u16string(own && period != nullptr ? period->title.View() : u""),
          .holidayText = match.publicNames,
          .eventText = ofRules == kEventMark ? match.eventNames : u""};
}

// Returns the days of a month that the reform left. The month's length is that of its first day left.
std::vector<PackedDate> DaysOfMonth(int year, int month) {
  std::vector<PackedDate> days;
  Date date(year, month, 1);
  while (date.day < 31 && Rules().IsDropped(date.Packed())) ++date.day;
  for (const int length = date.DaysInMonth(); date.day <= length; ++date.day)
    if (!Rules().IsDropped(date.Packed())) days.push_back(date.Packed());
  return days;
}

// Compares a page with the days that it must show; its ends repeat days of the pages before and after.
void ExpectPage(const MonthModel& model, const std::vector<PackedDate>& days, std::size_t begin,
                std::size_t end, const CalendarContent& content) {
  const int first = Rules().iso8601 ? 1 : 0;
  const int lead = (Date(days[begin]).Weekday(true) - first + 7) % 7;
  std::size_t at = begin - static_cast<std::size_t>(lead + first);
  int week = 0;
  for (int i = 0; i < kCellCount; ++i, ++at) {
    const DayCell& cell = model.cells[static_cast<std::size_t>(i)];
    if (i < first || i > model.LastCell() || at >= days.size()) {
      ASSERT_TRUE(cell == DayCell()) << i;
      continue;
    }
    if (at <= end) week = WeekNumber(Date(days[at]));  // on purpose that of the first after the month
    ASSERT_TRUE(cell == ExpectedCell(days[at], at >= begin && at < end, week, content)) << days[at];
    ASSERT_EQ(model.CellOf(cell.month, cell.day), i);
  }
  const int firstDay = Unpack(days[begin]).day;  // the model's day if the 1st was dropped
  ASSERT_EQ(model.day, firstDay == 1 ? 15 : firstDay);
  ASSERT_EQ(model.FirstCell(), first);
  ASSERT_NE(model.CellOf(model.month, Unpack(days[end - 1]).day), kNoCell);
}

TEST(MonthModelTest, EveryPageIsCutOutOfAllDaysFromWeekToWeek) {
  const struct {
    PackedDate reform;
    RuleOptions options;
    int fromYear, toYear;
    bool columnsAgree = true;
  } kWalks[] = {
      {15821015, {}, -3999, 3999},
      {15821015, {.proleptic = true, .iso8601 = false}, -60, 20},
      {19180214, {.iso8601 = false}, 1890, 1930},  // drops the first days of a month,
      {17000301, {}, 1690, 1710},                  // to its end,
      {19010305, {.iso8601 = false}, 1890, 1910},  // over its end,
      {19120101, {}, 1900, 1920},                  // to the end of a year,
      {15840106, {.iso8601 = false}, 1570, 1590},  // over it,
      {39010301, {}, 3890, 3999},                  // and a whole month
      // On purpose: months have the length of the civil year, day numbers do not.
      {17500101, {.rows = {{15001203, false}}}, 1490, 1760, false},
      {19160214, {.rows = {{15000205, false}}, .iso8601 = false}, 1900, 1930, false},
      {-20000715, {}, -2010, -1990, false},  // dates come twice
  };
  const CalendarContent content = SomeContent();
  for (const auto& walk : kWalks) {
    const ScopedRules inForce(RulesWith(walk.reform, walk.options));
    std::vector<PackedDate> days;
    for (int year = walk.fromYear; year <= walk.toYear; ++year)
      for (int month = 1; month <= 12; ++month)
        for (const PackedDate day : DaysOfMonth(year, month)) days.push_back(day);

    std::size_t end = 0;
    for (int year = walk.fromYear; year <= walk.toYear; ++year) {
      for (int month = 1; month <= 12; ++month) {
        const std::size_t begin = end;
        end += DaysOfMonth(year, month).size();
        if (begin == end) continue;  // dropped whole
        if (begin == 0 ? year != -3999 : end == days.size() && year != 3999)
          continue;  // its neighbors are not known
        const MonthModel model = Built({year, month, 15}, content);
        ASSERT_NO_FATAL_FAILURE(ExpectPage(model, days, begin, end, content));
        if (walk.columnsAgree && end != days.size()) {
          const DayCell& last = model.cells[static_cast<std::size_t>(model.LastCell())];
          ASSERT_EQ(last.weekday, Rules().iso8601 ? 0 : 6) << last.ymd;
        }
      }
    }
  }
}

TEST(MonthModelTest, OfAMonthThatWasDroppedWholeTheNextOneShows) {
  const ScopedRules inForce(RulesWith(39010301));
  const MonthModel model = Built({3901, 2, 10}, {});
  EXPECT_EQ(Pack(model.year, model.month, model.day), 39010301);
}

TEST(MonthModelTest, NothingIsLeftOfTheMonthBeforeAndAnyYearAndMonthIsBuilt) {
  constexpr int kAny[] = {-2147483647 - 1, -214749, -4000, -3999, 0, 1, 13, 99, 4000, 214748, 2147483647};
  MonthModel used;
  EXPECT_EQ(used.CellOf(5, 1), kNoCell) << "not built yet";
  for (const PackedDate reform : {15821015, 10101, -440315, -39990101, 39991231, 2147483647, 19990001}) {
    const ScopedRules inForce(RulesWith(reform));
    for (const int year : kAny)
      for (const int month : kAny) {
        used.year = year;
        used.month = month;
        used.Build(SomeContent(), kIndexColors, MonthModel::kWithMoon);
        EXPECT_TRUE(used.LastCell() >= used.FirstCell() && used.LastCell() < kCellCount);
        EXPECT_TRUE(used.cells == Built({year, month, 1}, SomeContent()).cells) << year << ' ' << month;
        used.Build({}, kIndexColors, MonthModel::kWithoutMoon);
        for (const DayCell& cell : used.cells) EXPECT_TRUE(cell.moonPhase == kNoPhase && cell.marks == 0);
      }
  }
}

}  // namespace
}  // namespace orbisol

#include "content/month_model.h"

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "core/moon.h"
#include "core/week_number.h"
#include "tests/content/rule_builder.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

constexpr auto kFixed = DayEventType::kFixedDate;

// Each color is its own index, so that a test reads which one a cell took.
constexpr std::array<Color, kColorCount> kIndexColors = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};

MonthModel Built(int year, int month, const CalendarContent& content = {},
                 MonthModel::Moon moon = MonthModel::kWithoutMoon) {
  MonthModel model;
  model.year = year;
  model.month = month;
  model.Build(content, kIndexColors, moon);
  return model;
}

const DayCell& CellAt(const MonthModel& model, int month, int day) {
  const int index = model.CellOf(month, day);
  return model.cells[static_cast<std::size_t>(index == kNoCell ? kCellCount - 1 : index)];
}

// The days of all cells: "29/1 30/1 31/1 1-18 28-28 1/3", runs of the month itself shortened, "." an empty
// cell.
std::string Days(const MonthModel& model) {
  std::ostringstream text;
  const char* blank = "";
  for (int i = model.FirstCell(); i <= model.LastCell(); blank = " ") {
    const DayCell& cell = model.cells[static_cast<std::size_t>(i++)];
    if (cell.day == 0) {
      text << blank << ".";
    } else if (cell.month != model.month) {
      text << blank << cell.day << '/' << cell.month;
    } else {
      int last = cell.day;
      while (i <= model.LastCell() && model.cells[static_cast<std::size_t>(i)].month == model.month &&
             model.cells[static_cast<std::size_t>(i)].day == last + 1)
        last = model.cells[static_cast<std::size_t>(i++)].day;
      text << blank << cell.day << '-' << last;
    }
  }
  return text.str();
}

TEST(MonthModelTest, MonthsOfReformsAndOfTheEndsAreLaidOut) {
  const struct {
    const char* what;
    PackedDate reform;
    bool iso8601;
    int year, month;
    const char* days;
  } kRows[] = {
      {"begins on a Monday", 15821015, true, 2024, 4, "1-30 1/5 2/5 3/5 4/5 5/5"},
      {"ends on a Sunday", 15821015, true, 2024, 3, "26/2 27/2 28/2 29/2 1-31"},
      {"four rows", 15821015, true, 2010, 2, "1-28"},
      {"six rows", 15821015, true, 2023, 10, "25/9 26/9 27/9 28/9 29/9 30/9 1-31 1/11 2/11 3/11 4/11 5/11"},
      {"Sunday first", 15821015, false, 2024, 5, "28/4 29/4 30/4 1-31 1/6"},
      {"mid-month", 15821015, true, 1582, 10, "1-4 15-31"},
      {"mid-month, Sunday first", 15821015, false, 1582, 10, "30/9 1-4 15-31 1/11 2/11 3/11 4/11 5/11 6/11"},
      {"first days dropped", 19180214, true, 1918, 2, "29/1 30/1 31/1 14-28 1/3 2/3 3/3"},
      {"the month before", 19180214, true, 1918, 1, "1-31 14/2 15/2 16/2 17/2"},
      {"all but the 1st dropped", 19180215, true, 1918, 2, "29/1 30/1 31/1 1-1 15-28 1/3 2/3 3/3"},
      {"to the end of February", 17000301, true, 1700, 2, "29/1 30/1 31/1 1-18"},
      {"which March follows", 17000301, false, 1700, 3, "18/2 1-31 1/4 2/4 3/4"},
      {"over the end of a month", 17530301, true, 1753, 2, "1-17 1/3 2/3 3/3 4/3"},
      {"from its end into the next", 16550311, false, 1655, 3, "25/2 26/2 27/2 28/2 11-31 1/4 2/4 3/4"},
      {"to the end of a year", 19120101, true, 1911, 12, "28/11 29/11 30/11 1-18"},
      {"which January follows", 19120101, false, 1912, 1, "18/12 1-31 1/2 2/2 3/2"},
      {"over the end of a year", 15840106, true, 1584, 1, "23/12 24/12 25/12 26/12 6-31 1/2 2/2 3/2 4/2 5/2"},
      {"the December before", 15840106, true, 1583, 12,
       "25/11 26/11 27/11 28/11 29/11 30/11 1-26 6/1 7/1 8/1"},
      {"a whole month dropped: the next one shows", 39010301, true, 3901, 2, "28/1 29/1 30/1 31/1 1-31"},
      {"the month before it", 39010301, true, 3901, 1, "31/12 1-31 1/3 2/3 3/3"},
      {"29 February -8 counts as 1 March, a Monday", 15821015, true, -8, 2,
       "26/1 27/1 28/1 29/1 30/1 31/1 1-29 1/3 2/3 3/3 4/3 5/3 6/3 7/3"},
      {"March -8 begins with it", 15821015, false, -8, 3, "29/2 1-31 1/4 2/4 3/4"},
      {"nothing before -3999", 15821015, true, -3999, 1, ". . . 1-31 1/2"},
      {"nothing after 3999", 15821015, true, 3999, 12, "29/11 30/11 1-31"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    const ScopedRules inForce(RulesWith(row.reform, {.iso8601 = row.iso8601}));
    EXPECT_EQ(Days(Built(row.year, row.month)), row.days);
  }
}

TEST(MonthModelTest, ADateWhoseFirstWasDroppedBecomesTheFirstThatExists) {
  const struct {
    PackedDate reform;
    YearMonthDay asked, kept;
  } kRows[] = {
      {15821015, {1582, 10, 10}, {1582, 10, 10}},  // a page that shows no such day
      {15821015, {2024, 5, 31}, {2024, 5, 31}},   {17000301, {1700, 2, 25}, {1700, 2, 25}},
      {19180214, {1918, 2, 20}, {1918, 2, 14}},   {15840106, {1584, 1, 1}, {1584, 1, 6}},
      {39010301, {3901, 2, 10}, {3901, 3, 1}},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.reform);
    const ScopedRules inForce(RulesWith(row.reform));
    MonthModel model;
    model.year = row.asked.year;
    model.month = row.asked.month;
    model.day = row.asked.day;
    model.Build({}, kIndexColors, MonthModel::kWithMoon);
    EXPECT_EQ((YearMonthDay{model.year, model.month, model.day}), row.kept);
  }
}

TEST(MonthModelTest, CellsHaveTheirWeekAndTrailingOnesThatOfTheFirst) {
  const ScopedRules civil(RulesWith(15821015, {.iso8601 = false}));
  // 28 to 31 December 2024 and 1 to 4 January 2025 are one week, week 1 for its Saturday lies in 2025.
  const MonthModel december = Built(2024, 12);
  EXPECT_EQ(CellAt(december, 12, 28).week, 52);
  EXPECT_EQ(CellAt(december, 12, 29).week, 1);
  EXPECT_EQ(CellAt(december, 1, 4).week, 1);
  const MonthModel january = Built(2025, 1);
  EXPECT_EQ(CellAt(january, 12, 29).week, 1);
  EXPECT_EQ(CellAt(january, 1, 5).week, 2);

  // The civil year begins on 3 December, and with it week 1: the row of 30 November to 6 December stays in
  // one week.
  const ScopedRules table(RulesWith(19120101, {.rows = {{15001203, false}}}));
  const MonthModel november = Built(1500, 11);
  EXPECT_EQ(WeekNumber(Date(15001202)), 49);
  EXPECT_EQ(WeekNumber(Date(15001203)), 1);
  EXPECT_EQ(CellAt(november, 12, 2).week, 49);
  EXPECT_EQ(CellAt(november, 12, 6).week, 49);
}

// All that can be marked meets in May 2024.
CalendarContent FullMay() {
  CalendarContent content;
  content.dayEvents = {
      Rule(kFixed, {.isPublic = false, .month = 5, .day = 8, .name = u"Anniversaire"}),
      Rule(kFixed, {.month = 5, .day = 8, .name = u"Victoire 1945"}),
      Rule(kFixed, {.month = 5, .day = 9, .name = u"Ascension"}),
      Rule(kFixed, {.isPublic = false, .month = 5, .day = 10, .name = u"Pont"}),
      Rule(kFixed, {.isPublic = false, .month = 5, .day = 11, .name = u"Foire"}),
      Rule(kFixed, {.isPublic = false, .month = 5, .day = 11, .name = u"Bal"}),
      Rule(kFixed, {.month = 4, .day = 30, .name = u"Avril"}),
      Rule(kFixed, {.isPublic = false, .month = 6, .day = 1, .name = u"Juin"}),
  };
  content.holidays = {Period(20240509, 20240510, u"Pont de mai"), Period(20240510, 20240512, u"Plus tard"),
                      Period(20240601, 20240602, u"Été"), Period(20240428, 20240429, u"Printemps")};
  return content;
}

TEST(MonthModelTest, MarksTextsAndColorsFollowTheirPrecedences) {
  const MonthModel may = Built(2024, 5, FullMay());
  const struct {
    const char* what;
    int month, day;
    unsigned marks;
    ColorIndex text, back;
    std::u16string holidays, events, vacation;
  } kRows[] = {
      {"ordinary", 5, 7, 0, kStandardTextColor, kStandardBgColor, u"", u"", u""},
      {"a holiday hides the event", 5, 8, kHolidayCell, kHolidayFontColor, kHolidayBgColor, u"Victoire 1945",
       u"", u""},
      {"holiday in a vacation", 5, 9, kHolidayCell | kVacationCell, kHolidayFontColor, kHolidaysBgColor,
       u"Ascension", u"", u"Pont de mai"},
      {"event in two vacations", 5, 10, kEventCell | kVacationCell, kEventFgColor, kHolidaysBgColor, u"",
       u"Pont", u"Pont de mai"},
      {"two events in a vacation", 5, 11, kEventCell | kVacationCell, kEventFgColor, kHolidaysBgColor, u"",
       u"Foire + Bal", u"Plus tard"},
      {"vacation", 5, 12, kVacationCell, kHolidaysFontColor, kHolidaysBgColor, u"", u"", u"Plus tard"},
      {"before the month, in a vacation: no title", 4, 29, kVacationCell, kGrayTextColor, kHolidaysBgColor,
       u"", u"", u""},
      {"before the month, a holiday: not shown", 4, 30, 0, kGrayTextColor, kStandardBgColor, u"", u"", u""},
      {"after the month: neither event nor title", 6, 1, kVacationCell, kGrayTextColor, kHolidaysBgColor, u"",
       u"", u""},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    const DayCell& cell = CellAt(may, row.month, row.day);
    EXPECT_EQ(cell.day, row.day);
    EXPECT_EQ(cell.marks, row.marks);
    EXPECT_EQ(cell.textColor, kIndexColors[static_cast<std::size_t>(row.text)]);
    EXPECT_EQ(cell.backColor, kIndexColors[static_cast<std::size_t>(row.back)]);
    EXPECT_EQ(cell.holidayText, row.holidays);
    EXPECT_EQ(cell.eventText, row.events);
    EXPECT_EQ(cell.vacationTitle, row.vacation);
  }

  CalendarContent eventAlone;
  eventAlone.dayEvents = {Rule(kFixed, {.isPublic = false, .month = 5, .day = 7, .name = u"Seul"})};
  const MonthModel other = Built(2024, 5, eventAlone);
  EXPECT_EQ(CellAt(other, 5, 7).textColor, Color{kEventFgColor});
  EXPECT_EQ(CellAt(other, 5, 7).backColor, Color{kEventBgColor});
}

TEST(MonthModelTest, NothingIsLeftOfTheMonthBefore) {
  MonthModel used = Built(2024, 5, FullMay(), MonthModel::kWithMoon);
  used.year = 2010;
  used.month = 2;  // four rows
  used.Build({}, kIndexColors, MonthModel::kWithoutMoon);
  const MonthModel fresh = Built(2010, 2);
  for (std::size_t i = 0; i < used.cells.size(); ++i) {
    SCOPED_TRACE(i);
    const DayCell& cell = used.cells[i];
    EXPECT_EQ(cell.ymd, fresh.cells[i].ymd);
    EXPECT_EQ(cell.marks, 0u);
    EXPECT_EQ(cell.moonPhase, kNoPhase);
    EXPECT_EQ(cell.textColor, fresh.cells[i].textColor);
    EXPECT_EQ(cell.vacationTitle + cell.holidayText + cell.eventText, u"");
  }
}

TEST(MonthModelTest, DaysOfTheMonthHaveTheirPhases) {
  for (const bool iso8601 : {true, false}) {
    const ScopedRules inForce(RulesWith(15821015, {.iso8601 = iso8601}));
    for (const int year : {-3999, -8, 1582, 2024, 3999}) {
      for (int month = 1; month <= 12; ++month) {
        const MonthModel model = Built(year, month, {}, MonthModel::kWithMoon);
        for (int i = model.FirstCell(); i <= model.LastCell(); ++i) {
          const DayCell& cell = model.cells[static_cast<std::size_t>(i)];
          const MoonPhase phase =
              cell.day == 0 || cell.month != month ? kNoPhase : MoonPhaseOfDay(Date(cell.ymd));
          ASSERT_EQ(cell.moonPhase, phase) << cell.ymd << " in the page of " << month;
        }
      }
    }
  }
  const MonthModel january = Built(2024, 1, {}, MonthModel::kWithMoon);
  EXPECT_EQ(CellAt(january, 1, 25).moonPhase, kFullMoon);
  EXPECT_EQ(CellAt(Built(2024, 1), 1, 25).moonPhase, kNoPhase);
}

TEST(MonthModelTest, CellsAreFoundByMonthAndDay) {
  MonthModel model;
  EXPECT_EQ(model.CellOf(5, 1), kNoCell) << "not built yet";
  model = Built(2024, 5);  // begins on Wednesday, after 29 and 30 April
  EXPECT_EQ(model.CellOf(4, 29), 1);
  EXPECT_EQ(model.CellOf(5, 1), 3);
  EXPECT_EQ(model.CellOf(5, 31), 33);
  EXPECT_EQ(model.CellOf(6, 2), 35);
  EXPECT_EQ(model.CellOf(6, 3), kNoCell);
  EXPECT_EQ(model.CellOf(0, 0), kNoCell) << "an empty cell is no day";
  model = Built(1582, 10);
  EXPECT_EQ(model.CellOf(10, 10), kNoCell);
}

TEST(MonthModelTest, AnyYearAndMonthIsBuilt) {
  const int kAny[] = {-2147483647 - 1, -214749, -4000, -3999, 0, 1, 13, 99, 4000, 214748, 2147483647};
  CalendarContent content = FullMay();
  for (const PackedDate reform :
       {15821015, 10101, -440315, -39990101, 39991231, 2147483647, -2147483647, 19990001}) {
    const ScopedRules inForce(RulesWith(reform));
    for (const int year : kAny)
      for (const int month : kAny) {
        const MonthModel model = Built(year, month, content, MonthModel::kWithMoon);
        EXPECT_GE(model.LastCell(), model.FirstCell()) << year << ' ' << month;
        EXPECT_LT(model.LastCell(), kCellCount);
      }
  }
}

}  // namespace
}  // namespace orbisol

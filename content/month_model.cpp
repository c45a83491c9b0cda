#include "content/month_model.h"

#include <algorithm>
#include <span>
#include <utility>

#include "content/day_rules.h"
#include "content/month_page.h"
#include "core/date_range.h"
#include "core/week_number.h"

namespace orbisol {
namespace {

constexpr std::size_t kMaxDays = 31;  // of a month

bool IsDropped(const Date& date) { return Rules().IsDropped(date.Packed()); }

// The days of all pages one after the other: month lengths, dropped dates left out. On purpose: this is not
// Date::AddDays; where a page shows 29 February in a year that has none, the days of the neighboring pages
// agree with it.
void StepOn(Date& date) {
  do {
    if (date.day < LastDayOfPage(date)) {
      ++date.day;
    } else {
      date.day = 1;
      date.AddMonths(1);
    }
  } while (IsDropped(date));
}

void StepBack(Date& date) {
  do {
    if (date.day > 1) {
      --date.day;
    } else {
      date.AddMonths(-1);
      date.day = LastDayOfPage(date);
    }
  } while (IsDropped(date));
}

// On purpose: the weekday is that of the day's number, also where that differs from the column's.
void SetDate(DayCell& cell, const Date& date, const RuleDay& ruleDay) {
  cell.day = date.day;
  cell.weekday = ruleDay.weekday % kDaysInWeek;
  cell.week = WeekNumber(date);
  cell.month = date.month;
  cell.ymd = ruleDay.ymd;
}

void SetDate(DayCell& cell, const Date& date) { SetDate(cell, date, RuleDayOf(date)); }

enum class Titles { kShown, kHidden };

// The first period in the list that holds a day marks it.
void MarkPeriods(std::span<const HolidayPeriod> periods, std::span<DayCell> cells, Titles titles) {
  if (cells.empty()) return;
  PackedDate lowest = cells[0].ymd;
  PackedDate highest = cells[0].ymd;
  for (const DayCell& cell : cells) {
    lowest = std::min(lowest, cell.ymd);
    highest = std::max(highest, cell.ymd);
  }
  for (const HolidayPeriod& period : periods) {
    if (period.ymdTo < lowest || period.ymdFrom > highest) continue;
    for (DayCell& cell : cells) {
      if ((cell.marks & kVacationMark) != 0 || !period.Holds(cell.ymd)) continue;
      cell.marks |= kVacationMark;
      if (titles == Titles::kShown) cell.vacationTitle = period.title.View();
    }
  }
}

// On purpose: a public holiday hides the personal events of its day.
void MarkRules(std::span<const DayEvent> events, std::span<const RuleDay> days, std::span<DayCell> cells) {
  std::array<DayMatch, kMaxDays> matches;
  MatchDaysOfMonth(events, days, std::span(matches).first(days.size()));
  for (std::size_t i = 0; i < days.size(); ++i) {
    if ((matches[i].bits & kHolidayMark) != 0) {
      cells[i].marks |= kHolidayMark;
      cells[i].holidayText = std::move(matches[i].publicNames);
    } else if (matches[i].bits != 0) {
      cells[i].marks |= kEventMark;
      cells[i].eventText = std::move(matches[i].eventNames);
    }
  }
}

void MarkMoon(std::span<const RuleDay> days, std::span<DayCell> cells) {
  std::array<MoonPhase, kMaxDays> phases;
  for (std::size_t first = 0; first < days.size();) {
    std::size_t end = first + 1;
    while (end < days.size() && days[end].dayNumber - std::int64_t{days[end - 1].dayNumber} == 1) ++end;
    MoonPhasesOfDays(days[first].dayNumber, std::span(phases).first(end - first));
    for (std::size_t i = first; i < end; ++i) cells[i].moonPhase = phases[i - first];
    first = end;
  }
}

Color At(const std::array<Color, kColorCount>& colors, ColorIndex index) {
  return colors[static_cast<std::size_t>(index)];
}

// On purpose: the two colors of a day have different precedences.
void ColorDays(std::span<DayCell> cells, const std::array<Color, kColorCount>& colors) {
  for (DayCell& cell : cells) {
    ColorIndex text = kStandardTextColor;
    if ((cell.marks & kVacationMark) != 0) text = kVacationText;
    if ((cell.marks & kEventMark) != 0) text = kEventText;
    if ((cell.marks & kHolidayMark) != 0) text = kHolidayText;
    ColorIndex back = kStandardBgColor;
    if ((cell.marks & kEventMark) != 0) back = kEventBack;
    if ((cell.marks & kHolidayMark) != 0) back = kHolidayBack;
    if ((cell.marks & kVacationMark) != 0) back = kVacationBack;
    cell.textColor = At(colors, text);
    cell.backColor = At(colors, back);
  }
}

void ColorNeighbors(std::span<DayCell> cells, const std::array<Color, kColorCount>& colors) {
  for (DayCell& cell : cells) {
    cell.textColor = At(colors, kGrayTextColor);
    cell.backColor = At(colors, (cell.marks & kVacationMark) != 0 ? kVacationBack : kStandardBgColor);
  }
}

}  // namespace

void MonthModel::Build(const CalendarContent& content, const std::array<Color, kColorCount>& colors,
                       Moon moon) {
  for (DayCell& cell : cells)
    if (cell.day != 0) cell = DayCell{};
  const bool mondayFirst = Rules().iso8601;
  m_firstCell = mondayFirst ? 1 : 0;

  Date first(year, month, 1);
  if (IsDropped(first)) {
    StepOn(first);
    year = first.year;
    month = first.month;
    day = first.day;
  }

  // Days before the 1st, from the last of them back. `start` and `end` bound what is filled.
  const int day1 = m_firstCell + (first.Weekday(true) - m_firstCell + kDaysInWeek) % kDaysInWeek;
  int start = day1;
  for (Date before = first; start > m_firstCell;) {
    StepBack(before);
    if (before.year < kFirstYearShown) break;
    SetDate(cells[static_cast<std::size_t>(--start)], before);
  }

  std::array<RuleDay, kMaxDays> days;
  std::size_t dayCount = 0;
  int end = day1;
  Date date = first;
  for (const int last = first.DaysInMonth(); date.day <= last; ++date.day) {
    if (IsDropped(date)) continue;
    days[dayCount] = RuleDayOf(date);
    SetDate(cells[static_cast<std::size_t>(end++)], date, days[dayCount++]);
  }
  const int afterMonth = end;

  // Days after the last, to the end of its week. On purpose: they all have the week number of the first. Up
  // to seven, where the number of the last day is not that of its column.
  const int lastWeekday = mondayFirst ? 0 : 6;
  --date.day;
  while (cells[static_cast<std::size_t>(end - 1)].weekday != lastWeekday && end < afterMonth + kDaysInWeek) {
    StepOn(date);
    if (date.year > kLastYearShown) break;
    SetDate(cells[static_cast<std::size_t>(end++)], date);
    cells[static_cast<std::size_t>(end - 1)].week = cells[static_cast<std::size_t>(afterMonth)].week;
  }
  m_lastCell = end - 1;

  const auto between = [this](int from, int to) {
    return std::span(cells).subspan(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from));
  };
  const std::span<DayCell> ofMonth = between(day1, afterMonth);
  const std::span<const RuleDay> ruleDay(days.data(), dayCount);
  MarkPeriods(content.vacations, ofMonth, Titles::kShown);
  MarkRules(content.dayEvents, ruleDay, ofMonth);
  if (moon == kWithMoon) MarkMoon(ruleDay, ofMonth);
  ColorDays(ofMonth, colors);
  for (const std::span<DayCell> neighbors : {between(start, day1), between(afterMonth, end)}) {
    MarkPeriods(content.vacations, neighbors, Titles::kHidden);
    ColorNeighbors(neighbors, colors);
  }
}

int MonthModel::CellOf(int ofMonth, int ofDay) const {
  for (int i = m_firstCell; i <= m_lastCell; ++i) {
    const DayCell& cell = cells[static_cast<std::size_t>(i)];
    if (cell.day != 0 && cell.month == ofMonth && cell.day == ofDay) return i;
  }
  return kNoCell;
}

}  // namespace orbisol

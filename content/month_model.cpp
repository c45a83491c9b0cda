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

constexpr std::size_t kMaxDays = 31;  // length of the longest month

bool IsDropped(const Date& date) { return Rules().IsDropped(date.Packed()); }

// Moves to the next day that a page shows, passing over dropped dates. On purpose: this is not Date::AddDays.
// If a page shows 29 February in a year that has none, the neighboring pages must agree with it.
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

// Sets the date of a cell. On purpose: the weekday follows from the day number, even if it differs from that
// of the column.
void SetDate(DayCell& cell, const Date& date, const RuleDay& ruleDay) {
  cell.day = date.day;
  cell.weekday = ruleDay.weekday % kDaysInWeek;
  cell.week = WeekNumber(date);
  cell.month = date.month;
  cell.ymd = ruleDay.ymd;
}

void SetDate(DayCell& cell, const Date& date) { SetDate(cell, date, RuleDayOf(date)); }

enum class Titles { kShown, kHidden };

// Marks the days that lie in a period. The first period in the list that holds a day gives its title.
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

// Sets the marks and names of all days. On purpose: a public holiday hides the personal events of its day.
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

// Sets the colors of all days. On purpose: text and background have different orders of precedence.
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

  // Cells before the 1st are filled backwards from the last of them. `start` and `end` bound the filled
  // cells.
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

  // Cells after the last day complete its week: up to seven if the weekday of the last day differs from that
  // of its column. On purpose: they all have the week number of the first of them.
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

#include "content/day_names.h"

#include <cstddef>

#include "content/day_rules.h"

namespace orbisol {
namespace {

bool IsOfMonth(const MonthModel& month, const DayCell& cell) {
  return cell.day != 0 && cell.month == month.month;
}

// Returns whether a cell continues the vacation of the cell before it, in the same row and month.
bool ContinuesVacation(const MonthModel& month, int cell) {
  if ((cell - month.FirstCell()) % kDaysInWeek == 0) return false;
  const DayCell& before = month.cells[static_cast<std::size_t>(cell - 1)];
  return IsOfMonth(month, before) && (before.marks & kVacationMark) != 0 &&
         before.vacationTitle == month.cells[static_cast<std::size_t>(cell)].vacationTitle;
}

}  // namespace

MonthNames NamesOfMonth(const MonthModel& month, const CalendarContent& content) {
  MonthNames names;
  std::vector<RuleDay> days;
  std::vector<std::size_t> cells;  // of these days
  for (int i = month.FirstCell(); i <= month.LastCell(); ++i) {
    const auto cell = static_cast<std::size_t>(i);
    const DayCell& day = month.cells[cell];
    if (!IsOfMonth(month, day)) continue;
    if ((day.marks & kVacationMark) != 0 && !ContinuesVacation(month, i))
      names[cell].vacation = day.vacationTitle;
    if ((day.marks & (kHolidayMark | kEventMark)) == 0) continue;
    days.push_back(RuleDayOf(Date(day.ymd)));
    cells.push_back(cell);
  }
  ForEachRuleOfDays(content.dayEvents, days, [&](std::size_t i, const DayEvent& rule) {
    const bool isHoliday = (month.cells[cells[i]].marks & kHolidayMark) != 0;
    if (rule.isPublic == isHoliday && !rule.name.IsEmpty())
      names[cells[i]].names.emplace_back(rule.name.View());
  });
  return names;
}

}  // namespace orbisol

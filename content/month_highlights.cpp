#include "content/month_highlights.h"

#include <array>
#include <cstdint>

#include "content/day_rules.h"
#include "core/date_range.h"
#include "core/moon.h"

namespace orbisol {
namespace {

void AddTexts(std::vector<Highlight>& list, const DayCell& cell) {
  if (!cell.holidayText.empty())
    list.push_back({cell.ymd, cell.ymd, HighlightKind::kHoliday, cell.holidayText});
  if (!cell.eventText.empty()) list.push_back({cell.ymd, cell.ymd, HighlightKind::kEvent, cell.eventText});
}

}  // namespace

std::vector<Highlight> HighlightsOf(const MonthModel& month) {
  std::vector<Highlight> list;
  std::vector<Highlight> moons;
  std::size_t period = 0;  // 1 + index of the period that holds the cell before this one; 0 if none does
  for (int i = month.FirstCell(); i <= month.LastCell(); ++i) {
    const DayCell& cell = month.cells[static_cast<std::size_t>(i)];
    if (cell.day == 0 || cell.month != month.month) continue;
    AddTexts(list, cell);
    if (cell.vacationTitle.empty()) {
      period = 0;
    } else if (period != 0 && list[period - 1].text == cell.vacationTitle) {
      list[period - 1].lastDate = cell.ymd;
    } else {
      list.push_back({cell.ymd, cell.ymd, HighlightKind::kVacation, cell.vacationTitle});
      period = list.size();
    }
    if (cell.moonPhase != kNoPhase)
      moons.push_back(
          {cell.ymd, cell.ymd, HighlightKind::kMoon, std::u16string(MoonPhaseName(cell.moonPhase))});
  }
  list.insert(list.end(), moons.begin(), moons.end());
  return list;
}

std::optional<Highlight> NextPublicHoliday(std::span<const DayEvent> rules, const Date& after) {
  constexpr std::size_t kMaxDays = 31;
  std::array<RuleDay, kMaxDays> days;
  std::array<DayMatch, kMaxDays> matches;
  std::int64_t dayNumber = std::int64_t{after.DayNumber()} + 1;
  const std::int64_t last = dayNumber + kDaysToNextHoliday - 1;
  while (dayNumber <= last) {
    // Matching a month at once goes through the rules once instead of once a day.
    std::size_t count = 0;
    for (; count < kMaxDays && dayNumber <= last; ++dayNumber) {
      const Date date = DateOfDayNumber(Saturate(dayNumber));
      if (!IsWithinBounds(date) || (count > 0 && date.month != days[0].month)) break;
      days[count++] = RuleDayOf(date);
    }
    if (count == 0) return std::nullopt;
    const std::span<DayMatch> found = std::span(matches).first(count);
    MatchDaysOfMonth(rules, std::span(days).first(count), found);
    for (std::size_t i = 0; i < count; ++i)
      if ((found[i].bits & kHolidayMark) != 0)
        return Highlight{days[i].ymd, days[i].ymd, HighlightKind::kHoliday, found[i].publicNames};
  }
  return std::nullopt;
}

}  // namespace orbisol

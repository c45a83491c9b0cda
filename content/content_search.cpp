#include "content/content_search.h"

#include <algorithm>

#include "content/day_rules.h"
#include "content/rule_dates.h"
#include "core/date.h"
#include "core/text.h"

namespace orbisol {
namespace {

std::u16string_view Trimmed(std::u16string_view text) {
  constexpr std::u16string_view kBlanks = u" \t\n\u00A0\u202F";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool IsEarlier(PackedDate a, PackedDate b) { return DayOrder(a) < DayOrder(b); }

SearchHit DayOf(const SearchHit& hit, PackedDate day) { return {day, day, hit.text}; }

// Return the date before and after `day`. 29 February -8 counts as 1 March -8: a day less is 29 February
// again, and a day more already 2 March.
PackedDate DayBefore(PackedDate day) {
  const int dayNumber = Date(day).DayNumber();
  const PackedDate before = DateOfDayNumber(dayNumber - 1).Packed();
  return IsEarlier(before, day) ? before : DateOfDayNumber(dayNumber - 2).Packed();
}

PackedDate DayAfter(PackedDate day) {
  const int dayNumber = Date(day).DayNumber();
  const PackedDate counted = DateOfDayNumber(dayNumber).Packed();
  return IsEarlier(day, counted) ? counted : DateOfDayNumber(dayNumber + 1).Packed();
}

}  // namespace

CContentSearch::CContentSearch(CalendarContent content, std::u16string_view word)
    : m_content(std::move(content)), m_word(Folded(Trimmed(word))) {
  if (m_word.empty()) return;
  for (const DayEvent& rule : m_content.dayEvents)
    if (Holds(rule.name.View())) m_rules.push_back(&rule);
  for (const HolidayPeriod& period : m_content.vacations)
    if (Holds(period.title.View())) m_periods.push_back(&period);
  Narrow();
}

bool CContentSearch::Holds(std::u16string_view text) const {
  return Folded(text).find(m_word) != std::u16string::npos;
}

// Sets the years that the bounds of rules and periods leave.
void CContentSearch::Narrow() {
  int first = kLastYearShown + 1;
  int last = kFirstYearShown - 1;
  const auto include = [&](PackedDate from, PackedDate to) {
    first = std::min(first, Unpack(from).year);
    last = std::max(last, Unpack(to).year);
  };
  for (const DayEvent* const rule : m_rules) include(rule->ymdFrom, rule->ymdTo);
  for (const HolidayPeriod* const period : m_periods) include(period->ymdFrom, period->ymdTo);
  m_firstYear = std::max(first, kFirstYearShown);
  m_lastYear = std::min(last, kLastYearShown);
}

// The names in the cell of a day that hold the word; empty where the cell does not show any.
std::u16string CContentSearch::ShownNames(PackedDate date) const {
  const DayMatch match = MatchDay(m_content.dayEvents, date);
  const bool isHoliday = (match.bits & kHolidayMark) != 0;
  const std::u16string& shown = isHoliday ? match.publicNames : match.eventNames;
  return Holds(shown) ? shown : std::u16string();
}

void CContentSearch::AddRuleDays(int year, std::vector<SearchHit>& hits) const {
  std::vector<PackedDate> days;
  for (const DayEvent* const rule : m_rules) AppendRuleDates(*rule, year, days);
  std::sort(days.begin(), days.end(), IsEarlier);
  days.erase(std::unique(days.begin(), days.end()), days.end());
  for (const PackedDate day : days) {
    std::u16string names = ShownNames(day);
    if (!names.empty()) hits.push_back({day, day, std::move(names)});
  }
}

// A day shows the title of the first period in the list that holds it.
void CContentSearch::AddPeriods(int year, std::vector<SearchHit>& hits) const {
  const bool isTouched = std::any_of(m_periods.begin(), m_periods.end(), [=](const HolidayPeriod* period) {
    return Unpack(period->ymdFrom).year <= year && year <= Unpack(period->ymdTo).year;
  });
  if (!isTouched) return;
  const HolidayPeriod* before = nullptr;  // period of the day before, where that is a hit
  const int last = Date(year, 12, 31).DayNumber();
  for (int n = Date(year, 1, 1).DayNumber(); n <= last; ++n) {
    const PackedDate day = DateOfDayNumber(n).Packed();
    const HolidayPeriod* const period = PeriodOfDay(m_content.vacations, day);
    const bool isHit = std::find(m_periods.begin(), m_periods.end(), period) != m_periods.end();
    if (isHit && period == before) {
      hits.back().lastDate = day;
    } else if (isHit) {
      hits.push_back({day, day, std::u16string(period->title.View())});
    }
    before = isHit ? period : nullptr;
  }
}

std::vector<SearchHit> CContentSearch::HitsInYear(int year) const {
  std::vector<SearchHit> hits;
  if (year < m_firstYear || year > m_lastYear) return hits;
  AddRuleDays(year, hits);
  AddPeriods(year, hits);
  std::stable_sort(hits.begin(), hits.end(),
                   [](const SearchHit& a, const SearchHit& b) { return IsEarlier(a.date, b.date); });
  return hits;
}

std::optional<SearchHit> CContentSearch::NextInYear(int year, PackedDate after) const {
  std::optional<SearchHit> nearest;
  for (const SearchHit& hit : HitsInYear(year)) {
    if (!IsEarlier(after, hit.lastDate)) continue;
    const PackedDate day = IsEarlier(after, hit.date) ? hit.date : DayAfter(after);
    if (!nearest || IsEarlier(day, nearest->date)) nearest = DayOf(hit, day);
  }
  return nearest;
}

std::optional<SearchHit> CContentSearch::PreviousInYear(int year, PackedDate before) const {
  std::optional<SearchHit> nearest;
  for (const SearchHit& hit : HitsInYear(year)) {
    if (!IsEarlier(hit.date, before)) continue;
    const PackedDate day = IsEarlier(hit.lastDate, before) ? hit.lastDate : DayBefore(before);
    if (!nearest || IsEarlier(nearest->date, day)) nearest = DayOf(hit, day);
  }
  return nearest;
}

}  // namespace orbisol

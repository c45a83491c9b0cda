#include "content/day_rules.h"

#include <algorithm>

#include "core/easter.h"

namespace orbisol {
namespace {

// First and last of consecutive days, in 64 bits, which hold sums of any ints.
struct Range {
  std::int64_t first;
  std::int64_t last;

  bool Holds(std::int64_t value) const { return first <= value && value <= last; }
  bool Meets(const Range& other) const { return first <= other.last && other.first <= last; }
};
constexpr Range kNothing{1, 0};

// Facts about one year on which rules depend. Easter is computed when the first rule asks for it.
class CRuleYear {
 public:
  explicit CRuleYear(int year) : m_year(year) {}

  // Returns the days on which a rule can fall if it counts from some day of the year: day numbers, for the
  // Orthodox Easter packed dates. The other kinds have an empty range.
  Range RangeOf(const DayEvent& event) {
    switch (event.type) {
      case DayEventType::kRomanEaster:
        if (m_year < kFirstEasterYear) return kNothing;
        return From(RomanEasterNumber() + event.day, 1);
      case DayEventType::kOrthodoxEaster:
        if (m_year < kFirstEasterYear) return kNothing;
        return From(OrthodoxEaster(m_year, event.day), 1);
      case DayEventType::kWeekdayBefore:  // week 1 ends with the date itself
        return From(NumberOf(event) + 1 - 7 * std::int64_t{event.weeknum}, 7);
      case DayEventType::kWeekdayAfter:  // week 1 begins with the date itself
        return From(NumberOf(event) + 7 * (std::int64_t{event.weeknum} - 1), 7);
      default:
        return kNothing;
    }
  }

 private:
  static Range From(std::int64_t first, int days) { return {first, first + days - 1}; }

  // On purpose: the date is taken in the year of the day asked; no rule looks across the end of the year.
  std::int64_t NumberOf(const DayEvent& event) const {
    return Date(m_year, event.month, event.day).DayNumber();
  }

  std::int64_t RomanEasterNumber() {
    if (!m_easterIsKnown) {
      Date easter(m_year, 1, 1);
      RomanEaster(easter);
      m_romanEaster = easter.DayNumber();
      m_easterIsKnown = true;
    }
    return m_romanEaster;
  }

  int m_year;
  bool m_easterIsKnown = false;
  std::int64_t m_romanEaster = 0;  // day number
};

// Returns whether a day is the n-th of its weekday in its month, 5 being the last.
bool IsNthInMonth(const RuleDay& ruleDay, int n) {
  std::int64_t day = ruleDay.day;
  std::int64_t length = Date(ruleDay.year, ruleDay.month, ruleDay.day).DaysInMonth();

  // If the reform removed dates inside one month, only the days that existed are counted.
  const CalendarRules& rules = Rules();
  const YearMonthDay start = Unpack(rules.startGregorian);
  const YearMonthDay dropped = Unpack(rules.julianEquivalentOfStart);
  if (ruleDay.year == start.year && ruleDay.month == start.month && dropped.year == start.year &&
      dropped.month == start.month && ruleDay.day >= dropped.day) {
    day -= rules.droppedDays;
    length -= rules.droppedDays;
  }

  if (n == 5) return length - day < 7;
  return n >= 1 && n <= 4 && day > 7 * (n - 1) && day <= 7 * n;
}

// Returns whether a rule falls on a day; `range` is RangeOf the rule in the day's year.
bool FallsOn(const DayEvent& event, const Range& range, const RuleDay& day) {
  constexpr int kMonday = 1;
  constexpr int kFriday = 5;
  constexpr int kSunday = 7;
  const std::int64_t later = std::int64_t{day.day} - event.day;  // days after the rule's own day of the month
  switch (event.type) {
    case DayEventType::kFixedDate:
      return event.month == day.month && later == 0;
    case DayEventType::kRomanEaster:
      return range.Holds(day.dayNumber);
    case DayEventType::kOrthodoxEaster:
      return range.Holds(day.ymd);
    case DayEventType::kNthWeekday:
      return event.month == day.month && event.weekday == day.weekday && IsNthInMonth(day, event.weeknum);
    case DayEventType::kWeekdayBefore:
    case DayEventType::kWeekdayAfter:
      return event.weekday == day.weekday && range.Holds(day.dayNumber);
    case DayEventType::kBankHoliday:
      // On purpose: only the rule's own month is looked at. A holiday shifted past its end falls on no day.
      return event.month == day.month && ((later == 0 && day.weekday <= kFriday) ||
                                          ((later == 1 || later == 2) && day.weekday == kMonday));
    case DayEventType::kExceptSunday:
      return event.month == day.month &&
             ((later == 0 && day.weekday != kSunday) || (later == 1 && day.weekday == kMonday));
  }
  return false;
}

// Returns whether a rule falls in its own month only, so that other months can skip it.
bool StaysInMonth(const DayEvent& event) {
  switch (event.type) {
    case DayEventType::kFixedDate:
    case DayEventType::kNthWeekday:
    case DayEventType::kBankHoliday:
    case DayEventType::kExceptSunday:
      return true;
    default:
      return false;
  }
}

// Calls found(index of the day, rule) for every rule and every day it falls on, rules in list order. All days
// lie in one month, so most rules are skipped after one comparison.
template <typename Found>
void ForEachMatch(std::span<const DayEvent> events, std::span<const RuleDay> days, Found found) {
  if (days.empty()) return;
  Range dates{days[0].ymd, days[0].ymd};
  Range numbers{days[0].dayNumber, days[0].dayNumber};
  for (const RuleDay& day : days) {
    dates = {std::min<std::int64_t>(dates.first, day.ymd), std::max<std::int64_t>(dates.last, day.ymd)};
    numbers = {std::min<std::int64_t>(numbers.first, day.dayNumber),
               std::max<std::int64_t>(numbers.last, day.dayNumber)};
  }

  CRuleYear year(days[0].year);
  for (const DayEvent& event : events) {
    const Range validity{event.ymdFrom, event.ymdTo};
    if (!validity.Meets(dates)) continue;
    const Range range = year.RangeOf(event);
    const bool orthodox = event.type == DayEventType::kOrthodoxEaster;
    const bool possible =
        StaysInMonth(event) ? event.month == days[0].month : range.Meets(orthodox ? dates : numbers);
    if (!possible) continue;
    for (std::size_t i = 0; i < days.size(); ++i)
      if (validity.Holds(days[i].ymd) && FallsOn(event, range, days[i])) found(i, event);
  }
}

unsigned MarkOf(const DayEvent& event) { return event.isPublic ? kHolidayMark : kEventMark; }

// Appends the name of a rule, unless the text is already longer than what CutJoined keeps.
void Join(std::u16string& names, const DayEvent& event) {
  if (names.size() > kMaxJoinedUnits) return;
  if (!names.empty()) names += u" + ";
  names += event.name.View();
}

void CutJoined(std::u16string& names) { names.resize(CutText(names, kMaxJoinedUnits).size()); }

}  // namespace

RuleDay RuleDayOf(const Date& date) {
  const int dayNumber = date.DayNumber();
  const int weekday = WeekdayOfDayNumber(dayNumber);
  return {date.Packed(), date.year, date.month, date.day, weekday == 0 ? 7 : weekday, dayNumber};
}

unsigned MatchDayEvents(std::span<const DayEvent> events, PackedDate ymd, std::u16string* names,
                        unsigned nameMask) {
  const RuleDay day = RuleDayOf(Date(ymd));
  unsigned bits = 0;
  if (names != nullptr) names->clear();
  ForEachMatch(events, {&day, 1}, [&](std::size_t, const DayEvent& event) {
    bits |= MarkOf(event);
    if (names != nullptr && (MarkOf(event) & nameMask) != 0) Join(*names, event);
  });
  if (names != nullptr) CutJoined(*names);
  return bits;
}

DayMatch MatchDay(std::span<const DayEvent> events, PackedDate ymd) {
  const RuleDay day = RuleDayOf(Date(ymd));
  DayMatch match;
  MatchDaysOfMonth(events, {&day, 1}, {&match, 1});
  return match;
}

void ForEachRuleOfDays(std::span<const DayEvent> events, std::span<const RuleDay> days,
                       const std::function<void(std::size_t, const DayEvent&)>& found) {
  ForEachMatch(events, days, found);
}

void MatchDaysOfMonth(std::span<const DayEvent> events, std::span<const RuleDay> days,
                      std::span<DayMatch> matches) {
  for (DayMatch& match : matches)
    if (match.bits != 0) match = DayMatch{};
  ForEachMatch(events, days, [&](std::size_t i, const DayEvent& event) {
    matches[i].bits |= MarkOf(event);
    Join(event.isPublic ? matches[i].publicNames : matches[i].eventNames, event);
  });
  for (DayMatch& match : matches) {
    if (match.bits == 0) continue;
    CutJoined(match.publicNames);
    CutJoined(match.eventNames);
  }
}

}  // namespace orbisol

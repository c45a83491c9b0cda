// Which rules fall on a day, and their names.
//
//   std::u16string names;
//   if (MatchDayEvents(Content().dayEvents, 20240501, &names, kHolidayMark) & kHolidayMark) …
//   // names is "Fête du Travail"
//
// On purpose, a holiday shifted past the end of its month falls on no day. With a bank holiday of 31 October,
// which is a Saturday in 2026:
//
//   MatchDayEvents(rules, 20261031, nullptr, 0);  // 0: it moves to the Monday after
//   MatchDayEvents(rules, 20261102, nullptr, 0);  // 0: that Monday lies in November
//   MatchDayEvents(rules, 20281031, nullptr, 0);  // kHolidayMark: a Tuesday
#pragma once

#include <functional>
#include <span>
#include <string>

#include "content/day_event.h"
#include "content/day_marks.h"
#include "core/date.h"

namespace orbisol {

constexpr std::size_t kMaxJoinedUnits = 260;  // of joined names, in UTF-16 units

// Returns the marks of all rules that fall on a day, 0 for none. When `names` is given it is set to the names
// of those rules whose bit is in `nameMask`, in list order, joined by " + ". Easter rules match no day before
// 326. On purpose: no holiday moves away from another.
unsigned MatchDayEvents(std::span<const DayEvent> events, PackedDate ymd, std::u16string* names,
                        unsigned nameMask);

// The marks of a day with both kinds of names, found in one pass.
struct DayMatch {
  unsigned bits = 0;
  std::u16string publicNames;
  std::u16string eventNames;
};
DayMatch MatchDay(std::span<const DayEvent> events, PackedDate ymd);

// A day as the rules look at it.
struct RuleDay {
  PackedDate ymd = 0;
  int year = 0;
  int month = 0;
  int day = 0;
  int weekday = 1;  // 1 Monday .. 7, whatever iso8601 is
  int dayNumber = 0;
};
RuleDay RuleDayOf(const Date& date);

// Sets the matches of days of one month, as many as there are days, going through the rules once for all.
void MatchDaysOfMonth(std::span<const DayEvent> events, std::span<const RuleDay> days,
                      std::span<DayMatch> matches);

// Calls `found` with the index of a day and a rule, for every rule that falls on one of the days, which lie
// in one month. Rules come in list order, each with its days in their order.
void ForEachRuleOfDays(std::span<const DayEvent> events, std::span<const RuleDay> days,
                       const std::function<void(std::size_t, const DayEvent&)>& found);

}  // namespace orbisol

// Which rules fall on a day, and their names.
//
//   std::u16string names;
//   if (MatchDayEvents(Content().dayEvents, 20240501, &names, kHolidayMark) & kHolidayMark) …
//   // names is "Fête du Travail"
#pragma once

#include <span>
#include <string>

#include "content/day_event.h"
#include "content/day_marks.h"
#include "core/date.h"

namespace orbisol {

constexpr std::size_t kMaxJoinedUnits = 260;  // of joined names, in UTF-16 units

// The bits of all rules that fall on a day, 0 for none. When `names` is given it is set to the names of those
// rules whose bit is in `nameMask`, in list order, joined by " + ". Easter rules match no day before 326.
// On purpose: a holiday shifted past the end of its month falls on no day, and none moves away from another.
unsigned MatchDayEvents(std::span<const DayEvent> events, PackedDate ymd, std::u16string* names,
                        unsigned nameMask);

// The same in one pass for both kinds of names.
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

// MatchDay for days of one month: the list is gone through once for all of them. There is a match for each
// day.
void MatchDaysOfMonth(std::span<const DayEvent> events, std::span<const RuleDay> days,
                      std::span<DayMatch> matches);

}  // namespace orbisol

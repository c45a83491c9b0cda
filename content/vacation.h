// Vacation periods: ranges of days with a title.
#pragma once

#include <span>

#include "content/day_event.h"

namespace orbisol {

struct HolidayPeriod {
  PackedDate ymdFrom = 0;  // both ends inclusive, compared as integers
  PackedDate ymdTo = 0;
  NameText title;  // may be empty

  bool Holds(PackedDate ymd) const { return ymdFrom <= ymd && ymd <= ymdTo; }
  bool operator==(const HolidayPeriod&) const = default;
};

// Returns whether a period may be in a calendar: both dates within the range shown and not past the end of
// their month under the rules in force. On purpose: a period of one day is refused, and a day or month is
// refused only for being too great, a month also for being less than 1.
bool IsAcceptablePeriod(const HolidayPeriod& period);

// Returns the first period in list order that holds a day; null when there is none.
const HolidayPeriod* PeriodOfDay(std::span<const HolidayPeriod> periods, PackedDate ymd);

}  // namespace orbisol

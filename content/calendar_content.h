// The content of a calendar: day rules and vacation periods, in the order of its file and of insertion.
#pragma once

#include <vector>

#include "content/day_event.h"
#include "content/vacation.h"

namespace orbisol {

struct CalendarContent {
  std::vector<DayEvent> dayEvents;
  std::vector<HolidayPeriod> vacations;

  bool operator==(const CalendarContent&) const = default;
};

// Returns the content of the calendar in use.
CalendarContent& Content();

}  // namespace orbisol

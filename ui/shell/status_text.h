// The line of the status bar.
//
//   StatusText({.date = Selected(), .day = &cell, .namesNextHoliday = true}, Content().dayEvents);
//
// The line says the first of these that applies: the range that is being drawn, that the date does not exist,
// all that falls on the day, the next public holiday.
#pragma once

#include <span>
#include <string>

#include "content/day_event.h"
#include "content/month_model.h"
#include "core/date.h"

namespace orbisol {

struct StatusFacts {
  Date date;                     // selected date
  const DayCell* day = nullptr;  // cell of the date; null for a date that has none, as 29 February 2025
  std::u16string range;     // ends and length of the range that is being drawn; empty where there is none
  bool withoutDate = true;  // leaves the date itself out, as in tips for events only
  bool namesNextHoliday = false;  // true if no list of holidays is in sight
};

// Returns plain text without a line feed, with " | " between parts; empty if there is nothing to say.
std::u16string StatusText(const StatusFacts& facts, std::span<const DayEvent> rules);

}  // namespace orbisol

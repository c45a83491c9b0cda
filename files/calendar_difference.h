// The differences between two states of a calendar, as a list and in words.
//
//   const CalendarDifference difference = DifferenceOf(now, version);
//   difference.comingRules;                 // those that `version` alone holds
//   for (const std::u16string& line : DifferenceLines(difference)) …
//   // "revient : « Anniversaire », le 3 mars", "disparaît : …", "l'apparence change …"
#pragma once

#include <string>
#include <vector>

#include "files/calendar_file.h"

namespace orbisol {

struct CalendarDifference {
  std::vector<DayEvent> comingRules, goingRules;  // in the order of their calendar
  std::vector<HolidayPeriod> comingPeriods, goingPeriods;
  bool isReordered = false;      // the same rules and periods stand in another order
  bool isLookChanged = false;    // font, picture or colors
  bool areRulesChanged = false;  // reform, civil years, leap years or weeks
  bool isInfoChanged = false;

  bool operator==(const CalendarDifference&) const = default;
};

// A record that one side holds twice and the other once counts as one of difference.
CalendarDifference DifferenceOf(const CalendarFile& from, const CalendarFile& to);

// Returns one line for each rule, for each period and for whatever else changes; a single line that says so
// where nothing does.
std::vector<std::u16string> DifferenceLines(const CalendarDifference& difference);

}  // namespace orbisol

// The first block of a calendar file: how the calendar looks and which calendar rules it follows.
#pragma once

#include <string>
#include <string_view>

#include "content/calendar_look.h"
#include "core/calendar_config.h"

namespace orbisol {

// Sets font, background picture and colors of `look`, and all rules, from the content of the block,
// whatever the order of its elements. Missing or empty: picture shown, weight 400, no texts, Roman reform,
// early leap years as they were, no civil-year rows, iso8601 from the user's locale; colors are left as they
// are where the table does not name them. A first Gregorian day that is 0 or no date is read as the Roman
// reform.
void ReadCalendarParams(std::u16string_view block, CalendarLook& look, CalendarRules& rules);

// Fills the rows of a table of civil years, "+15640101;15000325;": most recent first, "+" in front where the
// civil year runs one ahead. The rows are cleared first; four are kept, none from the first date of 0 on, and
// none from the first on that FirstBadRow (core/calendar_config.h) refuses: the first Gregorian day must be
// set before.
void ReadCivilYears(std::u16string_view table, CalendarConfig& config);

// Returns the nine lines of the block, each behind a tab.
std::u16string CalendarParamsText(const CalendarLook& look, const CalendarRules& rules);

}  // namespace orbisol

// The import of a public calendar into a user's calendar.
//
//   CalendarContent mine = Content();
//   ImportHolidays(mine, france.content, true);  // the public rules of France instead of those in `mine`
#pragma once

#include "content/calendar_content.h"

namespace orbisol {

// Adds to the end of `content` every rule and period of `holidays` that it does not hold already; equal
// records inside `holidays` are all added. With `replace` it first removes the public rules of `content`,
// unless `holidays` has no public rule to put in their place. Personal events and periods always stay. Takes
// time in proportion to the records on both sides.
void ImportHolidays(CalendarContent& content, const CalendarContent& holidays, bool replace);

}  // namespace orbisol

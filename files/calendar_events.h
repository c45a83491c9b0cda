// The second block of a calendar file: its day rules and its vacation periods.
#pragma once

#include <string>
#include <string_view>

#include "content/calendar_content.h"

namespace orbisol {

// Returns the rules and periods of a whole file's text, in its order. The rules in force decide
// which periods are accepted, so the calendar's own must be put in force first. A record that is not accepted
// is dropped; an empty `event` or `period` ends its list. Rules of older releases, valid from year to year
// (`yFrom`, `yTo`), are read too.
CalendarContent ReadCalendarEvents(std::u16string_view text);

// Returns whether a rule's text has the form of older releases.
bool HasYearBounds(std::u16string_view event);

// Appends the lines between <CalendarEvents> and its end. An empty list leaves no trace.
void AppendCalendarEvents(std::u16string& out, const CalendarContent& content);

}  // namespace orbisol

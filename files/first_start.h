// The content of a calendar that has no file yet: the holidays of the user's country, from the calendars that
// ship with the program. They reach the user's own file with the first change that is saved.
#pragma once

#include <string>
#include <vector>

#include "content/calendar_content.h"
#include "files/calendar_store.h"
#include "files/public_calendars.h"

namespace orbisol {

struct UserLocale {
  std::u16string language;  // "fr"
  std::u16string country;   // "FR", empty when only a language is known
};

// Returns the names of the public calendars that suit, the best first: that of the language in its country,
// that of the country, that of the language ("fr_public"). Not every one need exist.
std::vector<std::u16string> FirstStartCalendars(const UserLocale& locale);

// Returns the content of the first of them that can be read; empty when none can.
CalendarContent FirstStartContent(const CPublicCalendars& publicCalendars, const UserLocale& locale);

// Returns whether one of the user's calendars is a copy of a public calendar that an older release made: by
// its name (IsFirstStartName), and because it holds public rules alone. A calendar with a personal event, a
// vacation period or anything else is the user's own, whatever its name.
bool IsFirstStartCopy(const CCalendarStore& calendars, std::u16string_view name);

// Returns whether the user has no calendar yet but such copies.
bool IsFirstStart(const CCalendarStore& calendars);

}  // namespace orbisol

// What a calendar holds before it has a file: the holidays of the user's country, from the calendars that
// ship with the program. They reach the user's own file with the first change that is saved.
#pragma once

#include <string>
#include <vector>

#include "content/calendar_content.h"
#include "files/calendar_store.h"

namespace orbisol {

struct UserLocale {
  std::u16string language;  // "fr"
  std::u16string country;   // "FR", empty when only a language is known
};

// The names of the public calendars that suit, the best first: that of the country, that of the language
// ("fr_public"), those of France. Not every one need exist.
std::vector<std::u16string> FirstStartCalendars(const UserLocale& locale);

// The content of the first of them that can be read; empty when none can.
CalendarContent FirstStartContent(const CCalendarStore& calendars, const UserLocale& locale);

// Whether the user has no calendar yet, the copies of public calendars aside that older releases made.
bool IsFirstStart(const CCalendarStore& calendars);

}  // namespace orbisol

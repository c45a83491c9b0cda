// Builders of calendars for tests.
#pragma once

#include <string>
#include <string_view>

#include "files/calendar_file.h"

namespace orbisol {

// Returns a calendar with one public rule, on 1 January of every year.
inline CalendarFile CalendarWith(std::u16string_view ruleName) {
  CalendarFile calendar;
  DayEvent rule;
  rule.isPublic = true;
  rule.month = rule.day = 1;
  rule.ymdFrom = kAlwaysFrom;
  rule.ymdTo = kAlwaysTo;
  rule.name.Set(ruleName);
  calendar.content.dayEvents.push_back(rule);
  return calendar;
}

inline std::string BytesWith(std::u16string_view ruleName) {
  return WriteCalendar(CalendarWith(ruleName), CalendarForm::kUser);
}

}  // namespace orbisol

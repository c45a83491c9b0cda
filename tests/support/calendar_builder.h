// Builders of calendars for tests.
#pragma once

#include <string>
#include <string_view>

#include "files/calendar_file.h"
#include "tests/content/rule_builder.h"

namespace orbisol {

// Returns a calendar with one public rule, on 1 January of every year.
inline CalendarFile CalendarWith(std::u16string_view ruleName) {
  CalendarFile calendar;
  calendar.content.dayEvents = {Rule(kFixedDate, {.month = 1, .day = 1, .name = ruleName})};
  return calendar;
}

inline std::string BytesWith(std::u16string_view ruleName) {
  return WriteCalendar(CalendarWith(ruleName), CalendarForm::kUser);
}

}  // namespace orbisol

// Reads a calendar from the bytes of its file and writes it to them.
//
//   CalendarFile calendar = ReadCalendar(bytes);  // touches nothing that is in force
//   calendar.content.dayEvents.push_back(rule);
//   bytes = WriteCalendar(calendar, CalendarForm::kUser);
//
// A file is UTF-8 with CR LF line ends: a line that calls itself XML, then <CalendarParams> and
// <CalendarEvents>. Any bytes are read: what is missing takes its default, a malformed record is dropped,
// malformed UTF-8 becomes U+FFFD, a byte-order mark is ignored. Written again, what was read gives the same
// bytes from the first time on.
#pragma once

#include <string>
#include <string_view>

#include "content/calendar_content.h"
#include "content/calendar_look.h"
#include "core/calendar_config.h"

namespace orbisol {

struct CalendarFile {
  CalendarLook look;
  CalendarRules rules;
  CalendarContent content;
  std::u16string info;  // description of a public calendar, U+2029 between its lines; empty in most files

  bool operator==(const CalendarFile&) const = default;
};

enum class CalendarForm {
  kUser,    // with the nine parameters
  kPublic,  // holidays alone: the block of parameters stays empty
};

// Returns what the bytes hold; what they do not set is as in a fresh calendar.
CalendarFile ReadCalendar(std::string_view bytes);

std::string WriteCalendar(const CalendarFile& calendar, CalendarForm form);

// Returns whether a file holds anything that would be gone after it was read and written: a record that is
// not accepted or stands behind an empty one, an element no one knows, text outside the elements, a value cut
// or replaced. Order, line ends and the dates of older releases are no loss.
bool WouldLoseData(std::string_view bytes, CalendarForm form);

}  // namespace orbisol

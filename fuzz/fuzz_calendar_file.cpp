// Reads any bytes as a calendar file. A calendar that was read and written once must stay the same from then
// on, lose nothing, and hold only records that are accepted.

#include <cstdint>
#include <cstdlib>

#include "files/calendar_file.h"

namespace {

void Check(bool holds) {
  if (!holds) std::abort();
}

// Returns the calendar that is read back from the bytes written.
orbisol::CalendarFile CheckForm(const orbisol::CalendarFile& read, orbisol::CalendarForm form) {
  const std::string once = WriteCalendar(read, form);
  orbisol::CalendarFile again = orbisol::ReadCalendar(once);
  Check(WriteCalendar(again, form) == once);
  Check(!WouldLoseData(once, form));
  return again;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const orbisol::CalendarRules before = orbisol::Rules();
  const orbisol::CalendarFile read = orbisol::ReadCalendar(bytes);
  const orbisol::CalendarFile again = CheckForm(read, orbisol::CalendarForm::kUser);
  Check(again.content.dayEvents.size() == read.content.dayEvents.size());
  Check(again.content.vacations.size() == read.content.vacations.size());
  Check(again.rules == read.rules);
  if (size % 4 == 0) {
    // A public calendar is read under the rules in force, which may refuse records that its own rules accept.
    const std::string holidays = WriteCalendar(read, orbisol::CalendarForm::kPublic);
    CheckForm(orbisol::ReadCalendar(holidays), orbisol::CalendarForm::kPublic);
  }
  WouldLoseData(bytes, orbisol::CalendarForm::kUser);
  Check(orbisol::Rules() == before);
  return 0;
}

#include "files/public_calendars.h"

#include <algorithm>

#include "files/calendar_name.h"

namespace orbisol {

std::vector<PublicCalendar> CPublicCalendars::List() const {
  std::vector<PublicCalendar> calendars;
  const auto add = [&](const std::u16string& folder, bool withFirstStarts) {
    for (const std::u16string& name : CalendarNamesIn(m_files, folder)) {
      const auto hasName = [&](const PublicCalendar& other) { return other.name == name; };
      if (!withFirstStarts && IsFirstStartName(name)) continue;
      if (std::none_of(calendars.begin(), calendars.end(), hasName))
        calendars.push_back({name, CalendarPath(folder, name)});
    }
  };
  add(m_user, true);
  add(m_shipped, false);
  std::sort(calendars.begin(), calendars.end(), [](const PublicCalendar& a, const PublicCalendar& b) {
    return AlphabeticallyBefore(a.name, b.name);
  });
  return calendars;
}

std::u16string CPublicCalendars::PathOf(std::u16string_view name) const {
  if (!IsCalendarName(name)) return {};
  for (const std::u16string& folder : {m_user, m_shipped}) {
    const std::u16string path = CalendarPath(folder, name);
    if (m_files.Exists(path)) return path;
  }
  return {};
}

std::optional<CalendarFile> CPublicCalendars::Load(std::u16string_view path) const {
  const std::optional<FileBytes> file = m_files.Read(path);
  if (!file) return std::nullopt;
  return ReadCalendar(file->bytes);
}

}  // namespace orbisol

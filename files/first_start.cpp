#include "files/first_start.h"

#include <algorithm>
#include <optional>

#include "resources/country_calendars.h"

namespace orbisol {

std::vector<std::u16string> FirstStartCalendars(const UserLocale& locale) {
  std::vector<std::u16string> names;
  for (const std::u16string& place : {locale.language + u"_" + locale.country, locale.country})
    if (const auto name = CountryCalendar(place); !name.empty()) names.emplace_back(name);
  if (locale.language.size() == 2) names.push_back(FirstStartName(locale.language));
  return names;
}

CalendarContent FirstStartContent(const CPublicCalendars& publicCalendars, const UserLocale& locale) {
  for (const std::u16string& name : FirstStartCalendars(locale)) {
    const std::u16string path = publicCalendars.PathOf(name);
    if (path.empty()) continue;
    if (std::optional<CalendarFile> calendar = publicCalendars.Load(path))
      return std::move(calendar->content);
  }
  return {};
}

bool IsFirstStartCopy(const CCalendarStore& calendars, std::u16string_view name) {
  if (!IsFirstStartName(name)) return false;
  const std::optional<std::string> bytes = calendars.BytesOf(name);
  if (!bytes || WouldLoseData(*bytes, CalendarForm::kUser)) return false;
  const CalendarContent content = ReadCalendar(*bytes).content;
  return content.vacations.empty() && std::all_of(content.dayEvents.begin(), content.dayEvents.end(),
                                                  [](const DayEvent& event) { return event.isPublic; });
}

bool IsFirstStart(const CCalendarStore& calendars) {
  const std::vector<std::u16string> names = calendars.Names();
  return std::all_of(names.begin(), names.end(),
                     [&](const std::u16string& name) { return IsFirstStartCopy(calendars, name); });
}

}  // namespace orbisol

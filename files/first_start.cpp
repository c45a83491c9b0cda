#include "files/first_start.h"

#include <algorithm>
#include <optional>

namespace orbisol {
namespace {

constexpr std::u16string_view kFrance = u"France";

// By country code, where the country has a shipped calendar of its own.
constexpr struct {
  std::u16string_view country;
  std::u16string_view calendar;
} kCountryCalendars[] = {
    {u"FR", kFrance},
};

}  // namespace

std::vector<std::u16string> FirstStartCalendars(const UserLocale& locale) {
  std::vector<std::u16string> names;
  for (const auto& row : kCountryCalendars)
    if (row.country == locale.country) names.emplace_back(row.calendar);
  if (locale.language.size() == 2) names.push_back(FirstStartName(locale.language));
  names.emplace_back(kFrance);
  names.push_back(FirstStartName(u"fr"));
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

bool IsFirstStart(const CCalendarStore& calendars) {
  const std::vector<std::u16string> names = calendars.Names();
  return std::all_of(names.begin(), names.end(), IsFirstStartName);
}

}  // namespace orbisol

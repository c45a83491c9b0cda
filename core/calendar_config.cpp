#include "core/calendar_config.h"

#include "core/date.h"
#include "core/platform.h"

namespace orbisol {
namespace detail {
constinit CalendarRules liveRules;
}

void CalendarConfig::ApplyGregorianStart(PackedDate start) {
  // This start lies before all reforms we know, so that their first days are read as Gregorian. On purpose:
  // both dates of a reform before 10 October 1500 are read as Julian, and their distance is 0.
  constexpr PackedDate kStandInReform = 15001010;

  const YearMonthDay first = Unpack(start);
  startGregorian = start;
  lastJulianKey = KeyBefore(first.year, first.month, first.day);
  firstGregorianDayNumber = DayNumberUnder(first.year, first.month, first.day, start, proleptic);

  julianEquivalentOfStart = JulianDateOfDayNumber(firstGregorianDayNumber);
  const YearMonthDay julian = Unpack(julianEquivalentOfStart);
  droppedDays = Saturate(std::int64_t{firstGregorianDayNumber} -
                         DayNumberUnder(julian.year, julian.month, julian.day, kStandInReform, proleptic));

  reformYearLastDayNumber = DayNumberUnder(first.year, 12, 31, start, proleptic);
  reformYearLastWeekday = WeekdayOfDayNumber(reformYearLastDayNumber);
}

CalendarRules DefaultCalendarRules() {
  CalendarRules rules;  // initialised to the Roman reform by its members
  const Locale& locale = *CurrentPlatform().locale;
  rules.iso8601 = Iso8601ByLocale(locale.FirstDayOfWeek(), locale.FirstWeekOfYear());
  return rules;
}

void ResetCalendarConfig() { Rules() = DefaultCalendarRules(); }

PackedDate GregorianStartOrDefault(PackedDate start) {
  const auto [year, month, day] = Unpack(start);
  const bool exists = (start < -10000 || start > 100) && month >= 1 && month <= 12 && day >= 1 &&
                      day <= GregorianDaysInMonth(year, month);
  return exists ? start : kRomanReform;
}

int FirstBadRow(std::span<const CivilYearStart> rows, PackedDate startGregorian) {
  bool filledBelow = false;
  PackedDate below = 0;
  for (int i = static_cast<int>(rows.size()) - 1; i >= 0; --i) {
    const PackedDate from = rows[static_cast<std::size_t>(i)].from;
    if (from == 0 && !filledBelow) continue;
    if (from == 0 || from > startGregorian || (filledBelow && from <= below)) return i;
    filledBelow = true;
    below = from;
  }
  return -1;
}

}  // namespace orbisol

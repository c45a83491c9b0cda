// The days of a month that have something to say, as a list, and the next public holiday.
//
//   for (const Highlight& highlight : HighlightsOf(month)) …  // 1 May "Fête du Travail", 8 May …
//   NextPublicHoliday(Content().dayEvents, Date(20240502));   // 8 May 2024, "Victoire 1945"
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "content/month_model.h"
#include "core/date.h"

namespace orbisol {

enum class HighlightKind { kHoliday, kEvent, kVacation, kMoon };

struct Highlight {
  PackedDate date = 0;      // day of a rule; first day of a vacation period in the month
  PackedDate lastDate = 0;  // last day of a vacation period in the month; else `date`
  HighlightKind kind = HighlightKind::kHoliday;
  std::u16string text;  // names joined by " + ", the title of the period, the name of the phase; never empty

  bool operator==(const Highlight&) const = default;
};

// Returns the texts of a month that was built: by date, on one day the holiday, the event, then the vacation;
// the phases of the moon last, by date again. Days of the neighboring months have none. A period is named
// once for days in a row, without a title not at all. Events that a public holiday hides are not there.
std::vector<Highlight> HighlightsOf(const MonthModel& month);

constexpr int kDaysToNextHoliday = 400;

// Returns the first day after `after` that is a public holiday, with its names. Empty where the next
// 400 days, or those up to the last day shown, have none.
std::optional<Highlight> NextPublicHoliday(std::span<const DayEvent> rules, const Date& after);

}  // namespace orbisol

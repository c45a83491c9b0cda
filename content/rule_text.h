// Rules and vacation periods in words: for lists, for the difference of two versions, for screen readers.
//
//   RuleText(thanksgiving);  // "le 4e jeudi de novembre, depuis 1941"
//   RuleText(ascension);     // "39 jours après Pâques"
//   RuleText(christmas);     // "le 25 décembre, ou le lundi suivant s'il tombe un week-end"
//   PeriodText(summer);      // "du 6 juillet au 1er septembre 2024"
//   FallsOnText({&rule, 1}, 2024, 3);
//                            // "Tombe le 28 novembre en 2024, le 27 novembre en 2025, le 26 novembre en
//                            2026."
//
// Months and weekdays have the names of the user's locale. Years are those that begin on 1 January,
// astronomical as in the date fields: -44 is 45 BC. Neither the name of a rule nor the title of a period is
// part of the text.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "content/day_event.h"
#include "content/record_range.h"
#include "content/vacation.h"

namespace orbisol {

// Returns the day that a rule names, without its validity: "le 1er lundi d'octobre". A rule that can fall on
// no day, as one of month 0 that a file may hold, says so: "aucun jour".
std::u16string RuleDayText(const DayEvent& rule);

// Returns when a rule is valid: "depuis 1941", "jusqu'au 3 mars 1968", "de 1941 à 1968", "en 1945"; empty for
// always. Bounds that are no range (record_range.h) are told as they stand.
std::u16string ValidityText(const DayRange& range);
std::u16string ValidityText(const RecordBounds& bounds);

// Returns the day and the validity of one record.
std::u16string RuleText(const DayEvent& rule);
// Returns the same of several records that differ in their bounds only, the cut of `range`.
std::u16string RuleText(const DayEvent& rule, const DayRange& range);

// Returns the first and the last day of a period.
std::u16string PeriodText(const DayRange& range);
std::u16string PeriodText(const HolidayPeriod& period);

// Returns the sentence that says on which days some records that differ in their bounds only fall in a number
// of years, at least one, from `firstYear` on; years that are not shown are left out.
std::u16string FallsOnText(std::span<const DayEvent> records, int firstYear, int years);

// Returns the day and the month of a date: "1er mars".
std::u16string PlainDayText(PackedDate ymd);

// Returns a date with its day first: "14 juillet 1789", "1er mars -44".
std::u16string PlainDateText(PackedDate ymd);

}  // namespace orbisol

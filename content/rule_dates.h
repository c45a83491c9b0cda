// The days on which a rule falls, found from its kind: a handful of candidates a year, each of which is put
// to the matcher (day_rules.h). It answers as if every day of every month's page had been asked.
//
//   RuleDatesInYear(easterMonday, 2024);                // {20240401}
//
//   std::vector<PackedDate> days;                       // of many rules, without a vector for each
//   for (const DayEvent& rule : rules) AppendRuleDates(rule, 2024, days);
//
// Days are in the order of days, also before the era, and each stands once. Years outside -3999..3999 have
// none. A rule gives at most three days a year, most give one; one that was shifted out of its month, is not
// valid in the year, counts from an Easter before 326 or names no day of the calendar gives none. Rules that
// are not acceptable may be asked too. The answer follows the rules in force.
//
// A day that a rule marks need not show its name: a public holiday hides the personal events of its day.
//
// One rule takes less than 1 µs a year (make bench).
#pragma once

#include <vector>

#include "content/day_event.h"

namespace orbisol {

// Adds the days of a rule in a year to the end of `days`.
void AppendRuleDates(const DayEvent& rule, int year, std::vector<PackedDate>& days);

std::vector<PackedDate> RuleDatesInYear(const DayEvent& rule, int year);

}  // namespace orbisol

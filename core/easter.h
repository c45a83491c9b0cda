// Easter Sunday, Roman and Orthodox. There is none before 326, the first Easter after the council of Nicaea.
//
//   Date easter(2024, 1, 1);
//   RomanEaster(easter);      // 31 March 2024
//   OrthodoxEaster(2024, 0);  // 20240505
#pragma once

#include "core/date.h"

namespace orbisol {

constexpr int kFirstEasterYear = 326;

// Sets month and day to Easter Sunday of date.year; before 326 the date is left as it is, and callers test
// the year themselves. Gregorian after the year of the reform, Julian up to and in it. On purpose: in that
// year the date is the Julian one even when the reform came before Easter. Source: the algorithm of J.-M.
// Oudin (1940), in the Explanatory Supplement to the Astronomical Almanac.
void RomanEaster(Date& date);

// Returns Orthodox Easter Sunday shifted by `offset` days, in the calendar in force; 0 before 326.
// On purpose: up to and in the year of the reform the offset is not applied.
PackedDate OrthodoxEaster(int year, int offset);

}  // namespace orbisol

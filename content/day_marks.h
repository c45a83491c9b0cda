// The marks of a day: bits that say what falls on it.
#pragma once

namespace orbisol {

constexpr unsigned kHolidayMark = 1;   // a public holiday
constexpr unsigned kEventMark = 2;     // any other rule
constexpr unsigned kVacationMark = 4;  // a vacation period

}  // namespace orbisol

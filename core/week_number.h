// Week numbers, 1..53. Days before 1 January -4712 are outside their range and get any number.
//
//   WeekNumber(Date(20241231));  // 1 in ISO weeks: the week of 1 January 2025
#pragma once

#include "core/date.h"

namespace orbisol {

// Returns the ISO or the civil week, as Rules().iso8601 says.
int WeekNumber(const Date& date);

// Counts weeks from Monday to Sunday; week 1 holds the first Thursday. Julian years follow the civil-year
// table; without `proleptic` the years up to 0 follow cycles of their own, which differ from the plain rule
// up to -49. On purpose: the last weeks of the year of the reform are numbered as Julian weeks, and 1 and 2
// January 1583 are still in week 51.
int IsoWeekNumber(const Date& date);

// Counts weeks from Sunday to Saturday; week 1 holds the first day of the civil year. The last days of a year
// belong to week 1 of the next when the Saturday of their week does.
int CivilWeekNumber(const Date& date);

}  // namespace orbisol

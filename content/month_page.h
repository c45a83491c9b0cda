// The days that the page of a month shows.
//
//   LastDayOfPage(Date(2024, 2, 1));  // 29
//   IsOnItsPage(Date(15821010));      // false: the reform removed it
//   IsOnItsPage(Date(20250229));      // false
//
// On purpose, these are not quite the days that day numbers lead to: the February of the reform's own year
// has the length of a Julian one, and shows a 29 February 1700 under a reform of that year.
#pragma once

#include "core/date.h"

namespace orbisol {

// Returns the last day of a date's month as the page of that month shows it. The length of a February can
// depend on the day of the date that is asked (Date::DaysInMonth); a page asks the first day it shows.
int LastDayOfPage(const Date& date);

// Returns whether a date is on the page of its month. Any numbers are accepted.
bool IsOnItsPage(const Date& date);

}  // namespace orbisol

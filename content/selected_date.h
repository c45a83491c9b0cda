// The selected date, shared by all views, with the steps that keys, wheel and arrows make.
//
// The selected date always lies within -3999-01-01 … 3999-12-31. A date that does not exist (29 February 2025
// after a step of a year) is kept.
//
//   Date& selected = Selected();
//   StepDays(selected, -1);
//   StepMonthsOrYears(selected, 2, 0);
#pragma once

#include "core/date.h"
#include "core/date_range.h"

namespace orbisol {

// Days that keys and buttons lead to, beside the reform in force and the Republican epoch
// (core/republican.h).
constexpr PackedDate kFirstDayOfEra = 10101;
constexpr PackedDate kFirstJulianDay = -440101;  // astronomical: 1 January 45 BC

// The ways in which a user moves the selected date.
enum class DateMove {
  kStep,          // by days, months or years: keys, wheel, a drag, the arrows of the header
  kTypingBegins,  // to the first of the dates through which typing passes, as a year is typed digit by digit
  kTyping,        // to the next of them
  kLeap,          // to a day that was named: a click on it, a button, a menu
};

// Returns the selected date: today until something else is selected; the first call asks the clock.
Date& Selected();

// Move a date; each ends within the bounds. Any number is accepted.
void StepDays(Date& date, int days);      // back when negative; a step back of one day always leaves the date
void StepMonths(Date& date, int months);  // the day is pulled back into a shorter month
void StepYears(Date& date, int years);    // month and day unchanged, also where that day does not exist
void SelectDate(Date& date, int year, int month, int day);  // keeps dateOrder

// Moves by `steps` months, or by `steps` times `years` where `years` is not 0; back when negative. Months are
// made one by one: two from 31 January 2024 end on 29 March.
void StepMonthsOrYears(Date& date, int steps, int years);

}  // namespace orbisol

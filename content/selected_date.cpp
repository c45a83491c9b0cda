#include "content/selected_date.h"

#include <cstdlib>

namespace orbisol {
Date& Selected() {
  static Date selected = [] {
    Date today = Date::Today();
    ClampToBounds(today);
    return today;
  }();
  return selected;
}

void StepDays(Date& date, int days) {
  // Some days have the date of another day: 29 February -8 takes the number of 1 March, and after a reform
  // before the year 200 dates come twice. A step back can therefore end on the same or a later date; it goes
  // on until the date is earlier. The longest repeat, of a reform at the very beginning, is 32 days.
  constexpr int kLongestRepeat = 40;
  const Date start = date;
  std::int64_t dayNumber = std::int64_t{start.DayNumber()} + days;
  date.SetDayNumber(Saturate(dayNumber));
  for (int i = 0; days < 0 && i < kLongestRepeat && DayOrder(date) >= DayOrder(start); ++i)
    date.SetDayNumber(Saturate(--dayNumber));
  ClampToBounds(date);
}

void StepMonths(Date& date, int months) {
  date.AddMonths(months);
  ClampToBounds(date);
}

// Moves by years. On purpose: 29 February is kept in a common year.
void StepYears(Date& date, int years) {
  SelectDate(date, Saturate(std::int64_t{date.year} + years), date.month, date.day);
}

void SelectDate(Date& date, int year, int month, int day) {
  date.year = year;
  date.month = month;
  date.day = day;
  ClampToBounds(date);
}

void StepMonthsOrYears(Date& date, int steps, int years) {
  if (years != 0) {
    StepYears(date, steps * years);
    return;
  }
  for (int i = 0; i < std::abs(steps); ++i) StepMonths(date, steps < 0 ? -1 : 1);
}

}  // namespace orbisol

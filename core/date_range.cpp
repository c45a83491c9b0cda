#include "core/date_range.h"

#include "core/date.h"

namespace orbisol {

// The year is tested beside the order: a month that is none could carry the date into a year that is shown.
bool IsWithinBounds(const Date& date) {
  return IsYearShown(date.year) && DayOrder(kFirstDateShown) <= DayOrder(date) &&
         DayOrder(date) <= DayOrder(kLastDateShown);
}

void ClampToBounds(Date& date) {
  if (!IsWithinBounds(date)) date.SetPacked(date.year < 0 ? kFirstDateShown : kLastDateShown);
}

}  // namespace orbisol

#include "core/date_range.h"

#include "core/date.h"

namespace orbisol {

// The year is tested as well as the order, because a month outside 1..12 can move the order into another
// year.
bool IsWithinBounds(const Date& date) {
  return IsYearShown(date.year) && DayOrder(kFirstDateShown) <= DayOrder(date) &&
         DayOrder(date) <= DayOrder(kLastDateShown);
}

void ClampToBounds(Date& date) {
  if (!IsWithinBounds(date)) date.SetPacked(date.year < 0 ? kFirstDateShown : kLastDateShown);
}

}  // namespace orbisol

#include "core/date_range.h"

#include "core/date.h"

namespace orbisol {

// The year is tested as well as the order, because a month outside 1..12 can move the order into another
// year.
bool IsWithinBounds(const Date& date) {
  return IsYearShown(date.year) && DayOrder(kFirstDateShown) <= DayOrder(date) &&
         DayOrder(date) <= DayOrder(kLastDateShown);
}

// Compares a date with that of its own day number. On purpose: the day before that number is compared too,
// because 29 February -8 has the number of 1 March -8.
bool DoesDateExist(const YearMonthDay& date) {
  if (date.month < 1 || date.month > 12 || date.day < 1 || date.day > 31) return false;
  const Date asked(date.year, date.month, date.day);
  const int number = asked.DayNumber();
  return asked.SameDay(DateOfDayNumber(number)) ||
         asked.SameDay(DateOfDayNumber(Saturate(std::int64_t{number} - 1)));
}

void ClampToBounds(Date& date) {
  if (!IsWithinBounds(date)) date.SetPacked(date.year < 0 ? kFirstDateShown : kLastDateShown);
}

}  // namespace orbisol

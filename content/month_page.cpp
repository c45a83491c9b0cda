#include "content/month_page.h"

namespace orbisol {

int LastDayOfPage(const Date& date) {
  Date first = date;
  first.day = 1;
  while (Rules().IsDropped(first.Packed()) && first.day < first.DaysInMonth()) ++first.day;
  return first.DaysInMonth();
}

bool IsOnItsPage(const Date& date) {
  return date.month >= 1 && date.month <= 12 && date.day >= 1 && date.day <= LastDayOfPage(date) &&
         !Rules().IsDropped(date.Packed());
}

}  // namespace orbisol

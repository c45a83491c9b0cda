#include "content/day_event.h"

#include "content/selected_date.h"

namespace orbisol {
namespace {

// The longest that a month can be. On purpose: month 0 takes nearly any day; it falls on none.
int LongestMonth(int month) {
  if (month == 0) return 99;
  if (month == 2) return 29;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

bool IsBetween(int value, int low, int high) { return low <= value && value <= high; }

}  // namespace

bool AcceptDayEvent(const DayEvent& event) {
  if (event.month > 12 || event.name.IsEmpty()) return false;
  if (!IsYearShown(Unpack(event.ymdFrom).year) || !IsYearShown(Unpack(event.ymdTo).year)) return false;
  if (event.ymdFrom > event.ymdTo) return false;

  const int longest = LongestMonth(event.month);
  switch (static_cast<DayEventType>(event.type)) {
    case DayEventType::kFixedDate:
    case DayEventType::kBankHoliday:
    case DayEventType::kExceptSunday:
      return IsBetween(event.day, 1, longest);
    case DayEventType::kRomanEaster:
    case DayEventType::kOrthodoxEaster:
      return true;
    case DayEventType::kNthWeekday:
      return IsBetween(event.weekday, 1, 7) && IsBetween(event.weeknum, 1, 5);
    case DayEventType::kWeekdayBefore:
    case DayEventType::kWeekdayAfter:
      // On purpose: the 1st of a month is refused as the date to count from.
      return IsBetween(event.weekday, 1, 7) && event.weeknum == 1 && IsBetween(event.day, 2, longest);
  }
  return false;
}

}  // namespace orbisol

#include "content/day_event.h"

#include "core/date.h"

namespace orbisol {
namespace {

// Returns the greatest day that a rule may have in a month. On purpose: month 0 takes nearly any day, and
// such a rule falls on no date.
int LongestDay(int month) { return month == 0 ? 99 : LongestMonth(month); }

bool IsBetween(int value, int low, int high) { return low <= value && value <= high; }

}  // namespace

bool IsAcceptableDayEvent(const DayEvent& event) {
  if (event.month > 12 || event.name.IsEmpty()) return false;
  if (!IsYearShown(Unpack(event.ymdFrom).year) || !IsYearShown(Unpack(event.ymdTo).year)) return false;
  if (event.ymdFrom > event.ymdTo) return false;

  const int longest = LongestDay(event.month);
  switch (event.type) {
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

#include "core/easter.h"

namespace orbisol {
namespace {

struct MonthAndDay {
  int month;
  int day;
};

// Returns Easter Sunday, 28 March plus `sunday`: a week after the Sunday on or before the paschal full moon,
// which lies `sunday` days after 21 March.
MonthAndDay FromMarch(int sunday) {  // [-6, 28]
  const int month = 3 + (sunday + 40) / 44;
  return {month, sunday + 28 - 31 * (month / 4)};
}

MonthAndDay JulianEaster(std::int64_t year) {
  // `i` counts the days from 21 March to the paschal full moon; `j` is the weekday of that moon, 0 Sunday.
  const auto i = static_cast<int>((19 * (year % 19) + 15) % 30);         // [0, 29]
  const auto j = static_cast<int>((year + year / 4 + i) % kDaysInWeek);  // [0, 6]
  return FromMarch(i - j);
}

MonthAndDay GregorianEaster(std::int64_t year) {
  const auto golden = static_cast<int>(year % 19);
  const std::int64_t century = year / 100;
  // `h` is 23 less the epact, modulo 30; `i` and `j` are as in the Julian calendar.
  const std::int64_t moonShift = century - century / 4 - (8 * century + 13) / 25;
  const auto h = static_cast<int>((moonShift + 19 * golden + 15) % 30);      // [0, 29]
  const int i = h - (h / 28) * (1 - (29 / (h + 1)) * ((21 - golden) / 11));  // [0, 28]
  const auto j = static_cast<int>((year + year / 4 + i + 2 - century + century / 4) % kDaysInWeek);  // [0, 6]
  return FromMarch(i - j);
}

bool AfterReformYear(int year) { return year > Rules().ReformYear(); }

}  // namespace

void RomanEaster(Date& date) {
  if (date.year < kFirstEasterYear) return;
  const MonthAndDay easter =
      AfterReformYear(date.year) ? GregorianEaster(date.year) : JulianEaster(date.year);
  date.month = easter.month;
  date.day = easter.day;
}

PackedDate OrthodoxEaster(int year, int offset) {
  if (year < kFirstEasterYear) return 0;
  const MonthAndDay easter = JulianEaster(year);
  if (!AfterReformYear(year)) return Pack(year, easter.month, easter.day);

  Date date = DateOfDayNumber(DayNumberUnder(year, easter.month, easter.day, kNeverGregorian, true));
  date.AddDays(offset);
  return date.Packed();
}

}  // namespace orbisol

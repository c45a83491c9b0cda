#include "core/easter.h"

namespace orbisol {
namespace {

struct MonthAndDay {
  int month;
  int day;
};

// From the days between 21 March and the paschal full moon, and those from that Sunday back: 28 March to the
// Sunday.
MonthAndDay FromMarch(int sunday) {  // [-6, 28]
  const int month = 3 + (sunday + 40) / 44;
  return {month, sunday + 28 - 31 * (month / 4)};
}

MonthAndDay JulianEaster(std::int64_t year) {
  const auto i = static_cast<int>((19 * (year % 19) + 15) % 30);
  const auto j = static_cast<int>((year + year / 4 + i) % 7);
  return FromMarch(i - j);
}

MonthAndDay GregorianEaster(std::int64_t year) {
  const auto golden = static_cast<int>(year % 19);
  const std::int64_t c = year / 100;
  const auto h = static_cast<int>((c - c / 4 - (8 * c + 13) / 25 + 19 * golden + 15) % 30);
  const int i = h - (h / 28) * (1 - (29 / (h + 1)) * ((21 - golden) / 11));
  const auto j = static_cast<int>((year + year / 4 + i + 2 - c + c / 4) % 7);
  return FromMarch(i - j);
}

bool AfterReformYear(int year) { return year > Rules().startGregorian / 10000; }

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

  constexpr PackedDate kNeverGregorian = 2147483647;
  Date date = DateOfDayNumber(DayNumberUnder(year, easter.month, easter.day, kNeverGregorian, true));
  date.AddDays(offset);
  return date.Packed();
}

}  // namespace orbisol

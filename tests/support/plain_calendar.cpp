#include "tests/support/plain_calendar.h"

#include <cstdlib>

namespace orbisol::plain {
namespace {

// Returns the date of a day in a count with cycles of `Years` years and `Days` days. The last year of a cycle
// has `Shorter` + 1 days.
template <std::int64_t Days, std::int64_t Years, std::int64_t Shorter>
CivilDate DateInCycles(std::int64_t z, std::int64_t yearOffset) {
  const std::int64_t b = (z + Shorter) * Years / Days - 1;
  const std::int64_t e = z - b * Days / Years;
  const std::int64_t m = (5 * e - 3) / 153;
  return {b + m / 10 + yearOffset - 4800, m - 12 * (m / 10) + 3, e - (153 * m + 2) / 5};
}

bool IsAtOrAfter(const CivilDate& date, std::int64_t packed) {
  const std::int64_t year = packed / 10000;
  return date.year > year ||
         (date.year == year && date.month * 100 + date.day >= std::abs(packed - year * 10000));
}

}  // namespace

std::int64_t DayNumber(const CivilDate& date, const Reform& reform) {
  const std::int64_t a = (14 - date.month) / 12;
  const std::int64_t y = date.year + 4800 - a;
  const std::int64_t t = ((date.month + 12 * a) * 153 - 457) / 5;
  const std::int64_t common = date.day + t + 365 * y;
  if (IsAtOrAfter(date, reform.startGregorian)) return common + y / 4 - y / 100 + y / 400 - 32045;
  if (!reform.proleptic && date.year >= -43) {
    if (date.year <= -1 && !IsAtOrAfter(date, -80229)) return common + (y - 1) / 3 - 32479;
    if (date.year <= 3 || (date.year == 4 && date.month * 100 + date.day <= 228)) return common - 30882;
  }
  return common + y / 4 - 32083;
}

CivilDate DateOfDayNumber(std::int64_t dayNumber, const Reform& reform) {
  const std::int64_t year = reform.startGregorian / 10000;
  const std::int64_t monthDay = std::abs(reform.startGregorian - year * 10000);
  if (dayNumber >= DayNumber({year, monthDay / 100, monthDay % 100}, reform)) {
    const std::int64_t days = dayNumber + 32045;
    const std::int64_t q = (4 * days + 146096) / 146097;
    return DateInCycles<1461, 4, 365>(days - (q - 1) * 146097 / 4, (q - 1) * 100);
  }
  if (!reform.proleptic && dayNumber >= 1704987) {
    if (dayNumber < 1718199) return DateInCycles<1096, 3, 365>(dayNumber + 32114, 1);
    if (dayNumber < 1722579) return DateInCycles<365, 1, 364>(dayNumber + 30882, 0);
  }
  return DateInCycles<1461, 4, 365>(dayNumber + 32083, 0);
}

}  // namespace orbisol::plain

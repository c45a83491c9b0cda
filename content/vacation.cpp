#include "content/vacation.h"

#include "core/date.h"

namespace orbisol {
namespace {

bool MayBound(PackedDate packed) {
  const Date date(packed);
  return IsYearShown(date.year) && date.month >= 1 && date.month <= 12 && date.day <= date.DaysInMonth();
}

}  // namespace

bool IsAcceptablePeriod(const HolidayPeriod& period) {
  return period.ymdTo > period.ymdFrom && MayBound(period.ymdFrom) && MayBound(period.ymdTo);
}

const HolidayPeriod* PeriodOfDay(std::span<const HolidayPeriod> periods, PackedDate ymd) {
  for (const HolidayPeriod& period : periods)
    if (period.Holds(ymd)) return &period;
  return nullptr;
}

}  // namespace orbisol

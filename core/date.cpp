#include "core/date.h"

#include "core/civil_year.h"

namespace orbisol {
namespace {

// Rare dates are counted in 64 bits, because any int may come in. The everyday ones are in everyday_date.h.

constexpr int kJulianCycle = 100 * kDaysIn4Years;  // days of 400 Julian years
constexpr int kGregorianCycle = kDaysIn400Years;

// The early Julian calendar had a leap year every third year from -44 on, none from 1 March -8 to 28 February
// 4, and ordinary ones again from then on. The three stretches meet without a gap.
constexpr int kTriennialShift = 4799;     // years from 1 March -4799, where the count of this cycle begins
constexpr int kTriennialOrigin = -32113;  // day number of 1 March -4799, had the cycle always held
constexpr int kNoLeapOrigin = -30881;     // day number of 1 March -4800, had there never been a leap year

constexpr PackedDate kLastEarlyLeapDay = -80229;

// First and last of the dates whose day number the early leap years decide.
constexpr std::int64_t kEarlyFrom = DayOrder(-43, 1, 1);
constexpr std::int64_t kEarlyTo = DayOrder(4, 2, 28);

// Returns the days from 1 March to the first of `month` in [3, 14], where January and February are the months
// 13 and 14 of the year before: [0, 337]. C. Tøndering, Calendar FAQ, "The Julian Period".
constexpr std::int64_t DaysSinceMarch(std::int64_t month) { return (153 * month - 457) / 5; }
static_assert(DaysSinceMarch(3) == 0 && DaysSinceMarch(8) == 153 && DaysSinceMarch(14) == 337);

constexpr bool QuickDaysAgree() {
  for (unsigned month = 3; month <= 15; ++month)
    if (QuickDaysSinceMarch(month) != DaysSinceMarch(month)) return false;
  return true;
}
static_assert(QuickDaysAgree());

constexpr bool MonthsEndWhereTheyShould() {
  for (unsigned dayOfYear = 0; dayOfYear <= 365; ++dayOfYear) {
    const auto [month, day] = MarchDateOf(dayOfYear);
    if (month < 3 || month > 14 || DaysSinceMarch(month) + day - 1 != dayOfYear || day > 31) return false;
  }
  return true;
}
static_assert(MonthsEndWhereTheyShould());

// Returns how many of the first `centuries` century years have no leap day in the Gregorian calendar.
constexpr std::int64_t DroppedLeapDays(std::int64_t centuries) { return centuries - centuries / 4; }

// Returns the date of day `days`, which is not negative, of a count whose every `years` years, `length` days
// long, end with one leap day. The count begins on 1 March of `firstYear`.
Date DateInCount(std::int64_t days, int years, int length, std::int64_t firstYear) {
  const std::int64_t scaled = days * years + years - 1;
  const auto [month, day] = MarchDateOf(static_cast<unsigned>(scaled % length / years));
  const bool nextYear = month > 12;
  return Date(Saturate(scaled / length + firstYear + (nextYear ? 1 : 0)),
              static_cast<int>(nextYear ? month - 12 : month), static_cast<int>(day));
}

// Returns the date of any day number in a calendar without the early leap years. A day before the origin is
// moved on by whole cycles of 400 years, in which month and day repeat, and its year back again. A Gregorian
// day is moved on by the leap days that centuries dropped: the Julian day there has the same date.
Date DateInCycles(int dayNumber, bool gregorian) {
  std::int64_t days = std::int64_t{dayNumber} - (gregorian ? kGregorianOrigin : kJulianOrigin);
  const int cycle = gregorian ? kGregorianCycle : kJulianCycle;
  const std::int64_t cyclesBack = days < 0 ? (cycle - 1 - days) / cycle : 0;
  days += cyclesBack * cycle;
  if (gregorian) days += DroppedLeapDays((4 * days + 3) / kGregorianCycle);
  return DateInCount(days, 4, kDaysIn4Years, -kYearShift - 400 * cyclesBack);
}

// Returns the day number of a date between 1 January -43 and 28 February 4 under the early leap years.
int EarlyDayNumber(int year, int month, int day) {
  const int before = month < 3 ? 1 : 0;
  const std::int64_t y = std::int64_t{year} + kYearShift - before;
  const std::int64_t inYear = std::int64_t{day} - 1 + DaysSinceMarch(std::int64_t{month} + 12 * before);
  // On purpose: `<` leaves 29 February -8 to the next count, which gives it the number of 1 March.
  if (DayOrder(year, month, day) < DayOrder(kLastEarlyLeapDay))
    return Saturate(inYear + kDaysInYear * (y - 1) + (y - 1) / 3 + kTriennialOrigin);
  return Saturate(inYear + kDaysInYear * y + kNoLeapOrigin);
}

// Returns the day number of any date without the early leap years.
int DayNumberOfAny(int year, int month, int day, bool gregorian) {
  const int before = month < 3 ? 1 : 0;
  std::int64_t y = std::int64_t{year} + kYearShift - before;
  const std::int64_t cyclesBack = y < 0 ? (399 - y) / 400 : 0;
  y += 400 * cyclesBack;
  const std::int64_t inYear = std::int64_t{day} - 1 + DaysSinceMarch(std::int64_t{month} + 12 * before);
  const std::int64_t toYear = kDaysInYear * y + y / 4 - (gregorian ? DroppedLeapDays(y / 100) : 0);
  const std::int64_t origin = (gregorian ? kGregorianOrigin : kJulianOrigin) -
                              cyclesBack * (gregorian ? kGregorianCycle : kJulianCycle);
  return Saturate(inYear + toYear + origin);
}

}  // namespace

int DayNumberUnder(int year, int month, int day, PackedDate startGregorian, bool proleptic) {
  const std::int64_t key = DayOrder(year, month, day);
  const bool gregorian = key >= DayOrder(startGregorian);
  const bool isEarly = key >= kEarlyFrom && key <= kEarlyTo;
  if (isEarly && !proleptic && !gregorian) return EarlyDayNumber(year, month, day);
  return DayNumberOfAny(year, month, day, gregorian);
}

PackedDate JulianDateOfDayNumber(int dayNumber) { return DateInCycles(dayNumber, false).Packed(); }

int GregorianDaysInMonth(int year, int month) {
  const bool isCommonYear = year % 4 != 0 || (year % 100 == 0 && year % 400 != 0);
  return month == 2 && isCommonYear ? 28 : LongestMonth(month);
}

Date Date::Today() {
  if (Rules().startGregorian == 0) Rules().ApplyGregorianStart(kRomanReform);
  const YearMonthDay today = CurrentPlatform().clock->Today();
  // On purpose: the clock is Gregorian also where a reform yet to come leaves the calendar Julian.
  return DateOfDayNumber(DayNumberUnder(today.year, today.month, today.day, kAlwaysGregorian, false));
}

void Date::SetDayNumber(int dayNumber) {
  const int order = dateOrder;
  *this = DateOfDayNumber(dayNumber);
  dateOrder = order;
}

void Date::AddDays(int days) { SetDayNumber(Saturate(std::int64_t{DayNumber()} + days)); }

int Date::AddMonths(int months) {
  const std::int64_t fromJanuary = std::int64_t{month} - 1 + months;
  const std::int64_t years = fromJanuary >= 0 ? fromJanuary / 12 : (fromJanuary - 11) / 12;
  year = Saturate(year + years);
  month = static_cast<int>(fromJanuary - 12 * years) + 1;
  const int length = DaysInMonth();
  if (day > length) day = length;
  return length;
}

int Date::DaysInMonth(int ofMonth) const {
  if (ofMonth != 2) return GregorianDaysInMonth(year, ofMonth);
  const CalendarRules& rules = Rules();
  if (!rules.proleptic && year >= -44 && year <= 7) return year <= -8 && (year - 7) % 3 == 0 ? 29 : 28;
  if (year > rules.ReformYear()) return GregorianDaysInMonth(year, 2);
  // On purpose: the year of the reform is Julian here, also where the reform came before February.
  return CivilYear(Pack(year, 2, day)) % 4 == 0 ? 29 : 28;
}

int Date::Weekday(bool raw) const {
  const int weekday = WeekdayOfDayNumber(DayNumber());
  return weekday == 0 && !raw && Rules().iso8601 ? 7 : weekday;
}

bool Date::IsBefore(PackedDate packed) const { return DayOrder(*this) < DayOrder(packed); }

PackedDate Date::JulianForm() const {
  const PackedDate packed = Packed();
  return packed < Rules().startGregorian ? packed : JulianDateOfDayNumber(DayNumber());
}

Date DateOfRareDay(int dayNumber) {
  const CalendarRules& rules = Rules();
  const bool gregorian = dayNumber >= rules.firstGregorianDayNumber;
  if (!MayBeEarlyNumber(dayNumber) || rules.proleptic || gregorian) return DateInCycles(dayNumber, gregorian);
  if (dayNumber < kNoLeapStart)
    return DateInCount(dayNumber - kTriennialOrigin, 3, kDaysIn3Years, -kTriennialShift);
  return DateInCount(dayNumber - kNoLeapOrigin, 1, kDaysInYear, -kYearShift);
}

}  // namespace orbisol

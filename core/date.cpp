#include "core/date.h"

#include "core/civil_year.h"

namespace orbisol {
namespace {

// Every count below starts on a 1 March around -4800: its years end with their leap day, and it is positive
// for all dates shown, so that '/' rounds down. Sums are 64 bits wide, because any int may come in.
constexpr int kYearShift = 4800;

constexpr int kJulianCycle = 100 * kDaysIn4Years;  // days of 400 Julian years
constexpr int kGregorianCycle = kDaysIn400Years;
constexpr int kJulianOrigin = -32082;     // day number of 1 March -4800 in the Julian calendar
constexpr int kGregorianOrigin = -32044;  // day number of 1 March -4800 in the Gregorian calendar

// The early Julian calendar had a leap year every third year from -44 on, none from 1 March -8 to 28 February
// 4, and ordinary ones again from then on. The three stretches meet without a gap.
constexpr int kTriennialStart = 1704987;  // day number of 1 January -44
constexpr int kNoLeapStart = 1718199;     // day number of 1 March -8
constexpr int kOrdinaryStart = 1722579;   // day number of 1 March 4
constexpr int kTriennialShift = 4799;     // years from 1 March -4799, where the count of this cycle begins
constexpr int kTriennialOrigin = -32113;  // day number of 1 March -4799, had the cycle always held
constexpr int kNoLeapOrigin = -30881;     // day number of 1 March -4800, had there never been a leap year

constexpr PackedDate kLastEarlyLeapDay = -80229;

// Everyday dates are counted in 32 bits, because a division in half the width takes half the time. All other
// integers are counted by the same formulas in 64 bits.
constexpr int kEverydayYears = 1000000;
constexpr bool IsEveryday(int year, int month, int day) {
  // One comparison tests both ends of a range: a value below it becomes a very large unsigned number.
  return static_cast<unsigned>(year) + kYearShift - 1 < kEverydayYears + kYearShift - 1u &&
         static_cast<unsigned>(month) - 1 < 12 && static_cast<unsigned>(day) < 100;
}
constexpr bool IsEveryday(int dayNumber) { return dayNumber > -32000 && dayNumber < 365 * kEverydayYears; }

// First and last of the dates whose day number the early leap years decide.
constexpr std::int64_t kEarlyFrom = DayOrder(-43, 1, 1);
constexpr std::int64_t kEarlyTo = DayOrder(4, 2, 28);

// Returns the days from 1 March to the first of `month`, where January and February are the months 13 and 14
// of the year before. C. Tøndering, Calendar FAQ, "The Julian Period".
template <typename U>
constexpr U DaysSinceMarch(U month) {  // [3, 14]
  return (153 * month - 457) / 5;      // [0, 337]
}
static_assert(DaysSinceMarch(3u) == 0 && DaysSinceMarch(8u) == 153 && DaysSinceMarch(14u) == 337);

// Returns DaysSinceMarch by a shift instead of a division. C. Neri and L. Schneider, "Euclidean affine
// functions and their application to calendar algorithms", 2022.
constexpr unsigned QuickDaysSinceMarch(unsigned month) {  // [3, 14]
  return (979 * month - 2919) / 32;                       // [0, 337]
}
constexpr bool QuickDaysAgree() {
  for (unsigned month = 3; month <= 14; ++month)
    if (QuickDaysSinceMarch(month) != DaysSinceMarch(month)) return false;
  return true;
}
static_assert(QuickDaysAgree());

// Returns how many of the first `centuries` century years have no leap day in the Gregorian calendar.
template <typename U>
constexpr U DroppedLeapDays(U centuries) {
  return centuries - centuries / 4;
}

// A day of a year that begins on 1 March.
template <typename U>
struct MarchDay {
  U year;       // from the origin of its count
  U dayOfYear;  // 0 is 1 March
};

// Returns the day that lies `days` after the origin of a count. In that count each run of `years` years is
// `length` days long and ends with its one leap day.
template <typename U>
constexpr MarchDay<U> MarchDayOf(U days, U years, U length) {
  const U scaled = days * years + years - 1;
  return {scaled / length, scaled % length / years};
}

// Returns the day that lies `days` after the origin. A Gregorian day is moved on by the leap days that
// centuries dropped: the Julian day there has the same date.
template <typename U>
constexpr MarchDay<U> MarchDayInCycles(U days, bool gregorian) {
  const U centuries = (4 * days + 3) / kGregorianCycle;
  return MarchDayOf<U>(gregorian ? days + DroppedLeapDays(centuries) : days, 4, kDaysIn4Years);
}

// Month and day in a year that begins on 1 March, with January and February as months 13 and 14. Five months
// have 153 days, 30.6 on average, so that a day is 2141 / 65536 of a month; the remainder counts the days of
// the month. Neri and Schneider as above.
struct MonthAndDay {
  unsigned month;  // [3, 14]
  unsigned day;    // [1, 31]
};
constexpr MonthAndDay MonthAndDayOf(unsigned dayOfYear) {  // [0, 365]
  const unsigned scaled = 2141 * dayOfYear + 197913;
  return {scaled >> 16, (scaled & 0xFFFF) / 2141 + 1};
}
constexpr bool MonthsEndWhereTheyShould() {
  for (unsigned dayOfYear = 0; dayOfYear <= 365; ++dayOfYear) {
    const auto [month, day] = MonthAndDayOf(dayOfYear);
    if (month < 3 || month > 14 || DaysSinceMarch(month) + day - 1 != dayOfYear || day > 31) return false;
  }
  return true;
}
static_assert(MonthsEndWhereTheyShould());

// Sets year, month and day of `date`. `firstYear` is the year of the count's origin.
template <typename U>
void SetDate(Date& date, const MarchDay<U>& march, std::int64_t firstYear) {
  const auto [month, day] = MonthAndDayOf(static_cast<unsigned>(march.dayOfYear));
  const bool nextYear = month > 12;
  if constexpr (sizeof(U) == sizeof(int)) {
    date.year = static_cast<int>(march.year) + static_cast<int>(firstYear) + nextYear;
  } else {
    date.year = Saturate(static_cast<std::int64_t>(march.year) + firstYear + nextYear);
  }
  date.month = static_cast<int>(nextYear ? month - 12 : month);
  date.day = static_cast<int>(day);
}

// Sets the date of any day number. A day before the origin is moved on by whole cycles of 400 years, in which
// month and day repeat, and its year back again.
[[gnu::noinline]] void SetAnyDateInCycles(Date& date, int dayNumber, bool gregorian) {
  std::int64_t days = std::int64_t{dayNumber} - (gregorian ? kGregorianOrigin : kJulianOrigin);
  const int cycle = gregorian ? kGregorianCycle : kJulianCycle;
  const std::int64_t cyclesBack = days < 0 ? (cycle - 1 - days) / cycle : 0;
  days += cyclesBack * cycle;
  SetDate(date, MarchDayInCycles(static_cast<std::uint64_t>(days), gregorian),
          -kYearShift - 400 * cyclesBack);
}

// Sets the date of a day number in a calendar without the early leap years.
void SetDateInCycles(Date& date, int dayNumber, bool gregorian) {
  if (!IsEveryday(dayNumber)) return SetAnyDateInCycles(date, dayNumber, gregorian);
  const auto days = static_cast<unsigned>(dayNumber - (gregorian ? kGregorianOrigin : kJulianOrigin));
  SetDate(date, MarchDayInCycles(days, gregorian), -kYearShift);
}

// The rare cases are functions of their own, so that the everyday one, called millions of times, stays short.

// Returns the day number of a date between 1 January -43 and 28 February 4 under the early leap years.
[[gnu::noinline]] int EarlyDayNumber(int year, int month, int day) {
  const int before = month < 3 ? 1 : 0;
  const std::int64_t y = std::int64_t{year} + kYearShift - before;
  const std::int64_t inYear = std::int64_t{day} - 1 + DaysSinceMarch(std::int64_t{month} + 12 * before);
  // On purpose: `<` leaves 29 February -8 to the next count, which gives it the number of 1 March.
  if (DayOrder(year, month, day) < DayOrder(kLastEarlyLeapDay))
    return Saturate(inYear + kDaysInYear * (y - 1) + (y - 1) / 3 + kTriennialOrigin);
  return Saturate(inYear + kDaysInYear * y + kNoLeapOrigin);
}

// Sets the date of a day from 1 January -44 to 28 February 4 under the early leap years.
[[gnu::noinline]] void SetEarlyDate(Date& date, int dayNumber) {
  if (dayNumber < kNoLeapStart) {
    SetDate(date, MarchDayOf<unsigned>(static_cast<unsigned>(dayNumber - kTriennialOrigin), 3, kDaysIn3Years),
            -kTriennialShift);
  } else {
    SetDate(date, MarchDayOf<unsigned>(static_cast<unsigned>(dayNumber - kNoLeapOrigin), 1, kDaysInYear),
            -kYearShift);
  }
}

[[gnu::noinline]] int DayNumberOfAny(int year, int month, int day, bool gregorian) {
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
  const std::int64_t sinceReform = key - DayOrder(startGregorian);
  if (key >= kEarlyFrom && key <= kEarlyTo && !proleptic && sinceReform < 0) [[unlikely]]
    return EarlyDayNumber(year, month, day);
  if (!IsEveryday(year, month, day)) [[unlikely]]
    return DayNumberOfAny(year, month, day, sinceReform >= 0);

  const unsigned before = month < 3 ? 1 : 0;  // January and February belong to the March year before
  const unsigned y = static_cast<unsigned>(year + kYearShift) - before;
  const unsigned toYear = kDaysIn4Years * y / 4;  // 365.25 a year, rounded down
  const unsigned julian = static_cast<unsigned>(day - 1) +
                          QuickDaysSinceMarch(static_cast<unsigned>(month) + 12 * before) + toYear;
  // A mask selects the calendar instead of a branch: dates come in any order, and the processor would predict
  // the branch wrongly at every change of calendar.
  const unsigned shift = static_cast<unsigned>(kGregorianOrigin - kJulianOrigin) - DroppedLeapDays(y / 100);
  const auto ifGregorian = static_cast<unsigned>(~(sinceReform >> 63));  // all bits or none
  return static_cast<int>(julian + (shift & ifGregorian)) + kJulianOrigin;
}

PackedDate JulianDateOfDayNumber(int dayNumber) {
  Date date(0);
  SetDateInCycles(date, dayNumber, false);
  return date.Packed();
}

int GregorianDaysInMonth(int year, int month) {
  const bool isCommonYear = year % 4 != 0 || (year % 100 == 0 && year % 400 != 0);
  return month == 2 && isCommonYear ? 28 : LongestMonth(month);
}

Date Date::Today() {
  if (Rules().startGregorian == 0) Rules().ApplyGregorianStart(kRomanReform);
  const YearMonthDay today = CurrentPlatform().clock->Today();
  // On purpose: the clock is Gregorian even if the reform in force lies in the future.
  return DateOfDayNumber(DayNumberUnder(today.year, today.month, today.day, kAlwaysGregorian, false));
}

int Date::DayNumber() const {
  return DayNumberUnder(year, month, day, Rules().startGregorian, Rules().proleptic);
}

void Date::SetDayNumber(int dayNumber) {
  const CalendarRules& rules = Rules();
  const bool gregorian = dayNumber >= rules.firstGregorianDayNumber;
  const bool isEarly = dayNumber >= kTriennialStart && dayNumber < kOrdinaryStart;
  if (isEarly && !rules.proleptic && !gregorian) [[unlikely]]
    return SetEarlyDate(*this, dayNumber);
  SetDateInCycles(*this, dayNumber, gregorian);
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
  // On purpose: the year of the reform is Julian here, even if the reform came before February.
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

Date DateOfDayNumber(int dayNumber) {
  Date date(0);
  date.SetDayNumber(dayNumber);
  return date;
}

}  // namespace orbisol

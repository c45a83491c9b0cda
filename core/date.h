// Dates of the civil calendar and their day numbers.
//
// A Date is Julian before the reform and Gregorian from it on (calendar_config.h). Its day number is
// the Julian day number: whole days, 1 January 2000 is 2451545, no gap at the reform.
//
//   Date d(15821004);  // packed: (year * 100 + month) * 100 + day
//   d.AddDays(1);      // 15 October 1582, ten dates were dropped
//   d.DayNumber();     // 2299161
//
// Years are astronomical: 0 is 1 BC. Nothing here refuses a date: any integers in the fields give some
// result, saturated where an int cannot hold it.
#pragma once

#include "core/calendar_config.h"
#include "core/date_range.h"
#include "core/packed_date.h"
#include "core/platform.h"

namespace orbisol {

constexpr int kDayNumber1999Dec31 = 2451544;  // Gregorian, whatever reform is in force

// Lengths of years and of their cycles, in days.
constexpr int kDaysInWeek = 7;
constexpr int kDaysInYear = 365;
constexpr int kDaysIn3Years = 3 * kDaysInYear + 1;  // with one leap year, as the early Julian calendar had
constexpr int kDaysIn4Years = 4 * kDaysInYear + 1;
constexpr int kDaysIn100Years = 25 * kDaysIn4Years - 1;   // a Gregorian century without a leap day at its end
constexpr int kDaysIn400Years = 4 * kDaysIn100Years + 1;  // 400 Gregorian years

struct Date {
  int year;
  int month;      // 1..12
  int day;        // 1..DaysInMonth()
  int dateOrder;  // for texts only: 0 month/day/year, 1 day/month/year, 2 year/month/day

  // `dateOrder` is the user's (platform.h).
  explicit Date(PackedDate packed) : dateOrder(CurrentPlatform().dateOrder) { SetPacked(packed); }
  Date(int theYear, int theMonth, int theDay)
      : year(theYear), month(theMonth), day(theDay), dateOrder(CurrentPlatform().dateOrder) {}

  // The local date of the computer's clock. Applies the Roman reform first when none is set.
  static Date Today();

  // Returns what the fields pack to: `packed` again for every date that exists.
  PackedDate SetPacked(PackedDate packed) {
    const YearMonthDay date = Unpack(packed);
    year = date.year;
    month = date.month;
    day = date.day;
    return Packed();
  }
  PackedDate Packed() const { return Pack(year, month, day); }

  // On purpose: a dropped date (5 to 14 October 1582) is read as Julian: the 10th has day number 2299166, and
  // that is 20 October. On purpose: 29 February -8 has the number of 1 March -8, 1718199, though 1718198 is
  // its own.
  int DayNumber() const;
  void SetDayNumber(int dayNumber);  // keeps dateOrder
  void AddDays(int days);            // back when negative

  // Moves by `months`, then pulls `day` back into a shorter month, whose length it returns.
  int AddMonths(int months);

  // Dropped dates are not taken out: October 1582 has 31 days. February before the reform follows the civil
  // year that (year, 2, day) lies in, and the reform's own year is always Julian here. 31 for a month
  // that does not exist.
  int DaysInMonth() const { return DaysInMonth(month); }
  int DaysInMonth(int ofMonth) const;

  // 0 Sunday .. 6. With `raw` false and iso8601 in force, Sunday is 7.
  int Weekday(bool raw) const;

  // Strictly, by days also before the era.
  bool IsBefore(PackedDate packed) const;

  // The same day written in the Julian calendar, without its early leap-year errors.
  PackedDate JulianForm() const;

  bool SameDay(const Date& other) const {
    return year == other.year && month == other.month && day == other.day;
  }
};

inline std::int64_t DayOrder(const Date& date) { return DayOrder(date.year, date.month, date.day); }

Date DateOfDayNumber(int dayNumber);

// 0 Sunday .. 6, for any day number, those below 0 included.
constexpr int WeekdayOfDayNumber(int dayNumber) {
  const int remainder = static_cast<int>((std::int64_t{dayNumber} + 1) % 7);
  return remainder < 0 ? remainder + 7 : remainder;
}
static_assert(WeekdayOfDayNumber(0) == 1 && WeekdayOfDayNumber(-1) == 0 && WeekdayOfDayNumber(-2) == 6);

// The day number of a date under another reform than the one in force.
int DayNumberUnder(int year, int month, int day, PackedDate startGregorian, bool proleptic);

// A day in the Julian calendar without its early leap-year errors.
PackedDate JulianDateOfDayNumber(int dayNumber);

// Returns the length of a month in a leap year; 31 for a month that does not exist.
constexpr int LongestMonth(int month) {
  if (month == 2) return 29;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

// Returns the length of a month of the Gregorian calendar, whatever reform is in force; 31 for a month that
// does not exist.
int GregorianDaysInMonth(int year, int month);

}  // namespace orbisol

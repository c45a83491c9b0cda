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
//
// On purpose, a date that the reform dropped is read as Julian, and so is a later day:
//
//   Date(15821010).DayNumber();  // 2299166
//   DateOfDayNumber(2299166);    // 20 October 1582
//
// On purpose, 29 February -8 takes the number of the day after it:
//
//   Date(-80229).DayNumber();  // 1718199, that of 1 March -8
//   DateOfDayNumber(1718198);  // 29 February -8
//
// A date that does not exist is kept, and counts as a later one:
//
//   Date d(20240229);
//   d.year += 1;      // 29 February 2025
//   d.DayNumber();    // 2460736, that of 1 March 2025
//   d.AddMonths(12);  // 28 February 2026: a step of months pulls the day back
#pragma once

#include "core/calendar_config.h"
#include "core/date_range.h"
#include "core/everyday_date.h"
#include "core/packed_date.h"
#include "core/platform.h"

namespace orbisol {

constexpr int kDayNumber1999Dec31 = 2451544;  // Gregorian, whatever reform is in force

constexpr int kDaysInWeek = 7;

// Returns the day number of a date under another reform than the one in force.
int DayNumberUnder(int year, int month, int day, PackedDate startGregorian, bool proleptic);

struct Date {
  int year;
  int month;      // 1..12
  int day;        // 1..DaysInMonth()
  int dateOrder;  // for texts only: 0 month/day/year, 1 day/month/year, 2 year/month/day

  // Set `dateOrder` to the user's (platform.h).
  explicit Date(PackedDate packed) : dateOrder(CurrentPlatform().dateOrder) { SetPacked(packed); }
  Date(int theYear, int theMonth, int theDay)
      : year(theYear), month(theMonth), day(theDay), dateOrder(CurrentPlatform().dateOrder) {}

  // Returns the local date of the computer's clock. Applies the Roman reform first when none is set.
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

  int DayNumber() const;
  void SetDayNumber(int dayNumber);  // keeps dateOrder
  void AddDays(int days);            // back when negative

  // Moves by `months`, then pulls `day` back into a shorter month, whose length it returns.
  int AddMonths(int months);

  // Returns the length of the month, 31 for one that does not exist. Dropped dates are not taken out: October
  // 1582 has 31 days. February before the reform follows the civil year that (year, 2, day) lies in, and the
  // reform's own year is always Julian here.
  int DaysInMonth() const { return DaysInMonth(month); }
  int DaysInMonth(int ofMonth) const;

  // Returns 0 Sunday .. 6. With `raw` false and iso8601 in force, Sunday is 7.
  int Weekday(bool raw) const;

  // Returns whether this date lies strictly before another, by days also before the era.
  bool IsBefore(PackedDate packed) const;

  // Returns the same day written in the Julian calendar, without its early leap-year errors. On purpose: any
  // date whose packed value is below that of the reform is taken for a Julian one and returned as it is, also
  // where a reform before the era makes that false.
  PackedDate JulianForm() const;

  bool SameDay(const Date& other) const {
    return year == other.year && month == other.month && day == other.day;
  }
};

inline int Date::DayNumber() const {
  const CalendarRules& rules = Rules();
  const EverydayDate date = {static_cast<unsigned>(year), static_cast<unsigned>(month),
                             static_cast<unsigned>(day)};
  const unsigned key = date.Key();
  if (!date.IsEveryday() || EverydayDate::MayBeEarly(key)) [[unlikely]]
    return DayNumberUnder(year, month, day, rules.startGregorian, rules.proleptic);
  return date.DayNumber(key > rules.lastJulianKey);
}

inline std::int64_t DayOrder(const Date& date) { return DayOrder(date.year, date.month, date.day); }

Date DateOfRareDay(int dayNumber);  // the same for a day that is not an everyday one

inline Date DateOfDayNumber(int dayNumber) {
  if (!IsEverydayNumber(dayNumber) || MayBeEarlyNumber(dayNumber)) [[unlikely]]
    return DateOfRareDay(dayNumber);
  const EverydayDate date = EverydayDateOf(dayNumber, dayNumber >= Rules().firstGregorianDayNumber);
  return Date(static_cast<int>(date.year), static_cast<int>(date.month), static_cast<int>(date.day));
}

// Returns 0 Sunday .. 6, for any day number, those below 0 included.
constexpr int WeekdayOfDayNumber(int dayNumber) {
  const int remainder = static_cast<int>((std::int64_t{dayNumber} + 1) % 7);
  return remainder < 0 ? remainder + 7 : remainder;
}
static_assert(WeekdayOfDayNumber(0) == 1 && WeekdayOfDayNumber(-1) == 0 && WeekdayOfDayNumber(-2) == 6);

// Returns the date of a day in the Julian calendar without its early leap-year errors.
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

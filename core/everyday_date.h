// The arithmetic of everyday dates, inline because it is walked millions of times: years -4799 to 95199,
// months 0 to 15 and days 0 to 31, where 32 bits hold every product. Date takes this way wherever it can and
// any other in date.cpp; both give the same result wherever both apply.
//
//   const EverydayDate day{1582, 10, 15};
//   if (day.IsEveryday()) n = day.DayNumber(day.Key() > rules.lastJulianKey);  // 2299161
#pragma once

namespace orbisol {

// Lengths of years and of their cycles, in days.
constexpr int kDaysInYear = 365;
constexpr int kDaysIn3Years = 3 * kDaysInYear + 1;  // with one leap year, as the early Julian calendar had
constexpr int kDaysIn4Years = 4 * kDaysInYear + 1;
constexpr int kDaysIn100Years = 25 * kDaysIn4Years - 1;   // a Gregorian century without a leap day at its end
constexpr int kDaysIn400Years = 4 * kDaysIn100Years + 1;  // 400 Gregorian years

// Years are counted from 1 March -4800: they end with their leap day, and all counts are positive, so that
// '/' rounds down.
constexpr int kYearShift = 4800;
constexpr int kJulianOrigin = -32082;     // day number of 1 March -4800 in the Julian calendar
constexpr int kGregorianOrigin = -32044;  // day number of 1 March -4800 in the Gregorian calendar
constexpr unsigned kEverydayYears = 100000;

// Returns an integer that rises with the date: day in five bits, month in four, years from -4800 above them.
constexpr unsigned EverydayKey(unsigned year, unsigned month, unsigned day) {
  return ((year + kYearShift) * 16 + month) * 32 + day;
}

// Returns the key just below that of the first everyday date not before any date: 0 where all come after it.
constexpr unsigned KeyBefore(int year, int month, int day) {
  if (year < 1 - kYearShift) return 0;
  if (year >= static_cast<int>(kEverydayYears)) return ~0u;
  const unsigned first = EverydayKey(static_cast<unsigned>(year), 0, 0);
  if (month < 0 || (month == 0 && day < 0)) return first - 1;
  if (month > 15) return first + 16 * 32 - 1;
  const unsigned month0 = first + static_cast<unsigned>(month) * 32;
  return (day < 0 ? month0 : day > 31 ? month0 + 32 : month0 + static_cast<unsigned>(day)) - 1;
}

// Keys of the first and the last date whose day number the early Julian leap years may decide.
constexpr unsigned kEarlyFromKey = EverydayKey(0u - 43, 1, 1);
constexpr unsigned kEarlyToKey = EverydayKey(4, 2, 28);

// Day numbers at which the leap years of the early Julian calendar change.
constexpr int kTriennialStart = 1704987;  // 1 January -44: a leap year every third year from then on
constexpr int kNoLeapStart = 1718199;     // 1 March -8: none
constexpr int kOrdinaryStart = 1722579;   // 1 March 4: one in four again

// Returns the days from 1 March to the first of a month in [3, 14], where January and February are the months
// 13 and 14 of the year before: [0, 337]. A shift takes the place of the division in (153 * month - 457) / 5.
// C. Neri and L. Schneider, "Euclidean affine functions and their application to calendar algorithms", 2022.
constexpr unsigned QuickDaysSinceMarch(unsigned month) { return (979 * month - 2919) / 32; }

struct EverydayDate {
  unsigned year, month, day;  // as in Date, negative years as unsigned numbers

  constexpr unsigned Key() const { return EverydayKey(year, month, day); }

  // One comparison tests both ends of a range: a value below it becomes a very large unsigned number.
  constexpr bool IsEveryday() const {
    return (month | day >> 1) < 16 && year + (kYearShift - 1) < kEverydayYears;
  }
  static constexpr bool MayBeEarly(unsigned key) {
    return key - kEarlyFromKey <= kEarlyToKey - kEarlyFromKey;
  }

  // Returns the day number without the early leap years.
  constexpr int DayNumber(bool gregorian) const {
    // All bits or none, for January and February, which belong to the March year before. A mask and not a
    // branch, also below: dates come in any order, and the processor would guess wrong at every change.
    const unsigned before = 0u - static_cast<unsigned>(month < 3);
    const unsigned y = year + kYearShift + before;
    const unsigned centuries = y / 100;
    const unsigned julian = kDaysIn4Years * y / 4 + QuickDaysSinceMarch(month + (12 & before)) + day;
    const unsigned shift = kGregorianOrigin - kJulianOrigin + centuries / 4 - centuries;
    const unsigned mask = 0u - static_cast<unsigned>(gregorian);
    return static_cast<int>(julian + (shift & mask)) + kJulianOrigin - 1;
  }
};

constexpr bool IsEverydayNumber(int dayNumber) {
  return static_cast<unsigned>(dayNumber) + 32000u < kDaysInYear * kEverydayYears;
}
constexpr bool MayBeEarlyNumber(int dayNumber) {
  return static_cast<unsigned>(dayNumber) - kTriennialStart < kOrdinaryStart - kTriennialStart;
}

// Month and day in a year that begins on 1 March, with January and February as months 13 and 14. Five months
// have 153 days, 30.6 on average, so that a day is 2141 / 65536 of a month; the remainder counts the days of
// the month. Neri and Schneider as above.
struct MarchDate {
  unsigned month;  // [3, 14]
  unsigned day;    // [1, 31]
};
constexpr MarchDate MarchDateOf(unsigned dayOfYear) {  // [0, 365]
  const unsigned scaled = 2141 * dayOfYear + 197913;
  return {scaled >> 16, (scaled & 0xFFFF) / 2141 + 1};
}

// Returns the date of an everyday day number without the early leap years. A Gregorian day is counted as if
// no century had dropped its leap day, and is then a Julian one of the same date.
constexpr EverydayDate EverydayDateOf(int dayNumber, bool gregorian) {
  const auto days = static_cast<unsigned>(dayNumber - kGregorianOrigin);
  const unsigned centuries = (4 * days + 3) / kDaysIn400Years;
  constexpr unsigned kApart = kGregorianOrigin - kJulianOrigin;
  const unsigned dropped = centuries - centuries / 4 - kApart;
  const unsigned mask = 0u - static_cast<unsigned>(gregorian);
  const unsigned scaled = 4 * (days + kApart + (dropped & mask)) + 3;
  const MarchDate date = MarchDateOf(scaled % kDaysIn4Years / 4);
  const bool nextYear = date.month > 12;
  return {scaled / kDaysIn4Years - kYearShift + static_cast<unsigned>(nextYear),
          nextYear ? date.month - 12 : date.month, date.day};
}

}  // namespace orbisol

// The French Republican calendar: twelve months of three décades, then five complementary days, six in a
// sextile year. 1 vendémiaire an 1 is 22 September 1792.
//
//   ToRepublican(Date(17991109));  // {8, 1, 17}: 18 brumaire an 8
//   FromRepublican(8, 2, 18);      // 9 November 1799
//
// On purpose, the two conversions disagree on 22 September 2191, 2591, 2991, 3391 and 3791. Each of these
// days ends a year of 366 days, but is read as 1 vendémiaire, like the day after it; entering that date gives
// the later day:
//
//   ToRepublican(Date(21910922));  // {400, 0, 0}: 1 vendémiaire an 400
//   ToRepublican(Date(21910923));  // {400, 0, 0} too
//   FromRepublican(400, 1, 1);     // 23 September 2191
//   FromRepublican(399, 13, 6);    // 22 September 2191
#pragma once

#include <string>

#include "core/date.h"

namespace orbisol {

constexpr PackedDate kRepublicanEpoch = 17920922;  // a date of the calendar in force, not a fixed day
constexpr int kComplementaryMonth = 12;            // monthIndex of the complementary days
constexpr int kLastRepublicanYear = 2300;          // the last that can be entered

struct RepublicanDate {
  int year;        // 1 or more
  int monthIndex;  // 0..11, 12 the complementary days
  int dayIndex;    // 0..29, among the complementary days 0..5

  bool operator==(const RepublicanDate&) const = default;
};

// Returns the Republican date of a day; before the epoch some values, possibly negative ones.
RepublicanDate ToRepublican(const Date& date);

// Returns the day of a date as it is entered: month 1..13, day 1..30 (1..6 in the 13th). A year is limited to
// 1..2300, month and day to their ranges. The sixth complementary day of a common year is 1 vendémiaire of
// the next.
Date FromRepublican(int year, int month, int day);

// Returns 5 or 6.
int ComplementaryDays(int year);

// Returns "MCMXCIX" for 1999; empty from 4999 on, and for 0 and less.
std::u16string RomanNumeral(int n);

// Returns two lines: "Octidi 18 brumaire an 8", then " (an VIII)". Empty before the epoch.
std::u16string RepublicanText(const Date& date);

// Returns the name of a month for a list: 0..12, the last being "Complémentaires". Empty for another index.
std::u16string RepublicanMonthName(int monthIndex);

}  // namespace orbisol

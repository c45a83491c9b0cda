// The French Republican calendar: twelve months of three décades, then five complementary days, six in a
// sextile year. 1 vendémiaire an 1 is 22 September 1792.
//
//   ToRepublican(Date(17991109));  // {8, 1, 17}: 18 brumaire an 8
//   FromRepublican(8, 2, 18);      // 9 November 1799
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

// Meaningful from the epoch on; before it some values, possibly negative ones.
RepublicanDate ToRepublican(const Date& date);

// As entered: month 1..13, day 1..30 (1..6 in the 13th). A year is limited to 1..2300, month and day to their
// ranges. The sixth complementary day of a common year is 1 vendémiaire of the next.
// On purpose: 1 vendémiaire an 400 (800, 1200, 1600, 2000) does not give back the day that reads so, but the
// next.
Date FromRepublican(int year, int month, int day);

// 5 or 6.
int ComplementaryDays(int year);

// Empty from 4999 on, and for 0 and less.
std::u16string RomanNumeral(int n);

// Two lines: "Octidi 18 brumaire an 8", then " (an VIII)". Empty before the epoch.
std::u16string RepublicanText(const Date& date);

// For lists: 0..12 (the 13th is "Complémentaires"). Empty for another index.
std::u16string RepublicanMonthName(int monthIndex);

}  // namespace orbisol

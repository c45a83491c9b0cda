// The years that the program shows, which of two dates comes first, and which dates exist.
//
//   IsYearShown(4000);                           // false
//   DayOrder(-440315) > DayOrder(-440101);       // true: 15 March -44 comes after 1 January
//   DoesDateExist({1582, 10, 10});               // false under the Roman reform
//   rules.ApplyGregorianStart(kNeverGregorian);  // Julian for all years
#pragma once

#include <cstdint>

#include "core/packed_date.h"

namespace orbisol {

struct Date;

constexpr int kFirstYearShown = -3999;
constexpr int kLastYearShown = 3999;
constexpr PackedDate kFirstDateShown = Pack(kFirstYearShown, 1, 1);
constexpr PackedDate kLastDateShown = Pack(kLastYearShown, 12, 31);

// The lowest and the highest packed value of a date shown. A rule that is valid from one to the other always
// is. On purpose: before the era packed values run backwards in a year, so the lowest is 31 December.
constexpr PackedDate kAlwaysFrom = Pack(kFirstYearShown, 12, 31);
constexpr PackedDate kAlwaysTo = kLastDateShown;
static_assert(kFirstDateShown == -39990101 && kAlwaysFrom == -39991231 && kAlwaysTo == 39991231);

// Starts of a Gregorian calendar that no date precedes, and that no date reaches: the first and the last
// 1 January that a packed date can hold.
constexpr PackedDate kAlwaysGregorian = Pack(-214747, 1, 1);
constexpr PackedDate kNeverGregorian = Pack(214747, 1, 1);

constexpr bool IsYearShown(int year) { return kFirstYearShown <= year && year <= kLastYearShown; }

// Returns an integer that rises with the days also before the era, for a packed date and for its fields. It
// is the one order of dates; where packed dates are compared as they are, that is said.
constexpr std::int64_t DayOrder(int year, int month, int day) {
  return std::int64_t{year} * 10000 + MonthDay(month, day);
}
constexpr std::int64_t DayOrder(PackedDate packed) {
  return packed >= 0 ? packed : packed + std::int64_t{2} * MonthDayOf(packed);
}
static_assert(DayOrder(-440315) == DayOrder(-44, 3, 15) && DayOrder(-440315) > DayOrder(-440101));

// Returns whether a date lies in the years shown, from the first day to the last.
bool IsWithinBounds(const Date& date);

// Returns whether a date exists under the rules in force: a day of its month that the reform did not drop.
// Any numbers are accepted.
bool DoesDateExist(const YearMonthDay& date);

// Moves a date outside to the first or the last day shown.
void ClampToBounds(Date& date);

}  // namespace orbisol

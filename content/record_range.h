// The days that a rule or period holds for, as a user sees them and as records hold them.
//
// A range is seen in the order of days, from the earlier to the later. A record compares packed integers, and
// those of a year before the era run backwards, so its bounds stand the other way around there, and a range
// that ends one such year and begins another is cut into records that packed order can hold:
//
//   BoundsOf({kFirstDateShown, kLastDateShown});  // {{kAlwaysFrom, kAlwaysTo}}: always
//   BoundsOf({20240101, 20261231});               // {{20240101, 20261231}}
//   BoundsOf({-440301, -440315});                 // {{-440315, -440301}}: March of one year
//   BoundsOf({-450701, -430315});                 // {{-451231, -450701}, {-441231, -440101}, {-430315,
//   -430101}}:
//                                                 // the rest of -45, the year -44, the beginning of -43
//
//   JoinRanges(bounds, i);                        // puts the pieces together again
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "core/date_range.h"

namespace orbisol {

// Dates of both ends, `first` not after `last` in the order of days.
struct DayRange {
  PackedDate first = kFirstDateShown;
  PackedDate last = kLastDateShown;

  bool operator==(const DayRange&) const = default;
};
constexpr DayRange kAlways;

// Bounds of a record: it holds every date with from <= date <= to, compared as integers.
struct RecordBounds {
  PackedDate from = kAlwaysFrom;
  PackedDate to = kAlwaysTo;

  bool operator==(const RecordBounds&) const = default;
};

// Returns the bounds of the records that together hold the days of a range and no other, in the order of
// days: one from year 0 on, at most three before the era. Empty where `first` comes after `last`.
std::vector<RecordBounds> BoundsOf(const DayRange& range);

// Returns the range that a single record holds. Empty for one that is not all the days from one date to
// another: its bounds lie in packed order but not in that of days (15 March -44 to 1 March -40 holds what
// comes before that day in -44), or it holds nothing.
std::optional<DayRange> RangeOf(const RecordBounds& bounds);

// Neighboring records seen as one.
struct JoinedRange {
  std::size_t records = 1;        // number of records, from the first one on
  std::optional<DayRange> range;  // empty where the first record alone is no range (RangeOf)
};

// Joins the longest beginning of a list of bounds that is the cut of one range; at least the first of them.
// The list must not be empty.
JoinedRange JoinRanges(std::span<const RecordBounds> bounds);

}  // namespace orbisol

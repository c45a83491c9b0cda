// The reference implementation of core/date.h: the same two conversions, branch by branch as they are
// defined, in 64-bit integers and without regard to speed. The tests compare both on every day; the benches
// measure both. It must not use `core`.
//
// Valid from 1 March -4800 on, where every quantity that is divided is positive.
#pragma once

#include <cstdint>

namespace orbisol::plain {

struct Reform {
  int startGregorian;  // packed as in core/packed_date.h
  bool proleptic;
};

struct CivilDate {
  std::int64_t year, month, day;

  bool operator==(const CivilDate&) const = default;
};

std::int64_t DayNumber(const CivilDate& date, const Reform& reform);
CivilDate DateOfDayNumber(std::int64_t dayNumber, const Reform& reform);

}  // namespace orbisol::plain

// Dates packed into one integer, for files, tables and range tests.
//
//   Pack(1582, 10, 15);  // 15821015
//   Pack(-44, 3, 15);    // -440315
//   Unpack(301);         // 1 March of year 0
//
// From year 0 on packed dates rise with the days. Those of one negative year run backwards
// (-441231 < -440101), so they are compared as plain integers only where packed order is meant:
// the validity of a rule, a period, a civil-year row, the reform. Date::IsBefore compares days.
#pragma once

#include <cstdint>

#include "core/integers.h"

namespace orbisol {

using PackedDate = int;  // 0 is "no date"; values between -10100 and 100 are no dates either

struct YearMonthDay {
  int year;   // astronomical: 0 is 1 BC
  int month;  // 1..12
  int day;    // 1..31

  bool operator==(const YearMonthDay&) const = default;
};

// Packs month and day into one integer, 101..1231, for comparisons inside a year.
constexpr std::int64_t MonthDay(int month, int day) { return std::int64_t{month} * 100 + day; }

constexpr int kFirstOfJanuary = 101;  // month * 100 + day
constexpr int kLastOfDecember = 1231;

// Packs a date. Any integers are accepted; a result that no int holds is saturated.
constexpr PackedDate Pack(int year, int month, int day) {
  const std::int64_t years = std::int64_t{year} * 10000;
  return Saturate(year < 0 ? years - MonthDay(month, day) : years + MonthDay(month, day));
}

// Returns month * 100 + day of a packed date; the absolute value is taken of this remainder alone.
constexpr int MonthDayOf(PackedDate packed) {
  const int rest = packed % 10000;
  return rest < 0 ? -rest : rest;
}

// Unpacks a date, cutting the year toward zero. Any integer is accepted.
constexpr YearMonthDay Unpack(PackedDate packed) {
  return {packed / 10000, MonthDayOf(packed) / 100, MonthDayOf(packed) % 100};
}

static_assert(Unpack(-440315) == YearMonthDay{-44, 3, 15} && Pack(-44, 3, 15) == -440315);
static_assert(Unpack(301) == YearMonthDay{0, 3, 1} && Pack(0, 3, 1) == 301);

}  // namespace orbisol

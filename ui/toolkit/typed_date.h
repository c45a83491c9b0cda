// Reads a date as a user types it into a field, and writes it as the field shows it.
//
//   ReadTypedDate(u"14.7.1789", 1).ymd;   // 17890714: day, month, year
//   ReadTypedDate(u"15/3/-44", 1).ymd;    // -440315
//   ReadTypedDate(u"10/10/1582", 1);      // DateFault::kDropped under the Roman reform
//   FieldDate(-440315, 1);                // "15/03/-44"
//
// An order of the fields is given as in Date::dateOrder: 0 month/day/year, 1 day/month/year, 2
// year/month/day.
#pragma once

#include <string>
#include <string_view>

#include "core/packed_date.h"

namespace orbisol {

enum class DateFault {
  kNone,
  kIncomplete,   // nothing, or fewer than three numbers
  kNotADate,     // other characters than digits and separators, or more than three numbers
  kNoMonth,      // a month outside 1..12
  kNoDay,        // a day that its month does not have
  kDropped,      // a date that the reform removed
  kOutOfBounds,  // a year outside -3999..3999
};

struct TypedDate {
  PackedDate ymd = 0;  // 0 unless `fault` is kNone
  DateFault fault = DateFault::kIncomplete;
  YearMonthDay fields = {0, 0, 0};  // as they were typed; zeros where none were found
};

// Reads three numbers in the order given, with any of "/", ".", "-" and blanks between them. A minus sign is
// that of the year when it stands right before its digits and after another separator, or first of all. Where
// the number at the other end has three digits or more, it is the year: "1789-07-14" is read in every order.
// Years are astronomical and taken as they stand: 44 is the year 44.
TypedDate ReadTypedDate(std::u16string_view text, int order);

// Returns "14/07/1789": four digits from year 0 on, so that 44 is not taken for 1944; negative years as they
// are.
std::u16string FieldDate(PackedDate ymd, int order);

// Reads the same, and a date in words ("14 juillet 1789", "18 brumaire an VIII", core/date_reader.h) where
// that has one meaning alone and contradicts itself in nothing. `selected` gives what the words leave out.
TypedDate ReadFieldDate(std::u16string_view text, int order, PackedDate selected);

// Returns the reason in French, one sentence; empty for a date that was read.
std::u16string DateFaultText(const TypedDate& typed, int order);

}  // namespace orbisol

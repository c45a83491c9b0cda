// The dates on which countries took up the Gregorian calendar, and how civil years were counted before:
// values that fill the fields of the calendar rules, and that the user may change there.
//
//   NationalReforms()[0].firstGregorian;                            // 15821015, Rome
//   CivilYearRowsOf(CivilYearStyles()[kVenetianStyle], 15821015);   // rows {15820101}, {10000301}
//
// A country has one row here, although its regions may have changed at different times.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "core/calendar_config.h"

namespace orbisol {

struct NationalReform {
  std::u16string_view country;    // in French
  PackedDate lastJulian = 0;      // a Julian date
  PackedDate firstGregorian = 0;  // the day after it, a Gregorian date
  // True where the sources disagree, where only one was found for an unusual date, or where large parts of
  // the country changed at other times.
  bool isDoubtful = false;
};

// Returns Rome, then the countries in the order of a French dictionary. Countries that came from another
// calendar than the Julian have no row.
std::span<const NationalReform> NationalReforms();

enum StyleIndex {
  kAnnunciationStyle,
  kPisanStyle,
  kVenetianStyle,
  kByzantineStyle,
  kEnglishStyle,
  kStyleCount
};

struct CivilYearStyle {
  std::u16string_view name;  // in French
  CivilYearStart first;      // first civil year of the style
  PackedDate closing = 0;    // 1 January of the first year that began on that day again
  PackedDate reform = 0;     // reform that belongs to the style; 0 where any may be set
};
std::span<const CivilYearStyle> CivilYearStyles();  // by StyleIndex

// Returns the rows of a style under a reform, most recent first; the last two are empty. The closing row ends
// the style, so that the years of our time keep their numbers. Where the style lasted longer than the Julian
// calendar does under this reform, the closing row stands at 1 January of the reform's year.
//
// Under a reform before the style's first year the rows are out of order, and FirstBadRow() refuses them.
std::array<CivilYearStart, kCivilYearRows> CivilYearRowsOf(const CivilYearStyle& style, PackedDate reform);

// Returns whether a reform ends a style before its time.
inline bool IsClosedEarly(const CivilYearStyle& style, PackedDate reform) { return style.closing > reform; }

}  // namespace orbisol

// Dates as the user reads them: in the order of the locale, with its names, under the number of the civil
// year.
//
//   LongDate(Date(17890714), false);  // "Mardi 14 juillet 1789"
//   LongDate(Date(17890714), true);   // "14 juillet 1789"
//   CenturyText(1582);                // "Seizième siècle"
#pragma once

#include <string>
#include <string_view>

#include "core/date.h"

namespace orbisol {

// Returns "JJ/MM/AAAA" and the like, by Date::dateOrder; empty for another order.
std::u16string DatePattern(int dateOrder);

// Returns `text` with every "%date%" replaced by the pattern.
std::u16string WithDatePattern(std::u16string_view text, int dateOrder);

// Writes a day in the calendar in force. The weekday's first letter is upper case. Empty for a dateOrder
// outside 0..2.
std::u16string LongDate(const Date& date, bool withoutWeekday);

// Writes the same day in the Julian calendar, with the weekday. The year is the civil one unless
// `historicalYear`.
std::u16string JulianLongDate(const Date& date, bool historicalYear);

// Returns the same day as if the Gregorian calendar had always been in force, without the weekday and under
// the year that begins on 1 January: "14 octobre 1582" for 4 October 1582.
std::u16string ProlepticGregorianText(const Date& date);

// Writes day, month name and year in an order (Date::dateOrder; year first for any order but 0 and 1).
std::u16string DayMonthYear(int dateOrder, int day, std::u16string_view monthName, int year);

// Returns "Vingt-et-unième siècle"; years from 0 down count centuries before the era. Empty from the fiftieth
// century on.
std::u16string CenturyText(int year);

std::u16string MonthName(int month);        // 1..12
std::u16string MonthAbbrev(int month);      // 1..12
std::u16string WeekdayName(int weekday);    // 1 Monday .. 7, and 0 Sunday
std::u16string WeekdayAbbrev(int weekday);  // 1 Monday .. 7, and 0 Sunday

}  // namespace orbisol

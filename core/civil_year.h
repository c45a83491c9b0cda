// Civil years: the numbering of years where they began on another day than 1 January.
//
// A Date is always numbered from 1 January (the historical year). The rows of the rules
// (CalendarRules::firstDayOfYear) say from when on civil years began on another day, and whether their
// number lagged behind (the days before the start counted to the year before) or ran one ahead ("J.+1").
//
//   // with the row {15000325, false}: Florence
//   CivilYear(16000324);  // 1599
//   CivilYear(16000325);  // 1600
//
//   // with the row {15000325, true}, "J.+1": Pisa
//   CivilYear(16000324);             // 1600
//   CivilYear(16000325);             // 1601
//   DayOfCivilYear(Date(16000325));  // 1
//   SetCivilYear(date, 1601);        // 25 March 1600 stays in 1600, 24 March 1600 moves to 1601
#pragma once

#include "core/date.h"

namespace orbisol {

// Returns the row of the table that governs a date: -1 when the table is empty; else the first row (most
// recent first) whose `from` is at or before the date as integers; where none is, the index of the empty row
// that ends the table, which governs nothing.
int CivilRowIndex(const Date& date);

// Returns month * 100 + day on which civil years begin at that date; 101 where no row governs.
int CivilYearStartDay(const Date& date);

int CivilYear(PackedDate packed);
inline int CivilYearOf(const Date& date) { return CivilYear(date.Packed()); }

// Returns 1 on the first day of the civil year. Days are counted as they were: dropped dates are left out.
// Can be 0 or negative where the first day of the year itself was dropped.
int DayOfCivilYear(const Date& date);

// Returns the days after the date to the end of its civil year: 0 on its last day. Where another row begins
// in the same or the next year, day and days left need not add up to the length of a year.
int DaysLeftInCivilYear(const Date& date);

// Changes the year so that the civil year becomes `target`; month and day stay. Returns the civil year that
// the date then has. On purpose: the historical year `target` is tried first and kept also when its civil
// year is the number of the historical year that the date had before the call, whatever `target` is.
int SetCivilYear(Date& date, int target);

// Labels of the years up to 0.
constexpr int kFoundingOfRome = 753;  // years from the founding of the city to year 0
constexpr std::int64_t YearBeforeEra(int year) { return 1 - std::int64_t{year}; }
constexpr std::int64_t YearOfRome(int year) { return std::int64_t{year} + kFoundingOfRome; }
static_assert(YearBeforeEra(-43) == 44 && YearOfRome(-43) == 710);

}  // namespace orbisol

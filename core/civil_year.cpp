#include "core/civil_year.h"

#include <algorithm>

namespace orbisol {
namespace {

bool TableIsEmpty() { return Rules().firstDayOfYear[0].from == 0; }

// Returns the index of the first row that begins on or before a date, else that of the empty row. The end of
// the table is tested first, because its 0 is greater than every date before the era.
int RowAt(PackedDate packed) {
  const CivilYearStart* const rows = Rules().firstDayOfYear;
  int i = 0;
  while (rows[i].from != 0 && rows[i].from > packed) ++i;
  return i;
}

// Returns the month and day of the row that governs a date, or 1 January, as month * 100 + day.
int GoverningStart(const Date& date) {
  const PackedDate from = Rules().firstDayOfYear[RowAt(date.Packed())].from;
  return from == 0 ? kFirstOfJanuary : MonthDayOf(from);
}

// Returns the day number of a day in a year; `monthDay` is month * 100 + day.
std::int64_t DayNumberInYear(std::int64_t year, int monthDay) {
  return Date(Saturate(year), monthDay / 100, monthDay % 100).DayNumber();
}

}  // namespace

int CivilRowIndex(const Date& date) { return TableIsEmpty() ? -1 : RowAt(date.Packed()); }

int CivilYearStartDay(const Date& date) { return std::max(GoverningStart(date), kFirstOfJanuary); }

int CivilYear(PackedDate packed) {
  const YearMonthDay date = Unpack(packed);
  const CivilYearStart& row = Rules().firstDayOfYear[RowAt(packed)];
  if (row.from == 0) return date.year;

  const int start = MonthDayOf(row.from);
  const bool afterStart = date.month * 100 + date.day >= start;
  if (row.plusOne) return start <= kFirstOfJanuary || !afterStart ? date.year : date.year + 1;
  return date.year <= Unpack(row.from).year || afterStart ? date.year : date.year - 1;
}

int DayOfCivilYear(const Date& date) {
  const int start = GoverningStart(date);
  const std::int64_t startYear = std::int64_t{date.year} - (MonthDay(date.month, date.day) < start ? 1 : 0);
  return Saturate(date.DayNumber() - DayNumberInYear(startYear, start) + 1);
}

int DaysLeftInCivilYear(const Date& date) {
  const CivilYearStart* const rows = Rules().firstDayOfYear;
  const int i = RowAt(date.Packed());
  const CivilYearStart next = i > 0 ? rows[i - 1] : CivilYearStart{};

  int start = kFirstOfJanuary;
  bool inThisYear = false;
  if (next.from != 0 && Unpack(next.from).year == date.year) {
    start = MonthDayOf(next.from);
    inThisYear = MonthDay(date.month, date.day) < start;
  } else if (rows[i].from != 0) {
    start = MonthDayOf(rows[i].from);
    inThisYear = MonthDay(date.month, date.day) < start;
  }
  const std::int64_t nextYear = std::int64_t{date.year} + (inThisYear ? 0 : 1);
  return Saturate(DayNumberInYear(nextYear, start) - date.DayNumber() - 1);
}

int SetCivilYear(Date& date, int target) {
  const int yearBefore = date.year;
  date.year = target;
  const int plain = CivilYearOf(date);
  // On purpose: the civil year is compared with the historical year before the call, not with `target`.
  if (plain == yearBefore) return plain;

  int reached = plain;
  for (int step = -1; step <= 1; ++step) {
    date.year = Saturate(std::int64_t{target} + step);
    reached = CivilYearOf(date);
    if (reached == target) break;
  }
  return reached;
}

}  // namespace orbisol

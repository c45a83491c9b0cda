// The cells of one month, laid out by weeks, with all that a view draws in them.
//
//   MonthModel model;
//   model.year = 2024;
//   model.month = 5;
//   model.Build(content, look.colors, MonthModel::kWithMoon);
//   for (int i = model.FirstCell(); i <= model.LastCell(); ++i) …
//
// A row holds seven consecutive cells. Monday-first weeks (iso8601) begin at index 1 and leave index 0 empty,
// Sunday-first weeks begin at index 0. Cells before day 1 and after the last day complete their rows with
// days of the neighboring months; at the two ends of the range shown they stay empty.
#pragma once

#include <array>
#include <string>

#include "content/calendar_content.h"
#include "content/calendar_look.h"
#include "content/day_marks.h"
#include "core/moon.h"

namespace orbisol {

// An empty cell before Monday-first weeks, at most 6 of the month before, 31 days, at most 7 of the month
// after.
constexpr int kCellCount = 1 + 6 + 31 + 7;
constexpr int kNoCell = -1;

struct DayCell {
  int day = 0;      // of the month; 0 in an empty cell
  int weekday = 0;  // 0 Sunday .. 6
  int week = 0;     // 1..53
  int month = 0;    // of the cell's own date, also in cells of the neighboring months
  PackedDate ymd = 0;
  MoonPhase moonPhase = kNoPhase;
  unsigned marks = 0;  // day_marks.h
  Color backColor = 0;
  Color textColor = 0;
  std::u16string vacationTitle;
  std::u16string holidayText;  // public holidays, joined by " + "
  std::u16string eventText;    // other rules, likewise

  bool operator==(const DayCell&) const = default;
};

struct MonthModel {
  enum Moon { kWithoutMoon, kWithMoon };

  std::array<DayCell, kCellCount> cells;
  int year = 0;
  int month = 0;  // 1..12
  int day = 1;    // kept by Build

  // Computes all cells under the rules in force. If the reform removed the 1st, year, month and day move on
  // to the first day that exists, possibly in the next month, and stay there. On purpose: a public holiday
  // hides the personal events of its day; a day's text color is that of holiday or event before vacation, its
  // background that of vacation before holiday before event; days of the neighboring months have no moon and
  // no marks but that of a vacation period.
  void Build(const CalendarContent& content, const std::array<Color, kColorCount>& colors, Moon moon);

  // Returns where the first row begins: 1 with Monday-first weeks, else 0.
  int FirstCell() const { return m_firstCell; }

  // Returns the last cell filled, kNoCell before Build.
  int LastCell() const { return m_lastCell; }

  // Returns the first cell with that month and day, whatever its year; kNoCell when there is none.
  int CellOf(int ofMonth, int ofDay) const;

 private:
  int m_firstCell = 1;
  int m_lastCell = kNoCell;
};

}  // namespace orbisol

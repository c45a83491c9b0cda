// Builds any month of any calendar file, asks for its texts, tips, steps, weeks and phases of the moon, and
// checks the laws that hold for every month.

#include <cstdint>
#include <cstdlib>

#include "content/import_holidays.h"
#include "content/month_highlights.h"
#include "content/selected_date.h"
#include "content/tip_text.h"
#include "core/civil_year.h"
#include "core/date_text.h"
#include "core/moon.h"
#include "core/republican.h"
#include "core/week_number.h"
#include "files/calendar_file.h"

namespace {

using namespace orbisol;

constexpr std::size_t kMaxJoinedUnits = 260;  // greatest length of the names of one day

void Check(bool holds) {
  if (!holds) std::abort();
}

// Checks one filled cell of a month.
void CheckCell(const MonthModel& month, int index) {
  const DayCell& cell = month.cells[static_cast<std::size_t>(index)];
  const YearMonthDay date = Unpack(cell.ymd);
  Check(date.month == cell.month && date.day == cell.day && 1 <= cell.month && cell.month <= 12);
  Check(1 <= cell.day && cell.day <= 31);
  Check(0 <= cell.weekday && cell.weekday <= 6);
  for (const auto& text : {cell.vacationTitle, cell.holidayText, cell.eventText})
    Check(text.size() <= kMaxJoinedUnits);
  if (cell.marks == 0 && cell.moonPhase == kNoPhase) Check(TipText(cell, true).empty());
  Check(!TipText(cell, false).empty());
  // An earlier cell, of the month before, may have the same month and day.
  const int found = month.CellOf(cell.month, cell.day);
  Check(found != kNoCell && found <= index);
}

// Calls everything that the views call for a date.
void CheckTexts(const Date& date) {
  Check(!LongDate(date, false).empty() && !JulianLongDate(date, true).empty());
  const int week = IsoWeekNumber(date);
  Check(1 <= week && week <= 53);
  CivilWeekNumber(date);
  DayOfCivilYear(date);
  DaysLeftInCivilYear(date);
  CenturyText(CivilYearOf(date));
  RepublicanText(date);
}

void CheckSteps(Date date, int steps) {
  for (const int days : {1, -1, 7, -7, steps}) {
    StepDays(date, days);
    Check(IsWithinBounds(date));
  }
  StepMonthsOrYears(date, steps % 100, steps % 7);
  Check(IsWithinBounds(date));
}

void CheckMonth(const CalendarFile& calendar, const YearMonthDay& first) {
  MonthModel month;
  month.year = first.year;
  month.month = first.month;
  month.Build(calendar.content, calendar.look.colors, MonthModel::kWithMoon);
  Check(month.FirstCell() <= month.LastCell() && month.LastCell() < kCellCount);
  for (int i = month.FirstCell(); i <= month.LastCell(); ++i)
    if (month.cells[static_cast<std::size_t>(i)].day != 0) CheckCell(month, i);
  for (const Highlight& highlight : HighlightsOf(month)) Check(!highlight.text.empty());

  MonthModel again = month;
  again.Build(calendar.content, calendar.look.colors, MonthModel::kWithMoon);
  Check(again.cells == month.cells);
}

}  // namespace

// Takes the month from the first three bytes; the others are a calendar file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 3) return 0;
  constexpr int kMonths = 7999 * 12;
  const int chosen = (data[0] << 16 | data[1] << 8 | data[2]) % kMonths;
  const YearMonthDay first{chosen / 12 - 3999, chosen % 12 + 1, 1};
  CalendarFile calendar = ReadCalendar(std::string_view(reinterpret_cast<const char*>(data) + 3, size - 3));
  const ScopedRules scope(calendar.rules);
  CheckMonth(calendar, first);
  Date date(first.year, first.month, 1 + chosen % 28);
  CheckTexts(date);
  CheckSteps(date, chosen);
  if (const auto next = NextPublicHoliday(calendar.content.dayEvents, date)) Check(!next->text.empty());
  ImportHolidays(calendar.content, calendar.content, chosen % 2 == 0);
  return 0;
}

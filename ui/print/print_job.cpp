#include "ui/print/print_job.h"

#include <algorithm>

#include "core/civil_year.h"
#include "core/date_text.h"
#include "core/republican.h"
#include "core/text.h"
#include "resources/command_ids.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

constexpr unsigned kMarkOptions = kHolidayOption | kEventOption | kVacationOption | kMoonOption;
constexpr unsigned kConcordances = kJulianOption | kRepublicanOption;

struct Period {
  int first;
  int last;
};

// Returns the months of a period command, but for the one that asks for the current month.
Period MonthsOfPeriod(int command) {
  if (command >= kCmdPeriodQuarter1 && command <= kCmdPeriodQuarter4) {
    const int first = (command - kCmdPeriodQuarter1) * 3 + 1;
    return {first, first + 2};
  }
  if (command == kCmdPeriodHalf1) return {1, 6};
  if (command == kCmdPeriodHalf2) return {7, 12};
  return {1, 12};
}

bool IsPeriod(int command) { return command >= kCmdPeriodMonth && command <= kCmdPeriodYear; }
bool IsFormat(int command) { return command >= kCmdFormatYear && command <= kCmdFormatTable; }

// Returns the first period command that goes with a format; later ones do too.
int LeastPeriod(int formatCommand) {
  switch (formatCommand) {
    case kCmdFormatYear:
      return kCmdPeriodYear;
    case kCmdFormatHalf:
      return kCmdPeriodHalf1;
    case kCmdFormatQuarter:
      return kCmdPeriodQuarter1;
    default:
      return kCmdPeriodMonth;
  }
}

// Returns 0 for a command that is no option.
unsigned OptionOf(int command) {
  switch (command) {
    case kCmdPrintHolidays:
      return kHolidayOption;
    case kCmdPrintEvents:
      return kEventOption;
    case kCmdPrintVacations:
      return kVacationOption;
    case kCmdPrintMoon:
      return kMoonOption;
    case kCmdPrintImage:
      return kImageOption;
    case kCmdPrintJulian:
      return kJulianOption;
    case kCmdPrintRepublican:
      return kRepublicanOption;
    default:
      return 0;
  }
}

// Returns the options that a format has a use for.
unsigned OptionsOf(int formatCommand) {
  if (formatCommand == kCmdFormatScreen) return 0;
  const bool hasRoom = formatCommand == kCmdFormatMonth || formatCommand == kCmdFormatTable;
  return kMarkOptions | kImageOption | (hasRoom ? kConcordances : 0U);
}

Date FirstDay(const PrintMonth& month) { return {month.year, month.month, 1}; }

Date LastDay(const PrintMonth& month) {
  Date last = FirstDay(month);
  last.day = last.DaysInMonth();
  return last;
}

std::u16string YearsTitle(int first, int last) {
  const bool isBeforeEra = first <= 0 || last <= 0;
  if (first == last)
    return FormatText(Piece(StringText(kTextYearsTitle), u'|', isBeforeEra ? 1 : 0),
                      {first, YearBeforeEra(first)});
  // A year of the era beside the last one before it has no number before the era.
  const bool bothBefore = first <= 0 && last <= 0;
  return FormatText(Piece(StringText(kTextTwoYearsTitle), u'|', bothBefore ? 1 : 0),
                    {first, last, YearBeforeEra(first), YearBeforeEra(last)});
}

std::u16string MonthTitleText(const PrintMonth& month) {
  const int year = CivilYearOf(FirstDay(month));
  const std::u16string name = UpperFirst(MonthName(month.month));
  if (year > 0) return name + u' ' + DecimalText(year);
  return FormatText(StringText(kTextTitleBeforeEra), {name, year, YearBeforeEra(year)});
}

// Returns " · an VIII" for the Republican years of a month; empty before the first.
std::u16string RepublicanYearsText(const PrintMonth& month) {
  const Date last = LastDay(month);
  if (last.IsBefore(kRepublicanEpoch)) return {};
  Date first = FirstDay(month);
  if (first.IsBefore(kRepublicanEpoch)) first.SetPacked(kRepublicanEpoch);
  const int years[] = {ToRepublican(first).year, ToRepublican(last).year};
  return u" · " + FormatText(Piece(StringText(kTextRepublicanYears), u'|', years[0] == years[1] ? 0 : 1),
                             {RomanNumeral(years[0]), RomanNumeral(years[1])});
}

}  // namespace

PrintJob::PrintJob(int year, int month)
    : firstYear(year),
      lastYear(year),
      currentMonth(month),
      periodCommand(kCmdPeriodMonth),
      periodFirst(month),
      periodLast(month),
      formatCommand(kCmdFormatScreen),
      options(kMarkOptions) {}

void PrintJob::ChoosePeriod(int command) {
  if (!IsPeriod(command) || !IsEnabled(command)) return;
  periodCommand = command;
  const Period months =
      command == kCmdPeriodMonth ? Period{currentMonth, currentMonth} : MonthsOfPeriod(command);
  periodFirst = months.first;
  periodLast = months.last;
  if (currentPage >= PageCount()) currentPage = 0;
}

void PrintJob::ChooseFormat(int command) {
  if (!IsFormat(command)) return;
  formatCommand = command;
  periodCommand = std::max(periodCommand, LeastPeriod(command));
  if (command == kCmdFormatScreen) options &= ~static_cast<unsigned>(kImageOption);
  currentPage = 0;
}

void PrintJob::ToggleOption(int command) {
  if (IsEnabled(command)) options ^= OptionOf(command);
}

void PrintJob::ShowPage(int page) {
  if (page >= 0 && page < PageCount()) currentPage = page;
}

bool PrintJob::IsEnabled(int command) const {
  if (IsPeriod(command)) return command >= LeastPeriod(formatCommand);
  if (command == kCmdPreviousPage) return currentPage > 0;
  if (command == kCmdNextPage) return currentPage < PageCount() - 1;
  const unsigned option = OptionOf(command);
  return option == 0 || (option & OptionsOf(formatCommand)) != 0;
}

bool PrintJob::IsChecked(int command) const {
  if (IsPeriod(command)) return command == periodCommand;
  if (IsFormat(command)) return command == formatCommand;
  return (OptionOf(command) & options & OptionsOf(formatCommand)) != 0;
}

bool PrintJob::Has(PrintOption option) const { return (option & options & OptionsOf(formatCommand)) != 0; }

int PrintJob::FirstMonth() const {
  const int perPage = MonthsPerPage();
  return (periodFirst - 1) / perPage * perPage + 1;
}

int PrintJob::LastMonth() const {
  const int perPage = MonthsPerPage();
  return (periodLast + perPage - 1) / perPage * perPage;
}

int PrintJob::MonthsPerPage() const {
  switch (formatCommand) {
    case kCmdFormatYear:
      return 12;
    case kCmdFormatHalf:
      return 6;
    case kCmdFormatQuarter:
      return 3;
    default:
      return 1;
  }
}

int PrintJob::PagesPerYear() const { return (LastMonth() - FirstMonth() + 1) / MonthsPerPage(); }

int PrintJob::PageCount() const { return PagesPerYear() * (lastYear - firstYear + 1); }

PrintMonth PrintJob::MonthOnPage(int page, int index) const {
  const int perYear = PagesPerYear();
  return {firstYear + page / perYear, FirstMonth() + page % perYear * MonthsPerPage() + index};
}

std::u16string PrintJob::Caption(int page) const {
  const PrintMonth first = {firstYear, FirstMonth()};
  const PrintMonth last = {lastYear, LastMonth()};
  const std::u16string firstName = MonthName(first.month);
  const int year = CivilYearOf(FirstDay(first));
  if (first == last) return FormatText(StringText(kTextPageOfMonth), {firstName, year});
  return FormatText(StringText(kTextPageOfMonths), {page + 1, PageCount(), firstName, year,
                                                    MonthName(last.month), CivilYearOf(LastDay(last))});
}

std::u16string PrintJob::Title(int page) const {
  const PrintMonth first = MonthOnPage(page, 0);
  const bool hasMonth = formatCommand == kCmdFormatScreen || formatCommand == kCmdFormatTable;
  const PrintMonth last = MonthOnPage(page, MonthsPerPage() - 1);
  std::u16string title =
      hasMonth ? MonthTitleText(first) : YearsTitle(CivilYearOf(FirstDay(first)), CivilYearOf(LastDay(last)));
  if (Has(kRepublicanOption)) title += RepublicanYearsText(first);
  return title;
}

PrintJob PrintJob::WithYears(int first, int last) const {
  PrintJob job = *this;
  job.firstYear = first;
  job.lastYear = last;
  job.currentPage = 0;
  return job;
}

}  // namespace orbisol

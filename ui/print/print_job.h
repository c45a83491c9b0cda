// What is printed: which months of which years, how many of them on a page, and what is marked on their days.
//
//   PrintJob job(2024, 5);            // May 2024 as on the screen, on one page
//   job.ChoosePeriod(kCmdPeriodYear);
//   job.ChooseFormat(kCmdFormatQuarter);
//   job.PageCount();                  // 4
//   job.MonthOnPage(1, 0);            // {2024, 4}
//   job.Caption(1);                   // u"Page 2 / 4 (Imprimer de janvier 2024 à décembre 2024)"
//   job.WithYears(1900, 1999);        // the same for a century, 400 pages numbered through
//
// A plain value: a window keeps one and copies it for a job that runs, which then prints the state it began
// with. Commands are those of resources/command_ids.h. Pages and the months on a page are counted from 0.
#pragma once

#include <string>

namespace orbisol {

// The options, bits of PrintJob::options.
enum PrintOption : unsigned {
  kHolidayOption = 1,
  kEventOption = 2,
  kVacationOption = 4,
  kMoonOption = 8,
  kImageOption = 16,       // the inserted picture
  kJulianOption = 32,      // dates of the Julian calendar
  kRepublicanOption = 64,  // dates of the Republican calendar
};

struct PrintMonth {
  int year = 0;
  int month = 0;  // 1..12

  bool operator==(const PrintMonth&) const = default;
};

struct PrintJob {
  int firstYear;  // the year shown, and normally the only one
  int lastYear;   // firstYear or later
  int currentMonth;
  int periodCommand;    // the checked command of the menu "Période"
  int periodFirst;      // months chosen by the period, 1..12
  int periodLast;       // periodFirst or later
  int formatCommand;    // the checked command of the menu "Format"
  int currentPage = 0;  // the page shown
  unsigned options;     // PrintOption; those that the format has no use for are kept

  // Begins with one month as on the screen and the marks of days that the screen has.
  PrintJob(int year, int month);

  // Choose a period (113..120) or a format (121..126). On purpose: a format that goes with other periods
  // alone moves the check mark to one of them and leaves the months of the period, which are rounded to
  // whole pages: May, a quarter a page, prints April to June under "1er trimestre". A format shows its first
  // page; a period stays on its page as long as there is one. A period that is not enabled and any other
  // number are ignored.
  void ChoosePeriod(int command);
  void ChooseFormat(int command);

  // Turns an option (127..130, 40025, 5240, 5241) on or off; one that is not enabled is left alone.
  void ToggleOption(int command);

  // Shows another page; a page that there is not is ignored.
  void ShowPage(int page);

  // Return the state of a command of periods, formats, options or pages (133, 134); an option that the format
  // has no use for is disabled and shown without a mark. Any other number is enabled and not checked.
  bool IsEnabled(int command) const;
  bool IsChecked(int command) const;

  // Returns whether the pages have an option: it is on and the format has a use for it.
  bool Has(PrintOption option) const;

  // Return the months printed in each year, 1..12: the period, rounded to whole pages.
  int FirstMonth() const;
  int LastMonth() const;

  int MonthsPerPage() const;  // 12, 6, 3 or 1
  int PagesPerYear() const;
  int PageCount() const;  // of all years

  // Returns month `index` of a page. Both must be there.
  PrintMonth MonthOnPage(int page, int index) const;

  // Returns "Page 1 / 1 (mai 2024)" and the like. Years are civil ones, that of the first day of the first
  // month and that of the last day of the last.
  std::u16string Caption(int page) const;

  // Returns the title over the months of a page: "2024", both civil years where two meet, "Mai 2024" where
  // the format needs the month; before the era followed by the year before it: "-43 (44 av. JC)".
  std::u16string Title(int page) const;

  // Returns the same job for other years, from `first` to `last`, on its first page.
  PrintJob WithYears(int first, int last) const;
};

}  // namespace orbisol

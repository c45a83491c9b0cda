#include "ui/print/page_spoken.h"

#include "content/calendar_look.h"
#include "content/month_highlights.h"
#include "core/civil_year.h"
#include "core/date_text.h"
#include "resources/command_ids.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

constexpr int kKinds = 3;  // pieces of kTextDayKinds that name what falls on a day

// Returns whether the page marks days of a kind. The month as on the screen marks all.
bool IsMarked(const PrintJob& job, HighlightKind kind) {
  if (job.formatCommand == kCmdFormatScreen) return true;
  switch (kind) {
    case HighlightKind::kHoliday:
      return job.Has(kHolidayOption);
    case HighlightKind::kEvent:
      return job.Has(kEventOption);
    case HighlightKind::kVacation:
      return job.Has(kVacationOption);
    default:
      return job.Has(kMoonOption);
  }
}

// Returns "1 mai 2024, jour férié : Fête du Travail". The name of a phase of the moon says its kind itself.
std::u16string SpokenHighlight(const Highlight& highlight) {
  std::u16string text = LongDate(Date(highlight.date), true);
  const int kind = static_cast<int>(highlight.kind);
  if (kind >= kKinds) return text + u", " + highlight.text;
  return text +
         FormatText(StringText(kTextOfKind), {Piece(StringText(kTextDayKinds), u'|', kind), highlight.text});
}

}  // namespace

std::u16string SpokenPageName(const PrintJob& job) {
  return FormatText(StringText(kTextSpokenPage), {job.currentPage + 1, job.PageCount()});
}

std::u16string SpokenPage(const PrintJob& job, const CalendarContent& content) {
  std::u16string months;
  std::u16string days;
  for (int index = 0; index < job.MonthsPerPage(); ++index) {
    const PrintMonth shown = job.MonthOnPage(job.currentPage, index);
    MonthModel month;
    month.year = shown.year;
    month.month = shown.month;
    month.Build(content, CalendarLook().colors, MonthModel::kWithMoon);
    if (index > 0) months += u", ";
    months += MonthName(shown.month) + u' ' + DecimalText(CivilYearOf(Date(shown.year, shown.month, 1)));
    for (const Highlight& highlight : HighlightsOf(month))
      if (IsMarked(job, highlight.kind)) days += u' ' + SpokenHighlight(highlight) + u'.';
  }
  return UpperFirst(months) + u'.' + days;
}

}  // namespace orbisol

#include "content/tip_text.h"

#include "core/date_text.h"

namespace orbisol {

std::u16string TipText(const DayCell& cell, bool eventsOnly) {
  if (cell.day == 0) return {};
  std::u16string text;
  if (!eventsOnly) text = LongDate(Date(cell.ymd), false);
  for (const std::u16string* line : {&cell.holidayText, &cell.eventText, &cell.vacationTitle}) {
    if (line->empty()) continue;
    text += u'\n';
    text += *line;
  }
  if (cell.moonPhase != kNoPhase) {
    text += u"\n(";
    text += MoonPhaseName(cell.moonPhase);
    text += u')';
  }
  if (!text.empty() && text.front() == u'\n') text.erase(0, 1);
  return text;
}

}  // namespace orbisol

#include "content/reform_note.h"

#include <algorithm>

#include "content/selected_date.h"
#include "core/date.h"
#include "core/date_text.h"
#include "core/text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

enum { kBefore, kAtReform, kWithoutReform };  // indices of the pieces of kTextReform

int MonthIndex(int year, int month) { return 12 * year + month; }

}  // namespace

std::u16string ReformNote(int year, int month) {
  const std::u16string_view texts = StringText(kTextReform);
  const int reform = Rules().firstGregorianDayNumber;
  if (reform > Date(kLastDateShown).DayNumber()) return std::u16string(Piece(texts, u'|', kWithoutReform));
  const Date first = DateOfDayNumber(reform);
  const Date last = DateOfDayNumber(reform - 1);
  // In the first centuries the first Gregorian day has an earlier date than the last Julian day.
  const auto [from, to] =
      std::minmax({MonthIndex(last.year, last.month), MonthIndex(first.year, first.month)});
  const int asked = MonthIndex(year, month);
  if (asked > to) return {};
  if (asked < from) return FormatText(Piece(texts, u'|', kBefore), {LongDate(last, true)});
  return FormatText(Piece(texts, u'|', kAtReform), {LongDate(last, true), LongDate(first, true)});
}

}  // namespace orbisol

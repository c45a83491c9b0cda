#include "content/spoken_text.h"

#include "core/civil_year.h"
#include "core/date_text.h"
#include "core/moon.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

// Indices of the pieces of kTextDayKinds.
enum { kKindHoliday, kKindEvent, kKindVacation, kKindToday };

// Returns "31 novembre", "1er décembre" and the like.
std::u16string DayAndMonth(const Date& date) {
  const std::u16string month = MonthName(date.month);
  const std::u16string_view forms = StringText(kTextDayOfMonth);
  if (date.day == 1) return FormatText(Piece(forms, u'|', 1), {month});
  return FormatText(Piece(forms, u'|', 0), {date.day, month});
}

std::u16string WithYear(const Date& date) {
  return DayAndMonth(date) + u' ' + DecimalText(CivilYearOf(date));
}

}  // namespace

std::u16string MissingDateText(const Date& date) {
  const Date counted = DateOfDayNumber(date.DayNumber());
  // On purpose: 29 February -8 exists, though it shares the day number of the 1 March after it.
  constexpr PackedDate kSharesItsNumber = -80229;
  if (counted.SameDay(date) || date.Packed() == kSharesItsNumber) return {};
  const bool isSameYear = CivilYearOf(counted) == CivilYearOf(date);
  return FormatText(StringText(kTextMissingDate),
                    {WithYear(date), isSameYear ? DayAndMonth(counted) : WithYear(counted)});
}

std::u16string RangeText(const Date& from, const Date& to) {
  const int days = to.DayNumber() - from.DayNumber() + 1;
  const std::u16string_view forms = StringText(kTextRange);
  if (days == 1) return FormatText(Piece(forms, u'|', 0), {WithYear(to)});
  return FormatText(Piece(forms, u'|', 1), {WithYear(from), WithYear(to), days});
}

std::u16string DayCountText(const Date& date) {
  const int day = DayOfCivilYear(date);
  const int left = DaysLeftInCivilYear(date);
  const std::u16string_view forms = StringText(kTextCountsInWords);
  if (day < 1 || left < 0) return {};
  const bool isYearNext = DayOfCivilYear(DateOfDayNumber(date.DayNumber() + left + 1)) == 1;
  if (!isYearNext) return FormatText(Piece(forms, u'|', day == 1 ? 4 : 3), {day});
  if (left == 0) return FormatText(Piece(forms, u'|', 2), {day});
  if (day == 1) return FormatText(Piece(forms, u'|', 1), {left});
  return FormatText(Piece(forms, u'|', 0), {day, left});
}

std::u16string SpokenDay(const DayCell& cell, PackedDate today) {
  if (cell.day == 0) return {};
  std::u16string text = LongDate(Date(cell.ymd), false);
  const auto kind = [](int n) { return Piece(StringText(kTextDayKinds), u'|', n); };
  if (cell.ymd == today) text += FormatText(u", %s", {kind(kKindToday)});
  const struct {
    int kind;
    const std::u16string& names;
  } kTexts[] = {
      {kKindHoliday, cell.holidayText}, {kKindEvent, cell.eventText}, {kKindVacation, cell.vacationTitle}};
  for (const auto& row : kTexts)
    if (!row.names.empty()) text += FormatText(StringText(kTextOfKind), {kind(row.kind), row.names});
  if (cell.moonPhase != kNoPhase) text += FormatText(u", %s", {MoonPhaseName(cell.moonPhase)});
  return text;
}

}  // namespace orbisol

#include "ui/print/concordance.h"

#include <algorithm>

#include "core/date_text.h"
#include "core/republican.h"
#include "core/text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

constexpr int kDaysInDecade = 10;

// Returns "1er mai" or "14 juillet".
std::u16string DayAndMonth(int day, std::u16string_view month) {
  const std::u16string_view patterns = StringText(kTextDayOfMonth);
  return day == 1 ? FormatText(Piece(patterns, u'|', 1), {month})
                  : FormatText(Piece(patterns, u'|', 0), {day, month});
}

OtherDate JulianDate(const Date& date, bool withMonth) {
  const YearMonthDay julian = Unpack(date.JulianForm());
  OtherDate other;
  other.text = withMonth || julian.day == 1 ? DayAndMonth(julian.day, MonthName(julian.month))
                                            : DecimalText(julian.day);
  return other;
}

OtherDate RepublicanDateText(const Date& date, bool withMonth) {
  const RepublicanDate republican = ToRepublican(date);
  const int day = republican.dayIndex + 1;
  OtherDate other;
  other.beginsDecade = republican.dayIndex % kDaysInDecade == 0;
  if (!withMonth && day != 1) {
    other.text = DecimalText(day);
  } else if (republican.monthIndex == kComplementaryMonth) {
    other.text = ComplementaryDay(day);
  } else {
    other.text = DayAndMonth(day, RepublicanMonthName(republican.monthIndex));
  }
  return other;
}

}  // namespace

std::span<const DayCell> DaysOfMonth(const MonthModel& model) {
  const auto isOwn = [&](const DayCell& cell) { return cell.day != 0 && cell.month == model.month; };
  const auto first = std::find_if(model.cells.begin(), model.cells.end(), isOwn);
  const auto end = std::find_if_not(first, model.cells.end(), isOwn);
  return {first, end};
}

std::vector<OtherDate> OtherDates(std::span<const DayCell> days, OtherCalendar calendar) {
  std::vector<OtherDate> dates;
  bool withMonth = true;
  for (const DayCell& day : days) {
    const Date date(day.ymd);
    if (calendar == OtherCalendar::kRepublican && date.IsBefore(kRepublicanEpoch)) {
      dates.emplace_back();
      continue;
    }
    dates.push_back(calendar == OtherCalendar::kJulian ? JulianDate(date, withMonth)
                                                       : RepublicanDateText(date, withMonth));
    withMonth = false;
  }
  return dates;
}

std::u16string ComplementaryDay(int day) { return DayAndMonth(day, StringText(kTextComplementaryDay)); }

std::vector<std::u16string> LongestDates(OtherCalendar calendar) {
  constexpr int kMonths = 12;
  constexpr int kLongestDay = 30;
  std::vector<std::u16string> dates;
  for (int month = 0; month < kMonths; ++month) {
    const std::u16string name =
        calendar == OtherCalendar::kJulian ? MonthName(month + 1) : RepublicanMonthName(month);
    dates.push_back(DayAndMonth(1, name));
    dates.push_back(DayAndMonth(kLongestDay, name));
  }
  return dates;
}

}  // namespace orbisol

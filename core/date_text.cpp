#include "core/date_text.h"

#include "core/civil_year.h"
#include "core/platform.h"
#include "core/text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

// Returns the weekday's name, 1 Monday .. 7, followed by the rest of a date; a comma stands between them
// unless the day comes first.
std::u16string WithWeekday(int dateOrder, int weekday, const std::u16string& rest) {
  return UpperFirst(WeekdayName(weekday)) + (dateOrder == 1 ? u" " : u", ") + rest;
}

int NameIndex(int weekday) { return weekday == 0 ? 7 : weekday; }

}  // namespace

std::u16string DatePattern(int dateOrder) {
  return std::u16string(Piece(StringText(kTextDatePatterns), u'|', dateOrder));
}

std::u16string WithDatePattern(std::u16string_view text, int dateOrder) {
  return ReplaceAll(text, u"%date%", DatePattern(dateOrder));
}

std::u16string DayMonthYear(int dateOrder, int day, std::u16string_view monthName, int year) {
  switch (dateOrder) {
    case 0:
      return FormatText(u"%s %d, %d", {monthName, day, year});
    case 1:
      return FormatText(u"%d %s %d", {day, monthName, year});
    default:
      return FormatText(u"%d %s %d", {year, monthName, day});
  }
}

std::u16string LongDate(const Date& date, bool withoutWeekday) {
  if (date.dateOrder < 0 || date.dateOrder > 2) return {};
  const std::u16string text =
      DayMonthYear(date.dateOrder, date.day, MonthName(date.month), CivilYear(date.Packed()));
  return withoutWeekday ? text : WithWeekday(date.dateOrder, date.Weekday(false), text);
}

std::u16string JulianLongDate(const Date& date, bool historicalYear) {
  const PackedDate packed = date.JulianForm();
  const YearMonthDay julian = Unpack(packed);
  const int year = historicalYear ? julian.year : CivilYear(packed);
  return WithWeekday(date.dateOrder, date.Weekday(false),
                     DayMonthYear(date.dateOrder, julian.day, MonthName(julian.month), year));
}

std::u16string ProlepticGregorianText(const Date& date) {
  const int dayNumber = date.DayNumber();
  CalendarRules rules;
  rules.ApplyGregorianStart(kAlwaysGregorian);
  const ScopedRules inForce(rules);
  return LongDate(DateOfDayNumber(dayNumber), true);
}

std::u16string CenturyText(int year) {
  const std::int64_t y = year;
  const std::int64_t century = (y >= 1 ? y - 1 : -y) / 100 + 1;
  if (century >= 50) return {};

  const auto n = static_cast<int>(century);
  const auto ordinal = [](int unit) { return Piece(StringText(kTextCenturies), u'|', unit - 1); };
  std::u16string text;
  if (n < 20) {
    text = ordinal(n);
  } else if (n % 10 == 0) {
    text = Piece(StringText(kTextTenthCenturies), u'|', n / 10 - 2);
  } else {
    text = Piece(StringText(kTextCenturyTens), u'|', n / 10 - 2);
    text += u'-';
    text += n % 10 == 1 ? StringText(kTextCenturyFirst) : ordinal(n % 10);
  }
  text = UpperFirst(text) + u' ';
  text += StringText(year >= 1 ? kTextCentury : kTextCenturyBeforeEra);
  return text;
}

std::u16string MonthName(int month) { return CurrentPlatform().locale->MonthName(month); }
std::u16string MonthAbbrev(int month) { return CurrentPlatform().locale->MonthAbbrev(month); }
std::u16string WeekdayName(int weekday) { return CurrentPlatform().locale->WeekdayName(NameIndex(weekday)); }
std::u16string WeekdayAbbrev(int weekday) {
  return CurrentPlatform().locale->WeekdayAbbrev(NameIndex(weekday));
}

}  // namespace orbisol

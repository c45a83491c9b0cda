#include "core/republican.h"

#include <algorithm>

#include "core/text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

constexpr int LeapDaysBefore(int year) { return year / 4 - year / 100 + year / 400; }

std::u16string_view Item(int textId, int index) { return Piece(StringText(textId), u'|', index); }

}  // namespace

RepublicanDate ToRepublican(const Date& date) {
  // `days` counts from the first day of the year 0, one year of 365 days before the epoch.
  const std::int64_t days = std::int64_t{date.DayNumber()} - Date(kRepublicanEpoch).DayNumber() + kDaysInYear;
  const std::int64_t q400 = days / kDaysIn400Years;
  auto rest = static_cast<int>(days - kDaysIn400Years * q400);
  const int q100 = rest / kDaysIn100Years;
  rest -= kDaysIn100Years * q100;
  const int q4 = (rest + 1) / kDaysIn4Years;
  rest -= kDaysIn4Years * q4;
  const int q1 = rest / kDaysInYear;
  auto year = static_cast<int>(400 * q400) + 100 * q100 + 4 * q4 + q1;
  int dayOfYear = rest - kDaysInYear * q1;
  // The sixth complementary day ends its four years, but the "+ 1" above has put it before the next year.
  if (dayOfYear == -1 && year % 4 == 0) {
    --year;
    dayOfYear = kDaysInYear;
  }
  return {year, dayOfYear / 30, dayOfYear % 30};
}

int ComplementaryDays(int year) {
  const std::int64_t next = std::int64_t{year} + 1;  // divisible by 4 after a sextile year
  return next % 4 == 0 && (next % 100 != 0 || next % 400 == 0) ? 6 : 5;
}

Date FromRepublican(int year, int month, int day) {
  const int a = std::clamp(year, 1, kLastRepublicanYear);
  const int m = std::clamp(month, 1, kComplementaryMonth + 1);
  const int d = std::clamp(day, 1, m == kComplementaryMonth + 1 ? 6 : 30);
  Date date(kRepublicanEpoch);
  date.AddDays(kDaysInYear * (a - 1) + LeapDaysBefore(a) + 30 * (m - 1) + d - 1);
  return date;
}

std::u16string RomanNumeral(int n) {
  if (n >= 4999) return {};
  struct Numeral {
    int value;
    std::u16string_view letters;
  };
  static constexpr Numeral kNumerals[] = {{1000, u"M"}, {900, u"CM"}, {500, u"D"}, {400, u"CD"}, {100, u"C"},
                                          {90, u"XC"},  {50, u"L"},   {40, u"XL"}, {10, u"X"},   {9, u"IX"},
                                          {5, u"V"},    {4, u"IV"},   {1, u"I"}};
  std::u16string text;
  for (const Numeral& numeral : kNumerals) {
    for (; n >= numeral.value; n -= numeral.value) text += numeral.letters;
  }
  return text;
}

std::u16string RepublicanMonthName(int monthIndex) {
  return std::u16string(Item(kTextRepublicanMonths, monthIndex));
}

std::u16string RepublicanText(const Date& date) {
  if (date.DayNumber() < Date(kRepublicanEpoch).DayNumber()) return {};
  const RepublicanDate republican = ToRepublican(date);
  const std::u16string roman = RomanNumeral(republican.year);
  if (republican.monthIndex == kComplementaryMonth)
    return FormatText(StringText(kTextRepublicanComplementaryDay),
                      {Item(kTextComplementaryDays, republican.dayIndex), republican.year, roman});
  return FormatText(StringText(kTextRepublicanDay),
                    {Item(kTextDecadeDays, republican.dayIndex % 10), republican.dayIndex + 1,
                     Item(kTextRepublicanMonths, republican.monthIndex), republican.year, roman});
}

}  // namespace orbisol

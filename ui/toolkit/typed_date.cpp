#include "ui/toolkit/typed_date.h"

#include <algorithm>
#include <array>
#include <vector>

#include "content/selected_date.h"
#include "core/calendar_config.h"
#include "core/date.h"
#include "core/date_reader.h"
#include "core/date_text.h"
#include "core/text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

constexpr int kNumbers = 3;
constexpr std::size_t kMostDigits = 6;        // a longer number is no year, and could overflow an int
constexpr std::size_t kFewestYearDigits = 3;  // from here on a number can only be a year

struct Number {
  int value = 0;
  std::size_t digits = 0;
  bool isNegative = false;
};

bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
bool IsMinus(char16_t unit) { return unit == u'-' || unit == u'\u2212'; }
bool IsSeparator(char16_t unit) {
  return IsMinus(unit) || std::u16string_view(u"/. \t\u00A0\u202F").find(unit) != std::u16string_view::npos;
}

// Indices of year, month and day among the three numbers.
struct Places {
  std::size_t year, month, day;
};
Places PlacesOf(int order) {
  if (order == 0) return {2, 0, 1};
  return order == 1 ? Places{2, 1, 0} : Places{0, 1, 2};
}

bool LooksLikeYear(const Number& number) { return number.digits >= kFewestYearDigits; }

DateFault FaultOf(const YearMonthDay& date) {
  if (date.month < 1 || date.month > 12) return DateFault::kNoMonth;
  if (!IsYearShown(date.year)) return DateFault::kOutOfBounds;
  if (DoesDateExist(date)) return DateFault::kNone;
  return Rules().IsDropped(Pack(date.year, date.month, date.day)) ? DateFault::kDropped : DateFault::kNoDay;
}

std::u16string Padded(int number, std::size_t digits) {
  const std::u16string text = DecimalText(number);
  return number < 0 || text.size() >= digits ? text : std::u16string(digits - text.size(), u'0') + text;
}

}  // namespace

TypedDate ReadTypedDate(std::u16string_view text, int order) {
  std::array<Number, kNumbers> numbers;
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size();) {
    if (!IsDigit(text[i])) {
      if (!IsSeparator(text[i])) return {0, DateFault::kNotADate};
      ++i;
      continue;
    }
    if (count == kNumbers) return {0, DateFault::kNotADate};
    Number& number = numbers[count++];
    number.isNegative = i > 0 && IsMinus(text[i - 1]) && (i == 1 || IsSeparator(text[i - 2]));
    for (; i < text.size() && IsDigit(text[i]); ++i) {
      if (++number.digits > kMostDigits) return {0, DateFault::kNotADate};
      number.value = number.value * 10 + (text[i] - u'0');
    }
  }
  if (count < kNumbers) return {0, DateFault::kIncomplete};

  Places places = PlacesOf(order);
  if (places.year == 2 && LooksLikeYear(numbers[0]) && !LooksLikeYear(numbers[2])) places = PlacesOf(2);
  if (places.year == 0 && LooksLikeYear(numbers[2]) && !LooksLikeYear(numbers[0])) places = PlacesOf(1);
  const Number& year = numbers[places.year];
  TypedDate typed;
  typed.fields = {year.isNegative ? -year.value : year.value, numbers[places.month].value,
                  numbers[places.day].value};
  typed.fault = FaultOf(typed.fields);
  if (typed.fault == DateFault::kNone)
    typed.ymd = Pack(typed.fields.year, typed.fields.month, typed.fields.day);
  return typed;
}

TypedDate ReadFieldDate(std::u16string_view text, int order, PackedDate selected) {
  const TypedDate typed = ReadTypedDate(text, order);
  if (typed.fault != DateFault::kNotADate) return typed;
  const std::vector<DateReading> readings = ReadDates(text, selected).readings;
  const bool isOne =
      readings.size() == 1 && readings[0].note != DateNote::kMissing && !readings[0].isOtherWeekday;
  return isOne ? TypedDate{readings[0].date, DateFault::kNone, Unpack(readings[0].date)} : typed;
}

std::u16string FieldDate(PackedDate ymd, int order) {
  const YearMonthDay date = Unpack(ymd);
  const Places places = PlacesOf(order);
  std::array<std::u16string, kNumbers> numbers;
  numbers[places.year] = Padded(date.year, 4);
  numbers[places.month] = Padded(date.month, 2);
  numbers[places.day] = Padded(date.day, 2);
  return numbers[0] + u'/' + numbers[1] + u'/' + numbers[2];
}

std::u16string DateFaultText(const TypedDate& typed, int order) {
  if (typed.fault == DateFault::kNone) return {};
  const std::u16string_view pattern =
      Piece(StringText(kTextDateFaults), u'|', static_cast<int>(typed.fault) - 1);
  if (typed.fault == DateFault::kNoDay) {
    const std::u16string month = MonthName(typed.fields.month);
    return FormatText(pattern, {month, typed.fields.year, typed.fields.day});
  }
  if (typed.fault == DateFault::kDropped) {
    const std::u16string before = LongDate(DateOfDayNumber(Rules().firstGregorianDayNumber - 1), true);
    const std::u16string after = LongDate(DateOfDayNumber(Rules().firstGregorianDayNumber), true);
    return FormatText(pattern, {before, after});
  }
  return WithDatePattern(pattern, order);
}

}  // namespace orbisol

// Dates with the name of a month, and the days that the Romans named.

#include <algorithm>

#include "core/reader/forms.h"

namespace orbisol::reader {
namespace {

constexpr int kLongestMonth = 31;
constexpr int kYearFirst = 2;  // an order of dates
constexpr int kShortYear = 2;  // digits of a year without its century

enum RomanDay { kCalends = 1, kNones = 2, kIdes = 3 };

// March, May, July and October have their nones and ides two days later than the others.
int DayOfMonth(int romanDay, int month) {
  const int later = month == 3 || month == 5 || month == 7 || month == 10 ? 2 : 0;
  if (romanDay == kCalends) return 1;
  return later + (romanDay == kNones ? 5 : 13);
}

}  // namespace

bool LooksLikeYear(const Item& number) {
  return number.digits > kShortYear || HasSign(number) || number.hasApostrophe || number.isYear ||
         number.value > kLongestMonth;
}

bool ReadMonthName(CAnswer& answer) {
  const Request& request = answer.Asked();
  const Item* const month = request.FirstOf(WordKind::kMonth);
  const std::size_t numbers = request.CountNumbers();
  if (month == nullptr || !request.ConsistsOf(WordKind::kMonth) || request.items.size() != numbers + 1 ||
      numbers > 2)
    return false;
  const Item* const first = request.FirstOf(WordKind::kNumber);
  if (numbers == 0) {
    answer.AddPulledBack({request.selected.year, month->value, request.selected.day});
    return true;
  }
  if (numbers == 1) {
    if (LooksLikeYear(*first)) {
      answer.AddYears(*first, month->value, request.selected.day, true);
    } else {
      answer.AddDate({request.selected.year, month->value, first->value});
    }
    return true;
  }
  const Item* const last = &*std::find_if(request.items.rbegin(), request.items.rend(), IsNumber);
  const bool firstIsYear =
      LooksLikeYear(*first) != LooksLikeYear(*last) ? LooksLikeYear(*first) : request.order == kYearFirst;
  const Item& year = firstIsYear ? *first : *last;
  const Item& day = firstIsYear ? *last : *first;
  if (HasSign(day)) {
    answer.Refuse(DateRefusal::kNotADate);
  } else {
    answer.AddYears(year, month->value, day.value);
  }
  return true;
}

bool ReadRomanDay(CAnswer& answer) {
  const Request& request = answer.Asked();
  const Item* const named = request.FirstOf(WordKind::kRomanDay);
  if (named == nullptr) return false;
  const Item* const month = request.FirstOf(WordKind::kMonth);
  const std::size_t numbers = request.CountNumbers();
  if (month == nullptr || request.items.size() != numbers + 2 || numbers > 1) return false;
  const int day = DayOfMonth(named->value, month->value);
  const Item* const number = request.FirstOf(WordKind::kNumber);
  if (number == nullptr) {
    answer.AddDate({request.selected.year, month->value, day});
  } else if (number < named && !LooksLikeYear(*number)) {  // "le 15 des calendes": nothing is counted back
    answer.Refuse(DateRefusal::kNotADate);
  } else {
    answer.AddYears(*number, month->value, day);
  }
  return true;
}

}  // namespace orbisol::reader

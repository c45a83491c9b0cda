// Days that are counted from today or from the selected date.

#include <algorithm>

#include "core/reader/forms.h"

namespace orbisol::reader {
namespace {

constexpr int kMonthsAYear = 12;
constexpr int kMostYearDigits = 4;

void AddDays(CAnswer& answer, const Date& from, std::int64_t days) {
  answer.AddDayNumber(std::int64_t{from.DayNumber()} + days, {});
}

// Adds a day. A step of months may end on a date that the reform removed; the day that it counts as is taken.
void AddMonths(CAnswer& answer, std::int64_t months) {
  Date date = Date::Today();
  date.AddMonths(Saturate(months));
  answer.AddDay(DoesDateExist({date.year, date.month, date.day}) ? date : DateOfDayNumber(date.DayNumber()),
                {});
}

// Reads "dans 3 semaines" and "il y a 2 ans".
bool ReadDistance(CAnswer& answer) {
  const std::vector<Item>& items = answer.Asked().items;
  const bool isDistance = items.size() == 3 &&
                          (items[0].kind == WordKind::kIn || items[0].kind == WordKind::kAgo) &&
                          IsNumber(items[1]) && !HasSign(items[1]);
  if (!isDistance) return false;
  const std::int64_t count = items[0].kind == WordKind::kIn ? items[1].value : -items[1].value;
  switch (items[2].kind) {
    case WordKind::kDay:
      AddDays(answer, Date::Today(), count);
      return true;
    case WordKind::kWeek:
      AddDays(answer, Date::Today(), count * kDaysInWeek);
      return true;
    case WordKind::kMonths:
      AddMonths(answer, count);
      return true;
    case WordKind::kYears:
      AddMonths(answer, count * kMonthsAYear);
      return true;
    default:
      return false;
  }
}

// Reads "lundi prochain" after today, "lundi dernier" before; "lundi" alone is the next one, today included.
bool ReadWeekdayAlone(CAnswer& answer) {
  const Request& request = answer.Asked();
  if (request.weekday == 0 || request.items.size() > 1) return false;
  const WordKind kind = request.items.empty() ? WordKind::kNone : request.items[0].kind;
  if (kind != WordKind::kNone && kind != WordKind::kNext && kind != WordKind::kLast) return false;
  const Date today = Date::Today();
  const int ahead = (request.weekday - today.Weekday(true) + kDaysInWeek) % kDaysInWeek;  // [0, 6]
  const int next = kind == WordKind::kNext && ahead == 0 ? kDaysInWeek : ahead;
  if (kind != WordKind::kLast) AddDays(answer, today, next);
  if (kind != WordKind::kNext) AddDays(answer, today, ahead - kDaysInWeek);
  return true;
}

// Reads "-44": days from the selected date, and the year. "l'an -44" is the year alone, and no matter here.
bool ReadSigned(CAnswer& answer) {
  const Request& request = answer.Asked();
  if (request.items.size() != 1 || !IsNumber(request.items[0])) return false;
  const Item& number = request.items[0];
  if (!HasSign(number) || number.isYear) return false;
  AddDays(answer, request.selected, SignedValue(number));
  if (number.isNegative && number.digits <= kMostYearDigits)
    answer.AddYears(number, request.selected.month, request.selected.day, true);
  return true;
}

}  // namespace

bool ReadRelative(CAnswer& answer) {
  const Request& request = answer.Asked();
  const bool isBare =
      request.calendar == Calendar::kInForce && !request.HasYearRemark() && request.decadeDay == 0;
  if (!isBare) return false;
  if (request.items.size() == 1 && request.items[0].kind == WordKind::kToday) {
    AddDays(answer, Date::Today(), request.items[0].value);
    return true;
  }
  return ReadDistance(answer) || ReadWeekdayAlone(answer) || (request.weekday == 0 && ReadSigned(answer));
}

}  // namespace orbisol::reader

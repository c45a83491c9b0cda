// Dates in numbers alone.

#include <array>
#include <vector>

#include "core/reader/forms.h"

namespace orbisol::reader {
namespace {

constexpr int kMostYearDigits = 4;
constexpr int kDateDigits = 6;  // "140789"
constexpr int kDayNumberDigits = 7;
constexpr int kIsoDigits = 8;      // "17890714"
constexpr int kOrdinalDigits = 3;  // "2024-123"
constexpr int kYearFirst = 2;      // an order of dates
constexpr int kMonths = 12;
constexpr int kLongestMonth = 31;
constexpr int kDaysInFebruary = 28;
constexpr std::array<int, 3> kOrders = {1, 0, kYearFirst};

// Indices of year, month and day among three numbers.
struct Places {
  std::size_t year, month, day;
};
Places PlacesOf(int order) {
  if (order == 0) return {2, 0, 1};
  return order == 1 ? Places{2, 1, 0} : Places{0, 1, 2};
}

bool CanBeMonth(const Item& number) {
  return !HasSign(number) && 1 <= number.value && number.value <= kMonths;
}
bool CanBeDay(const Item& number) {
  return !HasSign(number) && 1 <= number.value && number.value <= kLongestMonth;
}
bool CanBeYear(const Item& number) { return number.digits <= kMostYearDigits || number.isYear; }

bool Fits(const std::vector<Item>& numbers, int order) {
  const Places places = PlacesOf(order);
  return CanBeMonth(numbers[places.month]) && CanBeDay(numbers[places.day]) &&
         CanBeYear(numbers[places.year]);
}

void AddInOrder(CAnswer& answer, const std::vector<Item>& numbers, int order) {
  const Places places = PlacesOf(order);
  DateReading reading;
  if (order != answer.Asked().order) {
    reading.note = DateNote::kOtherOrder;
    reading.number = order;
  }
  answer.AddYears(numbers[places.year], numbers[places.month].value, numbers[places.day].value, false,
                  reading);
}

// Reads "1789-07-14", the form of a standard that knows the Gregorian calendar alone.
bool IsIso(const std::vector<Item>& numbers) {
  return numbers[1].separator == u'-' && numbers[2].separator == u'-' &&
         (numbers[0].digits >= kMostYearDigits || HasSign(numbers[0]));
}

void ReadIso(CAnswer& answer, const std::vector<Item>& numbers) {
  answer.AddYears(numbers[0], numbers[1].value, numbers[2].value);
  answer.AddGregorianToo({SignedValue(numbers[0]), numbers[1].value, numbers[2].value});
}

void ReadThree(CAnswer& answer) {
  const Request& request = answer.Asked();
  const std::vector<Item>& numbers = request.items;
  if (IsIso(numbers)) return ReadIso(answer, numbers);
  const bool isYearFirst = (LooksLikeYear(numbers[0]) && numbers[0].value > kLongestMonth) ||
                           HasSign(numbers[0]) || numbers[0].digits >= kOrdinalDigits || numbers[0].isYear ||
                           numbers[0].hasApostrophe;
  if (isYearFirst) {
    answer.AddYears(numbers[0], numbers[1].value, numbers[2].value);
    return;
  }
  const bool isYearLast = LooksLikeYear(numbers[2]);
  int chosen = request.order == kYearFirst && isYearLast ? 1 : request.order;
  for (const int order : kOrders)
    if (!Fits(numbers, chosen)) chosen = order;
  AddInOrder(answer, numbers, Fits(numbers, chosen) ? chosen : request.order);
  if (request.weekday == 0) return;
  for (const int order : kOrders) {
    const Places places = PlacesOf(order);
    if (!Fits(numbers, order) || (order == kYearFirst && isYearLast)) continue;
    DateReading reading;
    reading.note = DateNote::kOtherOrder;
    reading.number = order;
    answer.AddOtherwise(
        {SignedValue(numbers[places.year]), numbers[places.month].value, numbers[places.day].value}, reading);
  }
}

void ReadDayOfYear(CAnswer& answer, const Item& yearNumber, int dayOfYear) {
  for (const YearChoice& choice : answer.YearsOf(yearNumber)) {
    if (!IsYearShown(choice.year)) return answer.Refuse(DateRefusal::kOutOfBounds);
    const int first = Date(choice.year, 1, 1).DayNumber();
    const int last = Date(choice.year, 12, 31).DayNumber();
    if (dayOfYear < 1 || dayOfYear > last - first + 1) {
      answer.Refuse(DateRefusal::kNoDayOfYear, {choice.year, last - first + 1});
      answer.Offer(DateOfDayNumber(last));
      return;
    }
    DateReading reading;
    reading.note = DateNote::kDayOfYear;
    reading.number = dayOfYear;
    answer.AddDayNumber(std::int64_t{first} + dayOfYear - 1, reading);
    const int gregorianLength = kDaysInYear + GregorianDaysInMonth(choice.year, 2) - kDaysInFebruary;
    if (dayOfYear <= gregorianLength)
      answer.AddGregorianDay(DayNumberUnder(choice.year, 1, 1, kAlwaysGregorian, true) + dayOfYear - 1);
  }
}

void ReadTwo(CAnswer& answer) {
  const Request& request = answer.Asked();
  const Item& first = request.items[0];
  const Item& second = request.items[1];
  const bool isOrdinal = second.separator == u'-' && second.digits == kOrdinalDigits &&
                         (first.digits == kMostYearDigits || HasSign(first));
  if (isOrdinal && request.calendar != Calendar::kInForce) return answer.Refuse(DateRefusal::kNotADate);
  if (isOrdinal) return ReadDayOfYear(answer, first, second.value);
  if (LooksLikeYear(first) || LooksLikeYear(second)) {
    const bool isYearFirst = LooksLikeYear(first);
    const Item& month = isYearFirst ? second : first;
    if (HasSign(month) || LooksLikeYear(month)) return answer.Refuse(DateRefusal::kNotADate);
    answer.AddYears(isYearFirst ? first : second, month.value, request.selected.day, true);
    return;
  }
  const auto add = [&](const Item& day, const Item& month, DateReading reading) {
    answer.AddDate({request.selected.year, month.value, day.value}, reading);
  };
  const bool isDayFirst = request.order == 1;
  const Item& day = isDayFirst ? first : second;
  const Item& month = isDayFirst ? second : first;
  DateReading exchanged;
  exchanged.note = DateNote::kOtherOrder;
  exchanged.number = isDayFirst ? 0 : 1;
  const bool isExchanged = !CanBeMonth(month) && CanBeMonth(day) && CanBeDay(month);
  if (isExchanged) return add(month, day, exchanged);
  add(day, month, {});
  if (CanBeMonth(day) && CanBeDay(month))
    answer.AddOtherwise({request.selected.year, day.value, month.value}, exchanged);
}

// Reads six digits as a date in the user's order.
void AddSixDigits(CAnswer& answer, const Item& number) {
  std::vector<Item> numbers(3, number);
  const std::array<int, 3> values = {number.value / 10000, number.value / 100 % 100, number.value % 100};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    numbers[i].value = values[i];
    numbers[i].digits = 2;
  }
  if (Fits(numbers, answer.Asked().order)) AddInOrder(answer, numbers, answer.Asked().order);
}

// Reads eight digits with the year first. Where that is no date, the one with the year last is offered.
void ReadEightDigits(CAnswer& answer, const Item& number) {
  const YearMonthDay date = Unpack(number.value);
  answer.AddDate(date);
  answer.AddGregorianToo(date);
  const int first = number.value / 1000000;
  const int second = number.value / 10000 % 100;
  const bool isMonthFirst = answer.Asked().order == 0;
  const YearMonthDay yearLast = {number.value % 10000, isMonthFirst ? first : second,
                                 isMonthFirst ? second : first};
  if (!answer.HasReadings() && DoesDateExist(yearLast))
    answer.Offer(Date(yearLast.year, yearLast.month, yearLast.day));
}

void AddDayNumber(CAnswer& answer, int dayNumber) {
  const int first = Date(kFirstDateShown).DayNumber();
  const int last = Date(kLastDateShown).DayNumber();
  if (dayNumber < first || dayNumber > last) return answer.Refuse(DateRefusal::kOutOfBounds);
  DateReading reading;
  reading.note = DateNote::kDayNumber;
  reading.number = dayNumber;
  answer.AddDayNumber(dayNumber, reading);
}

void ReadYear(CAnswer& answer, const Item& number) {
  answer.AddYears(number, answer.Asked().selected.month, answer.Asked().selected.day, true);
}

void ReadOne(CAnswer& answer) {
  const Item& number = answer.Asked().items[0];
  if (CanBeYear(number) || answer.Asked().HasYearRemark()) return ReadYear(answer, number);
  if (number.digits == kIsoDigits) return ReadEightDigits(answer, number);
  if (number.digits != kDateDigits && number.digits != kDayNumberDigits)
    return answer.Refuse(DateRefusal::kOutOfBounds);
  AddDayNumber(answer, number.value);
  if (number.digits == kDateDigits) AddSixDigits(answer, number);
}

}  // namespace

bool ReadDayNumber(CAnswer& answer) {
  const Request& request = answer.Asked();
  const Item* const number = request.FirstOf(WordKind::kNumber);
  if (!request.Has(WordKind::kDayNumber)) return false;
  if (number == nullptr || request.items.size() != 2 || HasSign(*number) || request.HasYearRemark()) {
    answer.Refuse(DateRefusal::kNotADate);
  } else {
    AddDayNumber(answer, number->value);
  }
  return true;
}

bool ReadNumbers(CAnswer& answer) {
  const Request& request = answer.Asked();
  if (request.items.empty() || !request.ConsistsOf(WordKind::kNumber)) return false;
  if (request.items.size() > 3) return false;
  if (request.items.size() == 3) {
    ReadThree(answer);
  } else if (request.items.size() == 2) {
    ReadTwo(answer);
  } else {
    ReadOne(answer);
  }
  return true;
}

void JoinDoubleYear(Request& request) {
  const std::size_t count = request.CountNumbers();
  if (count < 2 || request.HasYearRemark() || !IsNumber(request.items.back()) || request.items.size() < 3)
    return;
  const Item& historical = request.items.back();
  Item& civil = request.items[request.items.size() - 2];
  const bool isPair = IsNumber(civil) && historical.separator == u'/' && civil.digits > 2 &&
                      !HasSign(historical) && historical.digits > 0;
  if (!isPair || (count < 4 && !request.Has(WordKind::kMonth))) return;
  if (historical.digits > kMostYearDigits) return;
  int scale = 1;
  for (int digit = 0; digit < historical.digits; ++digit) scale *= 10;
  const int next = civil.value + 1;
  if (next % scale != historical.value) return;
  request.doubleYear = civil.value;
  civil.value = next;
  civil.isYear = true;
  request.items.pop_back();
}

}  // namespace orbisol::reader

// Weeks of the year: "2024-W20-3", "semaine 20 2024".

#include <optional>
#include <utility>
#include <vector>

#include "core/civil_year.h"
#include "core/reader/forms.h"
#include "core/week_number.h"

namespace orbisol::reader {
namespace {

constexpr int kThursday = 3;  // days after Monday; a week belongs to the year of its Thursday
constexpr int kMostWeeks = 53;

struct WeekDay {
  int week;
  int weekday;  // 1 Monday .. 7
};

// Returns whether the items are those of "20e semaine 2024", whose first number can be the week alone.
bool IsWeekFirst(const std::vector<Item>& items) {
  return items.size() == 3 && IsNumber(items[0]) && items[1].kind == WordKind::kWeek &&
         items[0].value <= kMostWeeks && items[2].value > kMostWeeks;
}

int MondayBefore(int dayNumber) { return dayNumber - (WeekdayOfDayNumber(dayNumber) + 6) % kDaysInWeek; }

// Returns the day number of a day in a week of the civil year, under the rules in force.
std::optional<int> DayOfWeek(int year, WeekDay asked) {
  const int slack = Rules().firstDayOfYear[0].from != 0 ? 1 : 0;  // civil years reach over historical ones
  const int last = Date(year + slack, 12, 31).DayNumber();
  for (int monday = MondayBefore(Date(year - slack, 1, 1).DayNumber()); monday <= last;
       monday += kDaysInWeek) {
    const Date day = DateOfDayNumber(monday + asked.weekday - 1);
    if (CivilYearOf(DateOfDayNumber(monday + kThursday)) == year && IsoWeekNumber(day) == asked.week)
      return day.DayNumber();
  }
  return {};
}

std::optional<int> GregorianDayOfWeek(int year, WeekDay asked) {
  CalendarRules rules;
  rules.ApplyGregorianStart(kAlwaysGregorian);
  const ScopedRules inForce(rules);
  return DayOfWeek(year, asked);
}

void AddWeek(CAnswer& answer, int year, WeekDay asked, bool isStandard) {
  if (!IsYearShown(year)) return answer.Refuse(DateRefusal::kOutOfBounds);
  DateReading reading;
  reading.note = DateNote::kWeek;
  reading.typed.year = year;
  reading.number = asked.week;
  if (const std::optional<int> dayNumber = DayOfWeek(year, asked)) {
    answer.AddDayNumber(*dayNumber, reading);
  } else {
    answer.Refuse(DateRefusal::kNoWeek, {year, asked.week});
    if (const std::optional<int> before = DayOfWeek(year, {kMostWeeks - 1, asked.weekday});
        before && asked.week == kMostWeeks)
      answer.Offer(DateOfDayNumber(*before));
  }
  if (!isStandard || DayOrder(Pack(year, 1, 1)) > DayOrder(Pack(Rules().ReformYear() + 1, 1, 1))) return;
  if (const std::optional<int> gregorian = GregorianDayOfWeek(year, asked))
    answer.AddGregorianDay(*gregorian);
}

}  // namespace

bool ReadWeek(CAnswer& answer) {
  const Request& request = answer.Asked();
  if (!request.Has(WordKind::kWeek)) return false;
  std::vector<Item> items = request.items;
  const std::size_t numbers = request.CountNumbers();
  if (IsWeekFirst(items)) std::swap(items[0], items[1]);
  const bool isYearFirst = IsNumber(items[0]);
  const std::size_t place = isYearFirst ? 1 : 0;  // index of the word
  const bool isWeek = items.size() == numbers + 1 && items.size() > place + 1 &&
                      items[place].kind == WordKind::kWeek && numbers <= (isYearFirst ? 3U : 2U) &&
                      request.calendar == Calendar::kInForce && !request.civilYear;
  const Item* const day = isWeek && isYearFirst && numbers == 3 ? &items[3] : nullptr;
  if (!isWeek || HasSign(items[place + 1]) ||
      (day != nullptr && (day->value < 1 || day->value > kDaysInWeek))) {
    answer.Refuse(DateRefusal::kNotADate);
    return true;
  }
  WeekDay asked = {items[place + 1].value, request.weekday == 0 ? 1 : request.weekday};
  if (day != nullptr) asked.weekday = day->value;
  const Item* const year = isYearFirst ? &items[0] : items.size() == 3 ? &items[2] : nullptr;
  if (year == nullptr) {
    AddWeek(answer, request.selected.year, asked, false);
  } else {
    for (const YearChoice& choice : answer.YearsOf(*year)) AddWeek(answer, choice.year, asked, true);
  }
  return true;
}

}  // namespace orbisol::reader

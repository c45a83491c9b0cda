#include "core/week_number.h"

#include "core/civil_year.h"

namespace orbisol {
namespace {

// Weeks are read off counts of days that begin on a 29 December, the earliest Monday that a week 1 can have:
// a Monday 0 to 6 days after it begins week 1. C. Tøndering, Calendar FAQ, "What is the week number". Added
// to a day number, each of these starts the count on the 29 December before the year named:
constexpr int kGregorianWeeks = 31741;  // -4800, then in cycles of 400, 100 and 4 years
constexpr int kJulianWeeks = 1098;      // -4716, before three common years and a leap year
constexpr int kTriennialWeeks = 26;     // -44, before -43, -42 and the leap year -41
constexpr int kNoLeapWeeks = 283;       // -7, years of 365 days

// `days` from the beginning of a cycle of years, of which the last alone is a leap year.
int WeekInCycle(std::int64_t days, int cycle) {
  const std::int64_t lastDay = days / (cycle - 1);  // 1 on the last day of the cycle, the leap day, else 0
  const std::int64_t dayOfYear = lastDay + (days - lastDay) % kDaysInYear;
  return static_cast<int>(dayOfYear / 7) + 1;
}

// Days by which civil years begin before 1 January under the row that governs a date; negative when after it.
std::int64_t CivilYearLead(const Date& date) {
  const int row = CivilRowIndex(date);
  if (row < 0) return 0;
  const CivilYearStart& governing = Rules().firstDayOfYear[row];
  if (governing.from == 0) return 0;
  const Date start(governing.from);
  const Date newYear(Saturate(std::int64_t{start.year} + (governing.plusOne ? 1 : 0)), 1, 1);
  return std::int64_t{newYear.DayNumber()} - start.DayNumber();
}

// The day after the first Gregorian day, or later.
bool IsAfterReform(const Date& date) { return DayOrder(date) > DayOrder(Rules().startGregorian); }

}  // namespace

int WeekNumber(const Date& date) { return Rules().iso8601 ? IsoWeekNumber(date) : CivilWeekNumber(date); }

int IsoWeekNumber(const Date& date) {
  const CalendarRules& rules = Rules();
  const std::int64_t n = date.DayNumber();
  const std::int64_t monday = 7 * (n / 7);

  if (IsAfterReform(date)) {
    // Weeks are Gregorian from the one that begins the year after the reform, where its Monday is the plain
    // one.
    const std::int64_t lastSunday = std::int64_t{rules.reformYearLastDayNumber} - rules.reformYearLastWeekday;
    if (n >= lastSunday + 8 || (rules.reformYearLastWeekday < 4 && n > lastSunday))
      return WeekInCycle((monday + kGregorianWeeks) % kDaysIn400Years % kDaysIn100Years % kDaysIn4Years,
                         kDaysIn4Years);
  }

  if (!rules.proleptic && (date.year <= 0 || (date.year == 1 && date.month == 1 && date.day == 1))) {
    // On purpose: these bounds are not those of the early leap years, and the years before -44 are numbered
    // as if one in three had been a leap year then too.
    if (!date.IsBefore(-60101)) return static_cast<int>(((monday + kNoLeapWeeks) % kDaysInYear) / 7) + 1;
    return WeekInCycle((monday + kTriennialWeeks) % kDaysIn3Years, kDaysIn3Years);
  }

  return WeekInCycle((monday + kJulianWeeks + CivilYearLead(date)) % kDaysIn4Years, kDaysIn4Years);
}

int CivilWeekNumber(const Date& date) {
  const std::int64_t day = DayOfCivilYear(date);
  const std::int64_t length = day + DaysLeftInCivilYear(date);
  const int weekday = date.Weekday(true);
  if (day - weekday + 6 > length) return 1;  // the Saturday of this week lies in the next year

  // The day of the Saturday that ends this week, moved on to the next multiple of seven: weeks are counted
  // from the one that holds the first day.
  const std::int64_t counted = (7 * (day / 7) - day + 8 + weekday) % 7 - weekday + day;
  return static_cast<int>(counted / 7) + 1;
}

}  // namespace orbisol

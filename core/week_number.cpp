#include "core/week_number.h"

#include "core/civil_year.h"

namespace orbisol {
namespace {

// Weeks are read off counts of days that begin on a 29 December, the earliest Monday that a week 1 can have:
// a Monday 0 to 6 days after it begins week 1. C. Tøndering, Calendar FAQ, "What is the week number". Each
// number is added to a day number, and makes it 0 on 29 December of a year, or a multiple of the cycle there:
constexpr int kGregorianWeeks = 31741;  // -4800; the cycles have 400, 100 and 4 years
constexpr int kJulianWeeks = 1098;      // -4716; three common years and a leap year follow
constexpr int kTriennialWeeks = 26;     // -44; -43, -42 and the leap year -41 follow
constexpr int kNoLeapWeeks = 283;       // -7; all years have 365 days

// Day numbers of the years shown are [260424, 3182029]. Every sum below is therefore positive, and '/' and
// '%' round down. For other days, or with a civil-year row that is no date, a sum can be negative and the
// week any number; all terms are ints, so that the sum stays within 64 bits.
static_assert(260424 - 6 - kDaysInYear + kTriennialWeeks > 0);

// The 400-year cycle is a whole number of weeks. Its last day, which '% kDaysIn100Years' would turn into a
// first one, is therefore never a Monday.
static_assert(kDaysIn400Years % 7 == 0 && (kDaysIn400Years - 1 - kGregorianWeeks) % 7 != 0);

// Returns the week of a Monday that lies `days` after the beginning of a cycle of years, of which the last
// alone is a leap year.
int WeekInCycle(std::int64_t days, int cycle) {     // [0, cycle - 1]
  const std::int64_t lastDay = days / (cycle - 1);  // 1 on the leap day, the last; else 0
  const std::int64_t dayOfYear = lastDay + (days - lastDay) % kDaysInYear;  // [0, 365]
  return static_cast<int>(dayOfYear / 7) + 1;                               // [1, 53]
}
static_assert((kDaysIn3Years - 1) % kDaysInYear == 0 && (kDaysIn4Years - 1) % kDaysInYear == 0);

// Returns the days by which civil years begin before 1 January under the row that governs a date; negative if
// they begin after it. [-365, 365] for a row that is a date.
std::int64_t CivilYearLead(const Date& date) {
  const int row = CivilRowIndex(date);
  if (row < 0) return 0;
  const CivilYearStart& governing = Rules().firstDayOfYear[row];
  if (governing.from == 0) return 0;
  const Date start(governing.from);
  const Date newYear(Saturate(std::int64_t{start.year} + (governing.plusOne ? 1 : 0)), 1, 1);
  return std::int64_t{newYear.DayNumber()} - start.DayNumber();
}

// Returns whether a date lies after the first Gregorian day.
bool IsAfterReform(const Date& date) { return DayOrder(date) > DayOrder(Rules().startGregorian); }

}  // namespace

int WeekNumber(const Date& date) { return Rules().iso8601 ? IsoWeekNumber(date) : CivilWeekNumber(date); }

int IsoWeekNumber(const Date& date) {
  const CalendarRules& rules = Rules();
  const std::int64_t n = date.DayNumber();
  const std::int64_t monday = 7 * (n / 7);  // day number of the Monday of this week; day 0 was one

  if (IsAfterReform(date)) {
    // Gregorian numbers begin with the week that holds 1 January after the year of the reform if that week
    // is the first by the Gregorian rule, else with the week after it.
    const std::int64_t lastSunday = std::int64_t{rules.reformYearLastDayNumber} - rules.reformYearLastWeekday;
    if (n >= lastSunday + 8 || (rules.reformYearLastWeekday < 4 && n > lastSunday))
      return WeekInCycle((monday + kGregorianWeeks) % kDaysIn400Years % kDaysIn100Years % kDaysIn4Years,
                         kDaysIn4Years);
  }

  if (!rules.proleptic && (date.year <= 0 || (date.year == 1 && date.month == 1 && date.day == 1))) {
    // On purpose: these bounds differ from those of the early leap years, and years before -44 are numbered
    // as if one in three had been a leap year then too.
    if (!date.IsBefore(-60101)) return static_cast<int>(((monday + kNoLeapWeeks) % kDaysInYear) / 7) + 1;
    return WeekInCycle((monday + kTriennialWeeks) % kDaysIn3Years, kDaysIn3Years);
  }

  return WeekInCycle((monday + kJulianWeeks + CivilYearLead(date)) % kDaysIn4Years, kDaysIn4Years);
}

int CivilWeekNumber(const Date& date) {
  const std::int64_t day = DayOfCivilYear(date);  // [1, 366], less where the year's first day was dropped
  const std::int64_t length = day + DaysLeftInCivilYear(date);
  const int weekday = date.Weekday(true);    // 0 Sunday .. 6
  if (day - weekday + 6 > length) return 1;  // the Saturday of this week lies in the next year

  // Days are counted from the Sunday on or before the first day of the civil year, which is 1. This week's
  // Sunday is then one more than a multiple of seven.
  const std::int64_t firstWeekday = (7 * (day / 7) - day + 8 + weekday) % 7;  // [2, 20] % 7
  const std::int64_t sunday = firstWeekday - weekday + day;  // [1, 366] for a day of 1 or more
  return static_cast<int>(sunday / 7) + 1;                   // [1, 53]
}

}  // namespace orbisol

// The rules that all calendar arithmetic reads: where the Gregorian calendar begins, whether the
// Julian calendar before it had its early leap-year errors, when civil years began on another day
// than 1 January, and whether weeks follow ISO 8601.
//
//   Rules().ApplyGregorianStart(17520914);       // Great Britain; the derived fields follow
//   CalendarRules french = DefaultCalendarRules();
//   ScopedRules inForce(french);                 // for this scope alone
#pragma once

#include <span>

#include "core/date_range.h"
#include "core/everyday_date.h"
#include "core/packed_date.h"

namespace orbisol {

constexpr PackedDate kRomanReform = 15821015;  // the reform of Gregory XIII, and the default

// From `from` on, civil years begin on the month and day of `from`.
struct CivilYearStart {
  PackedDate from = 0;   // 0 ends the table
  bool plusOne = false;  // "J.+1": from that day the civil year is one ahead of the historical year

  bool operator==(const CivilYearStart&) const = default;
};

constexpr int kCivilYearRows = 4;

struct CalendarConfig {
  // Most recent first. The fifth row is always 0: every scan of the table ends there.
  CivilYearStart firstDayOfYear[kCivilYearRows + 1];

  PackedDate startGregorian = kRomanReform;  // first day of the Gregorian calendar, a Gregorian date

  // Derived from startGregorian; written by ApplyGregorianStart alone.
  PackedDate julianEquivalentOfStart = 15821005;     // the same day in the Julian calendar
  int droppedDays = 10;                              // see ApplyGregorianStart
  int firstGregorianDayNumber = 2299161;             // day number of startGregorian
  int reformYearLastDayNumber = 2299238;             // day number of 31 December of the reform year
  int reformYearLastWeekday = 5;                     // 0 Sunday .. 6, weekday of that 31 December
  unsigned lastJulianKey = KeyBefore(1582, 10, 15);  // everyday dates with a greater key are Gregorian

  // True: every fourth Julian year is a leap year, back to any date. False: one in three from -44 to -8,
  // then none until 8, as the first priests counted.
  bool proleptic = false;

  // Sets the first Gregorian day and all that derives from it. Any integer is accepted. The dates that the
  // reform removes are those from julianEquivalentOfStart on that lie before `start`, in whatever months.
  // `droppedDays` is not their number but the distance of the two dates in the Gregorian calendar: 10 for
  // 1 March 1700, which removes 11 dates, 19 to 29 February, of which the last is none in that calendar. For
  // reforms before 10 October 1500 it is 0, in the first four centuries possibly negative. The early leap
  // years count in it: set `proleptic` first.
  void ApplyGregorianStart(PackedDate start);

  // Returns the year of the first Gregorian day.
  int ReformYear() const { return startGregorian / 10000; }

  // Returns whether the reform removed this date: by days, so that a reform in the first centuries or before
  // the era, where the Gregorian date is the earlier one, removes none. Any packed value is accepted.
  bool IsDropped(PackedDate date) const {
    return DayOrder(julianEquivalentOfStart) <= DayOrder(date) && DayOrder(date) < DayOrder(startGregorian);
  }

  bool operator==(const CalendarConfig&) const = default;
};

struct CalendarRules : CalendarConfig {
  // True: weeks begin on Monday, Sunday counts as 7, weeks are numbered by ISO 8601.
  // False: weeks begin on Sunday and are counted from the first day of the civil year.
  bool iso8601 = true;

  bool operator==(const CalendarRules&) const = default;
};

// Returns the rules in force, which any caller may change.
namespace detail {
extern CalendarRules liveRules;
}
inline CalendarRules& Rules() { return detail::liveRules; }

// Returns the Roman reform, no civil-year rows, early leap years as they were; iso8601 from the user's
// locale.
CalendarRules DefaultCalendarRules();

// Puts the defaults in force.
void ResetCalendarConfig();

// Returns whether weeks follow ISO 8601 in a country. False only where weeks begin on Sunday and week 1 is
// the first full one. `firstDayOfWeek` is 0 Monday .. 6 Sunday; `firstWeekOfYear` as in
// Locale::FirstWeekOfYear.
constexpr bool Iso8601ByLocale(int firstDayOfWeek, int firstWeekOfYear) {
  return !(firstDayOfWeek == 6 && firstWeekOfYear == 1);
}
static_assert(!Iso8601ByLocale(6, 1) && Iso8601ByLocale(6, 0) && Iso8601ByLocale(0, 1));

// Returns `start`, or the Roman reform for one that is 0 or names no day.
PackedDate GregorianStartOrDefault(PackedDate start);

// Returns the index of the row that keeps a civil-year table from being used, or -1 when it is in order: rows
// strictly later than the one below (compared as integers), none after `startGregorian`, no row above an
// empty one missing. Rows are examined from the last up, and the first fault met is reported.
int FirstBadRow(std::span<const CivilYearStart> rows, PackedDate startGregorian);

// Puts other rules in force for one scope and puts the old ones back at its end. No event may be handled
// inside.
class ScopedRules {
 public:
  explicit ScopedRules(const CalendarRules& rules) : m_saved(Rules()) { Rules() = rules; }
  ~ScopedRules() { Rules() = m_saved; }
  ScopedRules(const ScopedRules&) = delete;
  ScopedRules& operator=(const ScopedRules&) = delete;

 private:
  CalendarRules m_saved;
};

}  // namespace orbisol

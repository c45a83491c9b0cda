// The dates of other calendars beside the days of a printed month.
//
//   const std::vector<OtherDate> dates = OtherDates(days, OtherCalendar::kRepublican);
//   dates[0].text;  // u"10 brumaire" on 1 November 1799
#pragma once

#include <span>
#include <string>
#include <vector>

#include "content/month_model.h"

namespace orbisol {

enum class OtherCalendar { kJulian, kRepublican };

struct OtherDate {
  std::u16string text;        // empty before the calendar's first day
  bool beginsDecade = false;  // on the first of ten days, and of the complementary days
};

// Returns the cells of the month itself, in the order of days; none where the reform removed them all.
std::span<const DayCell> DaysOfMonth(const MonthModel& model);

// Returns the dates of days that follow one another: the number of the day, with the month written out on the
// first one shown and on each first of a month.
std::vector<OtherDate> OtherDates(std::span<const DayCell> days, OtherCalendar calendar);

// Returns dates with the names of all months, one of which is as long as any but a complementary day.
std::vector<std::u16string> LongestDates(OtherCalendar calendar);

// Returns "1er complémentaire" and so on, 1..6.
std::u16string ComplementaryDay(int day);

}  // namespace orbisol

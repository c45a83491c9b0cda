#include "content/rule_dates.h"

#include <algorithm>
#include <cstdint>

#include "content/day_rules.h"
#include "content/month_page.h"
#include "core/date.h"
#include "core/easter.h"

namespace orbisol {
namespace {

// Days of one year on which a rule is tried. Those that the matcher accepts are added to `days`.
class CCandidates {
 public:
  CCandidates(const DayEvent& rule, int year, std::vector<PackedDate>& days)
      : m_rule(rule), m_year(year), m_days(days), m_begin(days.size()) {}

  // Tries a date of the year that is meant by month and day; any numbers are accepted.
  void TryDate(std::int64_t month, std::int64_t day) {
    if (month < 1 || month > 12 || day < 1 || day > 31) return;
    Try(Date(m_year, static_cast<int>(month), static_cast<int>(day)));
  }

  // Tries the dates of the year that have a day number. Two dates can have the same: 29 February -8 has that
  // of 1 March, and so has a 29 February that only the page of its month shows.
  void TryDayNumber(std::int64_t dayNumber) {
    if (dayNumber != Saturate(dayNumber)) return;
    const Date date = DateOfDayNumber(Saturate(dayNumber));
    if (date.year != m_year) return;
    const Date leapDay(m_year, 2, 29);
    if (leapDay.DayNumber() == dayNumber && !leapDay.SameDay(date)) Try(leapDay);
    Try(date);
  }

  // Tries all days of a month with the weekday of the rule, 1 Monday .. 7.
  void TryWeekdays(int month) {
    for (int day = 1; day <= 31; ++day) {
      const int weekday = WeekdayOfDayNumber(Date(m_year, month, day).DayNumber());
      if ((weekday == 0 ? 7 : weekday) == m_rule.weekday) TryDate(month, day);
    }
  }

 private:
  void Try(const Date& date) {
    const PackedDate ymd = date.Packed();
    if (std::find(m_days.begin() + static_cast<std::ptrdiff_t>(m_begin), m_days.end(), ymd) != m_days.end())
      return;
    if (MatchDayEvents({&m_rule, 1}, ymd, nullptr, 0) != 0 && IsOnItsPage(date)) m_days.push_back(ymd);
  }

  const DayEvent& m_rule;
  int m_year;
  std::vector<PackedDate>& m_days;
  std::size_t m_begin;  // index of the first day of this year
};

// Returns the last day up to `last` that has a weekday (1 Monday .. 7); both are day numbers.
std::int64_t LastWithWeekday(std::int64_t last, int weekday) {
  const std::int64_t after = (last - (weekday - 1)) % kDaysInWeek;  // day number 0 is a Monday
  return last - (after < 0 ? after + kDaysInWeek : after);
}

bool Precedes(PackedDate a, PackedDate b) { return DayOrder(a) < DayOrder(b); }

// First and last of the years in which a rule is valid, cut to those shown.
int FirstYear(const DayEvent& rule) { return std::max(Unpack(rule.ymdFrom).year, kFirstYearShown); }
int LastYear(const DayEvent& rule) { return std::min(Unpack(rule.ymdTo).year, kLastYearShown); }

}  // namespace

void AppendRuleDates(const DayEvent& rule, int year, std::vector<PackedDate>& days) {
  if (year < FirstYear(rule) || year > LastYear(rule)) return;
  const auto begin = static_cast<std::ptrdiff_t>(days.size());
  CCandidates candidates(rule, year, days);
  const std::int64_t day = rule.day;
  switch (rule.type) {
    case DayEventType::kFixedDate:
      candidates.TryDate(rule.month, day);
      break;
    case DayEventType::kRomanEaster: {
      Date easter(year, 1, 1);
      RomanEaster(easter);
      candidates.TryDayNumber(easter.DayNumber() + day);
      break;
    }
    case DayEventType::kOrthodoxEaster: {
      const YearMonthDay easter = Unpack(OrthodoxEaster(year, rule.day));
      candidates.TryDate(easter.month, easter.day);
      break;
    }
    case DayEventType::kNthWeekday:
      if (rule.month >= 1 && rule.month <= 12) candidates.TryWeekdays(rule.month);
      break;
    case DayEventType::kWeekdayBefore:
    case DayEventType::kWeekdayAfter: {
      if (rule.weekday < 1 || rule.weekday > kDaysInWeek) break;
      const std::int64_t reference = Date(year, rule.month, rule.day).DayNumber();
      const std::int64_t weeks = std::int64_t{kDaysInWeek} * rule.weeknum;
      const bool isBefore = rule.type == DayEventType::kWeekdayBefore;
      const std::int64_t last = isBefore ? reference - weeks + kDaysInWeek : reference + weeks - 1;
      candidates.TryDayNumber(LastWithWeekday(last, rule.weekday));
      break;
    }
    case DayEventType::kBankHoliday:
    case DayEventType::kExceptSunday:
      for (const int shift : {0, 1, 2}) candidates.TryDate(rule.month, day + shift);
      break;
  }
  std::sort(days.begin() + begin, days.end(), Precedes);
}

std::vector<PackedDate> RuleDatesInYear(const DayEvent& rule, int year) {
  std::vector<PackedDate> days;
  AppendRuleDates(rule, year, days);
  return days;
}

}  // namespace orbisol

// Test doubles of the machine's interfaces, and rules to be in force (rules.h).
//
//   FakeLocale american;
//   american.dateOrder = 0;
//   const ScopedPlatform inForce(american, FakeClock({2024, 5, 1}));
#pragma once

#include <string>
#include <vector>

#include "core/platform.h"
#include "tests/support/rules.h"

namespace orbisol {

// Locale that is French except where its fields are set.
struct FakeLocale : FrenchLocale {
  int dateOrder = 1;
  int firstDay = 0;                              // 0 Monday .. 6 Sunday
  int firstWeek = 2;                             // as Locale::FirstWeekOfYear
  std::vector<std::u16string> months, weekdays;  // empty: the French ones

  int ShortDateOrder() const override { return dateOrder; }
  int FirstDayOfWeek() const override { return firstDay; }
  int FirstWeekOfYear() const override { return firstWeek; }
  std::u16string MonthName(int month) const override {
    return months.empty() ? FrenchLocale::MonthName(month) : Item(months, month);
  }
  std::u16string WeekdayName(int weekday) const override {
    return weekdays.empty() ? FrenchLocale::WeekdayName(weekday) : Item(weekdays, weekday);
  }

 private:
  static std::u16string Item(const std::vector<std::u16string>& names, int fromOne) {
    return fromOne < 1 || fromOne > static_cast<int>(names.size())
               ? u""
               : names[static_cast<std::size_t>(fromOne - 1)];
  }
};

struct FakeClock : Clock {
  YearMonthDay today = {2000, 1, 1};
  int hour = 12, minute = 0, second = 0;

  FakeClock() = default;
  explicit FakeClock(YearMonthDay day) : today(day) {}
  LocalMoment Now() const override { return {today, hour, minute, second}; }
};

// Puts a locale and a clock in force for one scope, and the former ones at its end.
class ScopedPlatform {
 public:
  explicit ScopedPlatform(const FakeLocale& locale, const FakeClock& clock = FakeClock())
      : m_saved(CurrentPlatform()), m_locale(locale), m_clock(clock) {
    SetPlatform(m_locale, m_clock);
  }
  ~ScopedPlatform() { SetPlatform(*m_saved.locale, *m_saved.clock); }
  ScopedPlatform(const ScopedPlatform&) = delete;
  ScopedPlatform& operator=(const ScopedPlatform&) = delete;

 private:
  Platform m_saved;
  FakeLocale m_locale;
  FakeClock m_clock;
};

}  // namespace orbisol

// The facts about the machine that calendar arithmetic needs: the user's locale and the clock.
//
// Both are French and local from the first instruction on, without any desktop; the program puts the
// desktop's answers in their place at start-up, tests put theirs.
//
//   CurrentPlatform().locale->MonthName(1);  // u"janvier"
#pragma once

#include <string>

#include "core/packed_date.h"

namespace orbisol {

struct Locale {
  virtual ~Locale() = default;
  virtual int ShortDateOrder() const = 0;   // as in Date::dateOrder
  virtual int FirstDayOfWeek() const = 0;   // 0 Monday .. 6 Sunday
  virtual int FirstWeekOfYear() const = 0;  // 0 holds 1 January, 1 first full week, 2 first of four days
  virtual std::u16string MonthName(int month) const = 0;        // 1..12, in the user's language
  virtual std::u16string MonthAbbrev(int month) const = 0;      // 1..12
  virtual std::u16string WeekdayName(int weekday) const = 0;    // 1 Monday .. 7
  virtual std::u16string WeekdayAbbrev(int weekday) const = 0;  // 1 Monday .. 7
};

// A moment of the system's clock in the local time zone; its day is Gregorian.
struct LocalMoment {
  YearMonthDay day;
  int hour, minute, second;

  bool operator==(const LocalMoment&) const = default;
};

struct Clock {
  virtual ~Clock() = default;
  virtual LocalMoment Now() const = 0;

  YearMonthDay Today() const { return Now().day; }
};

struct Platform {
  const Locale* locale;  // never null
  const Clock* clock;    // never null
  int dateOrder;         // as in Date::dateOrder; asked of the locale once, because every new Date takes it
};

namespace detail {
extern Platform currentPlatform;
}
inline const Platform& CurrentPlatform() { return detail::currentPlatform; }

// Puts other answers in force. Both objects must live until others replace them.
void SetPlatform(const Locale& locale, const Clock& clock);

// The answers that need no desktop. Names are empty outside their range.
struct FrenchLocale : Locale {
  int ShortDateOrder() const override;
  int FirstDayOfWeek() const override { return 0; }
  int FirstWeekOfYear() const override { return 2; }
  std::u16string MonthName(int month) const override;
  std::u16string MonthAbbrev(int month) const override;
  std::u16string WeekdayName(int weekday) const override;
  std::u16string WeekdayAbbrev(int weekday) const override;
};

// Returns what the system's clock says; the beginning of 1970 for a moment beyond what can be written.
LocalMoment LocalNow();

struct LocalClock : Clock {
  LocalMoment Now() const override { return LocalNow(); }
};

}  // namespace orbisol

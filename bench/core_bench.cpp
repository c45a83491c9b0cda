// Calendar arithmetic beside peers that do part of it: std::chrono and QDate have no reform, QDate with
// QCalendar can be switched at it by hand, and ICU's GregorianCalendar has a change date.
//
// Days are drawn from the whole range shown and shuffled, so that no order helps any of them.
#include <QCalendar>
#include <QDate>

#include <benchmark/benchmark.h>
#include <unicode/gregocal.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <memory>
#include <random>
#include <vector>

#include "core/date.h"
#include "core/easter.h"
#include "core/moon.h"
#include "core/week_number.h"
#include "tests/support/plain_calendar.h"
#include "tests/support/plain_moon.h"

namespace orbisol {
namespace {

constexpr int kDays = 1 << 14;
constexpr int kUnixEpoch = 2440588;  // day number of 1 January 1970
constexpr double kMillisecondsADay = 86400000.0;
constexpr PackedDate kReform = kRomanReform;

const std::vector<int>& DayNumbers() {
  static const std::vector<int> days = [] {
    std::mt19937 random(1582);
    std::uniform_int_distribution<int> any(Date(-39990101).DayNumber(), Date(39991231).DayNumber());
    std::vector<int> drawn(kDays);
    for (int& day : drawn) day = any(random);
    return drawn;
  }();
  return days;
}

template <typename T, typename Make>
std::vector<T> FromDays(Make make) {
  std::vector<T> made;
  made.reserve(kDays);
  for (const int day : DayNumbers()) made.push_back(make(day));
  return made;
}

YearMonthDay FieldsOf(int dayNumber) {
  const Date date = DateOfDayNumber(dayNumber);
  return {date.year, date.month, date.day};
}

const std::vector<Date>& Dates() {
  static const std::vector<Date> dates = FromDays<Date>(DateOfDayNumber);
  return dates;
}

// Runs `step` over all values in turn. A value is one item, so the times are those of one day.
template <typename T, typename Step>
void Each(benchmark::State& state, const std::vector<T>& values, Step step) {
  for ([[maybe_unused]] auto _ : state) {
    for (const T& value : values) benchmark::DoNotOptimize(step(value));
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(values.size()));
}

// ---- date to day number ----

void DateToNumber_Orbisol(benchmark::State& state) {
  Each(state, FromDays<YearMonthDay>(FieldsOf),
       [](const YearMonthDay& day) { return Date(day.year, day.month, day.day).DayNumber(); });
}
BENCHMARK(DateToNumber_Orbisol);

void DateToNumber_Plain(benchmark::State& state) {
  Each(state, Dates(), [](const Date& date) {
    return plain::DayNumber({date.year, date.month, date.day}, {kReform, false});
  });
}
BENCHMARK(DateToNumber_Plain);

void DateToNumber_Chrono(benchmark::State& state) {
  const auto dates = FromDays<std::chrono::year_month_day>([](int day) {
    return std::chrono::year_month_day(std::chrono::sys_days(std::chrono::days(day - kUnixEpoch)));
  });
  Each(state, dates, [](const std::chrono::year_month_day& date) {
    return std::chrono::sys_days(date).time_since_epoch().count() + kUnixEpoch;
  });
}
BENCHMARK(DateToNumber_Chrono);

void DateToNumber_Qt(benchmark::State& state) {
  const QCalendar julian(QCalendar::System::Julian);
  // Neither QDate nor QCalendar has a year 0: -1 is 1 BC.
  Each(state, Dates(), [&julian](const Date& date) {
    const int year = date.year > 0 ? date.year : date.year - 1;
    const bool gregorian = date.Packed() >= kReform;
    return (gregorian ? QDate(year, date.month, date.day) : julian.dateFromParts(year, date.month, date.day))
        .toJulianDay();
  });
}
BENCHMARK(DateToNumber_Qt);

std::unique_ptr<icu::GregorianCalendar> IcuCalendar() {
  UErrorCode status = U_ZERO_ERROR;
  auto calendar =
      std::make_unique<icu::GregorianCalendar>(*icu::TimeZone::getGMT(), icu::Locale::getFrench(), status);
  calendar->setGregorianChange((2299161 - kUnixEpoch) * kMillisecondsADay, status);
  return calendar;
}

void DateToNumber_Icu(benchmark::State& state) {
  const auto calendar = IcuCalendar();
  Each(state, Dates(), [&calendar](const Date& date) {
    UErrorCode status = U_ZERO_ERROR;
    calendar->clear();
    calendar->set(UCAL_EXTENDED_YEAR, date.year);
    calendar->set(UCAL_MONTH, date.month - 1);
    calendar->set(UCAL_DATE, date.day);
    return calendar->getTime(status) / kMillisecondsADay + kUnixEpoch;
  });
}
BENCHMARK(DateToNumber_Icu);

// ---- day number to date ----

void NumberToDate_Orbisol(benchmark::State& state) {
  Each(state, DayNumbers(), [](int day) { return DateOfDayNumber(day); });
}
BENCHMARK(NumberToDate_Orbisol);

void NumberToDate_Plain(benchmark::State& state) {
  Each(state, DayNumbers(), [](int day) { return plain::DateOfDayNumber(day, {kReform, false}); });
}
BENCHMARK(NumberToDate_Plain);

void NumberToDate_Chrono(benchmark::State& state) {
  Each(state, DayNumbers(), [](int day) {
    return std::chrono::year_month_day(std::chrono::sys_days(std::chrono::days(day - kUnixEpoch)));
  });
}
BENCHMARK(NumberToDate_Chrono);

void NumberToDate_Qt(benchmark::State& state) {
  const QCalendar julian(QCalendar::System::Julian);
  const QCalendar gregorian;
  Each(state, DayNumbers(), [&](int day) {
    return (day >= 2299161 ? gregorian : julian).partsFromDate(QDate::fromJulianDay(day));
  });
}
BENCHMARK(NumberToDate_Qt);

void NumberToDate_Icu(benchmark::State& state) {
  const auto calendar = IcuCalendar();
  Each(state, DayNumbers(), [&calendar](int day) {
    UErrorCode status = U_ZERO_ERROR;
    calendar->setTime((day - kUnixEpoch) * kMillisecondsADay, status);
    return calendar->get(UCAL_EXTENDED_YEAR, status) + calendar->get(UCAL_MONTH, status) +
           calendar->get(UCAL_DATE, status);
  });
}
BENCHMARK(NumberToDate_Icu);

// ---- weeks and Easter ----

void WeekNumber_Orbisol(benchmark::State& state) {
  Each(state, Dates(), [](const Date& date) { return IsoWeekNumber(date); });
}
BENCHMARK(WeekNumber_Orbisol);

void WeekNumber_Chrono(benchmark::State& state) {
  // The year of the week is that of its Thursday, and its number counts the Thursdays of that year.
  const auto mornings = FromDays<std::chrono::sys_days>(
      [](int day) { return std::chrono::sys_days(std::chrono::days(day - kUnixEpoch)); });
  Each(state, mornings, [](std::chrono::sys_days day) {
    using namespace std::chrono;
    const sys_days thursday = day + days{3} - (weekday(day) - Monday);
    const sys_days newYear(year_month_day(thursday).year() / January / 1);
    return (thursday - newYear).count() / 7 + 1;
  });
}
BENCHMARK(WeekNumber_Chrono);

void WeekNumber_Qt(benchmark::State& state) {
  const auto dates = FromDays<QDate>([](int day) { return QDate::fromJulianDay(day); });
  Each(state, dates, [](const QDate& date) { return date.weekNumber(); });
}
BENCHMARK(WeekNumber_Qt);

void WeekNumber_Icu(benchmark::State& state) {
  const auto calendar = IcuCalendar();
  calendar->setFirstDayOfWeek(UCAL_MONDAY);
  calendar->setMinimalDaysInFirstWeek(4);
  Each(state, DayNumbers(), [&calendar](int day) {
    UErrorCode status = U_ZERO_ERROR;
    calendar->setTime((day - kUnixEpoch) * kMillisecondsADay, status);
    return calendar->get(UCAL_WEEK_OF_YEAR, status);
  });
}
BENCHMARK(WeekNumber_Icu);

void RomanEaster_Orbisol(benchmark::State& state) {
  std::vector<Date> years = Dates();
  for (Date& date : years) date.year = kFirstEasterYear + std::abs(date.year) % 3600;
  Each(state, years, [](Date date) {
    RomanEaster(date);
    return date.month + date.day;
  });
}
BENCHMARK(RomanEaster_Orbisol);

// Returns Easter by the algorithm of Meeus, Jones and Butcher, for Gregorian years alone: no peer computes
// it.
void RomanEaster_Butcher(benchmark::State& state) {
  std::vector<int> years;
  for (const Date& date : Dates()) years.push_back(kFirstEasterYear + std::abs(date.year) % 3600);
  Each(state, years, [](int year) {
    const int a = year % 19, b = year / 100, c = year % 100;
    const int h = (19 * a + b - b / 4 - (b - (b + 8) / 25 + 1) / 3 + 15) % 30;
    const int l = (32 + 2 * (b % 4) + 2 * (c / 4) - h - c % 4) % 7;
    const int m = (a + 11 * h + 22 * l) / 451;
    return (h + l - 7 * m + 114) / 31 + (h + l - 7 * m + 114) % 31;
  });
}
BENCHMARK(RomanEaster_Butcher);

// ---- moon ----

void Elongation_Orbisol(benchmark::State& state) {
  Each(state, DayNumbers(), [](int day) { return MoonElongation(MoonTimeOfNoon(day)); });
}
BENCHMARK(Elongation_Orbisol);

void Elongation_Plain(benchmark::State& state) {
  Each(state, DayNumbers(), [](int day) { return plain::MoonElongation(MoonTimeOfNoon(day)); });
}
BENCHMARK(Elongation_Plain);

constexpr int kMonth = 31;

void MonthOfPhases_Orbisol(benchmark::State& state) {
  MoonPhase phases[kMonth];
  Each(state, DayNumbers(), [&phases](int day) {
    MoonPhasesOfDays(day, phases);
    return static_cast<int>(phases[0]);
  });
}
BENCHMARK(MonthOfPhases_Orbisol);

void MonthOfPhases_Plain(benchmark::State& state) {
  Each(state, DayNumbers(), [](int day) {
    int sum = 0;
    for (int i = 0; i < kMonth; ++i) sum += plain::MoonPhaseOfDayNumber(day + i);
    return sum;
  });
}
BENCHMARK(MonthOfPhases_Plain);

}  // namespace
}  // namespace orbisol

BENCHMARK_MAIN();

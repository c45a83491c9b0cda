#include "core/moon.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/support/plain_moon.h"
#include "tests/support/rules.h"
#include "tests/support/test_data.h"

namespace orbisol {
namespace {

constexpr CalendarRules kRoman;
constexpr int kFirstDay = 260424;  // 1 January -3999
constexpr int kLastDay = 3182029;  // 31 December 3999

TEST(MoonTest, EveryDayHasThePhaseOfTheJudgeAndEveryFifthNoonItsElongation) {
  std::vector<int> judged;  // from the noon before the first day to that after the last
  for (int n = kFirstDay - 1; n <= kLastDay + 1; ++n)
    judged.push_back(plain::MoonElongation(MoonTimeOfNoon(n)));
  std::vector<MoonPhase> phases(kLastDay - kFirstDay + 1);
  MoonPhasesOfDays(kFirstDay, static_cast<int>(phases.size()), phases.data());
  for (std::size_t i = 0; i < phases.size(); ++i) {
    const int n = kFirstDay + static_cast<int>(i);
    if (n % 5 == 0) {
      ASSERT_TRUE(MoonElongation(MoonTimeOfNoon(n)) == judged[i + 1]) << "day number " << n;
    }
    ASSERT_TRUE(phases[i] == plain::MoonPhase(judged[i], judged[i + 1], judged[i + 2])) << "day number " << n;
  }

  // In order, a week apart.
  int count = 0, last = 0;
  for (int i = 0, lastDay = 0; i < static_cast<int>(phases.size()); ++i) {
    const int phase = phases[static_cast<std::size_t>(i)];
    if (phase == kNoPhase) continue;
    if (count++ > 0) {
      ASSERT_EQ(phase, last % 4 + 1) << i;
      ASSERT_TRUE(i - lastDay >= 6 && i - lastDay <= 9) << i;
    }
    last = phase;
    lastDay = i;
  }
  EXPECT_EQ(count, 395740);
}

TEST(MoonTest, ADayAskedAloneHasThePhaseItHasAmongOthers) {
  const ScopedRules inForce(kRoman);
  for (const int first : {kFirstDay, 1718100, 2299000, 2451545, kLastDay - 2000}) {
    MoonPhase phases[2000];
    MoonPhasesOfDays(first, 2000, phases);
    for (int i = 0; i < 2000; ++i) {
      ASSERT_EQ(MoonPhaseOfDay(DateOfDayNumber(first + i)), phases[i]) << first + i;
      ASSERT_EQ(plain::MoonPhaseOfDayNumber(first + i), phases[i]) << first + i;
    }
  }
}

TEST(MoonTest, AnyTimeHasTheElongationOfTheJudge) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> days(kFirstDay - kDayNumber1999Dec31,
                                              kLastDay - kDayNumber1999Dec31);
  for (int i = 0; i < 20'000; ++i) {
    const double t = days(random);
    const int angle = MoonElongation(t);
    ASSERT_EQ(angle, plain::MoonElongation(t)) << t;
    const int before = plain::MoonElongation(t - 1), after = plain::MoonElongation(t + 1);
    for (const int phase : {0, 90, 180, 270})
      ASSERT_EQ(IsPhaseDay(t, angle, phase), plain::IsPhaseDay(before, angle, after, phase)) << t;
  }
}

// Greatest eclipses in universal time, the early ones in the proleptic Julian calendar. F. Espenak, J. Meeus,
// Five Millennium Canon of Solar Eclipses and Five Millennium Canon of Lunar Eclipses.
TEST(MoonTest, EclipsesAreNewAndFullMoons) {
  const ScopedRules inForce(RulesWith(kRomanReform, {.proleptic = true}));
  constexpr struct {
    PackedDate date;
    MoonPhase phase;
  } kEclipses[] = {
      {-7620615, kNewMoon},   // in the Assyrian eponym list
      {-5840528, kNewMoon},   // of Thales
      {-4300803, kNewMoon},   // in Thucydides
      {-3090815, kNewMoon},   // of Agathocles
      {11330802, kNewMoon},   // of King Henry
      {16051012, kNewMoon},   // in Kepler
      {17150503, kNewMoon},   // of Halley
      {18600718, kNewMoon},   // the first photographs
      {19190529, kNewMoon},   // of Eddington
      {19990811, kNewMoon},   // Europe
      {20170821, kNewMoon},   // America
      {21860716, kNewMoon},   // the longest
      {-7200319, kFullMoon},  // the oldest in Ptolemy
      {-4120827, kFullMoon},  // of Nicias
      {-3300920, kFullMoon},  // before Gaugamela
      {-1670621, kFullMoon},  // before Pydna
  };
  for (const auto& eclipse : kEclipses)
    EXPECT_EQ(MoonPhaseOfDay(Date(eclipse.date)), eclipse.phase) << eclipse.date;
}

// The elements are good to some tenths of a degree, an hour or two of the moon's way: only a phase that close
// to midnight may fall on the neighboring day.
TEST(MoonTest, PhasesOfTheTableFallOnTheirDayOrTwoHoursBeside) {
  const ScopedRules inForce(kRoman);
  int count = 0;
  for (const std::vector<std::string>& row : DataRows("moon_phases.txt")) {
    for (std::size_t i = 2; i < row.size(); ++i, ++count) {
      int phase = 0, day = 0, hour = 0, minute = 0;
      ASSERT_EQ(std::sscanf(row[i].c_str(), "%d:%dT%d:%d", &phase, &day, &hour, &minute), 4);
      const int n = Date(std::stoi(row[0]), std::stoi(row[1]), day).DayNumber();
      const bool nearThisDay = MoonPhaseOfDay(DateOfDayNumber(n)) == phase;
      const bool early = hour < 2 && MoonPhaseOfDay(DateOfDayNumber(n - 1)) == phase;
      const bool late = hour >= 22 && MoonPhaseOfDay(DateOfDayNumber(n + 1)) == phase;
      EXPECT_TRUE(nearThisDay || early || late) << row[0] << " " << row[1] << " " << row[i];
    }
  }
  EXPECT_EQ(count, 1237);
}

}  // namespace
}  // namespace orbisol

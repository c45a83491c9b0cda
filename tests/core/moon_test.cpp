#include "core/moon.h"

#include <gtest/gtest.h>

#include "tests/support/plain_moon.h"
#include "tests/support/rules.h"
#include "tests/support/test_data.h"

namespace orbisol {
namespace {

TEST(MoonTest, EveryDayHasThePhaseOfTheReference) {
  constexpr int kFirstDay = 260424;  // 1 January -3999
  std::vector<MoonPhase> phases(3182030 - kFirstDay);
  MoonPhasesOfDays(kFirstDay, phases);
  int n = kFirstDay;
  for (const MoonPhase phase : phases) {
    ASSERT_TRUE(phase == plain::MoonPhaseOfDayNumber(n)) << n;
    if (n % 20 == 0) {  // every 20th day is also asked alone
      const double noon = MoonTimeOfNoon(n);
      const int angle = plain::MoonElongation(noon);
      const int near = (angle + 45) / 90 * 90;  // the angle of the nearest phase
      ASSERT_EQ(MoonElongation(noon), angle) << n;
      ASSERT_EQ(MoonPhaseOfDay(DateOfDayNumber(n)), phase) << n;
      const bool isPhase = std::abs(angle - near) < 10 && IsPhaseDay(noon, angle, near % 360);
      ASSERT_EQ(isPhase, phase != kNoPhase) << n;
    }
    ++n;
  }
}

// Times of greatest eclipse in universal time, the early ones in the Julian calendar: F. Espenak, J. Meeus,
// Five Millennium Canon of Solar Eclipses and Five Millennium Canon of Lunar Eclipses.
TEST(MoonTest, EclipsesAreNewAndFullMoons) {
  const ScopedRules inForce(RulesWith(kRomanReform, {.proleptic = true}));
  for (const PackedDate solar :
       {-7620615, -5840528, -4300803, -3090815, 11330802, 16051012, 17150503, 19990811})
    EXPECT_EQ(MoonPhaseOfDay(Date(solar)), kNewMoon) << solar;
  for (const PackedDate lunar : {-7200319, -4120827, -3300920, -1670621})
    EXPECT_EQ(MoonPhaseOfDay(Date(lunar)), kFullMoon) << lunar;
}

// The elements are good to some tenths of a degree, an hour or two of the moon's way: only a phase that close
// to midnight may fall on the neighboring day.
TEST(MoonTest, PhasesOfTheTableFallOnTheirDayOrTwoHoursBeside) {
  int count = 0;
  for (const std::vector<std::string>& row : DataRows("moon_phases.txt")) {
    for (std::size_t i = 2; i < row.size(); ++i, ++count) {
      int phase = 0, day = 0, hour = 0, minute = 0;
      ASSERT_EQ(std::sscanf(row[i].c_str(), "%d:%dT%d:%d", &phase, &day, &hour, &minute), 4);
      const int n = Date(std::stoi(row[0]), std::stoi(row[1]), day).DayNumber();
      const bool early = hour < 2 && MoonPhaseOfDay(DateOfDayNumber(n - 1)) == phase;
      const bool late = hour >= 22 && MoonPhaseOfDay(DateOfDayNumber(n + 1)) == phase;
      EXPECT_TRUE(early || late || MoonPhaseOfDay(DateOfDayNumber(n)) == phase)
          << row[0] << " " << row[1] << " " << row[i];
    }
  }
  EXPECT_EQ(count, 1237);
}

}  // namespace
}  // namespace orbisol

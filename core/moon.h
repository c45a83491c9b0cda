// The four main phases of the moon, a day each.
//
// The phase is decided from the difference between the longitudes of the Sun and the Moon at noon. The
// angles are good to some tenths of a degree around 2000, and less the farther from it. Source: P. Schlyter,
// "Computing planetary positions", mean elements linear in time and the twelve greatest perturbations of the
// Moon's longitude.
//
//   MoonPhaseOfDay(Date(20240125));  // kFullMoon
#pragma once

#include <span>
#include <string_view>

#include "core/date.h"

namespace orbisol {

enum MoonPhase : int { kNoPhase = 0, kNewMoon = 1, kFirstQuarter = 2, kFullMoon = 3, kLastQuarter = 4 };

// Returns the time in days from 0 h UT of 31 December 1999; noon of a day is its day number minus that day's,
// plus 0.5.
constexpr double MoonTimeOfNoon(std::int64_t dayNumber) {
  return static_cast<double>(dayNumber - kDayNumber1999Dec31) + 0.5;
}

// Returns the longitude of the Sun minus that of the Moon, which is the negative of the elongation of
// astronomers: whole degrees 0..359, cut down; 0 is new moon, 270 first quarter, 180 full moon, 90 last
// quarter. Any finite time is accepted.
int MoonElongation(double t);

// Returns whether the angle `phase` (0, 90, 180 or 270) is reached on the day of noon t, whose own elongation
// is `angle`. Only meant for an angle within 10 degrees of the phase: elsewhere it can be true without
// reason.
bool IsPhaseDay(double t, int angle, int phase);

MoonPhase MoonPhaseOfDay(const Date& date);

// Sets the phases of consecutive days, the first of which is given, by the same rule in a third of the time
// or less. The same as MoonPhaseOfDay on every day from -3999 to 3999.
void MoonPhasesOfDays(int firstDayNumber, std::span<MoonPhase> phases);

// Returns "Nouvelle lune" and the like; empty for kNoPhase.
std::u16string_view MoonPhaseName(MoonPhase phase);

}  // namespace orbisol

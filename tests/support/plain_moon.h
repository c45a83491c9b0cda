// The judge of core/moon.h: the elongation evaluated from the first term to the last, every term by its own
// sine, and a phase decided from three whole evaluations. Plain doubles in the order written;
// -ffp-contract=off.
//
// Knows nothing of `core` and may not. Angles are whole degrees, 0..359; phases are 0 none, 1 new moon, 2
// first quarter, 3 full moon, 4 last quarter. Meant for some ten thousand years around 2000.
#pragma once

namespace orbisol::plain {

// `t` in days from 0 h of 31 December 1999.
int MoonElongation(double t);

// Whether `phase` (0, 90, 180 or 270) belongs to the day whose noon has `angle`, between the noons of its
// neighbors.
bool IsPhaseDay(int before, int angle, int after, int phase);

// The phase code of a day, from the elongations at three noons.
int MoonPhase(int before, int angle, int after);

// The same, from the day number: the neighbors are evaluated only where the angle is near a phase.
int MoonPhaseOfDayNumber(int dayNumber);

}  // namespace orbisol::plain

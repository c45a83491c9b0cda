// The reference implementation of core/moon.h: the elongation with a sine for every term, and a phase decided
// from three whole evaluations, in plain doubles and the order written, with -ffp-contract=off.
//
// It must not use `core`. Angles are whole degrees, 0..359; phases are 0 none, 1 new moon, 2
// first quarter, 3 full moon, 4 last quarter. The elements are meant for some ten thousand
// years around 2000.
#pragma once

namespace orbisol::plain {

// Returns the elongation; `t` is in days from 0 h of 31 December 1999.
int MoonElongation(double t);

// Returns the phase of a day. Its neighbors are evaluated only if its angle is near a phase.
int MoonPhaseOfDayNumber(int dayNumber);

}  // namespace orbisol::plain

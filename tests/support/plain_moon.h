// The reference implementation of core/moon.h: the elongation evaluated from the first term to the last,
// every term by its own sine, and a phase decided from three whole evaluations. Plain doubles in the order
// written; -ffp-contract=off.
//
// Knows nothing of `core` and may not. Angles are whole degrees, 0..359; phases are 0 none, 1 new moon, 2
// first quarter, 3 full moon, 4 last quarter. Meant for some ten thousand years around 2000.
#pragma once

namespace orbisol::plain {

// `t` in days from 0 h of 31 December 1999.
int MoonElongation(double t);

// The neighbors of a day are evaluated only where its angle is near a phase.
int MoonPhaseOfDayNumber(int dayNumber);

}  // namespace orbisol::plain

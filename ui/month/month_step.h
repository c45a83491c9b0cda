// The step that keys, wheel and arrows make.
#pragma once

#include <cstdlib>

#include "content/selected_date.h"

namespace orbisol {

// `steps` of a month, or of `years` each where that is not 0; back when negative. Months are made one by one:
// two from 31 January 2024 end on 29 March.
inline void StepMonthsOrYears(Date& date, int steps, int years) {
  if (years != 0) {
    StepYears(date, steps * years);
    return;
  }
  for (int i = 0; i < std::abs(steps); ++i) StepMonths(date, steps < 0 ? -1 : 1);
}

}  // namespace orbisol

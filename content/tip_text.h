// The tip of a day, in lines: its date, its holiday, its event, its vacation, its moon.
#pragma once

#include <string>

#include "content/month_model.h"

namespace orbisol {

// Returns the tip of a cell. With `eventsOnly` the date is left out, and a day without texts and moon has an
// empty tip. Empty for an empty cell. Plain text.
std::u16string TipText(const DayCell& cell, bool eventsOnly);

}  // namespace orbisol

// The fonts of the month view, sized to its cells.
#pragma once

#include <QFont>

#include "settings/display_settings.h"
#include "ui/painting/month_layout.h"

namespace orbisol {

// `font` in the largest size whose lines are at most `height` high, ascent and descent together, in pixels of
// the device. At least one pixel.
QFont FontOfHeight(QFont font, int height);

// The calendar's font as the settings have it, in no particular size; `dialogFont` where they name none. A
// family that the machine lacks is replaced by the toolkit.
QFont CalendarFont(const DisplaySettings& settings, const QFont& dialogFont);

struct MonthFonts {
  QFont upright;
  QFont italic;  // days of the neighboring months
  QFont names;   // upright, in the largest size at which all weekday names fit their columns
  QFont small;   // week numbers and their title, likewise
};
MonthFonts MakeMonthFonts(const MonthLayout& layout, const DisplaySettings& settings,
                          const QFont& dialogFont);

}  // namespace orbisol

// The fonts of the month view, sized to its cells, and the weekday names as they fit over its columns.
//
//   const MonthFonts fonts = MakeMonthFonts(layout, settings, font());
//   fonts.upright.pixelSize();
#pragma once

#include <QFont>
#include <QSize>
#include <QString>

#include <array>

#include "settings/display_settings.h"
#include "ui/painting/month_layout.h"

namespace orbisol {

// Returns `font` in the largest size whose lines are at most `height` high, ascent and descent together, in
// pixels of the device. At least one pixel.
QFont FontOfHeight(QFont font, int height);

// Returns the calendar's font as the settings have it, in no particular size; `dialogFont` where they name
// none. A family that the machine lacks is replaced by the toolkit.
QFont CalendarFont(const DisplaySettings& settings, const QFont& dialogFont);

struct MonthFonts {
  QFont upright;    // font of the days of the month
  QFont italic;     // font of the days of its neighbors
  QFont names;      // font of the weekday names; at most as large as `upright`
  QFont small;      // font of the week numbers; at least 8 pixels, however narrow their column
  QFont weekTitle;  // font of the title over the week numbers; at least 8 pixels too
  // "Lundi", or "Lun." where the longest of the seven would have to be smaller than the text of the dialogs.
  std::array<QString, kColumns> nameTexts;
};
MonthFonts MakeMonthFonts(const MonthLayout& layout, const DisplaySettings& settings,
                          const QFont& dialogFont);

// Returns the size below which a month is hard to read beside texts in `dialogFont`: abbreviated weekday
// names in that font fit over their columns, and a row is about two lines high. Both sides are divisible by
// seven.
QSize LeastMonthSize(const QFont& dialogFont);

}  // namespace orbisol

// The settings that a user has: how the calendar in use looks and which one it is, the switches of the view,
// and where windows stand. One record for the program, copied whole.
//
//   DisplaySettings settings;          // a fresh installation
//   settings.ColorAt(kHolidayText);    // of the calendar's look
//   settings.mainLayout.rect;          // screen coordinates, frame included
#pragma once

#include <algorithm>
#include <string>

#include "content/calendar_look.h"
#include "settings/window_layout.h"

namespace orbisol {

// The calendar rules live beside this record (core/calendar_config.h).
struct DisplaySettings : CalendarLook {
  WindowLayout mainLayout;
  WindowLayout printLayout;
  bool changed = false;  // whether the calendar was edited since the last save
  bool showWeekNumber = false;
  bool circleTheDay = false;        // true: the mark of the active day is a circle; false: a rectangle
  int circleWidth = 2;              // 1 thin .. 3 thick; out of range as stored, clamped where used
  bool collapseCells = true;        // whether backgrounds of neighboring days touch
  bool fullCellBackground = false;  // true: a background fills the whole cell; false: a band
  int backgroundAlpha = 128;        // 0 invisible .. 255 opaque; out of range as stored, clamped where used
  bool grid = true;
  bool tipsForEventsOnly = true;
  FixedText<kMaxPathUnits + 1> calendarName;  // empty reads as "Calendar"
  bool magnetMouse = false;                   // whether the pointer stays on the active cell
  bool cellTexts = false;       // whether cells show the names of their days, where they have room
  std::u16string calendarPath;  // file of the calendar, empty before it is known

  CalendarLook& Look() { return *this; }
  const CalendarLook& Look() const { return *this; }

  int CircleWidth() const { return std::clamp(circleWidth, 1, 3); }
  int BackgroundAlpha() const { return std::clamp(backgroundAlpha, 0, 255); }

  bool operator==(const DisplaySettings&) const = default;
};

// Returns the settings in force.
DisplaySettings& Display();

}  // namespace orbisol

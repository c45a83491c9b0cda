// The parts of a month whose colors the preferences change, and which colors they have.
//
//   ElementName(kElementHoliday);           // "Jour férié"
//   ColorsOf(kElementHoliday).foreground;   // kHolidayText
#pragma once

#include <QString>

#include "content/calendar_look.h"

namespace orbisol {

enum PreviewElement {
  kElementHeader,
  kElementOtherMonth,
  kElementNormalDay,
  kElementMark,  // of the active day
  kElementWeekNumber,
  kElementEvent,
  kElementHoliday,
  kElementVacation,
  kElementTitle,
  kElementCount,
  kNoElement = kElementCount
};

struct ElementColors {
  ColorIndex foreground;
  ColorIndex background;  // several elements share that of a normal day
};
ElementColors ColorsOf(PreviewElement element);  // any but kNoElement

QString ElementName(PreviewElement element);

}  // namespace orbisol

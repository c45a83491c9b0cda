// The months that the preview of the preferences shows.
#pragma once

#include <QString>

#include "content/calendar_content.h"
#include "settings/settings_persistence.h"
#include "ui/painting/month_painter.h"

namespace orbisol {

enum class SampleKind {
  kElements,  // a month with one of each element: a holiday, an event, a vacation, an active day, other
              // months
  kReform,    // the month from which the reform takes its dates
};

struct SampleMonth {
  CalendarContent content;
  MonthModel month;
  MonthMarks marks;
  QString title;  // month and civil year
};

// Builds a sample under edited rules, which are in force only meanwhile.
SampleMonth MakeSample(SampleKind kind, const Preferences& edited);

// Returns "Mars 2011", the title of the first sample where civil years are as ours.
QString SampleTitleText();

}  // namespace orbisol

#include "ui/print/page_month.h"

#include <QPainter>

#include <algorithm>
#include <utility>

#include "ui/painting/month_pictures.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

std::vector<PrintedDay> PrintedDays(const PrintJob& job, std::span<const DayCell> days) {
  std::vector<PrintedDay> printed;
  const DayCell* before = nullptr;
  for (const DayCell& day : days) {
    PrintedDay result;
    result.isHoliday = job.Has(kHolidayOption) && (day.marks & kHolidayMark) != 0;
    result.isEvent = job.Has(kEventOption) && (day.marks & kEventMark) != 0;
    result.isVacation = job.Has(kVacationOption) && (day.marks & kVacationMark) != 0;
    result.hasMoon = job.Has(kMoonOption) && day.moonPhase != kNoPhase;
    result.isSunday = day.weekday == 0;
    if (result.isEvent) result.runs.push_back({ToQString(day.eventText), Lettering::kUpright});
    if (result.isHoliday) result.runs.push_back({ToQString(day.holidayText), Lettering::kBold});
    const bool goesOn = before != nullptr && (before->marks & kVacationMark) != 0 &&
                        before->vacationTitle == day.vacationTitle;
    if (result.isVacation && !goesOn)
      result.runs.push_back({ToQString(day.vacationTitle), Lettering::kItalic, true});
    printed.push_back(std::move(result));
    before = &day;
  }
  return printed;
}

void FillArea(QPainter& painter, const Rect& rect, Color color) {
  painter.fillRect(ToQRect(rect), ToQColor(color));
}

void DrawHorizontal(QPainter& painter, const Rect& frame, int left, int right, int y, int thickness) {
  const int top = std::clamp(y - thickness / 2, frame.top, std::max(frame.top, frame.bottom - thickness));
  painter.fillRect(left, top, right - left, thickness, Qt::black);
}

void DrawVertical(QPainter& painter, const Rect& frame, int x, int top, int bottom, int thickness) {
  const int left = std::clamp(x - thickness / 2, frame.left, std::max(frame.left, frame.right - thickness));
  painter.fillRect(left, top, thickness, bottom - top, Qt::black);
}

void DrawMoon(QPainter& painter, const Rect& square, MoonPhase phase, const PageUnits& units) {
  if (square.Width() > 0 && square.Height() > 0)
    DrawMoonOnPaper(painter, ToQRect(square), phase, units.thinLine);
}

}  // namespace orbisol

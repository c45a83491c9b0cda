// What the painters of a page share: the fonts and the state of the page, and one month of it.
#pragma once

#include <span>
#include <vector>

#include "content/month_model.h"
#include "ui/print/page_layout.h"
#include "ui/print/page_text.h"
#include "ui/print/print_job.h"

class QPainter;

namespace orbisol {

struct PageStyle {
  const PrintJob& job;
  const CPageFonts& fonts;
  PageUnits units;
};

// Grounds of the days on paper, light enough to write on.
constexpr Color kHolidayFill = Rgb(192, 192, 192);
constexpr Color kEventFill = Rgb(224, 224, 224);
constexpr Color kSundayFill = Rgb(224, 224, 224);
constexpr Color kVacationFill = Rgb(224, 224, 255);

// What the options of a job leave of the marks of a day.
struct PrintedDay {
  bool isHoliday = false;
  bool isEvent = false;
  bool isVacation = false;
  bool hasMoon = false;
  bool isSunday = false;
  std::vector<TextRun> runs;  // events, holidays; on a new line the vacation, where it begins
};

// Returns one for each of the days, which follow one another. A vacation is named on the first day shown, and
// where it begins.
std::vector<PrintedDay> PrintedDays(const PrintJob& job, std::span<const DayCell> days);

// Fills a rectangle with a color of paper.
void FillArea(QPainter& painter, const Rect& rect, Color color);

// Draw a straight black line that is centered on a position, but inside `frame`.
void DrawHorizontal(QPainter& painter, const Rect& frame, int left, int right, int y, int thickness);
void DrawVertical(QPainter& painter, const Rect& frame, int x, int top, int bottom, int thickness);

// Draws the phase of the moon.
void DrawMoon(QPainter& painter, const Rect& square, MoonPhase phase, const PageUnits& units);

}  // namespace orbisol

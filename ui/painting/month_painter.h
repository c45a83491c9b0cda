// Paints a month: the window on the screen, the preview of the preferences and the printed page alike.
//
//   CMonthPainter painter;
//   painter.SetUp(layout, settings, font(), CMonthPainter::kScreen);
//   painter.SetBackground(BuiltInBackground());
//   painter.SetTexts(model, content);  // shown where the settings ask for them and cells have room
//   painter.Paint(canvas, model, marks);
//
// Painting changes nothing but the canvas. The painter's origin is the upper left corner of the layout.
#pragma once

#include <QFontMetrics>
#include <QImage>
#include <QRegion>

#include <array>

#include "content/month_model.h"
#include "core/moon.h"
#include "settings/display_settings.h"
#include "ui/painting/cell_texts.h"
#include "ui/painting/month_fonts.h"
#include "ui/painting/month_layout.h"

class QPainter;

namespace orbisol {

// The days that are marked in a month.
struct MonthMarks {
  int month = 0;  // month and day of the selected date; with no such cell nothing is marked
  int day = 0;

  // Day numbers of a range, both inclusive, whose cells are inverted instead. Not on paper.
  bool hasRange = false;
  int firstDayNumber = 0;
  int lastDayNumber = 0;
  bool IsInRange(const DayCell& cell) const;  // false for an empty cell, and where there is no range

  PackedDate today = 0;  // day whose number is underlined and whose cell is tinted, not on paper; 0: none
};

class CMonthPainter {
 public:
  // A screen's canvas must be opaque: inverting a range needs that. On paper shapes are exact, the moon is
  // black and white, and nothing is inverted or underlined.
  enum Medium { kScreen, kPaper };

  void SetUp(const MonthLayout& layout, const DisplaySettings& settings, const QFont& dialogFont,
             Medium medium);

  // Sets the picture that is stretched over the rows; null for none, which leaves the plain background color.
  void SetBackground(const QImage& picture);

  // Lays out the names of a month for its cells; `content` is what the month was built with. Does nothing
  // while cells show no texts, or the month has the same cells as before. Where rules were changed, call
  // SetUp() first.
  void SetTexts(const MonthModel& month, const CalendarContent& content);

  const MonthLayout& Layout() const { return m_layout; }

  // Paints a month. With a region only that part is painted, and looks as if all had been painted anew.
  void Paint(QPainter& painter, const MonthModel& month, const MonthMarks& marks,
             const QRegion& region = QRegion()) const;

 private:
  void PaintBackground(QPainter& painter) const;
  void PaintHeader(QPainter& painter) const;
  void PaintGrid(QPainter& painter) const;
  void PaintCell(QPainter& painter, const MonthModel& month, int cell, const MonthMarks& marks) const;
  void PaintFill(QPainter& painter, const DayCell& day, int cell) const;
  QRect PaintNumber(QPainter& painter, const DayCell& day, int cell, bool isItalic) const;
  void PaintMoon(QPainter& painter, int cell, MoonPhase phase) const;
  void PaintWeekNumber(QPainter& painter, int row, int week) const;
  void PaintRange(QPainter& painter, const MonthModel& month, const MonthMarks& marks) const;
  void PaintMark(QPainter& painter, const DayCell& day, int cell) const;
  void FillLine(QPainter& painter, int position, Qt::Orientation orientation) const;
  void AlignToPixels(QPainter& painter) const;
  double Ratio(const QPainter& painter) const;

  MonthLayout m_layout;
  DisplaySettings m_settings;
  Medium m_medium = kScreen;
  MonthFonts m_fonts;
  int m_pairWidth = 0;  // width of a number of two digits in the upright font
  int m_lineHeight = 0;
  QImage m_background;
  CCellTexts m_texts;

  mutable QSize m_pixels;  // size of the layout in device pixels, in the paint under way

  // Copies in device pixels, made when a size is first painted.
  mutable QImage m_stretched;
  mutable std::array<QImage, 5> m_glyphs;  // by MoonPhase
};

}  // namespace orbisol

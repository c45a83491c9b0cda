// The geometry of the month view: a header row, six rows of weeks and, where they are shown, a narrow column
// of week numbers at the right. All are plain integers in the unit of the canvas (pixels on a screen).
//
//   const MonthLayout layout(900, 420, settings.showWeekNumber, Rules().iso8601);
//   layout.CellRect(cell);  // cells are numbered as in MonthModel
//   layout.CellAt(x, y);    // its inverse
//
// Any size is accepted; in one too small for seven columns and rows nothing is hit and rectangles may be
// empty.
#pragma once

#include <vector>

#include "content/month_model.h"
#include "core/rect.h"

namespace orbisol {

constexpr int kColumns = 7;
constexpr int kWeekRows = 6;
constexpr int kDayPlaces = kColumns * kWeekRows;

struct MonthLayout {
  int width = 0;
  int height = 0;
  int columnWidth = 0;
  int rowHeight = 0;
  int lineScale = 1;  // width of a thin line
  bool showWeekNumber = false;
  int firstCell = 1;  // 1 with Monday-first weeks, else 0

  MonthLayout() = default;
  MonthLayout(int totalWidth, int totalHeight, bool weekNumbers, bool mondayFirst, int scale = 1);

  // Return the column, 0..6, and the row, 1..6, of a cell, which must be firstCell or a later one.
  int ColumnOf(int cell) const { return (cell - firstCell) % kColumns; }
  int RowOf(int cell) const { return (cell - firstCell) / kColumns + 1; }
  bool IsInFirstRow(int cell) const { return RowOf(cell) == 1; }

  // Returns the week number at the end of row 1..6: that of the row's last cell but one or, in the row in
  // which the month's cells end, that of the last of them. 0 for a row that shows none.
  int WeekOfRow(const MonthModel& month, int row) const;

  Rect CellRect(int cell) const;
  // Returns the cell at a point; kNoCell in the header row, in and right of the week numbers, in the
  // remainder of the divisions at the right and below, and outside.
  int CellAt(int x, int y) const;

  Rect HeaderBand() const { return {0, 0, width, rowHeight + 1}; }
  Rect PictureRect() const { return {0, rowHeight, width, height}; }
  Rect NameRect(int column) const;  // place of a weekday name, 0..6
  Rect WeekHeaderRect() const;      // place of the title over the week numbers
  Rect WeekNumberRect(int row) const;

  // Return the left and upper edges of the grid's lines, the closing ones included, which lie just outside.
  std::vector<int> VerticalLines(bool grid) const;
  std::vector<int> HorizontalLines(bool grid) const;

  // Return the area that is filled in the cell of a day with a mark: a band across the top, or a rectangle
  // with rounded corners.
  Rect BandRect(int cell) const;
  Rect RoundedRect(int cell) const { return CellRect(cell).Shrunk(4 * lineScale); }
  int RoundedDiameter() const;

  // Returns the square of the phase of the moon, right of a number of two digits whose text is `textWidth`
  // wide and `textHeight` high.
  Rect GlyphRect(int cell, int textWidth, int textHeight) const;

  Rect CircleRect(int cell) const;  // rectangle around the ellipse of the active day
  // Returns the outer edges of the frame of the active day.
  Rect FrameRect(int cell, int penWidth) const;
  // Returns the strokes of a frame, in any unit: top, bottom, left, right; a frame without an inside is one
  // stroke.
  static std::vector<Rect> FrameStrokes(const Rect& frame, int thickness);

  // Cells with texts: the number at the upper left, the moon at the upper right, lines of text below. Heights
  // of text are ascent and descent together; `dialogHeight` is that of the dialogs' font.
  int TextInset() const;     // space between the edges of a cell and what stands in it
  int CornerHeight() const;  // height of number and moon
  int TextLineHeight(int dialogHeight) const;
  Rect CornerGlyphRect(int cell) const;
  Rect TextRect(int cell) const;  // place of the lines
  // Returns how many lines fit; 0 where fewer than two would, or hardly a word fits into one. The month is
  // then drawn without texts.
  int TextLines(int dialogHeight) const;

  // Returns the area to repaint when the mark comes to a cell or leaves it.
  Rect DirtyRect(int cell) const;

  // Return heights of fonts, ascent and descent together.
  int FontHeight() const;
  int SmallFontHeight() const;

 private:
  int WeekNumbersLeft() const;
};

}  // namespace orbisol

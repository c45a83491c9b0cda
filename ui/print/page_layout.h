// The geometry of printed pages, in device units: plain integers, so that paper, preview and tests agree.
//
//   const Rect area = PageArea({2100, 2970, {150, 150, 150, 150}}, 600);
//   const PageBands bands = PageBandsOf(area, PageUnits(600), 12, false, {});
//   const ColumnLayout column = ColumnOnPage(bands.body, PageUnits(600), 12, 0);
//
// Positions count from the upper left corner of the paper. On paper too small for its content rectangles may
// be empty; they never leave the area.
#pragma once

#include "core/rect.h"

namespace orbisol {

// A paper and the margins that are kept free, in tenths of a millimetre.
struct PaperSetup {
  int width = 0;
  int height = 0;
  Rect margins;  // widths at the left, top, right and bottom, none below 0
};

// Returns what the margins leave of the paper at a resolution in dots per inch; empty where they leave
// nothing.
Rect PageArea(const PaperSetup& paper, int resolution);

// Lengths at a resolution. Each is at least 1, so that lines are seen on a coarse device too.
struct PageUnits {
  int point;      // typographic point, a 72nd of an inch
  int thickLine;  // width of frames and of the lines between weeks
  int thinLine;

  explicit PageUnits(int resolution);
};

struct PictureSize {
  int width = 0;  // in any unit; 0 for no picture
  int height = 0;
};

// The parts of a page. `picture` has the proportions of the picture and is empty without one: above the title
// on an upright page, left of all else on a wide one. `isTable` says that a single month is no column of
// days: it leaves a picture more room.
struct PageBands {
  Rect picture;
  Rect title;
  Rect body;
  Rect caption;
};
PageBands PageBandsOf(const Rect& area, const PageUnits& units, int monthsPerPage, bool isTable,
                      const PictureSize& picture);

// Returns the largest rectangle in those proportions inside `room`, in its middle.
Rect FittedPicture(const Rect& room, const PictureSize& picture);

// A column of a month: a title row and 31 rows of days.
struct ColumnLayout {
  int left = 0;
  int top = 0;
  int width = 0;
  int rowHeight = 0;
  PageUnits units;
  int letter = 0;  // width of an "M" in the title font, from which the parts of a row are measured

  int TitleFontHeight() const;  // ascent and descent together
  int SmallFontHeight() const;

  int Bottom() const { return RowTop(32); }
  int RowTop(int day) const { return top + day * rowHeight; }  // 0 for the title row
  int StripRight() const { return left + units.point + 3 * letter; }

  Rect Row(int day) const { return {left, RowTop(day), left + width, RowTop(day + 1)}; }
  Rect Strip(int day) const;  // number and weekday
  Rect Number(int day) const;
  Rect Weekday(int day) const;
  Rect Text(int day) const;
  Rect WeekLabel(int day) const;  // its text ends in the lower right corner
  Rect Moon(int day) const;
};

// Returns column `index`, from 0, of as many as there are months on a page; `letter` is still to be set.
ColumnLayout ColumnOnPage(const Rect& body, const PageUnits& units, int monthsPerPage, int index);

// A table of a month: a header row, then a row a week; at the left a narrow column of week numbers.
struct TableLayout {
  Rect frame;
  PageUnits units;
  int rows = 0;                // weeks shown
  int dateLines = 0;           // other calendars whose dates are shown
  bool hasDatesBelow = false;  // whether they stand below the number, where there is no room beside it

  int HeaderBottom() const;
  int WeekColumnRight() const;
  int ColumnLeft(int column) const;  // 0..7, the last being the right edge
  int RowTop(int row) const;         // 0..rows, the last being the lower edge

  Rect Name(int column) const;
  Rect Week(int row) const;
  Rect Cell(int row, int column) const;

  int HeaderFontHeight() const;
  int NumberFontHeight() const;
  int SmallFontHeight() const;
};
TableLayout TableOnPage(const Rect& body, const PageUnits& units, int rows, int dateLines);

// The parts of a cell: a head with number, dates of other calendars and moon, and room for texts and notes.
struct TableCell {
  Rect head;
  Rect number;
  Rect dates;  // of other calendars, one line above the other; its texts end at the right
  Rect moon;
  Rect text;
};
TableCell PartsOf(const Rect& cell, const TableLayout& table);

}  // namespace orbisol

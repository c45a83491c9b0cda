#include "ui/print/page_layout.h"

#include <algorithm>

#include "core/integers.h"

namespace orbisol {
namespace {

constexpr int kTenthsPerInch = 254;
constexpr int kPointsPerInch = 72;
constexpr int kRows = 32;  // a title row and 31 days
constexpr int kTableColumns = 7;

// Returns the part of an edge that a picture may take, in percent: the more months stand on a page, the less.
// Above columns it leaves rows in which the small font can be read; beside them it takes width, of which they
// have more than they need.
int PicturePercent(int monthsPerPage, bool isTable, bool isUpright) {
  if (monthsPerPage >= 12) return isUpright ? 15 : 22;
  if (monthsPerPage >= 6) return isUpright ? 20 : 25;
  if (monthsPerPage >= 3) return isUpright ? 25 : 35;
  return isTable || !isUpright ? 42 : 28;
}

// Returns the height of the title, which grows with the paper, so that it can be read from where the page is.
int TitleHeight(const Rect& area, const PageUnits& units, int monthsPerPage) {
  const int wanted = std::min(area.Height() / 20, area.Width() / (monthsPerPage == 1 ? 16 : 20));
  return std::clamp(wanted, 14 * units.point, 72 * units.point);
}

// Returns a rectangle whose corners are in order and lie inside `area`.
Rect Inside(const Rect& rect, const Rect& area) {
  Rect inside;
  inside.left = std::clamp(rect.left, area.left, area.right);
  inside.top = std::clamp(rect.top, area.top, area.bottom);
  inside.right = std::clamp(rect.right, inside.left, area.right);
  inside.bottom = std::clamp(rect.bottom, inside.top, area.bottom);
  return inside;
}

}  // namespace

PageUnits::PageUnits(int resolution)
    : point(std::max(1, MulDiv(1, resolution, kPointsPerInch))),
      thickLine(std::max(1, MulDiv(10, resolution, 10 * kPointsPerInch))),
      thinLine(std::max(1, thickLine / 2)) {}

Rect PageArea(const PaperSetup& paper, int resolution) {
  const auto units = [&](int tenths) { return MulDiv(tenths, resolution, kTenthsPerInch); };
  const Rect whole = {0, 0, units(paper.width), units(paper.height)};
  return Inside({units(paper.margins.left), units(paper.margins.top),
                 units(paper.width - paper.margins.right), units(paper.height - paper.margins.bottom)},
                whole);
}

Rect FittedPicture(const Rect& room, const PictureSize& picture) {
  if (picture.width <= 0 || picture.height <= 0 || room.Width() <= 0 || room.Height() <= 0) return {};
  int width = room.Width();
  int height = MulDiv(width, picture.height, picture.width);
  if (height > room.Height()) {
    height = room.Height();
    width = MulDiv(height, picture.width, picture.height);
  }
  const int left = room.left + (room.Width() - width) / 2;
  const int top = room.top + (room.Height() - height) / 2;
  return {left, top, left + width, top + height};
}

PageBands PageBandsOf(const Rect& area, const PageUnits& units, int monthsPerPage, bool isTable,
                      const PictureSize& picture) {
  PageBands bands;
  Rect rest = area;
  const int gap = 6 * units.point;
  if (picture.width > 0 && picture.height > 0) {
    const bool isUpright = area.Height() >= area.Width();
    const int percent = PicturePercent(monthsPerPage, isTable, isUpright);
    Rect room = area;
    if (isUpright) {
      room.bottom = room.top + MulDiv(area.Height(), percent, 100);
    } else {
      room.right = room.left + MulDiv(area.Width(), percent, 100);
    }
    // A picture of other proportions needs less room than it may take.
    const Rect fitted = FittedPicture(room, picture);
    if (isUpright) {
      bands.picture = {fitted.left, room.top, fitted.right, room.top + fitted.Height()};
      rest.top = bands.picture.bottom + gap;
    } else {
      bands.picture = {room.left, fitted.top, room.left + fitted.Width(), fitted.bottom};
      rest.left = bands.picture.right + 2 * gap;
    }
  }
  const int captionHeight = 12 * units.point;
  const int titleHeight = TitleHeight(area, units, monthsPerPage);
  bands.caption = Inside({rest.left, rest.bottom - captionHeight, rest.right, rest.bottom}, area);
  bands.title = Inside({rest.left, rest.top, rest.right, rest.top + titleHeight}, area);
  bands.body = Inside(
      {rest.left, bands.title.bottom + 2 * units.point, rest.right, bands.caption.top - 2 * units.point},
      area);
  return bands;
}

int ColumnLayout::TitleFontHeight() const {
  return std::max(1, std::min(MulDiv(rowHeight, 75, 100), MulDiv(width, 75, 600)));
}

int ColumnLayout::SmallFontHeight() const {
  return std::max(1, std::min(MulDiv(rowHeight - units.point, 34, 100), MulDiv(width, 50, 600)));
}

Rect ColumnLayout::Strip(int day) const { return {left, RowTop(day), StripRight(), RowTop(day + 1)}; }

Rect ColumnLayout::Number(int day) const { return {left, RowTop(day), left + 2 * letter, RowTop(day + 1)}; }

Rect ColumnLayout::Weekday(int day) const {
  return {left + 2 * letter, RowTop(day), left + 3 * letter, RowTop(day + 1)};
}

Rect ColumnLayout::Text(int day) const {
  return {left + 3 * letter + 2 * units.point, RowTop(day) + units.point, left + width - letter,
          RowTop(day + 1) - units.point};
}

Rect ColumnLayout::WeekLabel(int day) const {
  return {left, RowTop(day), left + width, RowTop(day + 1) - units.point};
}

Rect ColumnLayout::Moon(int day) const {
  const int side = rowHeight / 3;
  const int right = left + width - 3 * units.thickLine + units.point;
  const int upper = RowTop(day) + units.point;
  return {right - side, upper, right, upper + side};
}

ColumnLayout ColumnOnPage(const Rect& body, const PageUnits& units, int monthsPerPage, int index) {
  const int width = body.Width() / monthsPerPage;
  return {body.left + index * width, body.top, width, body.Height() / kRows, units, 0};
}

TableLayout TableOnPage(const Rect& body, const PageUnits& units, int rows, int dateLines) {
  return {body, units, std::max(rows, 1), dateLines};
}

int TableLayout::HeaderBottom() const {
  return frame.top + std::min(frame.Height(), HeaderFontHeight() + 6 * units.point);
}

int TableLayout::WeekColumnRight() const { return frame.left + frame.Width() / 22; }

int TableLayout::ColumnLeft(int column) const {
  return WeekColumnRight() + MulDiv(frame.right - WeekColumnRight(), column, kTableColumns);
}

int TableLayout::RowTop(int row) const {
  return HeaderBottom() + MulDiv(frame.bottom - HeaderBottom(), row, rows);
}

Rect TableLayout::Name(int column) const {
  return {ColumnLeft(column), frame.top, ColumnLeft(column + 1), HeaderBottom()};
}

Rect TableLayout::Week(int row) const {
  return {frame.left, RowTop(row), WeekColumnRight(), RowTop(row + 1)};
}

Rect TableLayout::Cell(int row, int column) const {
  return {ColumnLeft(column), RowTop(row), ColumnLeft(column + 1), RowTop(row + 1)};
}

// Fonts follow the width of a column, in which a weekday's name must fit, and the height of the lowest row,
// and so grow with the paper.
int TableLayout::HeaderFontHeight() const {
  return std::max(units.point, std::min(frame.Width() / kTableColumns / 6, frame.Height() / 6 / 5));
}

int TableLayout::NumberFontHeight() const {
  const int part = dateLines > 0 ? 5 : 4;  // beside dates of other calendars it is smaller
  return std::max(units.point,
                  std::min(frame.Width() / kTableColumns / part, frame.Height() / 6 / (part - 1)));
}

int TableLayout::SmallFontHeight() const {
  return std::max(units.point, std::min(frame.Width() / kTableColumns / 8, frame.Height() / 6 / 7));
}

TableCell PartsOf(const Rect& cell, const TableLayout& table) {
  const int inset = std::max(3 * table.units.point, cell.Width() / 28);
  const int number = table.NumberFontHeight();
  const int small = table.SmallFontHeight();
  TableCell parts;
  parts.head = cell;
  const int dates = table.dateLines * small;
  const int headHeight = table.hasDatesBelow ? number + dates : std::max(number, dates);
  parts.head.bottom = std::min(cell.bottom, cell.top + headHeight + 2 * table.units.point);
  const int upper = cell.top + table.units.point;
  parts.number = Inside({cell.left + inset, upper, cell.left + inset + 2 * number, upper + number}, cell);
  const int moon = number * 3 / 5;
  const int moonTop = upper + (number - moon) / 2;
  parts.moon = Inside({cell.right - inset - moon, moonTop, cell.right - inset, moonTop + moon}, cell);
  parts.dates = table.hasDatesBelow
                    ? Inside({cell.left + inset, upper + number, cell.right - inset, parts.head.bottom}, cell)
                    : Inside({parts.number.left + number * 5 / 4, upper, parts.moon.left - inset / 2,
                              parts.head.bottom},
                             cell);
  parts.text = Inside({cell.left + inset, parts.head.bottom + table.units.point, cell.right - inset,
                       cell.bottom - table.units.point},
                      cell);
  return parts;
}

}  // namespace orbisol

#include "ui/painting/month_layout.h"

#include <algorithm>

#include "core/integers.h"

namespace orbisol {
namespace {

constexpr int kNameMargin = 3;  // space left and right of a weekday name, in pixels

}  // namespace

MonthLayout::MonthLayout(int totalWidth, int totalHeight, bool weekNumbers, bool mondayFirst, int scale)
    : width(std::max(totalWidth, 0)),
      height(std::max(totalHeight, 0)),
      // With week numbers the seven columns take 280 of 290 parts of the width.
      columnWidth(weekNumbers ? MulDiv(40, width, 290) : width / kColumns),
      rowHeight(height / (kWeekRows + 1)),
      lineScale(std::max(scale, 1)),
      showWeekNumber(weekNumbers),
      firstCell(mondayFirst ? 1 : 0) {}

int MonthLayout::WeekOfRow(const MonthModel& month, int row) const {
  const auto cell = [&](int index) -> const DayCell& { return month.cells[static_cast<std::size_t>(index)]; };
  const int end = firstCell + row * kColumns - 1;
  if (cell(end).day != 0) return cell(end - 1).week;
  const int last = month.LastCell();
  return last != kNoCell && RowOf(last) == row ? cell(last).week : 0;
}

Rect MonthLayout::CellRect(int cell) const {
  const int left = ColumnOf(cell) * columnWidth;
  const int top = RowOf(cell) * rowHeight;
  return {left, top, left + columnWidth, top + rowHeight};
}

int MonthLayout::CellAt(int x, int y) const {
  if (x < 0 || y < 0 || columnWidth == 0 || rowHeight == 0) return kNoCell;
  const int column = x / columnWidth;
  const int row = y / rowHeight;
  if (column >= kColumns || row < 1 || row > kWeekRows) return kNoCell;
  return firstCell + (row - 1) * kColumns + column;
}

Rect MonthLayout::NameRect(int column) const {
  return Rect{column * columnWidth, 0, (column + 1) * columnWidth, rowHeight}.Shrunk(kNameMargin, 0);
}

Rect MonthLayout::WeekHeaderRect() const { return {WeekNumbersLeft(), 0, width, rowHeight}; }

Rect MonthLayout::WeekNumberRect(int row) const {
  return {WeekNumbersLeft(), row * rowHeight, width - 1, (row + 1) * rowHeight};
}

// Returns the left edge of the week numbers. On purpose: it is not always at 28/29 of the width. Columns of
// days that are rounded up reach up to three pixels beyond it, and their last line would cross the numbers.
int MonthLayout::WeekNumbersLeft() const {
  return std::max(MulDiv(28, width, 29), kColumns * columnWidth + lineScale);
}

std::vector<int> MonthLayout::VerticalLines(bool grid) const {
  std::vector<int> lines;
  if (grid) {
    const int count = showWeekNumber ? kColumns + 1 : kColumns;
    for (int j = 0; j < count; ++j) lines.push_back(j * columnWidth);
    lines.push_back(width);
  } else if (showWeekNumber) {
    lines.push_back(kColumns * columnWidth);
  }
  return lines;
}

std::vector<int> MonthLayout::HorizontalLines(bool grid) const {
  std::vector<int> lines;
  if (!grid) return lines;
  if (rowHeight > 0)
    for (int j = 0; j < height / rowHeight; ++j) lines.push_back(j * rowHeight);
  lines.push_back(height);
  return lines;
}

Rect MonthLayout::BandRect(int cell) const {
  Rect band = CellRect(cell);
  band.bottom = band.top + band.Height() / 5;
  return band;
}

int MonthLayout::RoundedDiameter() const { return std::min(columnWidth, rowHeight) / (5 * lineScale); }

Rect MonthLayout::GlyphRect(int cell, int textWidth, int textHeight) const {
  const Rect rect = CellRect(cell);
  const int side = textHeight / 4;
  const int left = rect.left + (columnWidth + textWidth) / 2;
  return {left, rect.top + (rowHeight - side) / 2, left + side, rect.top + (rowHeight + side) / 2};
}

Rect MonthLayout::CircleRect(int cell) const {
  return CellRect(cell).Shrunk(columnWidth / 20, rowHeight / 20);
}

Rect MonthLayout::FrameRect(int cell, int penWidth) const {
  Rect frame = CellRect(cell);
  // The middle of each stroke lies on the edge of the cell shrunk by half the pen. A stroke of odd width ends
  // one pixel outside the cell, but never outside the canvas.
  frame.right = std::min(frame.right + penWidth % 2, width);
  frame.bottom = std::min(frame.bottom + penWidth % 2, height);
  return frame;
}

std::vector<Rect> MonthLayout::FrameStrokes(const Rect& frame, int thickness) {
  const Rect inner = frame.Shrunk(thickness);
  if (inner.Width() <= 0 || inner.Height() <= 0) return {frame};
  return {{frame.left, frame.top, frame.right, inner.top},
          {frame.left, inner.bottom, frame.right, frame.bottom},
          {frame.left, inner.top, inner.left, inner.bottom},
          {inner.right, inner.top, frame.right, inner.bottom}};
}

int MonthLayout::TextInset() const { return std::max(columnWidth / 20, 6 * lineScale); }

int MonthLayout::CornerHeight() const {
  return std::min(std::max(SmallFontHeight(), 11 * lineScale), rowHeight / 3);
}

int MonthLayout::TextLineHeight(int dialogHeight) const {
  const int mostInDialogs = MulDiv(dialogHeight * lineScale, 115, 100);
  return std::max(10 * lineScale, std::min(rowHeight / 6, mostInDialogs));
}

Rect MonthLayout::CornerGlyphRect(int cell) const {
  const Rect rect = CellRect(cell).Shrunk(TextInset());
  return {rect.right - CornerHeight(), rect.top, rect.right, rect.top + CornerHeight()};
}

Rect MonthLayout::TextRect(int cell) const {
  Rect rect = CellRect(cell).Shrunk(TextInset());
  rect.top += CornerHeight() + lineScale;
  return rect;
}

int MonthLayout::TextLines(int dialogHeight) const {
  constexpr int kLeastLines = 2;
  constexpr int kLeastWidth = 3;  // room for a number and a moon, in their height
  const Rect rect = TextRect(firstCell);
  const int lineHeight = TextLineHeight(dialogHeight);
  const int lines = rect.Height() / lineHeight;
  return lines >= kLeastLines && rect.Width() >= kLeastWidth * CornerHeight() ? lines : 0;
}

Rect MonthLayout::DirtyRect(int cell) const {
  constexpr int kWidestStroke = 3;  // pixels by which the mark may extend beyond a small cell
  return CellRect(cell).Shrunk(-std::max(columnWidth / 10, kWidestStroke),
                               -std::max(rowHeight / 8, kWidestStroke));
}

int MonthLayout::FontHeight() const { return std::min(columnWidth / 2, rowHeight); }

int MonthLayout::SmallFontHeight() const { return MulDiv(FontHeight(), 40, 100); }

}  // namespace orbisol

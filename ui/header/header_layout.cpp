#include "ui/header/header_layout.h"

#include <algorithm>

namespace orbisol {

HeaderLayout::HeaderLayout(const HeaderMeasures& m) {
  const int third = m.height / 3;
  previous = {0, third, third, 2 * m.height / 3};
  next = {m.width - third, third, m.width, 2 * m.height / 3};
  previousArrow = {{{0, m.height / 2}, {third, third}, {third, 2 * m.height / 3}}};
  nextArrow = {{{m.width, m.height / 2}, {m.width - third, third}, {m.width - third, 2 * m.height / 3}}};
  previousTip = {0, 0, m.height, m.height - m.band};
  nextTip = {m.width - m.height, 0, m.width, m.height - m.band};

  topBand = {0, 0, m.width, m.band};
  title = {0, m.band, m.width, m.height - m.band};
  bottomBand = {0, m.height - m.band, m.width, m.height};

  // Month and year are centered together, a space between them.
  const int left = (m.width - (m.month + m.space + m.year)) / 2;
  month = {left, title.top, left + m.month, title.bottom};
  const int yearLeft = month.right + m.space;
  year = {yearLeft, title.top, yearLeft + m.year, title.bottom};

  const int editorWidth = m.widestYear + m.spinButtons;
  const int editorLeft = std::max(0, std::min(yearLeft, m.width - editorWidth));
  yearEditor = {editorLeft, title.top, editorLeft + editorWidth, title.bottom};
}

HeaderPart HeaderLayout::PartAt(int x, int y) const {
  if (previous.Contains(x, y)) return HeaderPart::kPrevious;
  if (next.Contains(x, y)) return HeaderPart::kNext;
  if (month.Contains(x, y)) return HeaderPart::kMonth;
  if (year.Contains(x, y)) return HeaderPart::kYear;
  return HeaderPart::kNone;
}

int HeaderLayout::TitleRoom(int width, int height) {
  const int arrow = height / 3;
  return std::max(0, width - 2 * (arrow + arrow / 2));
}

}  // namespace orbisol

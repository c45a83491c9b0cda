#include "ui/shell/main_layout.h"

#include <algorithm>

namespace orbisol {
namespace {

Rect Box(int left, int top, int width, int height) {
  return {left, top, left + std::max(width, 0), top + std::max(height, 0)};
}

}  // namespace

MainLayout LayOutMain(const MainMeasures& m) {
  int width = m.width - 2 * kMargin;
  // The remainder that seven equal columns cannot use. With week numbers the grid divides its width itself.
  if (!m.weekNumbers) width -= std::max((width - 3 * kGap - kMargin) % kDayColumns, 0);
  if (m.paneShown) width -= m.paneWidth;

  // The share is enough unless a small screen keeps the window below its least size.
  const int headerHeight = std::max(m.height / kHeaderShare, m.leastHeader);
  const int gridTop = m.headerTop + headerHeight + kHeaderToGrid;

  MainLayout places;
  places.group = Box(kMargin, kTopMargin, width, m.height - 2 * kTopMargin);
  places.header = Box(kMargin + kGap, m.headerTop, width - 2 * kGap, headerHeight);
  places.grid = Box(kMargin + kGap, gridTop, width - 2 * kGap, m.height - kTopMargin - gridTop - kGap);
  const int paneLeft = places.group.right + kMargin;
  places.separator = Box(places.group.right + kMargin / 2, 2 * kTopMargin, 1, m.height - 4 * kTopMargin);
  places.pane = Box(paneLeft, 0, m.paneWidth, m.height);
  return places;
}

int EvenHeight(int height, int headerTop, int leastHeader) {
  constexpr int kRows = 7;  // the row of weekday names and six weeks
  MainMeasures measures;
  measures.headerTop = headerTop;
  measures.leastHeader = leastHeader;
  measures.height = height;
  while (LayOutMain(measures).grid.Height() % kRows != 0) --measures.height;
  return measures.height;
}

}  // namespace orbisol

// How the main dialog shares its room between the month and the converter pane. Plain integers, pixels.
//
//   const MainLayout places = LayOutMain({.width = 850, .height = 380, .paneShown = true, …});
//
// The pane's width is counted in whether or not the pane is shown: hiding it narrows the window by just that
// much, so the month keeps its place and its size.
#pragma once

#include "core/rect.h"

namespace orbisol {

// As the dialog was designed; all columns of a month come out equal because kGap + kMargin is a multiple of
// seven, as the pane's width must be too.
constexpr int kMargin = 7;        // left of the group box
constexpr int kGap = 7;           // from its edge to the header and the grid
constexpr int kTopMargin = 5;     // above the group box, and below
constexpr int kHeaderToGrid = 4;  // between header and grid
constexpr int kDayColumns = 7;
constexpr int kHeaderShare = 7;  // the header takes one part of so many of the dialog's height
static_assert((kGap + kMargin) % kDayColumns == 0);

struct MainMeasures {
  int width = 0;  // of the dialog
  int height = 0;
  int headerTop = 0;         // below the title of the group box
  int leastHeader = 0;       // height that the texts of the header need
  bool weekNumbers = false;  // shown
  bool paneShown = true;
  int paneWidth = 0;  // a multiple of kDayColumns
};

struct MainLayout {
  Rect group;
  Rect header;
  Rect grid;
  Rect separator;
  Rect pane;  // right of the client area where it is hidden

  bool operator==(const MainLayout&) const = default;
};

// Any numbers are accepted; what has no room is empty, never turned inside out.
MainLayout LayOutMain(const MainMeasures& measures);

// Returns the largest height of the dialog, at most `height`, at which the seven rows of the grid come out
// equal.
int EvenHeight(int height, int headerTop, int leastHeader = 0);

// Returns the smallest multiple of kDayColumns that holds `width`.
constexpr int PaneWidthFor(int width) { return (width + kDayColumns - 1) / kDayColumns * kDayColumns; }
// Returns the largest multiple of kDayColumns within `width`; 0 for a negative width.
constexpr int PaneWidthWithin(int width) { return width < 0 ? 0 : width / kDayColumns * kDayColumns; }

}  // namespace orbisol

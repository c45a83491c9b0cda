// How the main dialog shares its room between the month and the converter pane. Plain integers, pixels.
//
//   const MainLayout places = LayOutMain({.width = 850, .height = 380, .paneShown = true, …});
//
// The pane's width is counted in whether or not the pane is shown: hiding it narrows the window by just that
// much, so the month keeps its place and its size.
#pragma once

#include "core/rect.h"

namespace orbisol {

// Distances of the dialog's design. All columns of a month are equally wide because kGap + kMargin is a
// multiple of seven; the pane's width must be one too.
constexpr int kMargin = 7;        // left of the group box
constexpr int kGap = 7;           // from the edge of the group box to the header and the grid
constexpr int kTopMargin = 5;     // above the group box, and below
constexpr int kHeaderToGrid = 4;  // between header and grid
constexpr int kDayColumns = 7;
constexpr int kHeaderShare = 7;  // the header's height is one part in so many of the dialog's
static_assert((kGap + kMargin) % kDayColumns == 0);

struct MainMeasures {
  int width = 0;  // size of the dialog
  int height = 0;
  int headerTop = 0;         // below the title of the group box
  int leastHeader = 0;       // height that the texts of the header need
  bool weekNumbers = false;  // whether week numbers are shown
  bool paneShown = true;
  int paneWidth = 0;  // a multiple of kDayColumns
};

struct MainLayout {
  Rect group;
  Rect header;
  Rect grid;
  Rect separator;
  Rect pane;  // outside at the right while the pane is hidden

  bool operator==(const MainLayout&) const = default;
};

// Returns the places of all parts. Any numbers are accepted; a part without room is empty, never inverted.
MainLayout LayOutMain(const MainMeasures& measures);

// Returns the largest height of the dialog, at most `height`, at which the seven rows of the grid are
// equally high.
int EvenHeight(int height, int headerTop, int leastHeader = 0);

// Returns the smallest multiple of kDayColumns that holds `width`.
constexpr int RoundPaneWidthUp(int width) { return (width + kDayColumns - 1) / kDayColumns * kDayColumns; }
// Returns the largest multiple of kDayColumns within `width`; 0 for a negative width.
constexpr int RoundPaneWidthDown(int width) { return width < 0 ? 0 : width / kDayColumns * kDayColumns; }

}  // namespace orbisol

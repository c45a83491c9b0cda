// Where everything stands in the header above the month: an arrow at each side, the title between them, a
// narrow band above and one below. Plain integers, the unit is the pixel.
//
//   const HeaderLayout layout({.width = 600, .height = 60, .band = 14, .space = 8, .year = 70, …});
//   layout.PartAt(x, y);  // what a click there means
//
// Any numbers are accepted; in a header too small for them rectangles are empty or overlap.
#pragma once

#include <array>

#include "core/integers.h"
#include "core/rect.h"

namespace orbisol {

// Returns the height of a band, from the pixel size of the host's font (its em, not its cell).
constexpr int HeaderBandHeight(int fontPixels) {
  return MulDiv(fontPixels < 0 ? -fontPixels : fontPixels, 120, 100);
}

struct HeaderMeasures {
  int width = 0;
  int height = 0;
  int band = 0;  // HeaderBandHeight

  // Widths of texts in the font of the title.
  int space = 0;
  int month = 0;
  int year = 0;
  int widestYear = 0;  // width of "-0000"

  int spinButtons = 0;  // width of the spin control beside the year editor, its frame included
};

enum class HeaderPart { kNone, kPrevious, kNext, kMonth, kYear };

struct HeaderLayout {
  struct Point {
    int x = 0;
    int y = 0;

    bool operator==(const Point&) const = default;
  };

  Rect previous;  // area where a click steps back
  Rect next;
  std::array<Point, 3> previousArrow;  // corners of the triangles
  std::array<Point, 3> nextArrow;
  Rect previousTip;  // area where the tip of an arrow is shown
  Rect nextTip;
  Rect topBand;
  Rect title;
  Rect bottomBand;
  Rect month;  // place of the name of the month inside the title
  Rect year;
  Rect yearEditor;  // place over the year, with its spin control

  HeaderLayout() = default;
  explicit HeaderLayout(const HeaderMeasures& measures);

  // Returns the part at a point. The arrows come before the texts where these overlap.
  HeaderPart PartAt(int x, int y) const;

  // Returns the width that the title may take between the two arrows.
  static int TitleRoom(int width, int height);
  // Returns the height of the title's font, ascent and descent together.
  static int TitleHeight(int height, int band) { return height - 2 * band; }
  // Returns the height of a header whose title is a third higher than a line of the dialogs, at least.
  static int LeastHeight(int band, int lineHeight) { return 2 * band + lineHeight * 4 / 3; }
};

}  // namespace orbisol

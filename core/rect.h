// A rectangle by its corners, in whatever unit its user says. `right` and `bottom` lie just outside.
//
//   constexpr Rect cell{10, 20, 30, 25};
//   cell.Width();           // 20
//   cell.Contains(30, 20);  // false: its right edge is the neighbor's
//   cell.Shrunk(2, -1);     // {12, 19, 28, 26}
#pragma once

namespace orbisol {

struct Rect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  constexpr int Width() const { return right - left; }
  constexpr int Height() const { return bottom - top; }
  constexpr bool Contains(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }

  // Returns a rectangle that is smaller by dx at the left and at the right, by dy above and below; larger
  // when negative.
  constexpr Rect Shrunk(int dx, int dy) const { return {left + dx, top + dy, right - dx, bottom - dy}; }
  constexpr Rect Shrunk(int d) const { return Shrunk(d, d); }

  bool operator==(const Rect&) const = default;
};
static_assert(Rect{10, 20, 30, 25}.Contains(10, 20) && Rect{10, 20, 30, 25}.Contains(29, 24));
static_assert(!Rect{10, 20, 30, 25}.Contains(30, 24) && !Rect{10, 20, 30, 25}.Contains(29, 25));
static_assert(Rect{10, 20, 30, 25}.Shrunk(2, -1) == Rect{12, 19, 28, 26});

}  // namespace orbisol

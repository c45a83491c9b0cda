// A rectangle by its corners, in whatever unit its user says. `right` and `bottom` lie just outside.
//
//   constexpr Rect cell{10, 20, 30, 25};
//   cell.Width();           // 20
//   cell.Contains(30, 20);  // false: its right edge is the neighbor's
//   cell.Shrunk(2, -1);     // {12, 19, 28, 26}
//   MulDiv(9, 120, 96);     // 11, of 11.25
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
  // Smaller by dx at the left and at the right, by dy above and below; larger when negative.
  constexpr Rect Shrunk(int dx, int dy) const { return {left + dx, top + dy, right - dx, bottom - dy}; }
  constexpr Rect Shrunk(int d) const { return Shrunk(d, d); }

  bool operator==(const Rect&) const = default;
};
static_assert(Rect{10, 20, 30, 25}.Contains(10, 20) && Rect{10, 20, 30, 25}.Contains(29, 24));
static_assert(!Rect{10, 20, 30, 25}.Contains(30, 24) && !Rect{10, 20, 30, 25}.Contains(29, 25));
static_assert(Rect{10, 20, 30, 25}.Shrunk(2, -1) == Rect{12, 19, 28, 26});

// a * b / c, rounded to nearest, halves away from zero; -1 for c = 0. A result that no int holds is
// saturated.
constexpr int MulDiv(int a, int b, int c) {
  if (c == 0) return -1;
  const long long product = static_cast<long long>(a) * b;
  const long long divisor = c < 0 ? -static_cast<long long>(c) : c;
  const long long magnitude = ((product < 0 ? -product : product) + divisor / 2) / divisor;
  const long long result = (product < 0) != (c < 0) ? -magnitude : magnitude;
  return result > 2147483647LL    ? 2147483647
         : result < -2147483648LL ? -2147483647 - 1
                                  : static_cast<int>(result);
}
static_assert(MulDiv(1, 600, 96) == 6 && MulDiv(-5, 1, 2) == -3 && MulDiv(5, 1, -3) == -2 &&
              MulDiv(5, 1, 0) == -1);
static_assert(MulDiv(2147483647, 2, 1) == 2147483647 && MulDiv(2147483647, -2, 1) == -2147483647 - 1);

}  // namespace orbisol

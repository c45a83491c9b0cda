// Integer arithmetic that does not overflow.
//
//   Saturate(std::int64_t{2147483647} + 1);  // 2147483647
//   MulDiv(9, 120, 96);                      // 11, of 11.25
#pragma once

#include <cstdint>
#include <limits>

namespace orbisol {

// Cuts a sum that left the range of an int at the end it left by.
constexpr int Saturate(std::int64_t value) {
  if (value > std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
  if (value < std::numeric_limits<int>::min()) return std::numeric_limits<int>::min();
  return static_cast<int>(value);
}

// Returns a * b / c, rounded to nearest, halves away from zero, and -1 for c = 0. A result that no int holds
// is saturated.
constexpr int MulDiv(int a, int b, int c) {
  if (c == 0) return -1;
  const std::int64_t product = std::int64_t{a} * b;
  const std::int64_t divisor = c < 0 ? -std::int64_t{c} : c;
  const std::int64_t magnitude = ((product < 0 ? -product : product) + divisor / 2) / divisor;
  return Saturate((product < 0) != (c < 0) ? -magnitude : magnitude);
}
static_assert(MulDiv(1, 600, 96) == 6 && MulDiv(-5, 1, 2) == -3 && MulDiv(5, 1, -3) == -2 &&
              MulDiv(5, 1, 0) == -1);
static_assert(MulDiv(2147483647, 2, 1) == 2147483647 && MulDiv(2147483647, -2, 1) == -2147483647 - 1);

}  // namespace orbisol

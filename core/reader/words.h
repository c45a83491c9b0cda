// French pieces of the reader's sentences.
#pragma once

#include <string>

namespace orbisol::reader {

std::u16string FrenchMonth(int month);      // 1..12
std::u16string FrenchWeekday(int weekday);  // 1 Monday .. 7

// Returns a year with the minus sign that a text is printed with: "−44".
std::u16string YearText(int year);

}  // namespace orbisol::reader

// Numbers that are not written in digits.
//
//   ValueOfNumeral(u"viii");  // 8, also of "viiie"
//   // "mil huit cent quatre-vingt-neuf" becomes one item, 1889
#pragma once

#include <string_view>
#include <vector>

#include "core/reader/items.h"

namespace orbisol::reader {

// Returns the value of a Roman numeral in folded letters, with or without the ending of an ordinal; 0 for a
// word that is none in its usual form ("iiii").
int ValueOfNumeral(std::u16string_view folded);

// Returns whether letters right behind a number make it an ordinal: "er", "e".
bool IsOrdinalEnding(std::u16string_view folded);

// Replaces number words that stand together by the number they make. "sept" is seven beside other number
// words and beside the name of a month, else September; "mar" is March right behind a number, where no other
// month stands, else Tuesday.
void JoinNumberWords(std::vector<Item>& items);

}  // namespace orbisol::reader

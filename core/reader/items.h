// The parts of a text that was typed as a date: numbers, known words, parentheses.
//
//   ItemsOf(Folded(u"le 14 juillet 1789"));  // {kNumber 14}, {kMonth 7}, {kNumber 1789}
//   ItemsOf(u"15/3/-44");                    // {kNumber 15}, {kNumber 3}, {kNumber 44, isNegative}
//
// Little words, quotation marks and the stops of abbreviations are gone; what parts two numbers is kept with
// the second one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/reader/lexicon.h"

namespace orbisol::reader {

constexpr int kMostDigits = 9;  // digits that surely fit an int; a longer number has the value kTooGreat
constexpr int kTooGreat = 1000000000;

struct Item {
  WordKind kind = WordKind::kNone;
  int value = 0;
  int digits = 0;           // count of them in a number written in digits, else 0
  bool isNegative = false;  // a minus sign right before the number
  bool isPositive = false;  // a plus sign
  bool hasApostrophe = false;
  bool isYear = false;             // "an" stands before the number, or an era behind it
  bool isApart = false;            // a comma or an article stands before it
  char16_t separator = u'\0';      // '/', '.', '-' or a blank between it and what came before
  std::size_t begin = 0, end = 0;  // in the folded text
};

// Returns the items of a folded text. Unknown words are items of their own, kUnknown.
std::vector<Item> ItemsOf(std::u16string_view folded);

inline bool IsNumber(const Item& item) { return item.kind == WordKind::kNumber; }
// Returns whether a month is named, of either calendar.
bool HasMonth(const std::vector<Item>& items);

inline bool HasSign(const Item& item) { return item.isNegative || item.isPositive; }

}  // namespace orbisol::reader

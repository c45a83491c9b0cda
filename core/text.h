// Texts are UTF-16 inside the program and UTF-8 in its files. Nothing here fails: what is malformed is
// replaced, what is too long is cut, what is missing is empty.
//
//   FixedText<5> title(u"Vacances");                  // "Vaca"
//   ToUtf8(u"Été");                                   // "\xC3\x89t\xC3\xA9"
//   Piece(u"janvier|février", u'|', 1);               // "février"
//   FormatText(u"%d %s %d", {14, u"juillet", 1789});  // "14 juillet 1789"
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orbisol {

constexpr bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

// Returns the first `maxUnits` units of a text, one less where that would cut a surrogate pair in two.
std::u16string_view CutText(std::u16string_view text, std::size_t maxUnits);

// A text held in place: at most N - 1 UTF-16 units and a zero. A longer text is cut, never refused; a zero
// inside a text ends it.
template <std::size_t N>
struct FixedText {
  char16_t units[N] = {};

  FixedText(std::u16string_view text = {}) { Set(text); }  // NOLINT: meant to be implicit

  void Set(std::u16string_view text, std::size_t maxUnits = N - 1) {
    const std::u16string_view kept = CutText(text, std::min(maxUnits, N - 1));
    *std::copy(kept.begin(), kept.end(), units) = u'\0';
  }
  std::u16string_view View() const { return units; }
  bool IsEmpty() const { return units[0] == u'\0'; }

  bool operator==(const FixedText& other) const { return View() == other.View(); }
};

// Byte-order mark, which may stand at the beginning of a UTF-8 file.
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// Returns UTF-16 of UTF-8. Malformed bytes become U+FFFD, one for each longest beginning of a character (as
// the Unicode standard recommends).
std::u16string FromUtf8(std::string_view bytes);
// Returns UTF-8 of UTF-16. A lone surrogate becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);

// Returns the pieces between separators, empty ones included; a text without a separator is one piece.
std::vector<std::u16string_view> Split(std::u16string_view text, char16_t separator);

// Returns the n-th piece, from 0; empty when there is none.
std::u16string_view Piece(std::u16string_view text, char16_t separator, int n);

// Replaces every occurrence of `what` (not empty), from left to right.
std::u16string ReplaceAll(std::u16string_view text, std::u16string_view what, std::u16string_view by);

// Returns the text with its first letter in upper case, for the letters of European languages.
std::u16string UpperFirst(std::u16string_view text);

// Returns a text as a search compares it and an alphabet sorts it: in lower case, without accents, "œ" as
// "oe", every apostrophe as "'": "coeur d'ete" for "Cœur d’Été". For the letters of European languages; other
// units are kept. A folded text folds to itself.
std::u16string Folded(std::u16string_view text);

std::u16string DecimalText(long long number);

// Returns the value of a hexadecimal digit in either case, given as a unit or a byte; -1 for another
// character.
constexpr int HexDigit(int character) {
  if (character >= '0' && character <= '9') return character - '0';
  if (character >= 'a' && character <= 'f') return character - 'a' + 10;
  if (character >= 'A' && character <= 'F') return character - 'A' + 10;
  return -1;
}

// Reads leading blanks, a sign and digits up to the first other character; 0 for a text that begins
// otherwise. A number that no int holds is saturated.
int ParseDecimal(std::u16string_view text);

// Fills in a pattern of the string table: %s takes a text, %d a number, %2d a number at least two wide; "%%"
// is a percent sign. A placeholder without its argument becomes nothing; arguments left over are ignored.
using FormatArgument = std::variant<long long, std::u16string_view>;
std::u16string FormatText(std::u16string_view pattern, std::initializer_list<FormatArgument> arguments);

}  // namespace orbisol

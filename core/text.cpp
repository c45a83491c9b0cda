#include "core/text.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "core/integers.h"

namespace orbisol {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf16(std::u16string& out, char32_t c) {
  if (c < 0x10000) {
    out += static_cast<char16_t>(c);
  } else {
    out += static_cast<char16_t>(0xD7C0 + (c >> 10));
    out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
  }
}

void AppendUtf8(std::string& out, char32_t c) {
  const auto tail = [&](int shift) { out += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    tail(0);
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    tail(6);
    tail(0);
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

// Bytes that must follow the first byte of a character: their number, and the range of the first of them.
struct Utf8Lead {
  int following;  // 0 for a byte that begins no character of more than one byte
  unsigned char firstMin;
  unsigned char firstMax;
};

// Returns what may follow a byte, by table 3-7 of the Unicode standard: no overlong forms, no surrogates,
// nothing above U+10FFFF.
Utf8Lead LeadOf(unsigned char byte) {
  if (byte < 0xC2 || byte > 0xF4) return {0, 0, 0};
  if (byte < 0xE0) return {1, 0x80, 0xBF};
  if (byte == 0xE0) return {2, 0xA0, 0xBF};
  if (byte == 0xED) return {2, 0x80, 0x9F};
  if (byte < 0xF0) return {2, 0x80, 0xBF};
  if (byte == 0xF0) return {3, 0x90, 0xBF};
  if (byte == 0xF4) return {3, 0x80, 0x8F};
  return {3, 0x80, 0xBF};
}

// Letter of a European language, with its capital and the text it folds to.
struct Letter {
  char16_t unit;
  char16_t capital;
  char16_t folded[5];
};
constexpr Letter kLetters[] = {
#include "core/letters.inc"
};
static_assert(std::is_sorted(std::begin(kLetters), std::end(kLetters),
                             [](const Letter& a, const Letter& b) { return a.unit < b.unit; }));

// Returns the row of a letter; null for a unit that is its own capital and folds to itself.
const Letter* FindLetter(char16_t unit) {
  const Letter* const found =
      std::lower_bound(std::begin(kLetters), std::end(kLetters), unit,
                       [](const Letter& letter, char16_t wanted) { return letter.unit < wanted; });
  return found != std::end(kLetters) && found->unit == unit ? found : nullptr;
}

}  // namespace

std::u16string_view CutText(std::u16string_view text, std::size_t maxUnits) {
  if (text.size() <= maxUnits) return text;
  if (maxUnits > 0 && IsHighSurrogate(text[maxUnits - 1]) && IsLowSurrogate(text[maxUnits])) --maxUnits;
  return text.substr(0, maxUnits);
}

std::u16string FromUtf8(std::string_view bytes) {
  std::u16string out;
  out.reserve(bytes.size());
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  std::size_t i = 0;
  while (i < bytes.size()) {
    const unsigned char lead = at(i++);
    if (lead < 0x80) {
      out += static_cast<char16_t>(lead);
      continue;
    }
    Utf8Lead rest = LeadOf(lead);
    char32_t c = lead & (0x3Fu >> rest.following);
    bool complete = rest.following > 0;
    for (int k = 0; complete && k < rest.following; ++k) {
      if (i == bytes.size() || at(i) < rest.firstMin || at(i) > rest.firstMax) {
        complete = false;  // this byte begins the next character
      } else {
        c = (c << 6) | (at(i++) & 0x3Fu);
        rest.firstMin = 0x80;
        rest.firstMax = 0xBF;
      }
    }
    AppendUtf16(out, complete ? c : kReplacement);
  }
  return out;
}

std::string ToUtf8(std::u16string_view text) {
  std::string out;
  out.reserve(text.size() + text.size() / 8);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      AppendUtf8(out, 0x10000 + ((char32_t{unit} - 0xD800) << 10) + (char32_t{text[++i]} - 0xDC00));
    } else {
      AppendUtf8(out, IsHighSurrogate(unit) || IsLowSurrogate(unit) ? kReplacement : char32_t{unit});
    }
  }
  return out;
}

std::vector<std::u16string_view> Split(std::u16string_view text, char16_t separator) {
  std::vector<std::u16string_view> pieces;
  for (;;) {
    const std::size_t end = text.find(separator);
    pieces.push_back(text.substr(0, end));
    if (end == std::u16string_view::npos) return pieces;
    text.remove_prefix(end + 1);
  }
}

std::u16string_view Piece(std::u16string_view text, char16_t separator, int n) {
  if (n < 0) return {};
  for (;; --n) {
    const std::size_t end = text.find(separator);
    if (n == 0) return text.substr(0, end);
    if (end == std::u16string_view::npos) return {};
    text.remove_prefix(end + 1);
  }
}

std::u16string ReplaceAll(std::u16string_view text, std::u16string_view what, std::u16string_view by) {
  std::u16string out;
  for (;;) {
    const std::size_t found = text.find(what);
    out += text.substr(0, found);
    if (found == std::u16string_view::npos) return out;
    out += by;
    text.remove_prefix(found + what.size());
  }
}

std::u16string UpperFirst(std::u16string_view text) {
  std::u16string out(text);
  const Letter* const first = out.empty() ? nullptr : FindLetter(out[0]);
  if (first != nullptr) out[0] = first->capital;
  return out;
}

std::u16string Folded(std::u16string_view text) {
  std::u16string out;
  out.reserve(text.size());
  for (const char16_t unit : text) {
    if (unit < 0x80) {  // most letters: not worth a search
      out += unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
    } else if (const Letter* const letter = FindLetter(unit)) {
      out += letter->folded;
    } else {
      out += unit;
    }
  }
  return out;
}

std::u16string DecimalText(long long number) {
  char digits[24];
  const std::to_chars_result end = std::to_chars(std::begin(digits), std::end(digits), number);
  return std::u16string(digits, end.ptr);
}

int ParseDecimal(std::u16string_view text) {
  std::size_t i = 0;
  while (i < text.size() && (text[i] == u' ' || (text[i] >= u'\t' && text[i] <= u'\r'))) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) negative = text[i++] == u'-';
  constexpr long long kBeyond = 100000000000;  // above every int, and ten times as much still fits
  long long number = 0;
  for (; i < text.size() && text[i] >= u'0' && text[i] <= u'9'; ++i)
    if (number < kBeyond) number = number * 10 + (text[i] - u'0');
  return Saturate(negative ? -number : number);
}

std::u16string FormatText(std::u16string_view pattern, std::initializer_list<FormatArgument> arguments) {
  std::u16string out;
  const FormatArgument* next = arguments.begin();
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] != u'%') {
      out += pattern[i];
      continue;
    }
    std::size_t width = 0;
    for (++i; i < pattern.size() && pattern[i] >= u'0' && pattern[i] <= u'9'; ++i)
      width = std::min<std::size_t>(width * 10 + (pattern[i] - u'0'), 99);
    if (i == pattern.size()) return out;
    if (pattern[i] == u'%') {
      out += u'%';
    } else if (next != arguments.end()) {
      const auto* const text = std::get_if<std::u16string_view>(next);
      const std::u16string value =
          text != nullptr ? std::u16string(*text) : DecimalText(*std::get_if<long long>(next));
      out.append(width > value.size() ? width - value.size() : 0, u' ');
      out += value;
      ++next;
    }
  }
  return out;
}

}  // namespace orbisol

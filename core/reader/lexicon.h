// The words that the reader of dates knows, from the string table, and what each of them means.
//
//   FindPhrase(u"avant j c").word;   // {WordKind::kBeforeEra, 0}
//   FindPhrase(u"ancien");           // no word by itself, but `mostWords` is 2: "ancien style"
//
// All texts are folded (core/text.h); the words of a phrase are parted by one blank, little words left out.
#pragma once

#include <string>
#include <string_view>

namespace orbisol::reader {

enum class WordKind {
  kNone,
  kNumber,  // digits, a Roman numeral or number words
  kOpen,    // parentheses
  kClose,
  kUnknown,
  kLittleWord,  // "le", "de": means nothing
  kMonth,       // 1..12
  kWeekday,     // 1 Monday .. 7
  kMarch,       // "mar": March or Tuesday
  kSeptember,   // "sept": September or seven
  kNumberWord,  // its value
  kDay,         // "jours"
  kWeek,        // "semaine", also as the letter of "2024-W20"
  kMonths,      // "mois"
  kYears,       // "an", "ans", "année"
  kIn,          // "dans"
  kAgo,         // "il y a"
  kToday,       // -2..2: "avant-hier" .. "après-demain"
  kNext,        // "prochain"
  kLast,        // "dernier"
  kFeast,       // days after Easter
  kOrthodox,
  kRomanDay,          // 1 calends, 2 nones, 3 ides
  kDecadeDay,         // 1..10: "primidi" .. "décadi"
  kRepublicanMonth,   // 1..12
  kComplementary,     // "complémentaire"
  kComplementaryDay,  // 1..6: "jour de la Vertu" .. "jour de la Révolution"
  kDayNumber,         // "JJ"
  kJulian,
  kGregorian,
  kBeforeEra,
  kInEra,
  kCivilYear,  // "année civile"
};

struct Word {
  WordKind kind = WordKind::kNone;
  int value = 0;
};

struct Phrase {
  std::u16string text;
  Word word;          // kNone where the text only begins longer phrases
  int mostWords = 1;  // length of the longest phrase that begins with this word
};

// Returns the phrase with this text; null where there is none.
const Phrase* FindPhrase(std::u16string_view folded);

// Returns the known word nearest to a misspelled one of at least four letters, one letter away; else empty.
std::u16string_view NearestWord(std::u16string_view folded);

}  // namespace orbisol::reader

#include "core/reader/lexicon.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "core/text.h"
#include "resources/strings.h"

namespace orbisol::reader {
namespace {

constexpr int kTuesday = 2;
constexpr std::size_t kFewestLetters = 4;  // shorter words are too near to one another to be corrected

constexpr int kFeastDays[] = {-47, -46, -7, -3, -2, -1, 0, 1, 7, 39, 49, 50, 56, 60};
constexpr int kNumberValues[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  10,  11,  12,
                                 13, 14, 15, 16, 20, 30, 40, 50, 60, 100, 1000};

struct Table {
  int textId;  // groups parted by "|", spellings of one word by ","
  WordKind kind;
  int first = 0;                // value of the first group; the next ones count on
  const int* values = nullptr;  // values of the groups, where they do not count on
};

constexpr Table kTables[] = {
    {kTextReaderLittleWords, WordKind::kLittleWord},
    {kTextReaderMonths, WordKind::kMonth, 1},
    {kTextReaderWeekdays, WordKind::kWeekday, 1},
    {kTextReaderMarch, WordKind::kMarch, kTuesday},
    {kTextReaderSeptember, WordKind::kSeptember, 7},
    {kTextReaderNumbers, WordKind::kNumberWord, 0, kNumberValues},
    {kTextReaderDays, WordKind::kDay},
    {kTextReaderWeeks, WordKind::kWeek},
    {kTextReaderMonthsAsUnit, WordKind::kMonths},
    {kTextReaderYears, WordKind::kYears},
    {kTextReaderIn, WordKind::kIn},
    {kTextReaderAgo, WordKind::kAgo},
    {kTextReaderTodays, WordKind::kToday, -2},
    {kTextReaderNext, WordKind::kNext},
    {kTextReaderLast, WordKind::kLast},
    {kTextReaderFeasts, WordKind::kFeast, 0, kFeastDays},
    {kTextReaderOrthodox, WordKind::kOrthodox},
    {kTextReaderRomanDays, WordKind::kRomanDay, 1},
    {kTextReaderDecadeDays, WordKind::kDecadeDay, 1},
    {kTextReaderRepublicanMonths, WordKind::kRepublicanMonth, 1},
    {kTextReaderComplementary, WordKind::kComplementary},
    {kTextReaderComplementaryDays, WordKind::kComplementaryDay, 1},
    {kTextReaderDayNumber, WordKind::kDayNumber},
    {kTextReaderJulian, WordKind::kJulian},
    {kTextReaderGregorian, WordKind::kGregorian},
    {kTextReaderBeforeEra, WordKind::kBeforeEra},
    {kTextReaderInEra, WordKind::kInEra},
    {kTextReaderCivilYear, WordKind::kCivilYear},
};

bool ByText(const Phrase& a, const Phrase& b) { return a.text < b.text; }

void AddTable(const Table& table, std::vector<Phrase>& phrases) {
  int index = 0;
  for (const std::u16string_view group : Split(StringText(table.textId), u'|')) {
    const int value = table.values != nullptr ? *std::next(table.values, index) : table.first + index;
    for (const std::u16string_view spelling : Split(group, u','))
      phrases.push_back({Folded(spelling), {table.kind, value}, 1});
    ++index;
  }
}

int CountWords(const std::u16string& text) {
  return 1 + static_cast<int>(std::count(text.begin(), text.end(), u' '));
}

// Gives every phrase its first word as a phrase, with the length of the longest that begins with it.
std::vector<Phrase> WithBeginnings(std::vector<Phrase> phrases) {
  const std::size_t count = phrases.size();
  for (std::size_t i = 0; i < count; ++i) {
    const int words = CountWords(phrases[i].text);
    if (words == 1) continue;
    const std::u16string first = phrases[i].text.substr(0, phrases[i].text.find(u' '));
    const auto known = std::find_if(phrases.begin(), phrases.end(),
                                    [&](const Phrase& phrase) { return phrase.text == first; });
    if (known == phrases.end()) {
      phrases.push_back({first, {}, words});
    } else {
      known->mostWords = std::max(known->mostWords, words);
    }
  }
  std::sort(phrases.begin(), phrases.end(), ByText);
  return phrases;
}

const std::vector<Phrase>& Phrases() {
  static const std::vector<Phrase> phrases = [] {
    std::vector<Phrase> made;
    for (const Table& table : kTables) AddTable(table, made);
    return WithBeginnings(std::move(made));
  }();
  return phrases;
}

// Returns whether one letter added, left out, replaced or exchanged with its neighbor makes `a` of `b`.
bool IsOneLetterAway(std::u16string_view a, std::u16string_view b) {
  if (a.size() < b.size()) std::swap(a, b);
  if (a.size() - b.size() > 1) return false;
  const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
  const auto same = [](auto from, auto end, auto other, auto otherEnd) {
    return std::equal(from, end, other, otherEnd);
  };
  if (inB == b.end()) return true;
  if (a.size() > b.size()) return same(std::next(inA), a.end(), inB, b.end());
  if (same(std::next(inA), a.end(), std::next(inB), b.end())) return true;
  return std::next(inA) != a.end() && *inA == *std::next(inB) && *inB == *std::next(inA) &&
         same(std::next(inA, 2), a.end(), std::next(inB, 2), b.end());
}

}  // namespace

const Phrase* FindPhrase(std::u16string_view folded) {
  const std::vector<Phrase>& phrases = Phrases();
  const auto found =
      std::lower_bound(phrases.begin(), phrases.end(), folded,
                       [](const Phrase& phrase, std::u16string_view text) { return phrase.text < text; });
  return found != phrases.end() && found->text == folded ? &*found : nullptr;
}

std::u16string_view NearestWord(std::u16string_view folded) {
  if (folded.size() < kFewestLetters) return {};
  for (const Phrase& phrase : Phrases()) {
    const bool isWord = phrase.word.kind != WordKind::kNone && phrase.text.size() >= kFewestLetters;
    if (isWord && IsOneLetterAway(phrase.text, folded)) return phrase.text;
  }
  return {};
}

}  // namespace orbisol::reader

#include "core/reader/number_words.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "core/republican.h"
#include "core/text.h"

namespace orbisol::reader {
namespace {

constexpr int kHundred = 100;
constexpr int kThousand = 1000;
constexpr int kMarch = 3;
constexpr int kSeptember = 9;
constexpr std::array<std::u16string_view, 9> kEndings = {u"er",   u"ere", u"re",  u"e", u"eme",
                                                         u"ieme", u"nd",  u"nde", u"d"};

int LetterValue(char16_t letter) {
  switch (letter) {
    case u'i':
      return 1;
    case u'v':
      return 5;
    case u'x':
      return 10;
    case u'l':
      return 50;
    case u'c':
      return kHundred;
    case u'd':
      return 500;
    case u'm':
      return kThousand;
    default:
      return 0;
  }
}

// Returns the value of letters that are all numerals, in any order; 0 if another is among them.
int SumOfLetters(std::u16string_view letters) {
  int sum = 0;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const int value = LetterValue(letters[i]);
    if (value == 0) return 0;
    const bool isLess = i + 1 < letters.size() && value < LetterValue(letters[i + 1]);
    sum += isLess ? -value : value;
  }
  return sum;
}

int ValueOfLetters(std::u16string_view letters) {
  constexpr std::size_t kMostLetters = 15;  // MMMDCCCLXXXVIII
  if (letters.empty() || letters.size() > kMostLetters) return 0;
  const int value = SumOfLetters(letters);
  return value > 0 && Folded(RomanNumeral(value)) == letters ? value : 0;
}

// Value of number words, taken one by one: "quatre vingt" are eighty, "dix sept cent" seventeen hundred. Both
// parts end at kTooGreat, because every "cent" of a row multiplies.
class CSpokenNumber {
 public:
  void Take(int word) {
    if (word == kThousand) {
      m_thousands = std::min(m_thousands + std::max(m_rest, kOne) * kThousand, kMost);
      m_rest = 0;
    } else if (word == kHundred) {
      m_rest = std::min(std::max(m_rest, kOne) * kHundred, kMost);
    } else if (word == 20 && m_rest % kHundred == 4) {
      m_rest += 76;
    } else {
      m_rest += word;
    }
  }
  int Value() const { return static_cast<int>(std::min(m_thousands + m_rest, kMost)); }

 private:
  static constexpr std::int64_t kOne = 1;
  static constexpr std::int64_t kMost = kTooGreat;

  std::int64_t m_thousands = 0;
  std::int64_t m_rest = 0;
};

bool IsNumberWord(const Item& item) {
  return item.kind == WordKind::kNumberWord || item.kind == WordKind::kSeptember;
}

// Decides what "sept" and "mar" mean by the words beside them.
void SettleMonths(std::vector<Item>& items) {
  const bool hasMonth = HasMonth(items);
  for (std::size_t i = 0; i < items.size(); ++i) {
    Item& item = items[i];
    const bool followsNumber = i > 0 && IsNumber(items[i - 1]);
    if (item.kind == WordKind::kMarch) {
      const bool isMarch = followsNumber && !hasMonth && !item.isApart;
      item.kind = isMarch ? WordKind::kMonth : WordKind::kWeekday;
      if (isMarch) item.value = kMarch;
    } else if (item.kind == WordKind::kSeptember) {
      const bool besideWord =
          (i > 0 && items[i - 1].kind == WordKind::kNumberWord && !item.isApart) ||
          (i + 1 < items.size() && items[i + 1].kind == WordKind::kNumberWord && !items[i + 1].isApart);
      if (hasMonth || besideWord) {
        item.kind = WordKind::kNumberWord;
      } else {
        item.kind = WordKind::kMonth;
        item.value = kSeptember;
      }
    }
  }
}

}  // namespace

bool IsOrdinalEnding(std::u16string_view folded) {
  return std::find(kEndings.begin(), kEndings.end(), folded) != kEndings.end();
}

int ValueOfNumeral(std::u16string_view folded) {
  if (const int value = ValueOfLetters(folded); value > 0) return value;
  for (const std::u16string_view ending : kEndings) {
    const bool hasEnding =
        folded.size() > ending.size() && folded.substr(folded.size() - ending.size()) == ending;
    const int value = hasEnding ? ValueOfLetters(folded.substr(0, folded.size() - ending.size())) : 0;
    if (value > 0) return value;
  }
  return 0;
}

void JoinNumberWords(std::vector<Item>& items) {
  SettleMonths(items);
  if (std::none_of(items.begin(), items.end(), IsNumberWord)) return;
  std::vector<Item> joined;
  for (std::size_t i = 0; i < items.size();) {
    if (!IsNumberWord(items[i])) {
      joined.push_back(items[i++]);
      continue;
    }
    Item number = items[i];
    CSpokenNumber spoken;
    do {
      spoken.Take(items[i].value);
      number.end = items[i].end;
      ++i;
    } while (i < items.size() && IsNumberWord(items[i]) && !items[i].isApart);
    number.kind = WordKind::kNumber;
    number.value = spoken.Value();
    joined.push_back(number);
  }
  items = std::move(joined);
}

}  // namespace orbisol::reader

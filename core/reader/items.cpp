#include "core/reader/items.h"

#include <algorithm>
#include <array>

#include "core/date_text.h"
#include "core/platform.h"
#include "core/reader/number_words.h"
#include "core/text.h"

namespace orbisol::reader {
namespace {

constexpr int kMonths = 12;
constexpr int kWeekdays = 7;
constexpr int kSeptember = 9;
constexpr int kPlacesBefore = 2;  // September was the seventh month
constexpr int kMostWords = 4;     // greatest number of words in a phrase
constexpr std::u16string_view kAnd = u"et";
constexpr std::array<std::u16string_view, 3> kMonthEndings = {u"bre", u"mbre",
                                                              u"embre"};  // "7bre": September

bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

// Return whether a character is a hyphen, a blank, a point and so on, beyond ASCII too.
bool IsHyphen(char16_t unit) {
  return unit == u'-' || unit == u'\u2212' || (unit >= 0x2010 && unit <= 0x2014);
}
bool IsBlank(char16_t unit) {
  if (unit < 0x80) return unit <= u' ';
  return unit == 0xA0 || unit == 0x1680 || unit == 0x202F || unit == 0x205F || unit == 0x3000 ||
         (unit >= 0x2000 && unit <= 0x200B);
}
bool IsPoint(char16_t unit) {
  switch (unit) {
    case u'/':
    case u'.':
    case u',':
    case u';':
    case u':':
    case u'\'':
    case u'"':
    case u'(':
    case u')':
    case u'+':
    case u'*':
    case u'\u00B0':  // the signs of "n°" and quotation marks
    case u'\u00BA':
    case u'\u00AB':
    case u'\u00BB':
    case u'\u201C':
    case u'\u201D':
      return true;
    default:
      return false;
  }
}
bool IsLetter(char16_t unit) {
  if (unit >= u'a' && unit <= u'z') return true;
  return !IsDigit(unit) && !IsBlank(unit) && !IsHyphen(unit) && !IsPoint(unit);
}
bool IsSeparator(char16_t unit) { return unit == u'/' || unit == u'.' || unit == u',' || unit == u'('; }

// Name of the user's language with which a text begins; `length` is 0 if there is none.
struct LocaleName {
  Word word;
  std::size_t length = 0;
};

class CLexer {
 public:
  explicit CLexer(std::u16string_view text) : m_text(text) { m_items.reserve(16); }

  std::vector<Item> Items() {
    while (m_at < m_text.size()) ReadOne();
    return std::move(m_items);
  }

 private:
  void ReadOne() {
    const char16_t unit = m_text[m_at];
    if (IsDigit(unit)) return ReadDigits();
    if (IsBlank(unit)) return Part(u' ');
    if (IsHyphen(unit) || unit == u'+') return ReadHyphenOrSign();
    if (IsLetter(unit)) return ReadWord();
    ReadPoint();
  }

  bool IsDigitAt(std::size_t at) const { return at < m_text.size() && IsDigit(m_text[at]); }

  bool IsPointAt(std::size_t at) const { return at < m_text.size() && m_text[at] == u'.'; }

  // Notes what parts the next item from the last; a blank beside another separator means nothing.
  void Part(char16_t separator) {
    if (separator != u' ' || m_separator == u'\0') m_separator = separator;
    ++m_at;
  }

  // A sign must be right before digits and must not be right after another item.
  void ReadHyphenOrSign() {
    const bool isFree =
        m_at == 0 || IsBlank(m_text[m_at - 1]) || IsHyphen(m_text[m_at - 1]) || IsSeparator(m_text[m_at - 1]);
    const bool isSign = isFree && IsDigitAt(m_at + 1);
    const bool isPlus = m_text[m_at] == u'+';
    if (isPlus && !isSign) return AddUnknown(m_at, m_at + 1);
    if (!isSign) return Part(u'-');
    m_sign = isPlus ? 1 : -1;
    ++m_at;
  }

  void ReadPoint() {
    switch (m_text[m_at]) {
      case u'/':
      case u'.':
        return Part(m_text[m_at]);
      case u',':
      case u';':
        m_isApart = true;
        return Part(u' ');
      case u'(':
        return Add({WordKind::kOpen, 0}, m_at + 1);
      case u')':
        return Add({WordKind::kClose, 0}, m_at + 1);
      case u'*':
        return AddUnknown(m_at, m_at + 1);
      case u'\'':
        m_hasApostrophe = IsDigitAt(m_at + 1) && (m_at == 0 || !IsLetter(m_text[m_at - 1]));
        ++m_at;
        return;
      default:
        ++m_at;
    }
  }

  void ReadDigits() {
    const std::size_t begin = m_at;
    int value = 0;
    for (; IsDigitAt(m_at); ++m_at)
      if (m_at - begin < kMostDigits) value = value * 10 + (m_text[m_at] - u'0');
    const std::size_t digits = m_at - begin;
    Item item;
    item.value = digits > kMostDigits ? kTooGreat : value;
    item.digits = static_cast<int>(digits);
    AddNumber(item, begin, m_at);
    ReadEnding();
  }

  // Reads the letters right behind a number: "1er", "8e". Others begin a word.
  void ReadEnding() {
    if (const std::u16string_view ending = WordAt(m_at); IsOrdinalEnding(ending)) m_at += ending.size();
  }

  // Reads a month that is named by its place in the Roman year, which began in March: "7bre", "X.bre",
  // "VIIIbre". The number stands in the word, or is the item before it.
  bool ReadNumberedMonth(std::u16string_view word) {
    const auto isPlace = [](int number) { return 7 <= number && number <= 10; };
    for (const std::u16string_view ending : kMonthEndings) {
      if (!word.ends_with(ending)) continue;
      const int numeral = ValueOfNumeral(word.substr(0, word.size() - ending.size()));
      if (isPlace(numeral)) {
        Add({WordKind::kMonth, numeral + kPlacesBefore}, m_at + word.size());
        return true;
      }
      if (word != ending || m_items.empty()) continue;
      const Item number = m_items.back();
      if (!IsNumber(number) || !isPlace(number.value)) continue;
      m_items.pop_back();
      m_isApart = number.isApart;
      m_separator = number.separator;
      AddItem({WordKind::kMonth, number.value + kPlacesBefore}, number.begin, m_at + word.size());
      return true;
    }
    return false;
  }

  // Words in a row that a phrase may consist of: its text as the lexicon writes it, and where it ends.
  struct Run {
    std::array<std::u16string_view, kMostWords> words;
    std::array<std::size_t, kMostWords> ends;
    int count = 0;
  };

  std::u16string_view WordAt(std::size_t at) const {
    std::size_t end = at;
    while (end < m_text.size() && IsLetter(m_text[end])) ++end;
    return m_text.substr(at, end - at);
  }

  static bool IsLittle(std::u16string_view word) {
    const Phrase* const phrase = FindPhrase(word);
    return phrase != nullptr && phrase->word.kind == WordKind::kLittleWord;
  }

  Run WordsFrom(std::size_t at, int most) const {
    Run run;
    while (run.count < most) {
      const std::u16string_view word = WordAt(at);
      if (word.empty()) break;
      at += word.size();
      if (run.count == 0 || !IsLittle(word)) {
        run.words[static_cast<std::size_t>(run.count)] = word;
        run.ends[static_cast<std::size_t>(run.count++)] = at;
      }
      while (at < m_text.size() &&
             (IsBlank(m_text[at]) || IsHyphen(m_text[at]) || m_text[at] == u'.' || m_text[at] == u'\''))
        ++at;
    }
    return run;
  }

  void ReadWord() {
    const std::u16string_view word = WordAt(m_at);
    if (IsNumeralOfYear(word) && ReadNumeral(word)) return;
    const Phrase* const phrase = FindPhrase(word);
    if (phrase != nullptr && phrase->mostWords > 1 && ReadLongPhrase(phrase->mostWords)) return;
    if (phrase != nullptr && phrase->word.kind == WordKind::kLittleWord) {
      m_isApart = m_isApart || word != kAnd;
      m_at += word.size();
      return;
    }
    if (phrase != nullptr && phrase->word.kind == WordKind::kSeptember && IsPointAt(m_at + word.size()))
      return Add({WordKind::kMonth, kSeptember}, m_at + word.size());
    if (phrase != nullptr && phrase->word.kind != WordKind::kNone)
      return Add(phrase->word, m_at + word.size());
    if (ReadNumberedMonth(word) || ReadNumeral(word)) return;
    const LocaleName name = LocaleNameAt();
    if (name.length > 0) return Add(name.word, m_at + name.length);
    AddUnknown(m_at, m_at + word.size());
  }

  // After "an", "L" and "D" are numerals, not articles; in a remark, "DIX" is 509, not ten.
  bool IsNumeralOfYear(std::u16string_view word) const {
    if (m_items.empty() || m_items.back().kind != WordKind::kYears) return false;
    const bool isRemark = m_items.size() > 1 && m_items[m_items.size() - 2].kind == WordKind::kOpen;
    const std::size_t end = m_at + word.size();
    return isRemark || (word.size() == 1 && (end == m_text.size() || m_text[end] != u'\''));
  }

  bool ReadLongPhrase(int most) {
    const Run run = WordsFrom(m_at, std::min(most, kMostWords));
    for (int words = run.count; words > 1; --words) {
      std::u16string text(run.words[0]);
      for (int i = 1; i < words; ++i) {
        text += u' ';
        text += run.words[static_cast<std::size_t>(i)];
      }
      const Phrase* const found = FindPhrase(text);
      if (found == nullptr || found->word.kind == WordKind::kNone) continue;
      const std::size_t end = run.ends[static_cast<std::size_t>(words - 1)];
      if (found->word.kind == WordKind::kLittleWord) {
        m_isApart = true;
        m_at = end;
      } else {
        Add(found->word, end);
      }
      return true;
    }
    return false;
  }

  // Roman numerals, also as ordinals: "VIII", "VIIIe".
  bool ReadNumeral(std::u16string_view word) {
    const int value = ValueOfNumeral(word);
    if (value == 0) return false;
    Item item;
    item.value = value;
    AddNumber(item, m_at, m_at + word.size());
    return true;
  }

  LocaleName LocaleNameAt() const {
    LocaleName best;
    const auto consider = [&](const std::u16string& name, Word word) {
      const std::u16string folded = Folded(name);
      const bool isLonger = folded.size() > best.length && m_text.substr(m_at, folded.size()) == folded;
      const std::size_t end = m_at + folded.size();
      if (isLonger && (end == m_text.size() || !IsLetter(m_text[end]))) best = {word, folded.size()};
    };
    for (int month = 1; month <= kMonths; ++month) {
      consider(MonthName(month), {WordKind::kMonth, month});
      consider(MonthAbbrev(month), {WordKind::kMonth, month});
    }
    for (int weekday = 1; weekday <= kWeekdays; ++weekday) {
      consider(WeekdayName(weekday), {WordKind::kWeekday, weekday});
      consider(WeekdayAbbrev(weekday), {WordKind::kWeekday, weekday});
    }
    return best;
  }

  void Add(Word word, std::size_t end) {
    Item item;
    item.kind = word.kind;
    item.value = word.value;
    AddItem(item, m_at, end);
  }

  void AddUnknown(std::size_t begin, std::size_t end) {
    Item item;
    item.kind = WordKind::kUnknown;
    AddItem(item, begin, end);
  }

  void AddNumber(Item item, std::size_t begin, std::size_t end) {
    item.kind = WordKind::kNumber;
    item.isNegative = m_sign < 0;
    item.isPositive = m_sign > 0;
    item.hasApostrophe = m_hasApostrophe;
    AddItem(item, begin, end);
  }

  void AddItem(Item item, std::size_t begin, std::size_t end) {
    item.isApart = m_isApart;
    item.separator = m_separator;
    item.begin = begin;
    item.end = end;
    m_items.push_back(item);
    m_at = end;
    m_sign = 0;
    m_isApart = m_hasApostrophe = false;
    m_separator = u'\0';
  }

  std::u16string_view m_text;
  std::size_t m_at = 0;
  std::vector<Item> m_items;
  int m_sign = 0;  // -1 or 1 where a sign stands before the next number
  bool m_isApart = false;
  bool m_hasApostrophe = false;
  char16_t m_separator = u'\0';
};

}  // namespace

bool HasMonth(const std::vector<Item>& items) {
  return std::any_of(items.begin(), items.end(), [](const Item& item) {
    return item.kind == WordKind::kMonth || item.kind == WordKind::kRepublicanMonth;
  });
}

std::vector<Item> ItemsOf(std::u16string_view folded) {
  std::vector<Item> items = CLexer(folded).Items();
  JoinNumberWords(items);
  return items;
}

}  // namespace orbisol::reader

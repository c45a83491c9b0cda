#include "core/reader/request.h"

#include <algorithm>

namespace orbisol::reader {
namespace {

// Notes a value that can be given once; a second one contradicts it, unless it says the same.
template <typename T>
void Note(T& field, T none, T value, bool& isContradictory) {
  isContradictory = isContradictory || (field != none && field != value);
  field = value;
}

bool IsKind(const std::vector<Item>& items, std::size_t i, WordKind kind) {
  return i < items.size() && items[i].kind == kind;
}

bool HasYearWithSign(const std::vector<Item>& items) {
  return std::any_of(items.begin(), items.end(), [](const Item& item) {
    return IsNumber(item) && (item.isNegative || (item.value == 0 && item.digits > 0));
  });
}

// Takes the items one by one, and keeps those that are neither remarks nor words that may stand anywhere.
class CSorter {
 public:
  CSorter(std::vector<Item> items, Request& request) : m_items(std::move(items)), m_request(request) {}

  void Sort() {
    while (m_at < m_items.size()) TakeOne();
  }

 private:
  void TakeOne() {
    Item& item = m_items[m_at];
    bool& isContradictory = m_request.isContradictory;
    switch (item.kind) {
      case WordKind::kOpen:
      case WordKind::kClose:
        if (!TakeRemark()) ++m_at;
        return;
      case WordKind::kWeekday:
        Note(m_request.weekday, 0, item.value, isContradictory);
        break;
      case WordKind::kDecadeDay:
        Note(m_request.decadeDay, 0, item.value, isContradictory);
        break;
      case WordKind::kJulian:
        Note(m_request.calendar, Calendar::kInForce, Calendar::kJulian, isContradictory);
        break;
      case WordKind::kGregorian:
        Note(m_request.calendar, Calendar::kInForce, Calendar::kGregorian, isContradictory);
        break;
      case WordKind::kBeforeEra:
        TakeEra(Era::kBefore);
        break;
      case WordKind::kInEra:
        TakeEra(Era::kIn);
        break;
      case WordKind::kOrthodox:
        m_request.isOrthodox = true;
        break;
      case WordKind::kCivilYear:
        if (TakeCivilYear(m_at)) return;
        break;
      case WordKind::kYears:
        if (TakeYearWord()) return;
        m_request.items.push_back(item);
        break;
      case WordKind::kToday:
        if (!IsOpeningOfRecord(item)) m_request.items.push_back(item);
        break;
      case WordKind::kMonths:
      case WordKind::kDay:
        if (!IsBeforeMonth()) m_request.items.push_back(item);
        break;
      default:
        m_request.items.push_back(item);
    }
    ++m_at;
  }

  // "aujourd'hui 14 juillet 1812", as records begin: the date behind it says which day that was.
  bool IsOpeningOfRecord(const Item& today) const { return today.value == 0 && HasMonth(m_items); }

  // "le 14e jour du mois de mars": words between a day and its month.
  bool IsBeforeMonth() const {
    return IsKind(m_items, m_at + 1, WordKind::kMonth) || IsKind(m_items, m_at + 1, WordKind::kMonths) ||
           IsKind(m_items, m_at + 1, WordKind::kRepublicanMonth);
  }

  void TakeEra(Era era) {
    Note(m_request.era, Era::kNone, era, m_request.isContradictory);
    if (!m_request.items.empty() && IsNumber(m_request.items.back())) m_request.items.back().isYear = true;
  }

  bool TakeYearWord() {
    if (!IsKind(m_items, m_at + 1, WordKind::kNumber)) return false;
    m_items[m_at + 1].isYear = true;
    ++m_at;
    return true;
  }

  bool TakeCivilYear(std::size_t at) {
    if (!IsKind(m_items, at + 1, WordKind::kNumber)) {
      m_request.isContradictory = true;
      return false;
    }
    const Item& number = m_items[at + 1];
    m_request.civilYear = number.isNegative ? -number.value : number.value;
    m_at = at + 2;
    return true;
  }

  // "(45 av. J.-C.)" behind a year that says the same by its sign.
  bool TakeRemark() {
    const bool isRemark = IsKind(m_items, m_at, WordKind::kOpen) &&
                          IsKind(m_items, m_at + 1, WordKind::kNumber) &&
                          IsKind(m_items, m_at + 2, WordKind::kBeforeEra) && HasYearWithSign(m_request.items);
    if (!isRemark) return false;
    Note(m_request.yearBeforeEra, 0, m_items[m_at + 1].value, m_request.isContradictory);
    m_at += 3;
    return true;
  }

  std::vector<Item> m_items;
  std::size_t m_at = 0;
  Request& m_request;
};

}  // namespace

Request::Request(std::u16string_view folded, PackedDate selectedDate) : selected(selectedDate) {
  order = std::clamp(selected.dateOrder, 0, 2);
  CSorter(ItemsOf(folded), *this).Sort();
}

bool Request::Has(WordKind kind) const { return FirstOf(kind) != nullptr; }

const Item* Request::FirstOf(WordKind kind) const {
  const auto found =
      std::find_if(items.begin(), items.end(), [=](const Item& item) { return item.kind == kind; });
  return found == items.end() ? nullptr : &*found;
}

std::size_t Request::CountNumbers() const {
  return static_cast<std::size_t>(std::count_if(items.begin(), items.end(), IsNumber));
}

bool Request::ConsistsOf(WordKind kind) const {
  return std::all_of(items.begin(), items.end(),
                     [=](const Item& item) { return IsNumber(item) || item.kind == kind; });
}

}  // namespace orbisol::reader

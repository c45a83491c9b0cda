// A text that was typed as a date, taken apart: what can stand anywhere in it (a weekday, an era, a mark of
// the calendar, remarks in parentheses) is noted, the rest stays in its order for the forms.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "core/date.h"
#include "core/date_reader.h"
#include "core/reader/items.h"

namespace orbisol::reader {

enum class Calendar { kInForce, kJulian, kGregorian };
enum class Era { kNone, kBefore, kIn };

struct Request {
  Request(std::u16string_view folded, PackedDate selectedDate);

  std::vector<Item> items;  // without what the fields below hold
  Date selected;
  int order = 1;  // order of three numbers, as Date::dateOrder, within 0..2

  int weekday = 0;    // 1 Monday .. 7; 0 where none is named
  int decadeDay = 0;  // 1..10; 0 likewise
  Calendar calendar = Calendar::kInForce;
  Era era = Era::kNone;
  bool isOrthodox = false;
  int yearBeforeEra = 0;         // in a remark behind a year that has a sign: "−44 (45 av. J.-C.)"; else 0
  std::optional<int> civilYear;  // in a remark: "(année civile 1599)"
  int doubleYear = 0;            // the first year of "1731/32"; the number holds the second; else 0
  bool isContradictory = false;  // two weekdays, two eras, two calendars

  bool Has(WordKind kind) const;
  bool HasYearRemark() const { return era != Era::kNone || yearBeforeEra != 0 || civilYear.has_value(); }
  std::size_t CountNumbers() const;
  const Item* FirstOf(WordKind kind) const;  // null where there is none

  // Returns whether there are no items but numbers and those of one kind, which may be kNumber.
  bool ConsistsOf(WordKind kind) const;
};

}  // namespace orbisol::reader

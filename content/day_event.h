// A day rule: on which day or days of any year something falls, and its name.
#pragma once

#include "core/date_range.h"
#include "core/text.h"

namespace orbisol {

enum class DayEventType : int {
  kFixedDate = 0,
  kRomanEaster = 1,
  kOrthodoxEaster = 2,
  kNthWeekday = 3,
  kWeekdayBefore = 4,  // the date itself included
  kWeekdayAfter = 5,   // the date itself included
  kBankHoliday = 6,    // moved from a weekend to the Monday after
  kExceptSunday = 7,   // moved from a Sunday to the Monday after
};

// The name of a rule or the title of a period: at most 254 UTF-16 units, a longer one is cut.
constexpr std::size_t kMaxNameUnits = 254;
using NameText = FixedText<kMaxNameUnits + 1>;

struct DayEvent {
  DayEventType type = DayEventType::kFixedDate;  // any number of a file, until the rule is accepted
  bool isPublic = false;                         // a legal holiday; else a personal event
  int month = 0;                                 // 1..12; ignored relative to Easter
  int day = 0;  // of the month; relative to Easter the signed distance in days; ignored for the n-th weekday
  int weekday = 0;         // 1 Monday .. 7, where the kind asks for one
  int weeknum = 0;         // n-th weekday: 1..5, 5 is the last; before and after a date: 1
  PackedDate ymdFrom = 0;  // inclusive, compared as integers
  PackedDate ymdTo = 0;
  NameText name;

  bool operator==(const DayEvent&) const = default;
};

// Returns whether a rule may be in a calendar; files and editors drop or refuse what is not accepted. On
// purpose: weekdays before and after a date take no 1st of a month, and no lower bound is set but those of
// the kind.
bool IsAcceptableDayEvent(const DayEvent& event);

}  // namespace orbisol

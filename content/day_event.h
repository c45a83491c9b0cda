// A day rule: on which day or days of any year something falls, and its name.
#pragma once

#include "core/packed_date.h"
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

constexpr PackedDate kAlwaysFrom = -39991231;  // the lowest and highest packed dates of the range shown:
constexpr PackedDate kAlwaysTo = 39991231;     // from one to the other is "always"

constexpr std::size_t kMaxNameUnits = 254;  // of a rule's name and of a period's title, in UTF-16 units

struct DayEvent {
  int type = 0;           // DayEventType, 0..7; what a file says is kept as a number until it is accepted
  bool isPublic = false;  // a legal holiday; else a personal event
  int month = 0;          // 1..12; ignored relative to Easter
  int day = 0;  // of the month; relative to Easter the signed distance in days; ignored for the n-th weekday
  int weekday = 0;         // 1 Monday .. 7, where the kind asks for one
  int weeknum = 0;         // n-th weekday: 1..5, 5 is the last; before and after a date: 1
  PackedDate ymdFrom = 0;  // inclusive, compared as integers
  PackedDate ymdTo = 0;
  FixedText<258> name;

  bool operator==(const DayEvent&) const = default;
};

// Whether a rule may be in a calendar; files and editors drop or refuse what is not accepted. On purpose:
// weekdays before and after a date take no 1st of a month, and no lower bound is set but those of the kind.
bool AcceptDayEvent(const DayEvent& event);

}  // namespace orbisol

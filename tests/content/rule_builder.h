// Rules and periods in one line, for tests.
//
//   Rule(DayEventType::kFixedDate, {.month = 7, .day = 14, .name = u"Fête nationale"});
#pragma once

#include <string_view>

#include "content/day_event.h"
#include "content/vacation.h"

namespace orbisol {

struct RuleFields {
  bool isPublic = true;
  int month = 0;
  int day = 0;
  int weekday = 0;
  int weeknum = 0;
  PackedDate from = kAlwaysFrom;
  PackedDate to = kAlwaysTo;
  std::u16string_view name = u"x";
};

DayEvent Rule(DayEventType type, const RuleFields& fields);
HolidayPeriod Period(PackedDate from, PackedDate to, std::u16string_view title = u"");

}  // namespace orbisol

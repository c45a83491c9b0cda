// Rules and periods in one line, for tests.
//
//   Rule(kFixedDate, {.month = 7, .day = 14, .name = u"Fête nationale"});
#pragma once

#include "content/day_event.h"
#include "content/vacation.h"

namespace orbisol {

using enum DayEventType;

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

inline DayEvent Rule(DayEventType type, const RuleFields& fields) {
  const auto& [isPublic, month, day, weekday, weeknum, from, to, name] = fields;
  return {type, isPublic, month, day, weekday, weeknum, from, to, name};
}

inline HolidayPeriod Period(PackedDate from, PackedDate to, std::u16string_view title = u"") {
  return {from, to, title};
}

}  // namespace orbisol

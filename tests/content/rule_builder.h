// Rules, periods and months in one line, for tests.
//
//   Rule(kNthWeekday, {.month = 5, .weekday = 7, .weeknum = 5, .name = u"Fête des mères"});
//   EveryYear(7, 14, u"Fête nationale");
#pragma once

#include "content/calendar_look.h"
#include "content/month_model.h"
#include "tests/support/rules.h"

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

inline DayEvent EveryYear(int month, int day, std::u16string_view name, bool isPublic = true) {
  return Rule(DayEventType::kFixedDate, {.isPublic = isPublic, .month = month, .day = day, .name = name});
}

inline HolidayPeriod Period(PackedDate from, PackedDate to, std::u16string_view title = u"") {
  return {from, to, title};
}

inline MonthModel BuiltMonth(int year, int month, const CalendarContent& content = {},
                             MonthModel::Moon moon = MonthModel::kWithoutMoon,
                             const std::array<Color, kColorCount>& colors = CalendarLook().colors) {
  MonthModel model;
  model.year = year;
  model.month = month;
  model.Build(content, colors, moon);
  return model;
}

}  // namespace orbisol

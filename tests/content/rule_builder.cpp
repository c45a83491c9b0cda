#include "tests/content/rule_builder.h"

namespace orbisol {

DayEvent Rule(DayEventType type, const RuleFields& fields) {
  DayEvent event;
  event.type = static_cast<int>(type);
  event.isPublic = fields.isPublic;
  event.month = fields.month;
  event.day = fields.day;
  event.weekday = fields.weekday;
  event.weeknum = fields.weeknum;
  event.ymdFrom = fields.from;
  event.ymdTo = fields.to;
  event.name = fields.name;
  return event;
}

HolidayPeriod Period(PackedDate from, PackedDate to, std::u16string_view title) {
  HolidayPeriod period;
  period.ymdFrom = from;
  period.ymdTo = to;
  period.title = title;
  return period;
}

}  // namespace orbisol

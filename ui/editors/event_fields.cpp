#include "ui/editors/event_fields.h"

#include <algorithm>

#include "core/date.h"
#include "core/date_text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

constexpr int kFirstDayBesideDate = 2;  // weekdays before and after a date count from the 2nd at the earliest

// Pieces of kTextEventRefusals.
enum { kNameMissing, kDayBeyondMonth, kDayTooEarly, kUntilBeforeSince };

std::u16string_view RefusalText(int n) { return Piece(StringText(kTextEventRefusals), u'|', n); }

bool IsBetween(int value, int low, int high) { return low <= value && value <= high; }

DayRange RangeOfFields(const EventFields& fields) {
  return {fields.since == 0 ? kAlways.first : fields.since, fields.until == 0 ? kAlways.last : fields.until};
}

// Units that are seen as nothing: blanks, marks of no width, marks for the direction of writing.
bool IsUnseen(char16_t unit) {
  constexpr struct {
    char16_t first, last;
  } kUnseen[] = {{0x0000, 0x0020}, {0x007F, 0x00A0}, {0x00AD, 0x00AD}, {0x034F, 0x034F}, {0x061C, 0x061C},
                 {0x115F, 0x1160}, {0x1680, 0x1680}, {0x17B4, 0x17B5}, {0x180B, 0x180F}, {0x2000, 0x200F},
                 {0x2028, 0x202F}, {0x205F, 0x206F}, {0x2800, 0x2800}, {0x3000, 0x3000}, {0x3164, 0x3164},
                 {0xFE00, 0xFE0F}, {0xFEFF, 0xFEFF}, {0xFFA0, 0xFFA0}, {0xFFF0, 0xFFFB}};
  return std::any_of(std::begin(kUnseen), std::end(kUnseen),
                     [&](const auto& range) { return IsBetween(unit, range.first, range.last); });
}

}  // namespace

bool HasDate(DayEventType type) { return HasMonth(type) && type != DayEventType::kNthWeekday; }
bool HasMonth(DayEventType type) { return !HasDistance(type); }
bool HasDistance(DayEventType type) {
  return type == DayEventType::kRomanEaster || type == DayEventType::kOrthodoxEaster;
}
bool HasWeekday(DayEventType type) {
  return type == DayEventType::kNthWeekday || type == DayEventType::kWeekdayBefore ||
         type == DayEventType::kWeekdayAfter;
}
bool HasOrdinal(DayEventType type) { return type == DayEventType::kNthWeekday; }

std::vector<Refusal<EventField>> RefusalsOf(const EventFields& fields) {
  std::vector<Refusal<EventField>> refusals;
  const auto refuse = [&](EventField field, std::u16string reason) {
    refusals.push_back({field, std::move(reason)});
  };
  if (IsBlank(fields.name)) {
    refuse(EventField::kName, std::u16string(RefusalText(kNameMissing)));
  } else if (std::u16string reason = TooLongText(fields.name); !reason.empty()) {
    refuse(EventField::kName, std::move(reason));
  }
  if (HasDate(fields.type)) {
    const int longest = LongestMonth(fields.month);
    if (fields.day > longest) {
      refuse(EventField::kDay,
             FormatText(RefusalText(kDayBeyondMonth), {UpperFirst(MonthName(fields.month)), longest}));
    } else if (HasWeekday(fields.type) && fields.day < kFirstDayBesideDate) {
      refuse(EventField::kDay, std::u16string(RefusalText(kDayTooEarly)));
    }
  }
  const DayRange range = RangeOfFields(fields);
  if (DayOrder(range.last) < DayOrder(range.first))
    refuse(EventField::kUntil, std::u16string(RefusalText(kUntilBeforeSince)));
  return refusals;
}

EventRow RowOf(const EventFields& fields, const EventRow* edited) {
  DayEvent rule;
  rule.type = fields.type;
  rule.isPublic = fields.isPublic;
  rule.month = HasMonth(fields.type) ? fields.month : 0;
  if (HasDate(fields.type)) rule.day = fields.day;
  if (HasDistance(fields.type)) rule.day = fields.distance;
  if (HasWeekday(fields.type)) {
    rule.weekday = fields.weekday;
    rule.weeknum = HasOrdinal(fields.type) ? fields.weeknum : 1;
  }
  rule.name.Set(Tidied(fields.name));
  const bool keepsBounds = edited != nullptr && !edited->range && fields.since == 0 && fields.until == 0;
  if (keepsBounds) return {WithBounds(rule, edited->bounds.front()), edited->bounds, std::nullopt};
  return RowOf(rule, RangeOfFields(fields));
}

EventFields FieldsOf(const EventRow& row) {
  const DayEvent& rule = row.record;
  EventFields fields;
  fields.name = rule.name.View();
  fields.isPublic = rule.isPublic;
  fields.type = rule.type;
  if (HasMonth(rule.type) && IsBetween(rule.month, 1, 12)) fields.month = rule.month;
  if (HasDate(rule.type) && IsBetween(rule.day, 1, 31)) fields.day = rule.day;
  if (HasDistance(rule.type))
    fields.distance = std::clamp(rule.day, -kMostDaysFromEaster, kMostDaysFromEaster);
  if (HasWeekday(rule.type) && IsBetween(rule.weekday, 1, 7)) fields.weekday = rule.weekday;
  if (HasOrdinal(rule.type) && IsBetween(rule.weeknum, 1, 5)) fields.weeknum = rule.weeknum;
  if (row.range) {
    fields.since = row.range->first == kAlways.first ? 0 : row.range->first;
    fields.until = row.range->last == kAlways.last ? 0 : row.range->last;
  }
  return fields;
}

EventFields FieldsForDay(PackedDate ymd) {
  EventFields fields;
  if (ymd == 0) return fields;
  const Date date(ymd);
  fields.month = date.month;
  fields.day = date.day;
  fields.weekday = (date.Weekday(true) + kDaysInWeek - 1) % kDaysInWeek + 1;
  fields.weeknum = std::min((date.day - 1) / kDaysInWeek + 1, 5);
  return fields;
}

bool IsBlank(std::u16string_view text) { return std::all_of(text.begin(), text.end(), IsUnseen); }

std::u16string Tidied(std::u16string_view name) {
  std::u16string text(name);
  std::replace_if(
      text.begin(), text.end(), [](char16_t unit) { return unit < u' ' || unit == 0x2028; }, u' ');
  const std::size_t begin = text.find_first_not_of(u' ');
  const std::size_t end = text.find_last_not_of(u' ');
  return begin == std::u16string::npos ? std::u16string() : text.substr(begin, end - begin + 1);
}

std::u16string TooLongText(std::u16string_view name) {
  const std::size_t units = Tidied(name).size();
  if (units <= kMaxNameUnits) return {};
  return FormatText(StringText(kTextNameTooLong),
                    {static_cast<long long>(kMaxNameUnits), static_cast<long long>(units)});
}

}  // namespace orbisol

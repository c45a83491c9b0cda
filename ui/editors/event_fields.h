// What the fields of the events dialog hold, which of them a kind of rule needs, and why they make no event.
//
//   EventFields fields = FieldsOf(row);
//   fields.name = u"Anniversaire";
//   for (const auto& refusal : RefusalsOf(fields)) show(refusal.field, refusal.reason);
//   …
//   row = RowOf(fields, &row);  // where nothing is refused
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "ui/editors/joined_rows.h"

namespace orbisol {

struct EventFields {
  std::u16string name;  // as it is typed
  bool isPublic = false;
  DayEventType type = DayEventType::kFixedDate;
  int month = 1;         // 1..12
  int day = 1;           // of the month
  int distance = 0;      // in days from Easter, -99..99
  int weekday = 1;       // 1 Monday .. 7
  int weeknum = 1;       // 1..5, 5 is the last
  PackedDate since = 0;  // 0: always
  PackedDate until = 0;

  bool operator==(const EventFields&) const = default;
};

constexpr int kMostDaysFromEaster = 99;

// Whether a kind of rule has a field.
bool HasDate(DayEventType type);  // day of the month
bool HasMonth(DayEventType type);
bool HasDistance(DayEventType type);  // from Easter
bool HasWeekday(DayEventType type);
bool HasOrdinal(DayEventType type);

enum class EventField { kName, kDay, kSince, kUntil };

template <class Field>
struct Refusal {
  Field field;
  std::u16string reason;  // one sentence in French
};

// Returns why a field is refused; empty where it is not.
template <class Field>
std::u16string_view ReasonFor(const std::vector<Refusal<Field>>& refusals, Field field) {
  const auto found = std::find_if(refusals.begin(), refusals.end(),
                                  [=](const auto& refusal) { return refusal.field == field; });
  return found == refusals.end() ? std::u16string_view() : std::u16string_view(found->reason);
}

// Returns why the fields make no event, at most one reason a field and in their order; empty where they make
// one, which then passes IsAcceptableDayEvent with each of its records.
std::vector<Refusal<EventField>> RefusalsOf(const EventFields& fields);

// Returns the row that the fields make; only its name may be refused. Fields that the kind does not need are
// left at 0. A row whose bounds are no range keeps them until one of the two dates is edited: `edited` is the
// row that the fields were taken from, null for a new one.
EventRow RowOf(const EventFields& fields, const EventRow* edited);

// Returns the fields that show a row. Numbers that a kind does not need, or that no field can hold, get the
// value of a fresh field.
EventFields FieldsOf(const EventRow& row);

// Returns the fields of a new event on a day; 0 for no day.
EventFields FieldsForDay(PackedDate ymd);

// Returns whether a text has nothing that can be seen.
bool IsBlank(std::u16string_view text);

// Returns a name without blanks at its ends and with its control characters as blanks.
std::u16string Tidied(std::u16string_view name);

// Returns why a name is too long; empty for one that is not.
std::u16string TooLongText(std::u16string_view name);

}  // namespace orbisol

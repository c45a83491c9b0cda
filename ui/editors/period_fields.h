// What the fields of the dialog of vacation periods hold, why they make no period, and which periods overlap.
//
//   PeriodFields fields{.title = u"Pâques", .from = 20240406, .to = 20240422};
//   for (const auto& refusal : RefusalsOf(fields)) show(refusal.field, refusal.reason);
//   …
//   rows.push_back(RowOf(fields));  // where nothing is refused
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "ui/editors/event_fields.h"
#include "ui/editors/joined_rows.h"

namespace orbisol {

struct PeriodFields {
  std::u16string title;  // may be empty
  PackedDate from = 0;   // 0: none was entered
  PackedDate to = 0;

  bool operator==(const PeriodFields&) const = default;
};

enum class PeriodField { kTitle, kFrom, kTo };

// Returns why the fields make no period, at most one reason a field and in their order; empty where they make
// one, which then passes IsAcceptablePeriod with each of its records. A period before the era is refused
// where its cut would leave a record of a single day.
std::vector<Refusal<PeriodField>> RefusalsOf(const PeriodFields& fields);

// Returns the row that the fields make; they must not be refused.
PeriodRow RowOf(const PeriodFields& fields);

// Returns the fields that show a row, without dates where its bounds are no range.
PeriodFields FieldsOf(const PeriodRow& row);

// Returns how many days a range has, both ends included.
int LengthOf(const DayRange& range);

constexpr std::size_t kNoOverlap = static_cast<std::size_t>(-1);

// Returns for each row the index of another one that shares a day with it, kNoOverlap where none does.
std::vector<std::size_t> OverlapsOf(std::span<const PeriodRow> rows);

}  // namespace orbisol

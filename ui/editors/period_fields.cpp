#include "ui/editors/period_fields.h"

#include <algorithm>
#include <numeric>

#include "core/date.h"
#include "core/date_range.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

// Pieces of kTextPeriodRefusals.
enum { kDateMissing, kToBeforeFrom, kOneDay, kOneDayOfYear, kNoBound };

std::u16string_view RefusalText(int n) { return Piece(StringText(kTextPeriodRefusals), u'|', n); }

Refusal<PeriodField> Refuse(PeriodField field, std::u16string_view reason) {
  return {field, std::u16string(reason)};
}

}  // namespace

std::optional<Refusal<PeriodField>> RefusalOf(const PeriodFields& fields) {
  if (const std::u16string reason = TooLongText(fields.title); !reason.empty())
    return Refuse(PeriodField::kTitle, reason);
  if (fields.from == 0) return Refuse(PeriodField::kFrom, RefusalText(kDateMissing));
  if (fields.to == 0) return Refuse(PeriodField::kTo, RefusalText(kDateMissing));
  if (DayOrder(fields.to) < DayOrder(fields.from))
    return Refuse(PeriodField::kTo, RefusalText(kToBeforeFrom));
  if (fields.to == fields.from) return Refuse(PeriodField::kTo, RefusalText(kOneDay));
  for (const RecordBounds& bounds : BoundsOf({fields.from, fields.to})) {
    if (bounds.from == bounds.to)
      return Refuse(bounds.from == fields.from ? PeriodField::kFrom : PeriodField::kTo,
                    FormatText(RefusalText(kOneDayOfYear), {Unpack(bounds.from).year}));
    if (!IsAcceptablePeriod({bounds.from, bounds.to, {}}))
      return Refuse(PeriodField::kTo, RefusalText(kNoBound));
  }
  return std::nullopt;
}

PeriodRow RowOf(const PeriodFields& fields) {
  HolidayPeriod period;
  period.title.Set(Tidied(fields.title));
  return RowOf(period, DayRange{fields.from, fields.to});
}

PeriodFields FieldsOf(const PeriodRow& row) {
  PeriodFields fields;
  fields.title = row.record.title.View();
  if (row.range) {
    fields.from = row.range->first;
    fields.to = row.range->last;
  }
  return fields;
}

int LengthOf(const DayRange& range) {
  return Date(range.last).DayNumber() - Date(range.first).DayNumber() + 1;
}

std::vector<std::size_t> OverlapsOf(std::span<const PeriodRow> rows) {
  std::vector<std::size_t> overlaps(rows.size(), kNoOverlap);
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < rows.size(); ++i)
    if (rows[i].range) order.push_back(i);
  const auto first = [&](std::size_t i) { return DayOrder(rows[i].range->first); };
  const auto last = [&](std::size_t i) { return DayOrder(rows[i].range->last); };
  std::sort(order.begin(), order.end(),
            [&](std::size_t a, std::size_t b) { return first(a) != first(b) ? first(a) < first(b) : a < b; });
  // Of those that began earlier the one that ends last is enough: whoever overlaps any of them overlaps it.
  std::size_t longest = kNoOverlap;
  for (const std::size_t i : order) {
    if (longest != kNoOverlap && first(i) <= last(longest)) {
      overlaps[i] = longest;
      if (overlaps[longest] == kNoOverlap) overlaps[longest] = i;
    }
    if (longest == kNoOverlap || last(i) > last(longest)) longest = i;
  }
  return overlaps;
}

}  // namespace orbisol

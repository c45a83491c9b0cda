#include "ui/editors/period_fields.h"

#include <algorithm>
#include <optional>

#include "core/date.h"
#include "core/date_range.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

// Pieces of kTextPeriodRefusals.
enum { kDateMissing, kToBeforeFrom, kOneDay, kOneDayOfYear, kNoBound };

std::u16string_view RefusalText(int n) { return Piece(StringText(kTextPeriodRefusals), u'|', n); }

// Returns why a period with two dates is none.
std::optional<Refusal<PeriodField>> RefusalOfDates(PackedDate from, PackedDate to) {
  const auto refuse = [](PeriodField field, std::u16string_view reason) {
    return Refusal<PeriodField>{field, std::u16string(reason)};
  };
  if (DayOrder(to) < DayOrder(from)) return refuse(PeriodField::kTo, RefusalText(kToBeforeFrom));
  if (to == from) return refuse(PeriodField::kTo, RefusalText(kOneDay));
  for (const RecordBounds& bounds : BoundsOf({from, to})) {
    if (bounds.from == bounds.to)
      return refuse(bounds.from == from ? PeriodField::kFrom : PeriodField::kTo,
                    FormatText(RefusalText(kOneDayOfYear), {Unpack(bounds.from).year}));
    if (!IsAcceptablePeriod({bounds.from, bounds.to, {}}))
      return refuse(PeriodField::kTo, RefusalText(kNoBound));
  }
  return std::nullopt;
}

}  // namespace

std::vector<Refusal<PeriodField>> RefusalsOf(const PeriodFields& fields) {
  std::vector<Refusal<PeriodField>> refusals;
  if (std::u16string reason = TooLongText(fields.title); !reason.empty())
    refusals.push_back({PeriodField::kTitle, std::move(reason)});
  for (const PeriodField field : {PeriodField::kFrom, PeriodField::kTo})
    if ((field == PeriodField::kFrom ? fields.from : fields.to) == 0)
      refusals.push_back({field, std::u16string(RefusalText(kDateMissing))});
  if (fields.from == 0 || fields.to == 0) return refusals;
  if (auto refusal = RefusalOfDates(fields.from, fields.to)) refusals.push_back(std::move(*refusal));
  return refusals;
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

#include "content/record_range.h"

#include <algorithm>

namespace orbisol {
namespace {

constexpr std::size_t kMostPieces = 3;

// Bounds of whole years before the era, and of the years from 0 on that follow them.
PackedDate LowestOf(int year) { return year < 0 ? Pack(year, 12, 31) : Pack(year, 1, 1); }
PackedDate HighestOf(int year) { return year < 0 ? Pack(year, 1, 1) : Pack(year, 12, 31); }

bool IsBackwards(int year) { return year < 0; }

// Returns whether a bound names a day of some month.
bool IsDateLike(PackedDate packed) {
  const YearMonthDay date = Unpack(packed);
  return date.month >= 1 && date.month <= 12 && date.day >= 1 && date.day <= 31;
}

}  // namespace

std::vector<RecordBounds> BoundsOf(const DayRange& range) {
  std::vector<RecordBounds> pieces;
  if (DayOrder(range.first) > DayOrder(range.last)) return pieces;
  const YearMonthDay first = Unpack(range.first);
  const YearMonthDay last = Unpack(range.last);
  if (!IsBackwards(first.year)) return {{range.first, range.last}};

  if (first.year == last.year) return {{range.last, range.first}};

  const bool beginsYear = MonthDay(first.month, first.day) == kFirstOfJanuary;
  if (!beginsYear) pieces.push_back({LowestOf(first.year), range.first});
  const int wholeFrom = beginsYear ? first.year : first.year + 1;
  if (!IsBackwards(last.year)) {
    pieces.push_back({LowestOf(wholeFrom), range.last});
    return pieces;
  }
  const bool endsYear = MonthDay(last.month, last.day) == kLastOfDecember;
  const int wholeTo = endsYear ? last.year : last.year - 1;
  if (wholeFrom <= wholeTo) pieces.push_back({LowestOf(wholeFrom), HighestOf(wholeTo)});
  if (!endsYear) pieces.push_back({range.last, HighestOf(last.year)});
  return pieces;
}

std::optional<DayRange> RangeOf(const RecordBounds& bounds) {
  if (bounds.from > bounds.to || !IsDateLike(bounds.from) || !IsDateLike(bounds.to)) return std::nullopt;
  const int firstYear = Unpack(bounds.from).year;
  const int lastYear = Unpack(bounds.to).year;
  if (IsBackwards(firstYear) && firstYear == lastYear) return DayRange{bounds.to, bounds.from};
  DayRange range{bounds.from, bounds.to};
  if (IsBackwards(firstYear)) {
    if (bounds.from != LowestOf(firstYear)) return std::nullopt;
    range.first = HighestOf(firstYear);
  }
  if (IsBackwards(lastYear)) {
    if (bounds.to != HighestOf(lastYear)) return std::nullopt;
    range.last = LowestOf(lastYear);
  }
  return range;
}

JoinedRange JoinRanges(std::span<const RecordBounds> bounds) {
  const std::optional<DayRange> first = RangeOf(bounds[0]);
  if (!first) return {1, std::nullopt};
  for (std::size_t count = std::min(kMostPieces, bounds.size()); count > 1; --count) {
    const std::optional<DayRange> last = RangeOf(bounds[count - 1]);
    if (!last) continue;
    const DayRange range{first->first, last->last};
    const std::vector<RecordBounds> pieces = BoundsOf(range);
    if (std::equal(pieces.begin(), pieces.end(), bounds.begin(),
                   bounds.begin() + static_cast<std::ptrdiff_t>(count)))
      return {count, range};
  }
  return {1, first};
}

}  // namespace orbisol

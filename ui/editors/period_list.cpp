#include "ui/editors/period_list.h"

#include "content/rule_text.h"
#include "core/text.h"
#include "resources/strings.h"
#include "ui/editors/period_fields.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr QChar kGap(0x2003);  // between numbers at the right of their column and the column after it

// Rows without a range stand first.
std::int64_t FirstOf(const PeriodRow& row) {
  return row.range ? DayOrder(row.range->first) : DayOrder(kFirstDateShown) - 1;
}
std::int64_t LastOf(const PeriodRow& row) {
  return row.range ? DayOrder(row.range->last) : DayOrder(kFirstDateShown) - 1;
}
int DaysOf(const PeriodRow& row) { return row.range ? LengthOf(*row.range) : 0; }

}  // namespace

QString OverlapText(const PeriodRow& other) {
  const std::u16string_view title = other.record.title.View();
  return ToQString(FormatText(Piece(StringText(kTextOverlap), u'|', title.empty() ? 1 : 0), {title}));
}

QString CPeriodList::NameOf(int row) const {
  const PeriodRow& period = RowAt(row);
  if (!period.record.title.IsEmpty()) return ToQString(period.record.title.View());
  return CellText(row, kFrom);
}

bool CPeriodList::Fits(int row, const RowFilter& filter) const {
  return Folded(RowAt(row).record.title.View()).find(filter.text) != std::u16string::npos;
}

bool CPeriodList::Precedes(int a, int b, int column) const {
  const PeriodRow& left = RowAt(a);
  const PeriodRow& right = RowAt(b);
  switch (column) {
    case kTitle:
      return Folded(left.record.title.View()) < Folded(right.record.title.View());
    case kFrom:
      return FirstOf(left) < FirstOf(right);
    case kTo:
      return LastOf(left) < LastOf(right);
    case kLength:
      return DaysOf(left) < DaysOf(right);
    default:
      return OverlapOf(a) != kNoOverlap && OverlapOf(b) == kNoOverlap;
  }
}

std::size_t CPeriodList::OverlapOf(int row) const {
  if (m_overlaps.empty()) m_overlaps = OverlapsOf(Rows());
  return m_overlaps[static_cast<std::size_t>(row)];
}

QString CPeriodList::CellText(int row, int column) const {
  const PeriodRow& period = RowAt(row);
  switch (column) {
    case kTitle:
      return ToQString(period.record.title.View());
    case kFrom:
      return ToQString(PlainDateText(period.range ? period.range->first : period.record.ymdFrom));
    case kTo:
      return ToQString(PlainDateText(period.range ? period.range->last : period.record.ymdTo));
    case kLength:
      return period.range ? GroupedNumber(LengthOf(*period.range)) + kGap : QString();
    default: {
      const std::size_t other = OverlapOf(row);
      return other == kNoOverlap ? QString() : OverlapText(Rows()[other]);
    }
  }
}

QString CPeriodList::TitleOf(int column) const {
  return TablePiece(kTextPeriodColumns, column) + (column == kLength ? QString(kGap) : QString());
}

void CPeriodList::RowsExchanged(std::size_t /*at*/, std::size_t /*removed*/, std::size_t /*inserted*/) {
  m_overlaps.clear();
}

}  // namespace orbisol

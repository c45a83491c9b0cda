#include "ui/editors/event_list.h"

#include <limits>

#include "content/rule_dates.h"
#include "content/rule_text.h"
#include "core/date.h"
#include "core/date_text.h"
#include "resources/strings.h"
#include "ui/editors/event_fields.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr std::int64_t kAfterEveryMonth = 10000;

std::int64_t DayOrderOf(const DayEvent& rule) {
  if (HasDistance(rule.type)) return kAfterEveryMonth + rule.day;
  return MonthDay(rule.month, HasOrdinal(rule.type) ? 7 * rule.weeknum - 6 : rule.day);
}

}  // namespace

std::u16string TextOf(const EventRow& row) {
  return row.range ? RuleText(row.record, *row.range) : RuleText(row.record);
}

const CEventList::Texts& CEventList::TextsOf(int row) const {
  std::optional<Texts>& kept = m_texts[static_cast<std::size_t>(row)];
  if (kept) return *kept;
  kept.emplace();
  const EventRow& event = RowAt(row);
  const std::u16string words = TextOf(event);
  kept->texts[kName] = ToQString(event.record.name.View());
  kept->texts[kDay] = ToQString(words);
  kept->texts[kKind] = TablePiece(kTextEventKinds, event.record.isPublic ? 0 : 1);
  kept->foldedName = Folded(event.record.name.View());
  kept->folded = kept->foldedName + u'\n' + Folded(words);
  kept->dayOrder = DayOrderOf(event.record);
  kept->dateOrder = std::numeric_limits<std::int64_t>::max();
  QStringList dates;
  for (const DayEvent& record : RecordsOf(event)) {
    for (const PackedDate day : RuleDatesInYear(record, m_year)) {
      if (dates.isEmpty()) kept->dateOrder = DayOrder(day);
      dates.append(ToQString(WeekdayName(Date(day).Weekday(true)) + u' ' + PlainDayText(day)));
    }
  }
  kept->texts[kDates] = dates.isEmpty() ? TableText(kTextNoDayInYear) : dates.join(QLatin1String(", "));
  return *kept;
}

QString CEventList::NameOf(int row) const { return ToQString(RowAt(row).record.name.View()); }

bool CEventList::Fits(int row, const RowFilter& filter) const {
  const bool isPublic = RowAt(row).record.isPublic;
  if (filter.kind != RowKind::kAny && isPublic != (filter.kind == RowKind::kPublic)) return false;
  return filter.text.empty() || TextsOf(row).folded.find(filter.text) != std::u16string::npos;
}

bool CEventList::Precedes(int a, int b, int column) const {
  const Texts& left = TextsOf(a);
  const Texts& right = TextsOf(b);
  switch (column) {
    case kName:
      return left.foldedName < right.foldedName;
    case kDay:
      return left.dayOrder < right.dayOrder;
    case kDates:
      return left.dateOrder < right.dateOrder;
    default:
      return RowAt(a).record.isPublic && !RowAt(b).record.isPublic;
  }
}

QString CEventList::TitleOf(int column) const {
  return ToQString(FormatText(Piece(StringText(kTextEventColumns), u'|', column), {m_year}));
}

void CEventList::RowsExchanged(std::size_t at, std::size_t removed, std::size_t inserted) {
  const auto begin = m_texts.begin() + static_cast<std::ptrdiff_t>(at);
  m_texts.erase(begin, begin + static_cast<std::ptrdiff_t>(removed));
  m_texts.insert(m_texts.begin() + static_cast<std::ptrdiff_t>(at), inserted, std::nullopt);
}

}  // namespace orbisol

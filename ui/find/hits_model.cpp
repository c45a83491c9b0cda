#include "ui/find/hits_model.h"

#include <algorithm>
#include <iterator>

#include "content/spoken_text.h"
#include "core/date_text.h"
#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

int CHitsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_hits.size());
}

QVariant CHitsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || role != Qt::DisplayRole) return {};
  const SearchHit& hit = m_hits[static_cast<std::size_t>(index.row())];
  const std::u16string days = hit.date == hit.lastDate
                                  ? LongDate(Date(hit.date), false)
                                  : UpperFirst(RangeText(Date(hit.date), Date(hit.lastDate)));
  return TableText(kTextSpokenLine, {days, hit.text});
}

void CHitsModel::Clear() {
  beginResetModel();
  m_hits.clear();
  endResetModel();
}

void CHitsModel::Append(std::vector<SearchHit> hits) {
  if (hits.empty()) return;
  const int first = rowCount();
  beginInsertRows({}, first, first + static_cast<int>(hits.size()) - 1);
  m_hits.insert(m_hits.end(), std::make_move_iterator(hits.begin()), std::make_move_iterator(hits.end()));
  endInsertRows();
}

int CHitsModel::RowNear(PackedDate date) const {
  const auto found = std::find_if(m_hits.begin(), m_hits.end(), [=](const SearchHit& hit) {
    return DayOrder(hit.lastDate) >= DayOrder(date);
  });
  return std::min(static_cast<int>(std::distance(m_hits.begin(), found)), rowCount() - 1);
}

}  // namespace orbisol

#include "ui/editors/rows_model.h"

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

QString StepText(int piece, const QString& name) {
  return ToQString(FormatText(Piece(StringText(kTextListSteps), u'|', piece), {Utf16View(name)}));
}

CRowsView::CRowsView(CRowsModel& rows) : m_rows(rows) { setSourceModel(&rows); }

void CRowsView::SetFilter(const RowFilter& filter) {
  m_filter = filter;
  invalidateFilter();
}

bool CRowsView::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
  return !IsFiltered() || m_rows.Fits(row, m_filter);
}

bool CRowsView::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  return m_rows.Precedes(left.row(), right.row(), left.column());
}

}  // namespace orbisol

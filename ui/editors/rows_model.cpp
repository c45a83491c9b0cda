#include "ui/editors/rows_model.h"

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

QString StepText(int piece, const QString& name) {
  return ToQString(FormatText(Piece(StringText(kTextListSteps), u'|', piece), {Utf16View(name)}));
}

QVariant CRowsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount({})) return {};
  if (role == Qt::DisplayRole) return CellText(index.row(), index.column());
  if (role == Qt::ToolTipRole) return TipMarkup(CellText(index.row(), index.column()));
  return Alignment(index.column(), role);
}

QVariant CRowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  return role == Qt::DisplayRole ? QVariant(TitleOf(section)) : Alignment(section, role);
}

QVariant CRowsModel::Alignment(int column, int role) const {
  if (role != Qt::TextAlignmentRole || !HoldsNumbers(column)) return {};
  return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
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

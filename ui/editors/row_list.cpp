#include "ui/editors/row_list.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

#include "ui/toolkit/colors.h"

namespace orbisol {
namespace {

// Rows with some air around their text.
class CAiryRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), std::max(size.height(), option.fontMetrics.height() * 3 / 2)};
  }
};

}  // namespace

CRowList::CRowList(QWidget* parent) : QTreeView(parent) {
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setAlternatingRowColors(true);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTextElideMode(Qt::ElideRight);
  setItemDelegate(new CAiryRows(this));
  setSortingEnabled(true);
  header()->setSortIndicatorClearable(true);
  header()->setSortIndicator(-1, Qt::AscendingOrder);
  header()->setSectionsMovable(false);
}

void CRowList::SetEmptyText(const QString& text) {
  m_emptyText = text;
  setAccessibleDescription(text);
  viewport()->update();
}

void CRowList::SelectOnly(const QModelIndex& index) {
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  scrollTo(index);
}

QModelIndexList CRowList::SelectedRows() const {
  QModelIndexList rows = selectionModel()->selectedRows();
  std::sort(rows.begin(), rows.end());
  return rows;
}

void CRowList::paintEvent(QPaintEvent* event) {
  QTreeView::paintEvent(event);
  if (model() == nullptr || model()->rowCount() > 0 || m_emptyText.isEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(NoteColor(palette(), QPalette::Base));
  const int margin = fontMetrics().height();
  painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                   Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

void CRowList::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete) {
    emit deletePressed();
  } else {
    QTreeView::keyPressEvent(event);
  }
}

}  // namespace orbisol

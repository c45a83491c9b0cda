// The list of an editor: rows of columns, several of them selectable, sorted by a click on a header. A third
// click on the header gives the stored order back. An empty list says in grey how to begin.
//
//   auto* const list = new CRowList;
//   list->setModel(&view);
//   list->SetEmptyText(TablePiece(kTextEmptyEvents, 0));
//   connect(list, &CRowList::deletePressed, …);
#pragma once

#include <QTreeView>

namespace orbisol {

class CRowList : public QTreeView {
  Q_OBJECT

 public:
  explicit CRowList(QWidget* parent = nullptr);

  // Sets the text over the list while it has no rows; plain text, "\n" between lines.
  void SetEmptyText(const QString& text);

  // Selects one row alone, whatever keys are held, and scrolls to it.
  void SelectOnly(const QModelIndex& index);

  // Returns the rows selected, in the order of the view.
  QModelIndexList SelectedRows() const;

 signals:
  void deletePressed();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString m_emptyText;
};

}  // namespace orbisol

#include "ui/print/toolkit_dialogs.h"

#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

#include "resources/strings.h"
#include "ui/toolkit/keys.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

// Names in the toolkit's forms, in the order of the pieces of kTextPrintControls.
constexpr const char* kControls[] = {"unitCombo",
                                     "pageSizeCombo",
                                     "pagesPerSheetCombo",
                                     "pagesPerSheetLayoutCombo",
                                     "printers",
                                     "fileBrowser",
                                     "from",
                                     "to",
                                     "pagesLineEdit",
                                     "pageSetCombo",
                                     "paperSource"};

constexpr QSize kWindowFrame(8, 40);  // room for the frame around a dialog

// Scrolls downwards only: it is as wide as what it holds, also after that has grown.
class CDownScroller : public QScrollArea {
 public:
  explicit CDownScroller(QWidget* inside) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(inside);
  }

  void KeepWidth(int width) {
    setMinimumWidth(std::max(width, widget()->minimumSizeHint().width()) +
                    verticalScrollBar()->sizeHint().width());
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) KeepWidth(0);
    return QScrollArea::eventFilter(watched, event);
  }
};

class CEnterKey : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* button, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !IsEnter(static_cast<QKeyEvent*>(event)->key())) return false;
    static_cast<QToolButton*>(button)->click();
    return true;
  }
};

// Returns the size of a column with all of its parts shown.
QSize SizeUnfolded(const QLayout& column) {
  QSize size;
  for (int i = 0; i < column.count(); ++i) {
    QLayoutItem& item = *column.itemAt(i);
    const QWidget* const widget = item.widget();
    const QSize part =
        widget != nullptr ? widget->sizeHint().expandedTo(widget->minimumSize()) : item.sizeHint();
    size = QSize(std::max(size.width(), part.width()), size.height() + part.height() + column.spacing());
  }
  return size;
}

}  // namespace

void NameControls(const QDialog& dialog) {
  int piece = 0;
  for (const char* const name : kControls) {
    const QString text = TablePiece(kTextPrintControls, piece++);
    auto* const control = dialog.findChild<QWidget*>(QString::fromLatin1(name));
    if (control == nullptr) continue;
    control->setAccessibleName(text);
    // Readers are told the choice of a combo box as its name.
    if (qobject_cast<QComboBox*>(control) != nullptr) control->setAccessibleDescription(text);
  }
}

void PressWithEnter(const QDialog& dialog) {
  for (QToolButton* const button : dialog.findChildren<QToolButton*>())
    button->installEventFilter(new CEnterKey(button));
}

void FitScreen(QDialog& dialog) {
  const QSize room = dialog.screen()->availableSize() - kWindowFrame;
  auto* const column = qobject_cast<QVBoxLayout*>(dialog.layout());
  // Otherwise the toolkit finds their width when they are shown.
  for (QComboBox* const box : dialog.findChildren<QComboBox*>())
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  if (column == nullptr || SizeUnfolded(*column).height() <= room.height()) {
    dialog.resize(dialog.sizeHint().boundedTo(room));
    return;
  }
  const int width = SizeUnfolded(*column).width();
  auto* const inside = new QWidget;
  auto* const above = new QVBoxLayout(inside);
  above->setContentsMargins({});
  while (column->count() > 1) {
    const std::unique_ptr<QLayoutItem> item(column->takeAt(0));
    if (item->widget() != nullptr) above->addWidget(item->widget());
  }
  above->addStretch();
  auto* const area = new CDownScroller(inside);
  area->KeepWidth(width);
  column->insertWidget(0, area);
  dialog.setMaximumSize(room.expandedTo(dialog.minimumSizeHint()));
  dialog.resize(dialog.sizeHint().width(), room.height());
}

}  // namespace orbisol

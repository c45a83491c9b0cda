#include "ui/toolkit/selectable_label.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

CSelectableLabel::CSelectableLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setFocusPolicy(Qt::StrongFocus);
}

bool CSelectableLabel::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && hasSelectedText() &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
    event->accept();  // these keys copy the selection here, although a menu has them too
    return true;
  }
  return QLabel::event(event);
}

void CSelectableLabel::focusInEvent(QFocusEvent* event) {
  QLabel::focusInEvent(event);
  if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
    setSelection(0, static_cast<int>(text().size()));
}

// Offers to copy what is selected, or the whole text. The toolkit has no such menu for labels of one line.
void CSelectableLabel::contextMenuEvent(QContextMenuEvent* event) {
  if (!hasSelectedText()) setSelection(0, static_cast<int>(text().size()));
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(TableText(kTextCopy), this,
                  [this] { QGuiApplication::clipboard()->setText(selectedText()); });
  menu->popup(event->globalPos());
  event->accept();
}

}  // namespace orbisol

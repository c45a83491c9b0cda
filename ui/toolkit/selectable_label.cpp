#include "ui/toolkit/selectable_label.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace orbisol {

CSelectableLabel::CSelectableLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setFocusPolicy(Qt::ClickFocus);
}

bool CSelectableLabel::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && hasSelectedText() &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
    event->accept();  // The keys copy the selection; a menu must not copy something else with them.
    return true;
  }
  return QLabel::event(event);
}

void CSelectableLabel::focusInEvent(QFocusEvent* event) {
  QLabel::focusInEvent(event);
  if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
    setSelection(0, static_cast<int>(text().size()));
}

}  // namespace orbisol

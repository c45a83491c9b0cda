#include "ui/toolkit/read_only_field.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace orbisol {

CReadOnlyField::CReadOnlyField(QWidget* parent) : QLineEdit(parent) { setReadOnly(true); }

void CReadOnlyField::ShowText(const QString& text) {
  if (text != this->text()) setText(text);
}

bool CReadOnlyField::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && !hasSelectedText() &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
    event->ignore();
    return false;
  }
  return QLineEdit::event(event);
}

void CReadOnlyField::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  for (const auto reason :
       {Qt::MouseFocusReason, Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::ShortcutFocusReason})
    if (event->reason() == reason) emit visited();
}

void CReadOnlyField::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (!hasSelectedText()) selectAll();
}

}  // namespace orbisol

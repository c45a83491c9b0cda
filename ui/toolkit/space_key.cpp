#include "ui/toolkit/space_key.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>

namespace orbisol {
namespace {

bool TakesSpace(QObject* object) {
  const auto* const group = qobject_cast<QGroupBox*>(object);
  return qobject_cast<QAbstractButton*>(object) || qobject_cast<QComboBox*>(object) ||
         qobject_cast<QAbstractItemView*>(object) || (group && group->isCheckable());
}

}  // namespace

bool CSpaceKeyFilter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return false;
  auto* const key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_Space || !TakesSpace(watched)) return false;
  key->accept();  // the widget then gets it as an ordinary key, not as a shortcut
  return true;
}

}  // namespace orbisol

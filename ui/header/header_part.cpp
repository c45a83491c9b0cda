#include "ui/header/header_part.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

#include <utility>

#include "settings/display_settings.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/keys.h"

namespace orbisol {

CHeaderPart::CHeaderPart(HeaderPart part, std::function<void(HeaderPart, Qt::KeyboardModifiers)> press,
                         QWidget* parent)
    : QAbstractButton(parent), m_part(part), m_press(std::move(press)) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  // clicked() comes from Space and from a screen reader. Only the arrows look at the keys held.
  connect(this, &QAbstractButton::clicked, this,
          [this] { m_press(m_part, QGuiApplication::keyboardModifiers()); });
}

void CHeaderPart::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(event->key())) {
    // A held Enter repeats the arrows' steps; it must not open and close the menu again and again.
    const bool isArrow = m_part == HeaderPart::kPrevious || m_part == HeaderPart::kNext;
    if (isArrow || !event->isAutoRepeat()) m_press(m_part, event->modifiers());
  } else if (event->key() == Qt::Key_Left) {
    FocusNeighbor(-1);
  } else if (event->key() == Qt::Key_Right) {
    FocusNeighbor(1);
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

// Moves the focus to the part beside this one, if there is one.
void CHeaderPart::FocusNeighbor(int step) {
  const auto parts = parentWidget()->findChildren<CHeaderPart*>(QString(), Qt::FindDirectChildrenOnly);
  const qsizetype place = parts.indexOf(this) + step;
  if (place >= 0 && place < parts.size()) parts[place]->setFocus(Qt::TabFocusReason);
}

void CHeaderPart::focusInEvent(QFocusEvent* event) {
  QAbstractButton::focusInEvent(event);
  update();
}

void CHeaderPart::paintEvent(QPaintEvent*) {
  if (!hasFocus()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ToQColor(Display().ColorAt(kColorCalHeader)), 1));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
}

}  // namespace orbisol

#include "ui/month/header_part.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

#include <utility>

#include "settings/display_settings.h"
#include "ui/common/keys.h"
#include "ui/month/month_painter.h"

namespace orbisol {

CHeaderPart::CHeaderPart(HeaderPart part, std::function<void(HeaderPart, Qt::KeyboardModifiers)> press,
                         QWidget* parent)
    : QAbstractButton(parent), m_part(part), m_press(std::move(press)) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  // Space, and whatever presses a button from outside; the keys held count for arrows alone.
  connect(this, &QAbstractButton::clicked, this,
          [this] { m_press(m_part, QGuiApplication::keyboardModifiers()); });
}

void CHeaderPart::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(event->key())) {
    m_press(m_part, event->modifiers());
  } else if (event->key() == Qt::Key_Left) {
    focusPreviousChild();
  } else if (event->key() == Qt::Key_Right) {
    focusNextChild();
  } else {
    QAbstractButton::keyPressEvent(event);
  }
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

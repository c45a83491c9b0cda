#include "ui/common/elided_label.h"

#include <QFontMetrics>
#include <QPainter>

namespace orbisol {

CElidedLabel::CElidedLabel(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void CElidedLabel::SetText(const QString& text) {
  if (text == m_text) return;
  m_text = text;
  setAccessibleName(text);
  update();
}

QSize CElidedLabel::sizeHint() const {
  return {fontMetrics().horizontalAdvance(m_text), fontMetrics().height()};
}

QSize CElidedLabel::minimumSizeHint() const { return {0, fontMetrics().height()}; }

void CElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString shown = fontMetrics().elidedText(m_text, Qt::ElideRight, width());
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

}  // namespace orbisol

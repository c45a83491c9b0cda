#include "ui/toolkit/elided_label.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "ui/toolkit/plain_text.h"

namespace orbisol {

CElidedLabel::CElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize CElidedLabel::minimumSizeHint() const { return {0, fontMetrics().height()}; }

bool CElidedLabel::IsCut() const { return fontMetrics().horizontalAdvance(text()) > width(); }

bool CElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && IsCut()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), TipMarkup(text()), this);
    return true;
  }
  return QLabel::event(event);
}

void CElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

}  // namespace orbisol

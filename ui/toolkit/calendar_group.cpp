#include "ui/toolkit/calendar_group.h"

#include <QLayout>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionGroupBox>

namespace orbisol {
namespace {

constexpr int kTitleIndent = 7;  // of a group without a layout

}  // namespace

QColor LineColor(const QWidget& widget) {
  const QColor ink = widget.palette().color(QPalette::WindowText);
  const QColor ground = widget.palette().color(QPalette::Window);
  const auto mix = [](int a, int b) { return (a + 3 * b) / 4; };
  return {mix(ink.red(), ground.red()), mix(ink.green(), ground.green()), mix(ink.blue(), ground.blue())};
}

int CCalendarGroup::ContentTop() const {
  QStyleOptionGroupBox option;
  initStyleOption(&option);
  constexpr int kBelowTitle = 2;
  return kBelowTitle +
         style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, this).top();
}

void CCalendarGroup::paintEvent(QPaintEvent*) {
  QStyleOptionGroupBox option;
  initStyleOption(&option);
  const QRect label = style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
  // The title begins where the content does. Asked of the content itself: the style moves the layout's own
  // rectangle in a group with boxes to check.
  const bool hasContent = layout() != nullptr && layout()->count() > 0;
  const int left = hasContent ? layout()->itemAt(0)->geometry().left() : kTitleIndent;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(QRect(left, label.top(), width() - left, label.height()),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(LineColor(*this));
  constexpr qreal kCorner = 3;
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
}

}  // namespace orbisol

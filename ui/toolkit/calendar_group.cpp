#include "ui/toolkit/calendar_group.h"

#include <QLayout>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionGroupBox>

namespace orbisol {
namespace {

constexpr int kTitleIndent = 7;  // pixels left of the title in a group without a layout
constexpr int kNoteGap = 16;     // least distance of title and note, in pixels

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

void CCalendarGroup::SetNote(const QString& note) {
  if (note == m_note) return;
  m_note = note;
  setAccessibleDescription(note);
  update();
}

void CCalendarGroup::paintEvent(QPaintEvent*) {
  QStyleOptionGroupBox option;
  initStyleOption(&option);
  const QRect label = style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
  // The title is aligned with the content. The first item gives its place, because the style moves the
  // layout's own rectangle in a group that holds a check box.
  const bool hasContent = layout() != nullptr && layout()->count() > 0;
  const int left = hasContent ? layout()->itemAt(0)->geometry().left() : kTitleIndent;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  const QRect line(left, label.top(), width() - 2 * left, label.height());
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, title());
  const QFontMetrics metrics = painter.fontMetrics();
  if (metrics.horizontalAdvance(title()) + kNoteGap + metrics.horizontalAdvance(m_note) <= line.width())
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, m_note);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(LineColor(*this));
  constexpr qreal kCorner = 3;
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
}

}  // namespace orbisol

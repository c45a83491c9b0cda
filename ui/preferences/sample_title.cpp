#include "ui/preferences/sample_title.h"

#include <QMouseEvent>
#include <QPainter>

#include "ui/painting/month_fonts.h"
#include "ui/preferences/preview_elements.h"
#include "ui/preferences/sample_month.h"
#include "ui/toolkit/colors.h"

namespace orbisol {

void PaintTitle(QPainter& painter, const QRect& rect, int height, const QString& title,
                const DisplaySettings& settings, const QFont& dialogFont) {
  QFont font = CalendarFont(settings, dialogFont);
  font.setWeight(QFont::Bold);
  painter.fillRect(rect, ToQColor(settings.ColorAt(kColorBgCal)));
  painter.setPen(ToQColor(settings.ColorAt(kColorCalHeader)));
  painter.setFont(FontOfHeight(font, height));
  painter.drawText(rect, Qt::AlignCenter | Qt::TextSingleLine, title);
}

CSampleTitle::CSampleTitle(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setAccessibleName(ElementName(kElementTitle));
}

void CSampleTitle::SetLook(const DisplaySettings& settings) {
  m_settings = settings;
  update();
}

QSize CSampleTitle::sizeHint() const {
  const int height = fontMetrics().height() * 2;
  return {height * 6, height};
}

void CSampleTitle::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintTitle(painter, rect(), height() * 8 / 10, SampleTitleText(), m_settings, font());
}

void CSampleTitle::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton || event->button() == Qt::RightButton) emit clicked(event->button());
}

}  // namespace orbisol

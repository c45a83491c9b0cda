#include "tools/screenshot/pictures.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QWidget>

#include <cstdio>
#include <fstream>
#include <iterator>

namespace orbisol {

void CPictureFolder::Save(QWidget& window, const QString& name, QWidget* popup) {
  const qreal ratio = window.devicePixelRatioF();
  QPixmap picture = window.grab();
  if (popup != nullptr) {
    const QRect below(popup->mapToGlobal(QPoint()) - window.mapToGlobal(QPoint()), popup->size());
    QPixmap both((window.rect() | below).size() * ratio);
    both.setDevicePixelRatio(ratio);
    both.fill(Qt::lightGray);
    QPainter painter(&both);
    painter.drawPixmap(0, 0, picture);
    painter.drawPixmap(below.topLeft(), popup->grab());
    painter.end();
    picture = both;
  }
  Write(picture, name);
}

void CPictureFolder::Save(const QImage& picture, const QString& name) { Write(picture, name); }

template <class Picture>
void CPictureFolder::Write(const Picture& picture, const QString& name) {
  const QString path =
      QStringLiteral("%1/%2@%3.png").arg(m_path, name).arg(picture.devicePixelRatio(), 0, 'g', 3);
  if (picture.save(path)) return;
  ++m_failures;
  std::fprintf(stderr, "%s cannot be written\n", qPrintable(path));
}

QPalette DarkTheme() {
  QPalette dark(QColor(0x3A, 0x3A, 0x3A), QColor(0x2B, 0x2B, 0x2B));
  dark.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
  dark.setColor(QPalette::Highlight, QColor(0x35, 0x84, 0xE4));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  return dark;
}

std::string FileOfFrance() {
  std::ifstream file(ORBISOL_LEGALS "/France.xml", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace orbisol

// The arrows, the month and the year of the header as the keyboard and a screen reader know them.
#pragma once

#include <QAbstractButton>

#include <functional>

#include "ui/month/header_layout.h"

namespace orbisol {

// One part. It shows nothing but its focus; the mouse belongs to the header.
class CHeaderPart : public QAbstractButton {
  Q_OBJECT

 public:
  CHeaderPart(HeaderPart part, std::function<void(HeaderPart, Qt::KeyboardModifiers)> press, QWidget* parent);

  QSize sizeHint() const override { return size(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  HeaderPart m_part;
  std::function<void(HeaderPart, Qt::KeyboardModifiers)> m_press;
};

}  // namespace orbisol

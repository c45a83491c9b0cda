// The arrows, the month and the year of the header as the keyboard and a screen reader know them.
#pragma once

#include <QAbstractButton>

#include <functional>

#include "ui/header/header_layout.h"

namespace orbisol {

// One part of the header. It shows nothing but its focus; the mouse belongs to the header. The parts of a
// header are made in their order from left to right.
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
  void FocusNeighbor(int step);

  HeaderPart m_part;
  std::function<void(HeaderPart, Qt::KeyboardModifiers)> m_press;
};

}  // namespace orbisol

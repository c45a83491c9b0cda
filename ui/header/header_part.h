// The arrows, the month and the year of the header as controls for the keyboard and for screen readers.
#pragma once

#include <QAbstractButton>

#include <functional>

#include "ui/header/header_layout.h"

namespace orbisol {

// One part of the header, which shows nothing but its focus; the header handles the mouse. Make the parts of
// a header in their order from left to right.
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

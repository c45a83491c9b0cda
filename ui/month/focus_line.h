// A line in highlight color around a widget, in the margin outside it, that shows where the keyboard is.
//
//   m_focusLine.Show(*this);  // in focusInEvent
//   m_focusLine.Hide();       // in focusOutEvent
#pragma once

#include <QFocusFrame>
#include <QPointer>

namespace orbisol {

// Line of two pixels, where the widget's parent has that much room beside it. A widget without a parent has
// no line.
class CFocusLine {
 public:
  ~CFocusLine() { delete m_frame; }

  void Show(QWidget& widget);
  void Hide();

 private:
  QPointer<QFocusFrame> m_frame;  // child of the widget's parent, which may be gone before
};

}  // namespace orbisol

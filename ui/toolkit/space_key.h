// Keeps the Space key for the button, check box or list that has the focus, where it presses, checks or
// opens, although Space is a shortcut of the window.
//
//   QApplication::instance()->installEventFilter(new CSpaceKeyFilter(window));
#pragma once

#include <QObject>

namespace orbisol {

class CSpaceKeyFilter : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace orbisol

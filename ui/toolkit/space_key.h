// A shortcut of the Space key must not take Space from a button, a box or a list that has the focus: there it
// presses, checks or opens.
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

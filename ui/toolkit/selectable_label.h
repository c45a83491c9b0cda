// A line of plain text that can be selected with the mouse, copied with the usual keys, also where these
// belong to a menu as well, and from a context menu. Where Tab stops at it, it is selected whole.
#pragma once

#include <QLabel>

namespace orbisol {

class CSelectableLabel : public QLabel {
 public:
  explicit CSelectableLabel(QWidget* parent = nullptr);

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
};

}  // namespace orbisol

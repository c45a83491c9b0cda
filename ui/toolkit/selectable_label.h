// A line of plain text that can be selected with the mouse and copied from a context menu or with the usual
// keys, even if a menu has these keys too. Tab selects it whole.
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

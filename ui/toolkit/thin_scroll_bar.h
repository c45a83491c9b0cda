// A narrow scroll bar without arrows, for areas that scroll only in small windows.
//
//   area.setVerticalScrollBar(new CThinScrollBar(Qt::Vertical));
#pragma once

#include <QScrollBar>

namespace orbisol {

class CThinScrollBar : public QScrollBar {
 public:
  explicit CThinScrollBar(Qt::Orientation orientation, QWidget* parent = nullptr);

  static constexpr int kThickness = 7;  // pixels
};

}  // namespace orbisol

// A group box on the calendar's own ground: a thin line around its content and its title above, nothing
// filled.
#pragma once

#include <QColor>
#include <QGroupBox>

namespace orbisol {

class CCalendarGroup : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

  // Where content may begin below the title, in pixels from the upper edge.
  int ContentTop() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// For the lines between and around groups: the text's color, as faint as a line may be. Of a widget on the
// calendar's ground.
QColor LineColor(const QWidget& widget);

}  // namespace orbisol

// A group box on the calendar's own ground: a thin line around its content and its title above, nothing
// filled. It stands in for the style's own, which fills its content with a color that the calendar does not
// know.
#pragma once

#include <QColor>
#include <QGroupBox>

namespace orbisol {

class CCalendarGroup : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

  // Returns where content may begin below the title, in pixels from the upper edge.
  int ContentTop() const;

  // Shows a note at the right end of the title's line, for screen readers as the group's description. It is
  // left out where the two do not fit; empty for none.
  void SetNote(const QString& note);
  QString Note() const { return m_note; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString m_note;
};

// Returns the color of lines between and around groups: that of the text, as faint as a line may be. `widget`
// stands on the calendar's ground.
QColor LineColor(const QWidget& widget);

}  // namespace orbisol

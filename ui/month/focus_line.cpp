#include "ui/month/focus_line.h"

#include <QPainter>

#include "content/calendar_look.h"
#include "ui/toolkit/colors.h"

namespace orbisol {
namespace {

// Frame that follows its widget, as the toolkit's does, with a line of our own: each style draws the
// toolkit's in its own way.
class CFrame : public QFocusFrame {
 public:
  using QFocusFrame::QFocusFrame;

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), ToQColor(kHighlightColor)); }
};

}  // namespace

void CFocusLine::Show(QWidget& widget) {
  if (widget.isWindow()) return;
  if (!m_frame) m_frame = new CFrame(widget.parentWidget());
  m_frame->setWidget(&widget);
}

void CFocusLine::Hide() {
  if (m_frame) m_frame->setWidget(nullptr);
}

}  // namespace orbisol

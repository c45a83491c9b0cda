#include "ui/toolkit/thin_scroll_bar.h"

namespace orbisol {

// Sets the form by a style sheet, which moves the areas that answer to the mouse along with what is drawn.
// The handle is a grey that can be seen on dark and on light grounds.
CThinScrollBar::CThinScrollBar(Qt::Orientation orientation, QWidget* parent)
    : QScrollBar(orientation, parent) {
  setStyleSheet(QStringLiteral("QScrollBar { background: transparent; border: none; }"
                               "QScrollBar:vertical { width: %1px; }"
                               "QScrollBar:horizontal { height: %1px; }"
                               "QScrollBar::handle { background: rgba(128, 128, 128, 60%); margin: 1px;"
                               " border-radius: 2px; }"
                               "QScrollBar::handle:vertical { min-height: 24px; }"
                               "QScrollBar::handle:horizontal { min-width: 24px; }"
                               "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }"
                               "QScrollBar::add-page, QScrollBar::sub-page { background: none; }")
                    .arg(kThickness));
}

}  // namespace orbisol

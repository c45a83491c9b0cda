#include "ui/window/session_end.h"

#include <QApplication>
#include <QWidget>

namespace orbisol {

void KeepAllUnsaved() {
  for (QWidget* const widget : QApplication::topLevelWidgets())
    if (auto* const window = dynamic_cast<SessionWindow*>(widget); window != nullptr && widget->isVisible())
      window->KeepUnsaved();
}

}  // namespace orbisol

#include "ui/window/session_end.h"

#include <QApplication>
#include <QWidget>

namespace orbisol {

bool KeepAllUnsaved() {
  bool isSafe = true;
  for (QWidget* const widget : QApplication::topLevelWidgets())
    if (auto* const window = dynamic_cast<SessionWindow*>(widget); window != nullptr && widget->isVisible())
      isSafe = window->KeepUnsaved() && isSafe;
  return isSafe;
}

}  // namespace orbisol

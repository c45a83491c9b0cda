// Mends the toolkit's dialogs for printing.
//
//   QPageSetupDialog dialog(&printer, this);
//   NameControls(dialog);
//   PressWithEnter(dialog);
//   FitScreen(dialog);
#pragma once

class QDialog;

namespace orbisol {

// Gives accessible names to controls that have none.
void NameControls(const QDialog& dialog);

// Makes Enter press the small button that has the focus. The toolkit gives it to the default button, and a
// reader who wants to choose a file prints.
void PressWithEnter(const QDialog& dialog);

// Keeps a dialog on its screen, with all that can unfold in it: where the screen is too low, what stands
// above the buttons scrolls.
void FitScreen(QDialog& dialog);

}  // namespace orbisol

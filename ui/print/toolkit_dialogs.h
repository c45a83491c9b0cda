// Mends the toolkit's dialogs for printing.
//
//   QPageSetupDialog dialog(&printer, this);
//   NameControls(dialog);
//   FitScreen(dialog);
#pragma once

class QDialog;

namespace orbisol {

// Gives accessible names to controls that have none.
void NameControls(const QDialog& dialog);

// Keeps a dialog on its screen, with all that can unfold in it: where the screen is too low, what stands
// above the buttons scrolls.
void FitScreen(QDialog& dialog);

}  // namespace orbisol

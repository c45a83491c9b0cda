// Drop-down lists whose value a screen reader says, on entering them and whenever it changes.
//
//   SpeakValue(*form.month);  // "Mois : janvier"; with an accessible name, else the value alone
//
// On Linux the toolkit gives the value as the name of a list. Readers say a label in its place, so that the
// value of a list with a label would never be heard, nor any change. A description is said in both cases.
#pragma once

class QComboBox;

namespace orbisol {

// Makes the value the description of the list, now and after each change.
void SpeakValue(QComboBox& box);

}  // namespace orbisol

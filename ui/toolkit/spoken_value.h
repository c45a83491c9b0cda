// Drop-down lists whose value a screen reader says when they are entered.
//
//   SpeakValue(*form.month);  // "Mois : janvier"; without an accessible name the value alone
//
// On Linux the toolkit gives the value as the name of a list. Readers say a label in its place, and would
// leave the value of a list with a label out; a description they say as well.
#pragma once

class QComboBox;

namespace orbisol {

// Makes the value the description of the list, now and after each change.
void SpeakValue(QComboBox& box);

}  // namespace orbisol

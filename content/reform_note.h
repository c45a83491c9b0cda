// The note above a month whose dates are not all Gregorian.
//
//   ReformNote(1500, 5);   // "Dates juliennes, jusqu'au 4 octobre 1582"
//   ReformNote(1582, 10);  // "Le 4 octobre 1582 est suivi du 15 octobre 1582"
//   ReformNote(2024, 5);   // ""
#pragma once

#include <string>

namespace orbisol {

// Returns the note under the rules in force. A reform that dropped the end of one month and the beginning
// of another is mentioned in both. Empty for a month of the Gregorian calendar alone; "Dates juliennes" where
// no day shown is Gregorian.
std::u16string ReformNote(int year, int month);

}  // namespace orbisol

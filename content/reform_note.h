// What is to be said over a month whose dates are not all Gregorian.
//
//   ReformRemark(1500, 5);   // "Dates juliennes, jusqu'au 4 octobre 1582"
//   ReformRemark(1582, 10);  // "Le 4 octobre 1582 est suivi du 15 octobre 1582"
//   ReformRemark(2024, 5);   // ""
#pragma once

#include <string>

namespace orbisol {

// Follows the rules in force. A reform that dropped the end of one month and the beginning of another is told
// in both. Empty for a month of the Gregorian calendar alone; "Dates juliennes" where no day shown is
// Gregorian.
std::u16string ReformRemark(int year, int month);

}  // namespace orbisol

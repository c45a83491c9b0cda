// The forms in which a date can be typed. Each looks whether a request has its form, adds what it can mean to
// the answer or refuses it, and returns true; it returns false and adds nothing for a request of another
// form.
#pragma once

#include "core/reader/answer.h"

namespace orbisol::reader {

bool ReadDayNumber(CAnswer& answer);   // "JJ 2299161"
bool ReadRelative(CAnswer& answer);    // "hier", "dans 3 mois", "-44", "lundi prochain"
bool ReadFeast(CAnswer& answer);       // "Pâques 2024", "Ascension 1600 orthodoxe"
bool ReadRomanDay(CAnswer& answer);    // "ides de mars -44"
bool ReadRepublican(CAnswer& answer);  // "18 brumaire an VIII", "jour de la Révolution an III"
bool ReadWeek(CAnswer& answer);        // "2024-W20-3", "semaine 20 2024"
bool ReadMonthName(CAnswer& answer);   // "14 juillet 1789", "24 mars 1731/2", "mars 2024"
bool ReadNumbers(CAnswer& answer);     // "14/7/1789", "1789", "2024-123"

// Makes one item of a year that was given twice, "1731/2" or "1731/32", where it is the last number:
// the first becomes the remark, the second stays. Only beside other parts of a date.
void JoinDoubleYear(Request& request);

// Returns whether a number can only be a year.
bool LooksLikeYear(const Item& number);

// Returns a number with its sign.
inline int SignedValue(const Item& number) { return number.isNegative ? -number.value : number.value; }

}  // namespace orbisol::reader

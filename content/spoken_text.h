// Sentences about days, for the status bar and for those who cannot see the month.
//
//   MissingDateText(Date(20261131));  // "Le 31 novembre 2026 n'existe pas ; il compte comme le 1er décembre"
//   RangeText(Date(20240513), Date(20240522));  // "du 13 mai 2024 au 22 mai 2024, 10 jours"
//   DayCountText(Date(20261121));  // "325e jour de l'année, il en reste 40"
//   SpokenDay(cell, today);  // "Mercredi 1 mai 2024, aujourd'hui, jour férié : Fête du Travail"
#pragma once

#include <string>

#include "content/month_model.h"
#include "core/date.h"

namespace orbisol {

// Returns a sentence that says as which day a date counts that does not exist; empty for a date that exists.
std::u16string MissingDateText(const Date& date);

// Returns both ends of a range and its length; `from` is the earlier. A single day has a form of its own.
std::u16string RangeText(const Date& from, const Date& to);

// Returns the place of a date in its civil year: its number alone where a new start of civil years makes the
// year shorter or longer than DaysLeftInCivilYear() counts. Empty where the year's first day was dropped so
// that days are counted from 0 or below.
std::u16string DayCountText(const Date& date);

// Returns the date of a cell, and all that falls on it with its kind. Empty for an empty cell.
std::u16string SpokenDay(const DayCell& cell, PackedDate today);

}  // namespace orbisol

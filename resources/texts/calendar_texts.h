// Names that the calendar speaks, numbers 50xx.
#pragma once

#include "resources/texts/text_entry.h"

namespace orbisol {

inline constexpr TextEntry kCalendarTexts[] = {
    {kTextFrenchMonths,
     u"janvier|février|mars|avril|mai|juin|juillet|août|septembre|octobre|novembre|décembre"},
    {kTextFrenchMonthAbbrevs, u"janv.|févr.|mars|avr.|mai|juin|juil.|août|sept.|oct.|nov.|déc."},
    {kTextFrenchWeekdays, u"lundi|mardi|mercredi|jeudi|vendredi|samedi|dimanche"},
    {kTextFrenchWeekdayAbbrevs, u"lun.|mar.|mer.|jeu.|ven.|sam.|dim."},
    {kTextRepublicanMonths,
     u"vendémiaire|brumaire|frimaire|nivose|pluviose|ventose|germinal|floréal|prairial|messidor|"
     u"thermidor|fructidor|Complémentaires"},
    {kTextDecadeDays, u"Primidi|Duodi|Tridi|Quartidi|Quintidi|Sextidi|Septidi|Octidi|Nonidi|Décadi"},
    {kTextComplementaryDays,
     u"Jour de la Vertu|Jour du Génie|Jour du Travail|Jour de l'Opinion|Jour de la Récompense|"
     u"Jour de la Révolution"},
    {kTextRepublicanDay, u"%s %d %s an %d\n (an %s)"},
    {kTextRepublicanComplementaryDay, u"%s an %d\n (an %s)"},
};

}  // namespace orbisol

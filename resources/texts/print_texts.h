// Texts of printing, numbers 54xx.
#pragma once

#include "resources/texts/text_entry.h"

namespace orbisol {

inline constexpr TextEntry kPrintTexts[] = {
    {kTextTitleBeforeEra, u"%s %d (%d av. JC)"},
    {kTextYearsTitle, u"%d|%d (%d av. JC)"},
    {kTextTwoYearsTitle, u"%d – %d|%d – %d (%d – %d av. JC)"},
    {kTextRepublicanYears, u"an %s|ans %s – %s"},
    {kTextWeekLabel, u"%s %d |%s %2d"},
    {kTextConcordances, u"Julien|Républicain"},
    {kTextComplementaryDay, u"complémentaire"},
    {kTextPrintNames, u"Période|Format"},
    {kTextSpokenPage, u"Aperçu, page %d sur %d"},
    {kTextPrintZoom, u"%d\u00A0%%"},
    {kTextPrintYears,
     u" (%d av. JC)|Années\u00A0: %s, pages\u00A0: %s|La première année vient après la "
     u"dernière.|&Continuer..."},
    {kTextPrintName, u"Calendrier|%d av. JC|%s à %s"},
    {kTextExportPdf, u"Exporter en PDF|Documents PDF (*.pdf)"},
    {kTextPrintProgress, u"Page %d sur %d"},
    {kTextPrintEnds,
     u"Une page envoyée à %s|%d pages envoyées à %s|Une page écrite dans %s|%d pages écrites dans %s|"
     u"Impression interrompue\u00A0: les dernières pages manquent|"
     u"Exportation interrompue\u00A0: aucun fichier n'a été écrit"},
    {kTextPrintFaults,
     u"Aucune de ces pages n'existe\u00A0: le document n'en a qu'une. Rien n'a été imprimé.|"
     u"Aucune de ces pages n'existe\u00A0: le document en a %d. Rien n'a été imprimé.|"
     u"L'imprimante «\u00A0%s\u00A0» n'a pas accepté les pages.\n\n"
     u"Vérifiez qu'elle est allumée et prête, puis recommencez, ou exportez les pages en PDF.|"
     u"Le fichier %s n'a pas pu être écrit.\n\n"
     u"Vérifiez que vous pouvez écrire dans ce dossier et qu'il reste de la place sur le disque. "
     u"Si un fichier de ce nom existait, il n'a pas changé.|"
     u"La file d'attente de l'imprimante «\u00A0%s\u00A0» est fermée\u00A0: rien n'a été imprimé.\n\n"
     u"Rouvrez-la dans les réglages des imprimantes, choisissez une autre imprimante, ou exportez les pages "
     u"en PDF.|"
     u"L'imprimante «\u00A0%s\u00A0» est arrêtée. Les pages attendent dans sa file et seront imprimées quand "
     u"elle sera remise en marche."},
    {kTextPageList,
     u"Cette liste de pages ne peut pas être lue.\n\n"
     u"Séparez les pages par des virgules et écrivez une plage avec un trait d'union\u00A0: 1-3,5"},
    {kTextPrintControls,
     u"Unité de mesure|Papier|Pages par feuille|Ordre des pages|Imprimante|Choisir le fichier|Première page|"
     u"Dernière page|Liste de pages, par exemple 1-3,5|Pages paires ou impaires|"
     u"Source du papier"},
};

}  // namespace orbisol

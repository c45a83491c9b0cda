// Texts of the commands above 40000.
#pragma once

#include "resources/texts/text_entry.h"

namespace orbisol {

inline constexpr TextEntry kCommandTexts[] = {
    {kCmdHelpPrinting, u"Ouvrir l'aide de l'impression"},
    {kCmdPrintImage, u"Placer une image sur chaque page"},
    {kCmdEditVacations, u"Définir les périodes de vacances\nPériodes de vacances"},
    {kCmdChooseCalendar, u"Ouvrir ou créer un autre calendrier\nAutre calendrier (Ctrl+O)"},
    {kCmdHelpIndex, u"Afficher l'index de l'aide\nIndex de l'aide"},
    {kCmdHelpContents, u"Afficher le sommaire de l'aide\nAide (F1)"},
    {kCmdToggleToolBar, u"Afficher ou masquer la barre d'outils\nBarre d'outils"},
    {kCmdToggleStatusBar, u"Afficher ou masquer la barre d'état\nBarre d'état"},
};

}  // namespace orbisol

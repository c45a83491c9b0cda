#include "resources/menus.h"

namespace orbisol {
namespace {

constexpr MenuItem kFileMenu[] = {
    {kCmdChooseCalendar, u"Autre calendrier...", u"Ctrl+O"},
    {kCmdNewCalendar, u"Nouveau calendrier...", u"Ctrl+N"},
    {kCmdPrint, u"&Imprimer...", u"Ctrl+P"},
    {kNoCommand, u"", u""},
    {kCmdQuit, u"&Quitter", u"Ctrl+Q"},
};

constexpr MenuItem kEditMenu[] = {
    {kCmdCopyDate, u"Co&pier la date", u"Ctrl+C"},
    {kCmdCopyJulianDate, u"Copier la date julienne", u""},
    {kCmdCopyRepublicanDate, u"Copier la date républicaine", u""},
    {kNoCommand, u"", u""},
    {kCmdGoToDate, u"&Aller à une date...", u"Ctrl+G"},
    {kCmdFind, u"&Rechercher...", u"Ctrl+F"},
    {kCmdFindNext, u"Rechercher le &suivant", u"F3"},
    {kCmdFindPrevious, u"Rechercher le p&récédent", u"Shift+F3"},
};

constexpr MenuItem kViewMenu[] = {
    {kCmdToggleToolBar, u"Barre d'outils", u"", true},    {kCmdToggleStatusBar, u"Barre d'état", u"", true},
    {kCmdTogglePane, u"Fenêtre d'infos", u"Space", true}, {kNoCommand, u"", u""},
    {kCmdGoBack, u"Date précédente", u"Alt+Left"},        {kCmdGoForward, u"Date suivante", u"Alt+Right"},
    {kCmdGoToToday, u"Aujourd'hui", u"Alt+Home"},
};

constexpr MenuItem kToolsMenu[] = {
    {kCmdPreferences, u"&Personnaliser...", u"F8"},
    {kCmdEditEvents, u"&Saisir des événements...", u"Ctrl+E"},
    {kCmdEditVacations, u"Périodes de &vacances...", u""},
};

constexpr MenuItem kHelpMenu[] = {
    {kCmdHelpContents, u"Sommaire...", u"F1"},
    {kCmdHelpIndex, u"Index...", u""},
    {kNoCommand, u"", u""},
    {kCmdAbout, u"À propos...", u""},
};

constexpr Menu kMainMenu[] = {
    {u"&Fichier", kFileMenu}, {u"&Édition", kEditMenu}, {u"Affichage", kViewMenu},
    {u"&Outils", kToolsMenu}, {u"?", kHelpMenu},
};

constexpr ToolItem kMainToolBar[] = {
    {kCmdChooseCalendar, "calendars"},
    {kCmdPrint, "print"},
    {kCmdCopyDate, "copy"},
    {kNoCommand, ""},
    {kCmdGoBack, "back"},
    {kCmdGoForward, "forward"},
    {kCmdGoToToday, "today"},
    {kCmdGoToDate, "goto"},
    {kNoCommand, ""},
    {kCmdEditEvents, "events"},
    {kCmdEditVacations, "vacations"},
    {kCmdPreferences, "preferences"},
    {kCmdTogglePane, "pane"},
    {kNoCommand, ""},
    {kCmdHelpContents, "help"},
};

}  // namespace

std::span<const Menu> MainMenu() { return kMainMenu; }

std::span<const ToolItem> MainToolBar() { return kMainToolBar; }

}  // namespace orbisol

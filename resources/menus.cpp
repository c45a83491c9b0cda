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
    {kCmdToggleToolBar, u"Barre d'outils", u"", true},
    {kCmdToggleStatusBar, u"Barre d'état", u"", true},
    {kCmdTogglePane, u"Fenêtre d'infos", u"Space", true},
    {kCmdToggleCellTexts, u"Événements dans les cases", u"", true},
    {kNoCommand, u"", u""},
    {kCmdGoBack, u"Date précédente", u"Alt+Left"},
    {kCmdGoForward, u"Date suivante", u"Alt+Right"},
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
    {kCmdToggleCellTexts, "celltexts"},
    {kCmdTogglePane, "pane"},
    {kNoCommand, ""},
    {kCmdHelpContents, "help"},
};

constexpr MenuItem kPrintFileMenu[] = {
    {kCmdPageSetup, u"Mise en page...", u"Ctrl+Shift+P"},
    {kCmdPrintPages, u"Imprimer...", u"Ctrl+P"},
    {kCmdExportPdf, u"&Exporter en PDF...", u"Ctrl+E"},
    {kCmdPrintYears, u"Plusieurs &années...", u""},
    {kNoCommand, u"", u""},
    {kCmdClosePrint, u"Fermer", u"Ctrl+W"},
};

constexpr MenuItem kPrintViewMenu[] = {
    {kCmdToggleToolBar, u"Barre d'outils", u"", true},
    {kCmdToggleStatusBar, u"Barre d'état", u"", true},
    {kNoCommand, u"", u""},
    {kCmdFirstPage, u"Première page", u"Home"},
    {kCmdPreviousPage, u"Page précédente", u"PgUp"},
    {kCmdNextPage, u"Page suivante", u"PgDown"},
    {kCmdLastPage, u"Dernière page", u"End"},
    {kNoCommand, u"", u""},
    {kCmdZoomIn, u"Agrandir", u"Ctrl++"},
    {kCmdZoomOut, u"Réduire", u"Ctrl+-"},
    {kCmdFitPage, u"Page entière", u"Ctrl+0", true},
    {kCmdActualSize, u"Taille réelle", u"Ctrl+1", true},
    {kCmdFitWidth, u"Pleine largeur", u"Ctrl+2", true},
};

constexpr MenuItem kPeriodMenu[] = {
    {kCmdPeriodYear, u"Année", u"", true},
    {kCmdPeriodHalf1, u"1er semestre", u"", true},
    {kCmdPeriodHalf2, u"2e semestre", u"", true},
    {kCmdPeriodQuarter1, u"1er trimestre", u"", true},
    {kCmdPeriodQuarter2, u"2e trimestre", u"", true},
    {kCmdPeriodQuarter3, u"3e trimestre", u"", true},
    {kCmdPeriodQuarter4, u"4e trimestre", u"", true},
    {kCmdPeriodMonth, u"Mois", u"", true},
};

constexpr MenuItem kFormatMenu[] = {
    {kCmdFormatYear, u"1 page par an", u"", true},
    {kCmdFormatHalf, u"1 page par semestre", u"", true},
    {kCmdFormatQuarter, u"1 page par trimestre", u"", true},
    {kCmdFormatMonth, u"1 page par mois", u"", true},
    {kCmdFormatTable, u"Tableau mensuel", u"", true},
    {kCmdFormatScreen, u"Mois tel qu'à l'écran", u"", true},
};

constexpr MenuItem kOptionsMenu[] = {
    {kCmdPrintHolidays, u"Jours fériés", u"", true},
    {kCmdPrintEvents, u"Événements", u"", true},
    {kCmdPrintVacations, u"Périodes de vacances", u"", true},
    {kCmdPrintMoon, u"Phases lunaires", u"", true},
    {kCmdPrintImage, u"Insérer une image", u"", true},
    {kNoCommand, u"", u""},
    {kCmdPrintJulian, u"Dates juliennes", u"", true},
    {kCmdPrintRepublican, u"Dates républicaines", u"", true},
};

constexpr MenuItem kPrintHelpMenu[] = {
    {kCmdHelpPrinting, u"Aide de l'impression...", u"F1"},
};

constexpr Menu kPrintMenu[] = {
    {u"&Fichier", kPrintFileMenu}, {u"&Affichage", kPrintViewMenu}, {u"&Période", kPeriodMenu},
    {u"F&ormat", kFormatMenu},     {u"Op&tions", kOptionsMenu},     {u"?", kPrintHelpMenu},
};

constexpr ToolItem kPrintToolBar[] = {
    {kCmdPrintPages, "print"},
    {kCmdExportPdf, "pdf"},
    {kCmdPageSetup, "paper"},
    {kNoCommand, ""},
    {kCmdPreviousPage, "page-up"},
    {kCmdNextPage, "page-down"},
    {kNoCommand, ""},
    {kCmdZoomOut, "zoom-out"},
    {kCmdZoomIn, "zoom-in"},
    {kCmdFitPage, "fit-page"},
    {kCmdFitWidth, "fit-width"},
    {kNoCommand, ""},
    {kCmdPrintImage, "picture"},
    {kCmdHelpPrinting, "help"},
};

}  // namespace

std::span<const Menu> MainMenu() { return kMainMenu; }

std::span<const ToolItem> MainToolBar() { return kMainToolBar; }

std::span<const Menu> PrintMenu() { return kPrintMenu; }

std::span<const ToolItem> PrintToolBar() { return kPrintToolBar; }

}  // namespace orbisol

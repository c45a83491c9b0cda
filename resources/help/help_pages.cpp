#include "resources/help/help_pages.h"

#include <QFile>

#include <algorithm>

namespace orbisol {
namespace {

constexpr HelpPage kPages[] = {
    {kHelpMainWindow, "main_window.html"},
    {kHelpConverter, "converter.html"},
    {kHelpKeys, "keys.html"},
    {kHelpGoToDate, "go_to_date.html"},
    {kHelpSearch, "search.html"},
    {kHelpEvents, "events.html"},
    {kHelpRules, "rules.html"},
    {kHelpVacations, "vacations.html"},
    {kHelpCalendars, "calendars.html"},
    {kHelpImportHolidays, "import_holidays.html"},
    {kHelpVersions, "versions.html"},
    {kHelpPrinting, "printing.html"},
    {kHelpConfiguration, "configuration.html"},
    {kHelpDisplay, "display.html"},
    {kHelpColors, "colors.html"},
    {kHelpFiles, "files.html"},
    {kHelpReform, "reform.html"},
    {kHelpCivilYears, "civil_years.html"},
    {kHelpRepublican, "republican.html"},
    {kHelpWeeks, "weeks.html"},
    {kHelpMoon, "moon.html"},
};

// Keeps punctuation of two parts, and quotation marks, on the line of the word beside them.
QString WithFrenchSpaces(QString text) {
  for (const char16_t mark : {u':', u';', u'!', u'?'})
    text.replace(QStringLiteral(" %1").arg(QChar(mark)), QString(QChar(QChar::Nbsp)) + QChar(mark));
  text.replace(QLatin1String("&laquo; "), QLatin1String("&laquo;&nbsp;"));
  text.replace(QLatin1String(" &raquo;"), QLatin1String("&nbsp;&raquo;"));
  return text;
}

}  // namespace

std::span<const HelpPage> HelpPages() { return kPages; }

QString HelpPageText(const QString& file) {
  const bool isListed = std::any_of(std::begin(kPages), std::end(kPages),
                                    [&](const HelpPage& page) { return file == QLatin1String(page.file); });
  QFile page(QStringLiteral(":/help/%1").arg(file));
  return isListed && page.open(QIODevice::ReadOnly) ? WithFrenchSpaces(QString::fromUtf8(page.readAll()))
                                                    : QString();
}

}  // namespace orbisol

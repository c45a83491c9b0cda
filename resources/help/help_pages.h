// The pages of the help, one file each in this folder, and the topics under which windows ask for them.
//
// A new page is a file, a row in help_pages.cpp and a line in CMakeLists.txt. Contents and index are made
// from the pages themselves (ui/window/help_text.h says how a page is written).
#pragma once

#include <QString>

#include <span>

namespace orbisol {

enum HelpTopic : int {
  kHelpMainWindow = 1,
  kHelpEvents = 2,
  kHelpVacations = 3,
  kHelpConverter = 4,
  kHelpCalendars = 5,
  kHelpVersions = 6,
  kHelpImportHolidays = 7,
  kHelpGoToDate = 8,
  kHelpSearch = 9,
  kHelpRules = 10,
  kHelpReform = 11,
  kHelpCivilYears = 12,
  kHelpRepublican = 13,
  kHelpWeeks = 14,
  kHelpMoon = 15,
  kHelpKeys = 16,
  kHelpFiles = 17,
  kHelpConfiguration = 18,
  kHelpDisplay = 19,
  kHelpColors = 20,
  kHelpPrinting = 100,
};

struct HelpPage {
  HelpTopic topic;
  const char* file;  // without its folder
};

// The pages in the order of the contents; the first one is shown where nothing else is asked for.
std::span<const HelpPage> HelpPages();

// Returns the text of a page, with the non-breaking spaces of French typography; empty for a name that is not
// in the list.
QString HelpPageText(const QString& file);

}  // namespace orbisol

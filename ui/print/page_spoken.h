// A page in words, for those who cannot see the preview.
//
//   SpokenPageName(job);          // "Aperçu, page 2 sur 4"
//   SpokenPage(job, Content());   // "Avril 2024, mai 2024, juin 2024. 1 mai 2024, jour férié : Fête du
//   Travail. …"
#pragma once

#include <string>

#include "content/calendar_content.h"
#include "ui/print/print_job.h"

namespace orbisol {

// Returns which page is shown.
std::u16string SpokenPageName(const PrintJob& job);

// Returns the months of the page, and the days of these that it marks, in the order of the calendar: what an
// option leaves out of the page is left out here.
std::u16string SpokenPage(const PrintJob& job, const CalendarContent& content);

}  // namespace orbisol

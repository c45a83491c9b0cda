// The benches of windows, one function a file of them. Content() holds the days of France while they run.
#pragma once

namespace orbisol {

void RegisterEditors();     // the list of 5,000 events: open, filter, sort
void RegisterMonthView();   // repaints, the next month, moving the selection, beside QCalendarWidget
void RegisterPrintFrame();  // opening it, with its first page
void RegisterPrinting();    // PDF files of a year and of a hundred years

void RegisterPreferences();  // the preview after a change, texts in the cells

}  // namespace orbisol

// Names that several views of the month share.
#pragma once

#include <QString>

namespace orbisol {

// Indices of the pieces of kTextHeaderNames.
enum { kNameHeader, kNamePrevious, kNameNext, kNameMonth, kNameYear, kNameYearEditor };

// Return "Lundi" and "Lun.", by the column 0..6 of a month whose first cell is 1 (Monday) or 0 (Sunday).
QString ColumnName(int column, int firstCell);
QString ColumnAbbrev(int column, int firstCell);

// Returns "Mai", by a month 1..12.
QString MonthTitle(int month);

// Returns "Mai 2024", by the civil year.
QString MonthAndYear(const QString& monthTitle, int year);

}  // namespace orbisol

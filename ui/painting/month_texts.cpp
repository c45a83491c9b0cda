#include "ui/painting/month_texts.h"

#include "core/date_text.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

QString ColumnName(int column, int firstCell) {
  return ToQString(UpperFirst(WeekdayName(column + firstCell)));
}

QString ColumnAbbrev(int column, int firstCell) {
  return ToQString(UpperFirst(WeekdayAbbrev(column + firstCell)));
}

QString MonthTitle(int month) { return ToQString(UpperFirst(MonthName(month))); }

QString MonthAndYear(const QString& monthTitle, int year) {
  return monthTitle + QLatin1Char(' ') + QString::number(year);
}

}  // namespace orbisol

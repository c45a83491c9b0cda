// Paints one month as a column: a row a day, one below the other.
//
//   PaintMonthColumn(painter, style, body, ColumnOnPage(body, style.units, 12, k), {2024, k + 1}, model);
#pragma once

#include "ui/print/page_month.h"

namespace orbisol {

// Paints a month in its column on `body`, the part of the page where the columns stand. `month` is the month
// asked for; if the reform removed all its days, `model` shows another one and the column stays empty. Rows
// follow the number of the day: those of dropped days stay blank.
void PaintMonthColumn(QPainter& painter, const PageStyle& style, const Rect& body, ColumnLayout column,
                      const PrintMonth& month, const MonthModel& model);

}  // namespace orbisol

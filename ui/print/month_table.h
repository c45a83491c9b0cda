// Paints one month as a table to hang on a wall: a row a week, with its number, and room to write in the
// cells.
//
//   PaintMonthTable(painter, style, body, {2024, 5}, model);
#pragma once

#include "ui/print/page_month.h"

namespace orbisol {

// Paints the table over the whole of `body`. If the reform removed all days of `month`, `model` shows another
// month and the table has names of weekdays and nothing else.
void PaintMonthTable(QPainter& painter, const PageStyle& style, const Rect& body, const PrintMonth& month,
                     const MonthModel& model);

}  // namespace orbisol

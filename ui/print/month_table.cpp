#include "ui/print/month_table.h"

#include <QPainter>

#include <algorithm>

#include "resources/strings.h"
#include "ui/painting/month_layout.h"
#include "ui/painting/month_texts.h"
#include "ui/print/concordance.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

int RowsOf(const MonthModel& model) { return (model.LastCell() - model.FirstCell()) / kColumns + 1; }

class CTablePainter {
 public:
  CTablePainter(QPainter& painter, const PageStyle& style, const TableLayout& table, const MonthModel& model)
      : m_painter(painter),
        m_style(style),
        m_table(table),
        m_model(model),
        m_names(style.fonts.OfHeight(table.HeaderFontHeight(), Lettering::kBold)),
        m_small(style.fonts.OfHeight(table.SmallFontHeight())) {}

  void Paint(std::span<const DayCell> days) {
    m_painter.setPen(Qt::black);
    const std::vector<PrintedDay> printed = PrintedDays(m_style.job, days);
    if (m_style.job.Has(kJulianOption)) m_dates.push_back(OtherDates(days, OtherCalendar::kJulian));
    if (m_style.job.Has(kRepublicanOption)) {
      m_dates.push_back(OtherDates(days, OtherCalendar::kRepublican));
      m_marksDecades = true;
    }
    const DayCell* const cells = m_model.cells.data();
    for (int cell = m_model.FirstCell(); !days.empty() && cell <= m_model.LastCell(); ++cell) {
      const DayCell& day = cells[cell];
      if (&day < days.data() || &day > &days.back()) {
        PaintNeighbor(day, RectOf(cell));
      } else {
        const auto index = static_cast<std::size_t>(&day - days.data());
        PaintDay(day, printed[index], index, RectOf(cell));
      }
    }
    PaintNames();
    if (!days.empty()) PaintWeeks();
    PaintGrid();
  }

 private:
  Rect RectOf(int cell) const {
    const int place = cell - m_model.FirstCell();
    return m_table.Cell(place / kColumns, place % kColumns);
  }

  TableCell PartsIn(const Rect& cell) const {
    return PartsOf(cell, m_table, static_cast<int>(m_dates.size()));
  }

  QFont NumberFont(Lettering lettering) const {
    return m_style.fonts.OfHeight(m_table.NumberFontHeight(), lettering);
  }

  // Days of the neighboring months are there to complete the weeks and have no marks.
  void PaintNeighbor(const DayCell& day, const Rect& cell) const {
    if (day.day == 0) return;
    m_painter.setPen(ToQColor(kGreyTextColor));
    m_painter.setFont(NumberFont(Lettering::kItalic));
    DrawLine(m_painter, PartsIn(cell).number, Qt::AlignLeft | Qt::AlignVCenter, QString::number(day.day));
    m_painter.setPen(Qt::black);
  }

  void PaintDay(const DayCell& day, const PrintedDay& printed, std::size_t index, const Rect& cell) const {
    const TableCell parts = PartsIn(cell);
    if (printed.isEvent) FillArea(m_painter, cell, kEventFill);
    if (printed.isHoliday) FillArea(m_painter, cell, kHolidayFill);
    // On purpose: a holiday on a Sunday has the ground of the Sunday, and is told by its bold number and
    // name.
    if (printed.isSunday) FillArea(m_painter, cell, kSundayFill);
    if (printed.isVacation) FillArea(m_painter, parts.head, kVacationFill);

    m_painter.setFont(NumberFont(printed.isHoliday ? Lettering::kBold : Lettering::kUpright));
    DrawLine(m_painter, parts.number, Qt::AlignLeft | Qt::AlignVCenter, QString::number(day.day));
    if (printed.hasMoon) DrawMoon(m_painter, parts.moon, day.moonPhase, m_table.units);
    m_painter.setFont(m_small);
    for (std::size_t line = 0; line < m_dates.size(); ++line) {
      const int top = parts.dates.top + static_cast<int>(line) * m_table.SmallFontHeight();
      DrawLine(m_painter, {parts.dates.left, top, parts.dates.right, top + m_table.SmallFontHeight()},
               Qt::AlignRight | Qt::AlignVCenter, ToQString(m_dates[line][index].text));
    }
    DrawWrapped(m_painter, parts.text, printed.runs, {});
  }

  void PaintNames() const {
    m_painter.setFont(m_names);
    for (int column = 0; column < kColumns; ++column) {
      const Rect place = m_table.Name(column).Shrunk(m_table.units.point, 0);
      DrawLine(m_painter, place, Qt::AlignCenter, ColumnName(column, m_model.FirstCell()));
    }
  }

  void PaintWeeks() const {
    const MonthLayout weeks(0, 0, true, m_model.FirstCell() == 1);
    m_painter.setFont(m_small);
    for (int row = 0; row < m_table.rows; ++row) {
      const int week = weeks.WeekOfRow(m_model, row + 1);
      if (week == 0) continue;
      const auto label =
          FormatText(Piece(StringText(kTextWeekLabel), u'|', 1), {StringText(kTextWeek), week});
      DrawLine(m_painter, m_table.Week(row), Qt::AlignCenter, ToQString(label));
    }
  }

  void PaintGrid() const {
    const Rect& frame = m_table.frame;
    const PageUnits& units = m_table.units;
    for (int column = 0; column <= kColumns; ++column)
      DrawVertical(m_painter, frame, m_table.ColumnLeft(column), frame.top, frame.bottom,
                   column == 0 || column == kColumns ? units.thickLine : units.thinLine);
    DrawVertical(m_painter, frame, frame.left, frame.top, frame.bottom, units.thickLine);
    DrawHorizontal(m_painter, frame, frame.left, frame.right, frame.top, units.thickLine);
    for (int row = 0; row <= m_table.rows; ++row)
      DrawHorizontal(m_painter, frame, frame.left, frame.right, m_table.RowTop(row), units.thickLine);
    if (!m_marksDecades) return;
    for (int cell = m_model.FirstCell(); cell <= m_model.LastCell(); ++cell) PaintDecade(cell);
  }

  // Marks the first day of a décade by a heavier line at its left.
  void PaintDecade(int cell) const {
    const DayCell* const day = &m_model.cells[static_cast<std::size_t>(cell)];
    const std::span<const DayCell> days = DaysOfMonth(m_model);
    if (day < days.data() || day > &days.back()) return;
    if (!m_dates.back()[static_cast<std::size_t>(day - days.data())].beginsDecade) return;
    const Rect place = RectOf(cell);
    DrawVertical(m_painter, m_table.frame, place.left, place.top, place.bottom, 3 * m_table.units.thickLine);
  }

  QPainter& m_painter;
  const PageStyle& m_style;
  const TableLayout& m_table;
  const MonthModel& m_model;
  QFont m_names;
  QFont m_small;
  std::vector<std::vector<OtherDate>> m_dates;  // a list a calendar, with one for each day
  bool m_marksDecades = false;                  // whether the last of these lists is the Republican one
};

}  // namespace

void PaintMonthTable(QPainter& painter, const PageStyle& style, const Rect& body, const PrintMonth& month,
                     const MonthModel& model) {
  if (body.Width() <= 0 || body.Height() <= 0) return;
  const bool isThere = model.year == month.year && model.month == month.month;
  const TableLayout table = TableOnPage(body, style.units, isThere ? RowsOf(model) : kWeekRows);
  CTablePainter(painter, style, table, model)
      .Paint(isThere ? DaysOfMonth(model) : std::span<const DayCell>());
}

}  // namespace orbisol

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

constexpr int kLeastPoints = 7;  // height of the smallest lines, in which letters are 6 points large

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
    if (m_style.job.Has(kJulianOption)) AddCalendar(OtherCalendar::kJulian, days);
    m_marksDecades = m_style.job.Has(kRepublicanOption);
    if (m_marksDecades) AddCalendar(OtherCalendar::kRepublican, days);
    PlaceDates();
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
  void AddCalendar(OtherCalendar calendar, std::span<const DayCell> days) {
    m_dates.push_back(OtherDates(days, calendar));
    const std::vector<std::u16string> longest = LongestDates(calendar);
    m_longestDates.insert(m_longestDates.end(), longest.begin(), longest.end());
  }

  Rect RectOf(int cell) const {
    const int place = cell - m_model.FirstCell();
    return m_table.Cell(place / kColumns, place % kColumns);
  }

  QFont NumberFont(Lettering lettering) const {
    return m_style.fonts.OfHeight(m_table.NumberFontHeight(), lettering);
  }

  // Days of the neighboring months are there to complete the weeks and have no marks.
  void PaintNeighbor(const DayCell& day, const Rect& cell) const {
    if (day.day == 0) return;
    m_painter.setPen(ToQColor(kGreyTextColor));
    m_painter.setFont(NumberFont(Lettering::kItalic));
    DrawLine(m_painter, PartsOf(cell, m_table).number, Qt::AlignLeft | Qt::AlignVCenter,
             QString::number(day.day));
    m_painter.setPen(Qt::black);
  }

  void PaintDay(const DayCell& day, const PrintedDay& printed, std::size_t index, const Rect& cell) const {
    const TableCell parts = PartsOf(cell, TableOf(printed, index));
    if (printed.isEvent) FillArea(m_painter, cell, kEventFill);
    if (printed.isHoliday) FillArea(m_painter, cell, kHolidayFill);
    // On purpose: a holiday on a Sunday has the ground of the Sunday, and is told by its bold number and
    // name.
    if (printed.isSunday) FillArea(m_painter, cell, kSundayFill);
    if (printed.isVacation) FillArea(m_painter, parts.head, kVacationFill);

    m_painter.setFont(NumberFont(printed.isHoliday ? Lettering::kBold : Lettering::kUpright));
    DrawLine(m_painter, parts.number, Qt::AlignLeft | Qt::AlignVCenter, QString::number(day.day));
    if (printed.hasMoon) DrawMoon(m_painter, parts.moon, day.moonPhase, m_table.units);
    PaintOtherDates(parts, printed.hasMoon, index);
    m_painter.setFont(TextFont(printed, parts.text.Width()));
    DrawWrapped(m_painter, parts.text, printed.runs, {});
  }

  // Returns the small font, or a smaller one that need not break the longest word of a narrow cell.
  QFont TextFont(const PrintedDay& printed, int width) const {
    QFont least = m_small;
    for (const TextRun& run : printed.runs) {
      for (const QString& word : QString(run.text).replace(u'-', QStringLiteral("- ")).split(u' ')) {
        const QFont font = FittingFont(m_style.fonts, m_table.SmallFontHeight(), run.lettering, word, width);
        if (font.pixelSize() < least.pixelSize()) least.setPixelSize(font.pixelSize());
      }
    }
    return least;
  }

  // Returns the right end of a date of another calendar, left of the moon. Where there is none, a name of a
  // month that is too long for that may stand in its place.
  int RightOfDate(const TableCell& parts, bool hasMoon, int width) const {
    const bool takesMoon = !m_table.hasDatesBelow && !hasMoon && width > parts.dates.Width();
    return takesMoon ? parts.moon.right : parts.dates.right;
  }

  void PaintOtherDates(const TableCell& parts, bool hasMoon, std::size_t index) const {
    m_painter.setFont(m_dateFont);
    Rect line = parts.dates;
    for (const std::vector<OtherDate>& dates : m_dates) {
      const QString text = ToQString(dates[index].text);
      line.right = RightOfDate(parts, hasMoon, WidthOf(m_dateFont, text));
      line.bottom = line.top + m_table.SmallFontHeight();
      DrawLine(m_painter, line, Qt::AlignRight | Qt::AlignVCenter, text);
      line.top = line.bottom;
    }
  }

  // Returns whether the longest dates have room, beside a moon but for a complementary day.
  bool FitsDates(const QFont& font) const {
    const TableCell parts = PartsOf(m_table.Cell(0, 0), m_table);
    const auto fits = [&](const std::u16string& date, bool hasMoon) {
      const int width = WidthOf(font, ToQString(date));
      // Some columns are narrower than this one by a unit.
      return width < RightOfDate(parts, hasMoon, width) - parts.dates.left;
    };
    return std::ranges::all_of(m_longestDates, [&](const auto& date) { return fits(date, true); }) &&
           (!m_marksDecades || fits(ComplementaryDay(1), false));
  }

  // Chooses the font of the other dates, the small one or one a little smaller, and their place beside the
  // number or below. Both follow from the paper and the longest names, never from the dates of this month, so
  // that all pages of a year are alike.
  void PlaceDates() {
    const int largest = m_table.SmallFontHeight();
    const int least = std::min(largest, kLeastPoints * m_table.units.point);
    for (const bool isBelow : {false, true}) {
      m_table.hasDatesBelow = isBelow;
      for (int height = largest; height >= least; height -= std::max(1, m_table.units.point / 2)) {
        m_dateFont = m_style.fonts.OfHeight(height);
        if (FitsDates(m_dateFont)) return;
      }
    }
  }

  // Returns the layout of the cell of a day. A complementary day may be too long for its place beside a moon,
  // and stands below its number.
  TableLayout TableOf(const PrintedDay& printed, std::size_t index) const {
    TableLayout table = m_table;
    const TableCell parts = PartsOf(m_table.Cell(0, 0), m_table);
    for (const std::vector<OtherDate>& dates : m_dates) {
      const int width = WidthOf(m_dateFont, ToQString(dates[index].text));
      if (width >= RightOfDate(parts, printed.hasMoon, width) - parts.dates.left) table.hasDatesBelow = true;
    }
    return table;
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
    DrawVertical(m_painter, m_table.frame, place.left, place.top, place.bottom, 2 * m_table.units.thickLine);
  }

  QPainter& m_painter;
  const PageStyle& m_style;
  TableLayout m_table;
  const MonthModel& m_model;
  QFont m_names;
  QFont m_small;
  QFont m_dateFont;
  std::vector<std::vector<OtherDate>> m_dates;  // a list a calendar, with one for each day
  std::vector<std::u16string> m_longestDates;   // of these calendars, in any month
  bool m_marksDecades = false;                  // whether the last of these lists is the Republican one
};

}  // namespace

void PaintMonthTable(QPainter& painter, const PageStyle& style, const Rect& body, const PrintMonth& month,
                     const MonthModel& model) {
  if (body.Width() <= 0 || body.Height() <= 0) return;
  const bool isThere = model.year == month.year && model.month == month.month;
  const TableLayout table = TableOnPage(body, style.units, isThere ? RowsOf(model) : kWeekRows,
                                        style.job.Has(kJulianOption) + style.job.Has(kRepublicanOption));
  CTablePainter(painter, style, table, model)
      .Paint(isThere ? DaysOfMonth(model) : std::span<const DayCell>());
}

}  // namespace orbisol

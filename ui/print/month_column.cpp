#include "ui/print/month_column.h"

#include <QPainter>

#include <algorithm>

#include "core/date_text.h"
#include "resources/strings.h"
#include "ui/painting/month_texts.h"
#include "ui/print/concordance.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

// A column of dates of another calendar, left of the moon.
struct DateColumn {
  int left = 0;
  int right = 0;
  QString title;
  bool marksDecades = false;
  std::vector<OtherDate> dates;  // one a day
};

QString WeekLabelText(int week) {
  return ToQString(FormatText(Piece(StringText(kTextWeekLabel), u'|', 0), {StringText(kTextWeek), week}));
}

class CColumnPainter {
 public:
  CColumnPainter(QPainter& painter, const PageStyle& style, const Rect& body, const ColumnLayout& column,
                 std::span<const DayCell> days)
      : m_painter(painter),
        m_style(style),
        m_body(body),
        m_column(column),
        m_days(days),
        m_printed(PrintedDays(style.job, days)),
        m_titleFont(style.fonts.OfHeight(column.TitleFontHeight(), Lettering::kBold)),
        m_smallFont(style.fonts.OfHeight(column.SmallFontHeight())) {
    m_column.letter = WidthOf(m_titleFont, QStringLiteral("M"));
    PlaceDateColumns();
  }

  void Paint(const PrintMonth& month) {
    m_painter.setPen(Qt::black);
    for (std::size_t i = 0; i < m_days.size(); ++i) PaintFills(i);
    PaintTitle(month);
    PaintFrame();
    for (std::size_t i = 0; i < m_days.size(); ++i) PaintDay(i);
  }

 private:
  bool IsFirstOfWeek(const DayCell& day) const { return day.weekday == (Rules().iso8601 ? 1 : 0); }
  bool IsLastOfWeek(const DayCell& day) const { return day.weekday == (Rules().iso8601 ? 0 : 6); }
  bool EndsThick(std::size_t i) const { return IsLastOfWeek(m_days[i]) || i + 1 == m_days.size(); }

  // Places the columns of other calendars from right to left. They leave room for the moon and for the labels
  // of the weeks, and are as wide as their longest text.
  void PlaceDateColumns() {
    int right = m_column.left + m_column.width -
                std::max({m_column.letter, m_column.width - (m_column.Moon(1).left - m_column.left),
                          WidthOf(m_smallFont, WeekLabelText(53))}) -
                m_column.units.point;
    for (const OtherCalendar calendar : {OtherCalendar::kRepublican, OtherCalendar::kJulian}) {
      const bool isJulian = calendar == OtherCalendar::kJulian;
      if (!m_style.job.Has(isJulian ? kJulianOption : kRepublicanOption)) continue;
      DateColumn column;
      column.title = TablePiece(kTextConcordances, isJulian ? 0 : 1);
      column.marksDecades = !isJulian;
      column.dates = OtherDates(m_days, calendar);
      int width = WidthOf(m_smallFont, column.title);
      for (const OtherDate& date : column.dates)
        width = std::max(width, WidthOf(m_smallFont, ToQString(date.text)));
      column.right = right;
      column.left = right - width - 4 * m_column.units.point;
      right = column.left;
      m_dateColumns.push_back(std::move(column));
    }
  }

  int TextRight() const {
    return m_dateColumns.empty() ? m_column.Text(1).right : m_dateColumns.back().left - m_column.units.point;
  }

  void PaintFills(std::size_t i) const {
    const PrintedDay& day = m_printed[i];
    Rect row = m_column.Row(m_days[i].day);
    const bool followsThick = i > 0 && m_days[i - 1].day + 1 == m_days[i].day && EndsThick(i - 1);
    row.top += m_column.units.thickLine / (followsThick ? 2 : 4);
    if (day.isEvent) FillArea(m_painter, row, kEventFill);
    if (day.isHoliday) FillArea(m_painter, row, kHolidayFill);
    // On purpose: a holiday on a Sunday has the ground of the Sunday, and is told by its bold name.
    if (day.isSunday) FillArea(m_painter, row, kSundayFill);
    if (day.isVacation)
      FillArea(m_painter, {row.left, row.top, m_column.StripRight(), row.bottom}, kVacationFill);
  }

  void PaintTitle(const PrintMonth& month) const {
    const QString name = MonthTitle(month.month);
    Rect title = m_column.Row(0);
    // The name stands in the middle of the column, unless it would meet the names of other calendars.
    if (title.left + (title.Width() + WidthOf(m_titleFont, name)) / 2 > TextRight())
      title.right = TextRight();
    m_painter.setFont(m_titleFont);
    DrawLine(m_painter, title, Qt::AlignCenter, name);
    m_painter.setFont(m_smallFont);
    for (const DateColumn& column : m_dateColumns)
      DrawLine(m_painter, {column.left, title.top, column.right, title.bottom - m_column.units.point},
               Qt::AlignHCenter | Qt::AlignBottom, column.title);
  }

  void PaintFrame() const {
    const PageUnits& units = m_column.units;
    const int right = m_column.left + m_column.width;
    DrawVertical(m_painter, m_body, m_column.left, m_column.top, m_column.Bottom(), units.thickLine);
    DrawVertical(m_painter, m_body, right, m_column.top, m_column.Bottom(), units.thickLine);
    DrawHorizontal(m_painter, m_body, m_column.left, right, m_column.Bottom(), units.thickLine);
    DrawHorizontal(m_painter, m_body, m_column.left, right, m_column.top, units.thickLine);
    DrawHorizontal(m_painter, m_body, m_column.left, right, m_column.RowTop(1), units.thinLine);
    if (m_days.empty()) return;
    const int lastDay = m_days.back().day;
    const int daysBottom = m_column.RowTop(lastDay + 1);
    DrawVertical(m_painter, m_body, m_column.StripRight(), m_column.RowTop(1), daysBottom, units.thinLine);
    for (const DateColumn& column : m_dateColumns)
      DrawVertical(m_painter, m_body, column.left, m_column.RowTop(1), daysBottom, units.thinLine);
  }

  void PaintDay(std::size_t i) const {
    const DayCell& cell = m_days[i];
    const PrintedDay& day = m_printed[i];
    const PageUnits& units = m_column.units;
    std::vector<Rect> taken;
    if (day.hasMoon) {
      taken.push_back(m_column.Moon(cell.day).Shrunk(-units.point, 0));
      DrawMoon(m_painter, m_column.Moon(cell.day), cell.moonPhase, units);
    }
    m_painter.setFont(m_smallFont);
    if (IsFirstOfWeek(cell)) {
      const QString label = WeekLabelText(cell.week);
      const Rect place = m_column.WeekLabel(cell.day);
      DrawLine(m_painter, place, Qt::AlignRight | Qt::AlignBottom, label);
      taken.push_back({place.right - WidthOf(m_smallFont, label) - units.point,
                       place.bottom - m_column.SmallFontHeight(), place.right, place.bottom});
    }
    Rect text = m_column.Text(cell.day);
    text.right = std::min(text.right, TextRight());
    DrawWrapped(m_painter, text, day.runs, taken);
    PaintOtherDates(i);
    // Behind dropped days a row has no line above it yet.
    if (i > 0 ? m_days[i - 1].day + 1 != cell.day : cell.day > 1)
      DrawHorizontal(m_painter, m_body, m_column.left, m_column.left + m_column.width,
                     m_column.RowTop(cell.day), units.thinLine);

    m_painter.setFont(m_titleFont);
    DrawLine(m_painter, m_column.Number(cell.day), Qt::AlignCenter, QStringLiteral("%1").arg(cell.day, 2));
    const QString weekday = ToQString(UpperFirst(WeekdayName(cell.weekday))).left(1);
    DrawLine(m_painter, m_column.Weekday(cell.day), Qt::AlignLeft | Qt::AlignVCenter, weekday);
    DrawHorizontal(m_painter, m_body, m_column.left, m_column.left + m_column.width,
                   m_column.RowTop(cell.day + 1), EndsThick(i) ? units.thickLine : units.thinLine);
  }

  void PaintOtherDates(std::size_t i) const {
    const int day = m_days[i].day;
    const int gap = 2 * m_column.units.point;
    m_painter.setFont(m_smallFont);
    for (const DateColumn& column : m_dateColumns) {
      DrawLine(m_painter, {column.left + gap, m_column.RowTop(day), column.right, m_column.RowTop(day + 1)},
               Qt::AlignLeft | Qt::AlignVCenter, ToQString(column.dates[i].text));
      if (column.marksDecades && column.dates[i].beginsDecade && i > 0)
        DrawHorizontal(m_painter, m_body, column.left, column.right, m_column.RowTop(day),
                       2 * m_column.units.thickLine);
    }
  }

  QPainter& m_painter;
  const PageStyle& m_style;
  Rect m_body;
  ColumnLayout m_column;
  std::span<const DayCell> m_days;
  std::vector<PrintedDay> m_printed;
  QFont m_titleFont;
  QFont m_smallFont;
  std::vector<DateColumn> m_dateColumns;  // from right to left
};

}  // namespace

void PaintMonthColumn(QPainter& painter, const PageStyle& style, const Rect& body, ColumnLayout column,
                      const PrintMonth& month, const MonthModel& model) {
  if (column.width <= 0 || column.rowHeight <= 0) return;
  const bool isThere = model.year == month.year && model.month == month.month;
  const std::span<const DayCell> days = isThere ? DaysOfMonth(model) : std::span<const DayCell>();
  CColumnPainter(painter, style, body, column, days).Paint(month);
}

}  // namespace orbisol

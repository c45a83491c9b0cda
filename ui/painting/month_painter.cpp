#include "ui/painting/month_painter.h"

#include <QColor>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "resources/strings.h"
#include "ui/painting/month_pictures.h"
#include "ui/painting/month_texts.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

// Returns a region that is one unit larger at every side. At a fractional ratio a unit ends inside a device
// pixel, which must be painted whole.
QRegion Grown(const QRegion& region) {
  QRegion grown;
  for (const QRect& rect : region) grown += rect.adjusted(-1, -1, 1, 1);
  return grown;
}

// Draws a text on one line in the middle of a rectangle; a text that is too wide is cut at both sides.
// Returns the rectangle of the text.
QRect DrawCentered(QPainter& painter, const QRect& rect, const QString& text) {
  const QFontMetrics metrics = painter.fontMetrics();
  const int textWidth = metrics.horizontalAdvance(text);
  const QRect box(rect.x() + (rect.width() - textWidth) / 2,
                  rect.y() + (rect.height() - metrics.height()) / 2, textWidth, metrics.height());
  const QPoint origin(box.x(), box.y() + metrics.ascent());
  if (textWidth <= rect.width() && metrics.height() <= rect.height()) {
    painter.drawText(origin, text);
  } else {
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    painter.drawText(origin, text);
    painter.restore();
  }
  return box;
}

// Returns the picture in another size, in front of `plain` where it is not opaque. Making it larger takes
// half the time by the painter, pixel for pixel the same; making it smaller would then leave pixels out.
QImage Stretched(const QImage& picture, QSize size, const QColor& plain) {
  const bool isLarger = size.width() >= picture.width() && size.height() >= picture.height();
  QImage stretched(size, QImage::Format_RGB32);
  if (picture.hasAlphaChannel()) stretched.fill(plain);
  QPainter painter(&stretched);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QImage source =
      isLarger ? picture : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  painter.drawImage(QRect(QPoint(0, 0), size), source);
  return stretched;
}

}  // namespace

bool MonthMarks::IsInRange(const DayCell& cell) const {
  if (!hasRange || cell.day == 0) return false;
  const int dayNumber = Date(cell.ymd).DayNumber();
  return firstDayNumber <= dayNumber && dayNumber <= lastDayNumber;
}

void CMonthPainter::SetUp(const MonthLayout& layout, const DisplaySettings& settings, const QFont& dialogFont,
                          Medium medium) {
  m_layout = layout;
  m_settings = settings;
  m_medium = medium;
  m_fonts = MakeMonthFonts(layout, settings, dialogFont);
  const QFontMetrics metrics(m_fonts.upright);
  m_pairWidth = metrics.horizontalAdvance(QStringLiteral("30"));
  m_lineHeight = metrics.height();
  m_stretched = QImage();
  m_glyphs = {};
  m_texts.SetUp(layout, settings, dialogFont);
}

void CMonthPainter::SetBackground(const QImage& picture) {
  m_background = picture;
  m_stretched = QImage();
  m_texts.SetPicture(picture);
}

void CMonthPainter::SetTexts(const MonthModel& month, const CalendarContent& content) {
  m_texts.SetNames(month, content);
}

// Paints from back to front: each step paints one layer and relies on none of the others.
void CMonthPainter::Paint(QPainter& painter, const MonthModel& month, const MonthMarks& marks,
                          const QRegion& region) const {
  if (m_layout.width == 0 || m_layout.height == 0) return;
  painter.save();
  AlignToPixels(painter);
  const QRegion asked = Grown(region);
  if (!asked.isEmpty()) painter.setClipRegion(asked, Qt::IntersectClip);
  painter.setRenderHint(QPainter::TextAntialiasing);

  const auto isAsked = [&](const Rect& rect) { return asked.isEmpty() || asked.intersects(ToQRect(rect)); };
  PaintBackground(painter);
  if (isAsked(m_layout.HeaderBand())) PaintHeader(painter);
  PaintGrid(painter);

  int last = kNoCell;
  for (int cell = m_layout.firstCell; cell < kCellCount; ++cell) {
    const DayCell& day = month.cells[static_cast<std::size_t>(cell)];
    // On purpose: January -3999 begins with empty cells; the first one after a day ends the month.
    if (day.day == 0 && last == kNoCell) continue;
    if (day.day == 0 || m_layout.RowOf(cell) > kWeekRows) break;
    last = cell;
    if (isAsked(m_layout.DirtyRect(cell))) PaintCell(painter, month, cell, marks);
  }
  for (int row = 1; m_settings.showWeekNumber && row <= kWeekRows; ++row)
    if (isAsked(m_layout.WeekNumberRect(row))) PaintWeekNumber(painter, row, m_layout.WeekOfRow(month, row));

  if (marks.hasRange) {
    PaintRange(painter, month, marks);
  } else {
    const int cell = month.CellOf(marks.month, marks.day);
    if (cell != kNoCell && isAsked(m_layout.DirtyRect(cell)))
      PaintMark(painter, month.cells[static_cast<std::size_t>(cell)], cell);
  }
  painter.restore();
}

void CMonthPainter::PaintBackground(QPainter& painter) const {
  const QColor plain = ToQColor(m_settings.ColorAt(kStandardBgColor));
  const QRect rows = ToQRect(m_layout.PictureRect());
  if (m_background.isNull()) {
    painter.fillRect(0, 0, m_layout.width, m_layout.height, plain);
    return;
  }
  if (m_medium == kPaper) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rows, m_background);
    return;
  }
  // The area from the header to the edges is rounded to whole device pixels, so that a fractional ratio
  // leaves none out.
  const double ratio = Ratio(painter);
  const int top = static_cast<int>(std::floor(rows.y() * ratio));
  const QSize size(static_cast<int>(std::ceil(m_layout.width * ratio)),
                   static_cast<int>(std::ceil(m_layout.height * ratio)) - top);
  if (m_stretched.size() != size || m_stretched.devicePixelRatio() != ratio) {
    m_stretched = Stretched(m_background, size, plain);
    m_stretched.setDevicePixelRatio(ratio);
  }
  painter.drawImage(QPointF(0, top / ratio), m_stretched);
}

void CMonthPainter::PaintHeader(QPainter& painter) const {
  painter.fillRect(ToQRect(m_layout.HeaderBand()), ToQColor(m_settings.ColorAt(kHeaderBgColor)));
  painter.setPen(ToQColor(m_settings.ColorAt(kHeaderTextColor)));
  painter.setFont(m_fonts.names);
  for (int column = 0; column < kColumns; ++column)
    DrawCentered(painter, ToQRect(m_layout.NameRect(column)),
                 m_fonts.nameTexts[static_cast<std::size_t>(column)]);
  if (m_settings.showWeekNumber) {
    painter.setFont(m_fonts.weekTitle);
    DrawCentered(painter, ToQRect(m_layout.WeekHeaderRect()), TableText(kTextWeek));
  }
}

void CMonthPainter::PaintGrid(QPainter& painter) const {
  for (const int x : m_layout.VerticalLines(m_settings.grid)) FillLine(painter, x, Qt::Vertical);
  for (const int y : m_layout.HorizontalLines(m_settings.grid)) FillLine(painter, y, Qt::Horizontal);
}

// Returns the device pixels in a unit of the layout; a printer's unit is its pixel.
double CMonthPainter::Ratio(const QPainter& painter) const {
  return m_medium == kScreen ? painter.deviceTransform().m11() : 1;
}

// Moves the origin to a whole device pixel. At a fractional ratio a window may begin in the middle of one,
// and its size in device pixels then differs by one from that of its size alone.
void CMonthPainter::AlignToPixels(QPainter& painter) const {
  const double ratio = Ratio(painter);
  if (m_medium == kPaper) {
    m_pixels = QSize(m_layout.width, m_layout.height);
    return;
  }
  const QRectF exact = painter.deviceTransform().mapRect(QRectF(0, 0, m_layout.width, m_layout.height));
  const QPoint begin(qRound(exact.left()), qRound(exact.top()));
  m_pixels = QSize(qRound(exact.right()) - begin.x(), qRound(exact.bottom()) - begin.y());
  painter.translate((begin - exact.topLeft()) / ratio);
}

// Draws a thin line of the grid, from edge to edge. At every ratio it is a whole number of device pixels
// wide, so that all lines are equally thick.
void CMonthPainter::FillLine(QPainter& painter, int position, Qt::Orientation orientation) const {
  const double ratio = Ratio(painter);
  const double width = m_pixels.width();
  const double height = m_pixels.height();
  const double thickness = std::max(1.0, std::floor(m_layout.lineScale * ratio));
  // On purpose: the last lines, which lie just outside the canvas, are drawn at its edge to be seen.
  const double end = orientation == Qt::Vertical ? width : height;
  const double first = std::min(std::round(position * ratio), end - thickness);
  const QRectF pixels =
      orientation == Qt::Vertical ? QRectF(first, 0, thickness, height) : QRectF(0, first, width, thickness);
  painter.fillRect(
      QRectF(pixels.x() / ratio, pixels.y() / ratio, pixels.width() / ratio, pixels.height() / ratio),
      ToQColor(kGreyTextColor));
}

void CMonthPainter::PaintCell(QPainter& painter, const MonthModel& month, int cell,
                              const MonthMarks& marks) const {
  const DayCell& day = month.cells[static_cast<std::size_t>(cell)];
  const bool isToday = m_medium == kScreen && marks.today != 0 && day.ymd == marks.today;
  if (isToday) painter.fillRect(ToQRect(m_layout.CellRect(cell)), TodayTint());
  // On purpose: the color is compared with the palette's window color, not with the settings' background.
  if (day.marks != 0 && day.backColor != kWindowColor) PaintFill(painter, day, cell);

  const QColor ink = ToQColor(day.textColor);
  painter.setPen(ink);
  const QRect number = PaintNumber(painter, day, cell, day.month != month.month);
  if (isToday) {
    const int descent = painter.fontMetrics().descent();
    const int thickness = std::max(1, number.height() / 20);
    painter.fillRect(number.x(), number.y() + number.height() - descent + std::max(1, descent / 4),
                     number.width(), thickness, ink);
  }
  if (day.moonPhase != kNoPhase) PaintMoon(painter, cell, day.moonPhase);
  m_texts.Paint(painter, cell, isToday);
}

// Draws the number of a day: large in the middle of its cell, or small above its texts. Returns its
// rectangle.
QRect CMonthPainter::PaintNumber(QPainter& painter, const DayCell& day, int cell, bool isItalic) const {
  if (m_texts.AreShown()) return m_texts.PaintNumber(painter, cell, day.day, isItalic);
  painter.setFont(isItalic ? m_fonts.italic : m_fonts.upright);
  return DrawCentered(painter, ToQRect(m_layout.CellRect(cell)), QString::number(day.day));
}

void CMonthPainter::PaintFill(QPainter& painter, const DayCell& day, int cell) const {
  QColor fill = ToQColor(day.backColor);
  fill.setAlpha(m_settings.BackgroundAlpha());
  if (!m_settings.fullCellBackground) {
    painter.fillRect(ToQRect(m_layout.BandRect(cell)), fill);
  } else if (m_settings.collapseCells) {
    painter.fillRect(ToQRect(m_layout.CellRect(cell)), fill);
  } else {
    const double radius = m_layout.RoundedDiameter() / 2.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(ToQRect(m_layout.RoundedRect(cell)), radius, radius);
    painter.restore();
  }
}

void CMonthPainter::PaintMoon(QPainter& painter, int cell, MoonPhase phase) const {
  const QRect square = ToQRect(m_texts.AreShown() ? m_layout.CornerGlyphRect(cell)
                                                  : m_layout.GlyphRect(cell, m_pairWidth, m_lineHeight));
  if (square.isEmpty()) return;
  if (m_medium == kPaper) {
    DrawMoonOnPaper(painter, square, phase, std::max(1.0, square.width() / 16.0));
    return;
  }
  const double ratio = Ratio(painter);
  QImage& glyph = m_glyphs[static_cast<std::size_t>(phase)];
  if (glyph.isNull() || glyph.devicePixelRatio() != ratio) {
    glyph = MoonGlyph(phase, static_cast<int>(std::lround(square.width() * ratio)));
    glyph.setDevicePixelRatio(ratio);
  }
  painter.drawImage(square.topLeft(), glyph);
}

void CMonthPainter::PaintWeekNumber(QPainter& painter, int row, int week) const {
  if (week == 0) return;
  painter.setFont(m_fonts.small);
  painter.setPen(ToQColor(m_settings.ColorAt(kColorWeekNumber)));
  DrawCentered(painter, ToQRect(m_layout.WeekNumberRect(row)), QString::number(week));
}

void CMonthPainter::PaintRange(QPainter& painter, const MonthModel& month, const MonthMarks& marks) const {
  // Printer engines accept this composition mode but paint a white box.
  if (m_medium == kPaper) return;
  painter.save();
  painter.setCompositionMode(QPainter::CompositionMode_Difference);
  for (int cell = m_layout.firstCell; cell < kCellCount; ++cell) {
    const DayCell& day = month.cells[static_cast<std::size_t>(cell)];
    if (marks.IsInRange(day)) painter.fillRect(ToQRect(m_layout.CellRect(cell)), Qt::white);
  }
  painter.restore();
}

void CMonthPainter::PaintMark(QPainter& painter, const DayCell& day, int cell) const {
  const QColor color = ToQColor(m_settings.ColorAt(kCircleColor));
  const int pen = m_settings.CircleWidth();
  if (!m_settings.circleTheDay) {
    // Edges are rounded to whole device pixels, so that all four strokes are equally thick at every ratio.
    const double ratio = Ratio(painter);
    const auto snapped = [&](int edge) { return static_cast<int>(std::lround(edge * ratio)); };
    const Rect frame = m_layout.FrameRect(cell, pen);
    const Rect pixels = {snapped(frame.left), snapped(frame.top), snapped(frame.right),
                         snapped(frame.bottom)};
    for (const Rect& stroke : MonthLayout::FrameStrokes(pixels, std::max(1, snapped(pen))))
      painter.fillRect(
          QRectF(stroke.left / ratio, stroke.top / ratio, stroke.Width() / ratio, stroke.Height() / ratio),
          color);
    return;
  }
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, pen));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(
      QRectF(m_texts.AreShown() ? m_texts.CircleRect(cell, day.day) : ToQRect(m_layout.CircleRect(cell))));
  painter.restore();
}

}  // namespace orbisol

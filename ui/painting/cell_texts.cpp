#include "ui/painting/cell_texts.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

#include "ui/painting/month_fonts.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr QSize kSmallPicture(280, 240);  // enough to know the color behind a cell

// Returns the color that is seen where `over` covers `ground` with an opacity of 0..255.
QColor Blended(const QColor& ground, const QColor& over, int opacity) {
  const auto part = [&](int below, int above) { return (below * (255 - opacity) + above * opacity) / 255; };
  return {part(ground.red(), over.red()), part(ground.green(), over.green()),
          part(ground.blue(), over.blue())};
}

struct Name {
  QString text;
  ColorIndex color;
};

// Returns what a cell has to say, in the order of its lines.
std::vector<Name> NamesIn(const DayCell& day, const DayNames& names) {
  const ColorIndex color = (day.marks & kHolidayMark) != 0 ? kHolidayText : kEventText;
  std::vector<Name> all;
  for (const std::u16string& name : names.names) all.push_back({ToQString(name).simplified(), color});
  if (!names.vacation.empty()) all.push_back({ToQString(names.vacation).simplified(), kVacationText});
  return all;
}

}  // namespace

QColor TodayTint() {
  constexpr float kOpacity = 0.14F;
  QColor tint = ToQColor(kHighlightColor);
  tint.setAlphaF(kOpacity);
  return tint;
}

void CCellTexts::SetUp(const MonthLayout& layout, const DisplaySettings& settings, const QFont& dialogFont) {
  m_layout = layout;
  m_settings = settings;
  m_hasLines = false;
  const int dialogHeight = QFontMetrics(dialogFont).height();
  m_lineCount = settings.cellTexts ? layout.TextLines(dialogHeight) : 0;
  if (m_lineCount == 0) return;
  m_lineHeight = layout.TextLineHeight(dialogHeight);
  const QFont face = CalendarFont(settings, dialogFont);
  m_number = FontOfHeight(face, layout.CornerHeight());
  m_italic = m_number;
  m_italic.setItalic(true);
  m_plain = FontOfHeight(face, m_lineHeight);
  m_medium = m_plain;
  m_medium.setWeight(std::max(QFont::Medium, static_cast<QFont::Weight>(m_plain.weight())));
}

void CCellTexts::SetPicture(const QImage& picture) {
  m_picture = picture.isNull() ? QImage() : picture.scaled(kSmallPicture);
  m_hasLines = false;
}

void CCellTexts::SetNames(const MonthModel& month, const CalendarContent& content) {
  if (!AreShown() || (m_hasLines && m_cells == month.cells)) return;
  m_cells = month.cells;
  m_hasLines = true;
  const MonthNames names = NamesOfMonth(month, content);
  for (std::size_t i = 0; i < m_lines.size(); ++i)
    m_lines[i] = LinesOf(static_cast<int>(i), month.cells[i], names[i]);
}

CCellTexts::Lines CCellTexts::LinesOf(int cell, const DayCell& day, const DayNames& names) const {
  const std::vector<Name> all = NamesIn(day, names);
  if (all.empty()) return {};
  const QRect place = ToQRect(m_layout.TextRect(cell));
  const QColor ground = GroundOf(cell, day, false);
  const QColor todayGround = GroundOf(cell, day, true);
  const auto count = std::min(all.size(), static_cast<std::size_t>(m_lineCount));
  const QString more = all.size() > count ? QStringLiteral("+%1").arg(all.size() - count) : QString();
  Lines lines;
  for (std::size_t i = 0; i < count; ++i) {
    const bool isMedium = all[i].color == kHolidayText;
    const QFontMetrics metrics(isMedium ? m_medium : m_plain);
    const QColor ink = ToQColor(m_settings.ColorAt(all[i].color));
    const QColor color = LegibleOn(ground, ink);
    const QColor todayColor = LegibleOn(todayGround, ink);
    const int baseline = place.y() + static_cast<int>(i) * m_lineHeight + metrics.ascent();
    QString text = all[i].text;
    int width = place.width();
    if (i + 1 == count && !more.isEmpty()) {
      const int right = metrics.horizontalAdvance(more);
      lines.push_back({more, {place.x() + place.width() - right, baseline}, color, todayColor, isMedium});
      width -= right + metrics.horizontalAdvance(QLatin1Char(' '));
      text += QChar(u'\u2026');
    }
    text = metrics.elidedText(text, Qt::ElideRight, width);
    lines.push_back({text, {place.x(), baseline}, color, todayColor, isMedium});
  }
  return lines;
}

// Returns the color behind the texts of a cell, the fill of its marks included where it reaches them.
QColor CCellTexts::GroundOf(int cell, const DayCell& day, bool isToday) const {
  QColor ground = m_picture.isNull() ? ToQColor(m_settings.ColorAt(kStandardBgColor)) : PictureColor(cell);
  if (isToday) ground = Blended(ground, TodayTint(), TodayTint().alpha());
  const bool isFilled = m_settings.fullCellBackground && day.marks != 0 && day.backColor != kWindowColor;
  return isFilled ? Blended(ground, ToQColor(day.backColor), m_settings.BackgroundAlpha()) : ground;
}

// Returns the mean color of the picture behind the texts of a cell.
QColor CCellTexts::PictureColor(int cell) const {
  const Rect texts = m_layout.TextRect(cell);
  const Rect rows = m_layout.PictureRect();
  const int height = std::max(rows.Height(), 1);
  const QRect part(texts.left * m_picture.width() / std::max(rows.Width(), 1),
                   (texts.top - rows.top) * m_picture.height() / height,
                   std::max(1, texts.Width() * m_picture.width() / std::max(rows.Width(), 1)),
                   std::max(1, texts.Height() * m_picture.height() / height));
  const QImage mean = m_picture.copy(part & m_picture.rect())
                          .convertToFormat(QImage::Format_ARGB32_Premultiplied)
                          .scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  const QColor color = mean.isNull() ? Qt::transparent : mean.pixelColor(0, 0);
  return Blended(ToQColor(m_settings.ColorAt(kStandardBgColor)), color, color.alpha());
}

QRect CCellTexts::NumberRect(int cell, int day) const {
  const Rect rect = m_layout.CellRect(cell).Shrunk(m_layout.TextInset());
  const QFontMetrics metrics(m_number);
  return {rect.left, rect.top, metrics.horizontalAdvance(QString::number(day)), metrics.height()};
}

QRect CCellTexts::PaintNumber(QPainter& painter, int cell, int day, bool isItalic) const {
  const QRect rect = NumberRect(cell, day);
  painter.setFont(isItalic ? m_italic : m_number);
  painter.drawText(rect.x(), rect.y() + painter.fontMetrics().ascent(), QString::number(day));
  return rect;
}

void CCellTexts::Paint(QPainter& painter, int cell, bool isToday) const {
  if (!AreShown() || !m_hasLines) return;
  const Lines& lines = m_lines[static_cast<std::size_t>(cell)];
  if (lines.empty()) return;
  painter.save();
  // Letters of another font, where the calendar's has none, may be higher than a line.
  const int overhang = m_layout.TextInset() / 2;
  painter.setClipRect(ToQRect(m_layout.TextRect(cell)).adjusted(-overhang, 0, overhang, 0),
                      Qt::IntersectClip);
  for (const Line& line : lines) {
    painter.setFont(line.isMedium ? m_medium : m_plain);
    painter.setPen(isToday ? line.todayColor : line.color);
    painter.drawText(line.origin, line.text);
  }
  painter.restore();
}

QRect CCellTexts::CircleRect(int cell, int day) const {
  const QRect number = NumberRect(cell, day);
  const int margin = m_layout.TextInset() - m_settings.CircleWidth();
  const int width = std::max(number.width(), number.height());
  const QRect box(number.x() + (number.width() - width) / 2, number.y(), width, number.height());
  return box.adjusted(-margin, -margin, margin, margin) &
         ToQRect(m_layout.CellRect(cell).Shrunk(m_settings.CircleWidth()));
}

}  // namespace orbisol

#include "ui/print/page_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

#include "ui/painting/month_fonts.h"

namespace orbisol {
namespace {

constexpr QChar kEllipsis(0x2026);
constexpr double kUnseenSpacing = 0.02;  // in device units

// Runs as one text, with the lettering of each part.
struct LetteredText {
  QString text;
  QList<QTextLayout::FormatRange> formats;
};

// Returns a text without the line breaks that names may hold.
QString OneLine(QString text) {
  for (QChar& unit : text)
    if (unit == QLatin1Char('\n') || unit == QLatin1Char('\r') || unit == QLatin1Char('\t') ||
        unit == QChar::LineSeparator || unit == QChar::ParagraphSeparator)
      unit = QLatin1Char(' ');
  return text;
}

LetteredText Joined(std::span<const TextRun> runs) {
  LetteredText joined;
  for (const TextRun& run : runs) {
    if (run.text.isEmpty()) continue;
    if (!joined.text.isEmpty())
      joined.text += run.beginsLine ? QChar(QChar::LineSeparator) : QChar(QLatin1Char(' '));
    QTextLayout::FormatRange range;
    range.start = static_cast<int>(joined.text.size());
    joined.text += OneLine(run.text);
    range.length = static_cast<int>(joined.text.size()) - range.start;
    range.format.setFontWeight(run.lettering == Lettering::kBold ? QFont::Bold : QFont::Normal);
    range.format.setFontItalic(run.lettering == Lettering::kItalic);
    joined.formats.append(range);
  }
  return joined;
}

// Returns the text from `begin` on, `length` units of it, with an ellipsis in the lettering of its end.
LetteredText Cut(const LetteredText& whole, qsizetype begin, qsizetype length) {
  LetteredText cut;
  cut.text = whole.text.mid(begin, length);
  while (cut.text.endsWith(QLatin1Char(' '))) cut.text.chop(1);
  cut.text += kEllipsis;
  for (QTextLayout::FormatRange range : whole.formats) {
    const qsizetype first = std::max<qsizetype>(range.start - begin, 0);
    const qsizetype end = std::min<qsizetype>(range.start + range.length - begin, cut.text.size() - 1);
    if (first >= end) continue;
    range.start = static_cast<int>(first);
    range.length = static_cast<int>(end - first);
    cut.formats.append(range);
  }
  if (!cut.formats.isEmpty()) ++cut.formats.back().length;
  return cut;
}

void SetText(QTextLayout& layout, const LetteredText& text, const QFont& font) {
  layout.setText(text.text);
  layout.setFont(font);
  layout.setFormats(text.formats);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setUseDesignMetrics(true);
  layout.setTextOption(option);
}

double WidthOfLine(const LetteredText& text, const QFont& font) {
  QTextLayout layout;
  SetText(layout, text, font);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(1e6);
  layout.endLayout();
  return line.naturalTextWidth();
}

// Draws as much of the text from `begin` on as one line holds, with an ellipsis.
void DrawCut(QPainter& painter, const QPointF& corner, double width, const LetteredText& text,
             qsizetype begin) {
  const qsizetype lineEnd = text.text.indexOf(QChar(QChar::LineSeparator), begin);
  qsizetype fits = 0;
  qsizetype tooLong = (lineEnd < 0 ? text.text.size() : lineEnd) - begin + 1;
  while (tooLong - fits > 1) {
    const qsizetype middle = (fits + tooLong) / 2;
    if (WidthOfLine(Cut(text, begin, middle), painter.font()) <= width)
      fits = middle;
    else
      tooLong = middle;
  }
  if (fits > 0 && text.text[begin + fits - 1].isHighSurrogate()) --fits;
  const LetteredText cut = Cut(text, begin, fits);
  if (WidthOfLine(cut, painter.font()) > width) return;  // not even the ellipsis fits
  QTextLayout layout;
  SetText(layout, cut, painter.font());
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(1e6);
  layout.endLayout();
  layout.draw(&painter, corner);
}

// Returns the right end of a line between two heights.
double RightEnd(const Rect& box, double top, double bottom, std::span<const Rect> taken) {
  double right = box.right;
  for (const Rect& rect : taken)
    if (rect.Width() > 0 && rect.top < bottom && rect.bottom > top)
      right = std::min<double>(right, rect.left);
  return right;
}

}  // namespace

CPageFonts::CPageFonts(const DisplaySettings& settings, const QFont& dialogFont)
    : m_face(CalendarFont(settings, dialogFont)) {
  m_face.setWeight(QFont::Normal);
  m_face.setHintingPreference(QFont::PreferNoHinting);
  // A spacing that nobody sees keeps letters from being joined to ligatures, under which no reader of a PDF
  // file would find "floréal".
  m_face.setLetterSpacing(QFont::AbsoluteSpacing, kUnseenSpacing);
}

QFont CPageFonts::OfHeight(int height, Lettering lettering) const {
  const auto index = static_cast<std::size_t>(std::max(height, 1));
  if (index >= m_pixelSizes.size()) m_pixelSizes.resize(index + 1);
  if (m_pixelSizes[index] == 0) m_pixelSizes[index] = FontOfHeight(m_face, height).pixelSize();
  QFont font = m_face;
  font.setPixelSize(m_pixelSizes[index]);
  font.setWeight(lettering == Lettering::kBold ? QFont::Bold : QFont::Normal);
  font.setItalic(lettering == Lettering::kItalic);
  return font;
}

int WidthOf(const QFont& font, const QString& text) {
  return static_cast<int>(std::ceil(QFontMetricsF(font).horizontalAdvance(text)));
}

void DrawLine(QPainter& painter, const Rect& rect, Qt::Alignment alignment, const QString& text) {
  if (rect.Width() <= 0 || rect.Height() <= 0) return;
  const QFontMetricsF metrics(painter.font());
  const QString shown = metrics.elidedText(OneLine(text), Qt::ElideRight, rect.Width());
  const double width = metrics.horizontalAdvance(shown);
  if (width > rect.Width()) return;  // not even the ellipsis fits
  double x = rect.left;
  if ((alignment & Qt::AlignRight) != 0) x = rect.right - width;
  if ((alignment & Qt::AlignHCenter) != 0) x = rect.left + (rect.Width() - width) / 2;
  double top = rect.top;
  if ((alignment & Qt::AlignBottom) != 0) top = rect.bottom - metrics.height();
  if ((alignment & Qt::AlignVCenter) != 0) top = rect.top + (rect.Height() - metrics.height()) / 2;
  painter.drawText(QPointF(x, top + metrics.ascent()), shown);
}

void DrawWrapped(QPainter& painter, const Rect& box, std::span<const TextRun> runs,
                 std::span<const Rect> taken) {
  const LetteredText text = Joined(runs);
  const double lineHeight = QFontMetricsF(painter.font()).height();
  if (text.text.isEmpty() || box.top + lineHeight > box.bottom) return;

  QTextLayout layout;
  SetText(layout, text, painter.font());
  std::vector<QPointF> corners;  // of the lines that are shown whole
  layout.beginLayout();
  for (double top = box.top; top + lineHeight <= box.bottom; top += lineHeight) {
    const QPointF corner(box.left, top);
    const double width = RightEnd(box, top, top + lineHeight, taken) - box.left;
    if (width < lineHeight) break;  // no room for a letter and an ellipsis
    QTextLine line = layout.createLine();
    if (!line.isValid()) break;
    line.setLineWidth(width);
    const bool isLastLine = top + 2 * lineHeight > box.bottom;
    if (isLastLine && line.textStart() + line.textLength() < text.text.size()) {
      DrawCut(painter, corner, width, text, line.textStart());
      break;
    }
    corners.push_back(corner);
  }
  layout.endLayout();
  for (std::size_t i = 0; i < corners.size(); ++i)
    layout.lineAt(static_cast<int>(i)).draw(&painter, corners[i]);
}

}  // namespace orbisol

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

// Returns the paragraphs of runs, each of which is parted by spaces; or all of them as one.
std::vector<LetteredText> ParagraphsOf(std::span<const TextRun> runs, bool asOne) {
  std::vector<LetteredText> paragraphs;
  for (const TextRun& run : runs) {
    if (run.text.isEmpty()) continue;
    if (paragraphs.empty() || (run.beginsLine && !asOne)) paragraphs.emplace_back();
    LetteredText& joined = paragraphs.back();
    if (!joined.text.isEmpty()) joined.text += QLatin1Char(' ');
    QTextLayout::FormatRange range;
    range.start = static_cast<int>(joined.text.size());
    joined.text += OneLine(run.text);
    range.length = static_cast<int>(joined.text.size()) - range.start;
    range.format.setFontWeight(run.lettering == Lettering::kBold ? QFont::Bold : QFont::Normal);
    range.format.setFontItalic(run.lettering == Lettering::kItalic);
    joined.formats.append(range);
  }
  return paragraphs;
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
  qsizetype fits = 0;
  qsizetype tooLong = text.text.size() - begin + 1;
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

// Room for a line of text.
struct LinePlace {
  QPointF corner;  // upper left
  double width = 0;
};

// Returns the lines that a box has room for, none of which meets a rectangle of `taken`.
std::vector<LinePlace> PlacesOf(const Rect& box, double lineHeight, std::span<const Rect> taken) {
  std::vector<LinePlace> places;
  for (double top = box.top; top + lineHeight <= box.bottom; top += lineHeight) {
    double right = box.right;
    for (const Rect& rect : taken)
      if (rect.Width() > 0 && rect.top < top + lineHeight && rect.bottom > top)
        right = std::min<double>(right, rect.left);
    // Less has no room for a letter and an ellipsis.
    if (right - box.left >= lineHeight) places.push_back({QPointF(box.left, top), right - box.left});
  }
  return places;
}

// A paragraph in the lines that it has room for.
class CParagraph {
 public:
  CParagraph(const LetteredText& text, const QFont& font) : m_text(text) { SetText(m_layout, text, font); }

  // Lays out the text from the first place on and returns whether there is room for all of it. Where
  // `keepsWords` is set, a place stays empty if it would break a word and a later one is wider.
  bool LayOut(std::span<const LinePlace> places, bool keepsWords) {
    m_places.clear();
    m_layout.clearLayout();
    m_layout.beginLayout();
    QTextLine line = m_layout.createLine();
    for (std::size_t place = 0; line.isValid() && place < places.size(); ++place) {
      const double width = places[place].width;
      line.setLineWidth(width);
      const auto isWider = [&](const LinePlace& next) { return next.width > width; };
      const bool hasWider = std::ranges::any_of(places.subspan(place + 1), isWider);
      if (keepsWords && hasWider && IsInWord(line.textStart() + line.textLength())) continue;
      m_places.push_back(place);
      line = m_layout.createLine();
    }
    m_isWhole = !line.isValid();
    m_layout.endLayout();
    return m_isWhole;
  }

  // Draws the lines, the last one cut if there was no room for all. Returns the number of places used.
  std::size_t Draw(QPainter& painter, std::span<const LinePlace> places) const {
    for (std::size_t i = 0; i < m_places.size(); ++i) {
      const LinePlace& place = places[m_places[i]];
      const QTextLine line = m_layout.lineAt(static_cast<int>(i));
      if (i + 1 == m_places.size() && !m_isWhole)
        DrawCut(painter, place.corner, place.width, m_text, line.textStart());
      else
        line.draw(&painter, place.corner);
    }
    return m_places.empty() ? 0 : m_places.back() + 1;
  }

 private:
  bool IsInWord(int position) const {
    return position > 0 && position < m_text.text.size() && m_text.text[position - 1].isLetterOrNumber() &&
           m_text.text[position].isLetterOrNumber();
  }

  const LetteredText& m_text;
  QTextLayout m_layout;
  std::vector<std::size_t> m_places;  // index of the place of each line
  bool m_isWhole = true;
};

}  // namespace

CPageFonts::CPageFonts(const DisplaySettings& settings, const QFont& dialogFont)
    : m_face(CalendarFont(settings, dialogFont)) {
  m_face.setWeight(QFont::Normal);
  m_face.setHintingPreference(QFont::PreferNoHinting);
  // On purpose: a spacing that changes nothing keeps letters from being joined to ligatures, under which no
  // reader of a PDF file would find "floréal". In percent, for one in units would grow with the resolution of
  // the device, and paper would break lines otherwise than a preview.
  m_face.setLetterSpacing(QFont::PercentageSpacing, 100);
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

QFont FittingFont(const CPageFonts& fonts, int height, Lettering lettering, const QString& text, int width) {
  const int least = std::max(1, height * 2 / 3);
  const int wanted = WidthOf(fonts.OfHeight(height, lettering), text);
  const int fitting = wanted > width ? height * std::max(width, 0) / wanted : height;
  return fonts.OfHeight(std::max(fitting, least), lettering);
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
  const std::vector<LinePlace> all = PlacesOf(box, QFontMetricsF(painter.font()).height(), taken);
  std::span<const LinePlace> places = all;
  std::vector<LetteredText> paragraphs = ParagraphsOf(runs, false);
  if (paragraphs.size() > places.size()) paragraphs = ParagraphsOf(runs, true);
  for (std::size_t i = 0; i < paragraphs.size() && !places.empty(); ++i) {
    const std::size_t kept = paragraphs.size() - 1 - i;  // a line for each paragraph that follows
    const std::span<const LinePlace> own = places.first(places.size() - kept);
    CParagraph paragraph(paragraphs[i], painter.font());
    if (!paragraph.LayOut(own, true)) paragraph.LayOut(own, false);
    places = places.subspan(paragraph.Draw(painter, own));
  }
}

}  // namespace orbisol

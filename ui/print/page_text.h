// Texts on printed pages. None leaves its rectangle: what does not fit ends in an ellipsis.
//
//   DrawLine(painter, rect, Qt::AlignCenter, u"Septembre");
//   DrawWrapped(painter, box, {{name, Lettering::kBold}, {title, Lettering::kItalic, true}}, taken);
//
// Sizes are measured without the hinting of screens, so that a preview and the paper break lines alike.
#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

#include <span>
#include <vector>

#include "core/rect.h"
#include "settings/display_settings.h"

class QPainter;

namespace orbisol {

// How a text is lettered. A grey printer and a color-blind reader tell holidays, events and vacations apart
// by it.
enum class Lettering { kUpright, kBold, kItalic };

struct TextRun {
  QString text;
  Lettering lettering = Lettering::kUpright;
  bool beginsLine = false;
};

// The fonts of a calendar's pages: its face in any height of a line, ascent and descent together. Sizes that
// were asked for are remembered.
class CPageFonts {
 public:
  CPageFonts(const DisplaySettings& settings, const QFont& dialogFont);

  QFont OfHeight(int height, Lettering lettering = Lettering::kUpright) const;

 private:
  QFont m_face;
  mutable std::vector<int> m_pixelSizes;  // by height; 0 where it was not asked for
};

// Returns the width of a text, rounded up.
int WidthOf(const QFont& font, const QString& text);

// Returns a font in which a text is at most `width` wide: one of that height, or a smaller one, down to two
// thirds of it.
QFont FittingFont(const CPageFonts& fonts, int height, Lettering lettering, const QString& text, int width);

// Draws a text on one line in the painter's font and pen.
void DrawLine(QPainter& painter, const Rect& rect, Qt::Alignment alignment, const QString& text);

// Draws runs, parted by spaces and broken between words, from the top of `box` in the painter's font. No line
// meets a rectangle of `taken`, each of which lies at the right. A run that begins a line has one of its own,
// however long the runs before it are; where the box has too few lines for that, it follows on the line.
void DrawWrapped(QPainter& painter, const Rect& box, std::span<const TextRun> runs,
                 std::span<const Rect> taken);

}  // namespace orbisol

#include "ui/painting/month_pictures.h"

#include <QImageReader>
#include <QPainter>

#include "resources/pictures/pictures.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr QSize kLargeScreen(3840, 2160);

}  // namespace

QImage LoadBackground(const DisplaySettings& settings) {
  if (!settings.backgroundImage) return {};
  const std::u16string_view path = settings.backgroundImagePath.View();
  QImageReader reader(path.empty() ? BackgroundPicturePath() : ToQString(path));
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  // The toolkit refuses pictures of some 33 million pixels and more, unless they are made smaller on the way.
  const QSize size = reader.size();
  if (size.width() > kLargeScreen.width() || size.height() > kLargeScreen.height())
    reader.setScaledSize(size.scaled(kLargeScreen, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
  return reader.read();
}

QImage MoonGlyph(MoonPhase phase, int side) {
  static const QImage strip(MoonPicturePath());
  const int glyph = strip.height();
  return strip.copy((phase - kNewMoon) * glyph, 0, glyph, glyph)
      .scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
      .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

void DrawMoonOnPaper(QPainter& painter, const QRectF& square, MoonPhase phase, double pen) {
  const QRectF disc = square.adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::black, pen));
  painter.setBrush(phase == kNewMoon ? Qt::black : Qt::white);
  painter.drawEllipse(disc);
  if (phase == kFirstQuarter || phase == kLastQuarter) {
    constexpr int kQuarterTurn = 90 * 16;  // counted from the east, against the clock
    const bool darkAtLeft = phase == kFirstQuarter;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawPie(disc, darkAtLeft ? kQuarterTurn : -kQuarterTurn, 2 * kQuarterTurn);
  }
  painter.restore();
}

}  // namespace orbisol

#include "ui/painting/month_pictures.h"

#include <QImageReader>
#include <QPainter>

#include "resources/pictures/pictures.h"

namespace orbisol {
namespace {

// Reads a picture of the program itself. Its format is named, as a reader that has to find it out loads the
// library of every format that is installed.
QImage ReadBuiltIn(const QString& path, const char* format) {
  QImageReader reader(path, format);
  reader.setAutoDetectImageFormat(false);
  return reader.read();
}

}  // namespace

QImage BuiltInBackground() { return ReadBuiltIn(BackgroundPicturePath(), "jpg"); }

QImage MoonGlyph(MoonPhase phase, int side) {
  static const QImage strip = ReadBuiltIn(MoonPicturePath(), "png");
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
    constexpr int kQuarterTurn =
        90 * 16;  // in sixteenths of a degree; angles count counterclockwise from the east
    const bool darkAtLeft = phase == kFirstQuarter;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawPie(disc, darkAtLeft ? kQuarterTurn : -kQuarterTurn, 2 * kQuarterTurn);
  }
  painter.restore();
}

}  // namespace orbisol

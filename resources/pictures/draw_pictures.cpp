// Draws the built-in pictures: the moon's glyphs and the default background.
//
//   cmake --build build/dev --target orbisol_draw_pictures
//   build/dev/resources/pictures/orbisol_draw_pictures resources/pictures
//
// The same pictures come out at every run; commit them beside a change made here.

#include <QColor>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QPainterPath>
#include <QString>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace {

constexpr int kGlyph = 48;  // side of a moon glyph, pixels

const QColor kLight(0xF4, 0xEB, 0xD0);
const QColor kSlate(0x3A, 0x46, 0x54);

QPainterPath Disc(double radius) {
  QPainterPath path;
  path.addEllipse(QPointF(kGlyph / 2.0, kGlyph / 2.0), radius, radius);
  return path;
}

// One glyph at the painter's origin. The lit part runs from the left edge to the right one between two
// fractions of the disc's width.
void DrawMoon(QPainter& painter, double litFrom, double litTo) {
  constexpr double kRadius = 22;
  constexpr double kRim = 4;  // in the smallest glyph, of eight pixels, two thirds of one
  // A breath of light around the rim parts the dark disc from a dark picture behind it.
  QColor halo = kLight;
  halo.setAlphaF(0.75F);
  painter.fillPath(Disc(kRadius + 1.5), halo);
  painter.fillPath(Disc(kRadius), kSlate);

  const QRectF lit(kGlyph * litFrom, 0, kGlyph * (litTo - litFrom), kGlyph);
  painter.save();
  painter.setClipRect(lit);
  painter.fillPath(Disc(kRadius - kRim), kLight);
  painter.restore();
}

// New moon, first quarter, full moon, last quarter, as seen from Europe.
QImage MoonStrip() {
  QImage strip(4 * kGlyph, kGlyph, QImage::Format_ARGB32_Premultiplied);
  strip.fill(Qt::transparent);
  QPainter painter(&strip);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  constexpr struct { double litFrom, litTo; } kPhases[] = {{0, 0}, {0.5, 1}, {0, 1}, {0, 0.5}};
  for (const auto& phase : kPhases) {
    DrawMoon(painter, phase.litFrom, phase.litTo);
    painter.translate(kGlyph, 0);
  }
  return strip.convertToFormat(QImage::Format_ARGB32);
}

double Mix(double a, double b, double t) { return a + (b - a) * t; }

double SmoothStep(double from, double to, double x) {
  const double t = std::clamp((x - from) / (to - from), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

struct Tone {
  double red, green, blue;
};

Tone Mix(const Tone& a, const Tone& b, double t) {
  return {Mix(a.red, b.red, t), Mix(a.green, b.green, t), Mix(a.blue, b.blue, t)};
}

// Even noise in 0..1, the same at every run.
double Noise(int x, int y, int channel) {
  const auto whole = [](int number) { return static_cast<std::uint32_t>(number); };
  std::uint32_t n = (whole(x) * 73856093U) ^ (whole(y) * 19349663U) ^ (whole(channel) * 83492791U);
  n = (n ^ (n >> 15)) * 0x2C1B3C6DU;
  n = (n ^ (n >> 12)) * 0x297A2D39U;
  return ((n ^ (n >> 15)) & 0xFFFFU) / 65536.0;
}

// How strongly a point lies on an orbit: an ellipse around the sun, flattened, with soft edges. Its half axis
// across is `radius` long.
double OnOrbit(double x, double y, double sunX, double sunY, double radius, double width) {
  constexpr double kFlattening = 1.35;  // width by height
  const double distance = std::hypot(x - sunX, (y - sunY) * kFlattening) - radius;
  return std::exp(-0.5 * (distance / width) * (distance / width));
}

// A sky before sunrise. Every edge is wider than 12 pixels and no tone darker than #E9EEF3, since numbers are
// written straight on it and it is stretched to any size.
QImage Background() {
  constexpr int kWidth = 336;
  constexpr int kHeight = 248;
  constexpr Tone kSky{0xF6, 0xF8, 0xFA};
  constexpr Tone kDawn{0xFC, 0xF4, 0xEC};
  constexpr Tone kOrbit{0xE9, 0xEE, 0xF3};
  constexpr Tone kSun{0xFF, 0xEF, 0xD2};
  constexpr double kSunX = 262;
  constexpr double kSunY = 196;

  QImage picture(kWidth, kHeight, QImage::Format_RGB32);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      Tone tone = Mix(kSky, kDawn, SmoothStep(0.25 * kHeight, kHeight, y));
      const double arcs = OnOrbit(x, y, kSunX, kSunY, 96, 9) + OnOrbit(x, y, kSunX, kSunY, 168, 11) +
                          OnOrbit(x, y, kSunX, kSunY, 252, 13);
      tone = Mix(tone, kOrbit, 0.42 * std::min(arcs, 1.0));
      const double fromSun = std::hypot(x - kSunX, y - kSunY);
      tone = Mix(tone, kSun, 0.35 * (1 - SmoothStep(20, 110, fromSun)));  // its glow
      tone = Mix(tone, kSun, 0.65 * (1 - SmoothStep(22, 46, fromSun)));
      // Cutting down what the noise has raised rounds at random: steps between two levels vanish.
      picture.setPixel(
          x, y,
          qRgb(static_cast<int>(tone.red + Noise(x, y, 0)), static_cast<int>(tone.green + Noise(x, y, 1)),
               static_cast<int>(tone.blue + Noise(x, y, 2))));
    }
  }
  return picture;
}

bool Write(const QImage& picture, const QString& path, int quality) {
  QImageWriter writer(path);
  writer.setQuality(quality);
  if (writer.write(picture)) return true;
  std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(writer.errorString()));
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: orbisol_draw_pictures FOLDER\n", stderr);
    return 2;
  }
  const QString folder = QString::fromLocal8Bit(argv[1]);
  const bool written =
      Write(MoonStrip(), folder + "/moon.png", -1) && Write(Background(), folder + "/background.jpg", 99);
  return written ? 0 : 1;
}

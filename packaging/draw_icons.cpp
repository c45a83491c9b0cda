// Draws an icon of the desktop from one of the program's own drawings, while the program is built:
//
//   orbisol_draw_icons resources/pictures/icons/orbisol-16.svg 16 icon.png
//
// The picture is 16 pixels wide and high, with a transparent ground. The same bytes come out at every run.

#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <cstdio>

namespace {

constexpr int kLargest = 1024;  // pixels

bool Fail(const char* path, const QString& reason) {
  std::fprintf(stderr, "orbisol_draw_icons: %s: %s\n", path, qPrintable(reason));
  return false;
}

bool Draw(const char* drawing, const char* sideText, const char* out) {
  QSvgRenderer renderer(QString::fromLocal8Bit(drawing));
  if (!renderer.isValid()) return Fail(drawing, QStringLiteral("no drawing"));
  const int side = QString::fromLatin1(sideText).toInt();
  if (side <= 0 || side > kLargest) return Fail(sideText, QStringLiteral("no size of an icon"));

  QImage icon(side, side, QImage::Format_ARGB32_Premultiplied);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  renderer.render(&painter);
  painter.end();
  QImageWriter writer(QString::fromLocal8Bit(out), "png");
  return writer.write(icon.convertToFormat(QImage::Format_ARGB32)) || Fail(out, writer.errorString());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fputs("usage: orbisol_draw_icons DRAWING.svg SIDE OUT.png\n", stderr);
    return 2;
  }
  return Draw(argv[1], argv[2], argv[3]) ? 0 : 1;
}

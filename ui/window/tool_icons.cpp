#include "ui/window/tool_icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include "resources/pictures/pictures.h"

namespace orbisol {
namespace {

// Colors of the drawings, which are replaced by those of the theme.
constexpr char kInk[] = "#000000";
constexpr char kAccent[] = "#22496B";
// Accent on a dark ground: the same blue, light enough to be seen there.
constexpr char kLightAccent[] = "#86B9E2";

// Drawings have a grid of 22 units, and a second form a grid of 16, whose lines fall on whole pixels at 16,
// 32 and 48.
constexpr int kSmallGrid = 16;

QByteArray Drawing(const QString& name) {
  QFile file(IconPath(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class CDrawnIcon : public QIconEngine {
 public:
  CDrawnIcon(const QString& name, const QColor& ink) : m_name(name), m_ink(ink) {}

  QIconEngine* clone() const override { return new CDrawnIcon(*this); }
  QString key() const override { return QStringLiteral("orbisol"); }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1);
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override {
    const int side = qMin(size.width(), size.height());
    if (side <= 0) return {};
    const QColor ink = Ink(mode);
    const QString cached = QStringLiteral("orbisol-%1-%2-%3-%4-%5")
                               .arg(m_name)
                               .arg(ink.rgba())
                               .arg(mode == QIcon::Disabled)
                               .arg(size.width())
                               .arg(size.height());
    QPixmap pixmap;
    if (!QPixmapCache::find(cached, &pixmap)) {
      pixmap = Draw(size, side, ink, mode == QIcon::Disabled);
      QPixmapCache::insert(cached, pixmap);
    }
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
  }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal scale = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, scaledPixmap((QSizeF(rect.size()) * scale).toSize(), mode, state, scale));
  }

 private:
  QColor Ink(QIcon::Mode mode) const {
    if (mode == QIcon::Disabled)
      return QGuiApplication::palette().color(QPalette::Disabled, QPalette::WindowText);
    if (m_ink.isValid()) return m_ink;
    return QGuiApplication::palette().color(
        QPalette::Active, mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText);
  }

  QPixmap Draw(const QSize& size, int side, const QColor& ink, bool isDisabled) const {
    const QColor accent = ink.lightnessF() > 0.5F ? QColor(kLightAccent) : QColor(kAccent);
    QByteArray drawing;
    if (side % kSmallGrid == 0) drawing = Drawing(m_name + QStringLiteral("-16"));
    if (drawing.isEmpty()) drawing = Drawing(m_name);
    drawing.replace(kInk, ink.name().toLatin1());
    drawing.replace(kAccent, (isDisabled ? ink : accent).name().toLatin1());

    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(ink.alphaF());
    const int left = (size.width() - side) / 2;  // whole pixels, so that lines stay sharp
    const int top = (size.height() - side) / 2;
    QSvgRenderer(drawing).render(&painter, QRectF(left, top, side, side));
    return pixmap;
  }

  QString m_name;
  QColor m_ink;  // invalid for the color of the palette
};

// Icon of the program. A size is drawn when it is asked for, which may be never.
class CProgramIcon : public QIconEngine {
 public:
  QIconEngine* clone() const override { return new CProgramIcon(*this); }
  QString key() const override { return QStringLiteral("orbisol-program"); }

  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
    return {{16, 16}, {22, 22}, {24, 24}, {32, 32}, {48, 48}, {64, 64}, {128, 128}};
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override {
    const int side = qMin(size.width(), size.height());
    if (side <= 0) return {};
    // The display asks for every size more than once when a window opens.
    const QString name = key() + QString::number(side);
    QPixmap pixmap;
    if (QPixmapCache::find(name, &pixmap)) return pixmap;
    pixmap = QPixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(Drawing(DrawingFor(side))).render(&painter);
    painter.end();
    QPixmapCache::insert(name, pixmap);
    return pixmap;
  }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    painter->drawPixmap(
        rect, pixmap((QSizeF(rect.size()) * painter->device()->devicePixelRatioF()).toSize(), mode, state));
  }

 private:
  // Returns the drawing of the greatest size that is not above `side`: small sizes have drawings of their
  // own, whose lines fall on whole pixels.
  static QString DrawingFor(int side) {
    constexpr int kFrom = 64;  // from here on one drawing serves all
    if (side >= kFrom) return QStringLiteral("orbisol");
    int drawn = kSmallGrid;
    for (const int size : {22, 24, 32, 48})
      if (size <= side) drawn = size;
    return QStringLiteral("orbisol-%1").arg(drawn);
  }
};

}  // namespace

QIcon ToolIcon(std::string_view name, const QColor& ink) {
  const QString text = QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
  if (!QFile::exists(IconPath(text))) return {};
  return QIcon(new CDrawnIcon(text, ink));
}

QIcon ProgramIcon() { return QIcon(new CProgramIcon); }

}  // namespace orbisol

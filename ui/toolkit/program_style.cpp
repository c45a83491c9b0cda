#include "ui/toolkit/program_style.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleOption>

#include <algorithm>

#include "ui/toolkit/colors.h"

namespace orbisol {
namespace {

constexpr QRgb kToolkitBlue = 0xFF308CC6;  // of what is selected, where no theme is set
constexpr double kClear = 3;               // contrast at which a frame is seen with ease

// Returns the color of a ground for which the style draws frames that can be seen on `ground`. It darkens a
// ground by 1.4 to get the color of its frames.
QColor GroundForFrames(const QColor& ground, const QColor& ink) {
  constexpr int kDarker = 140;
  constexpr float kStep = 0.05F;
  for (float part = 0; part < 1; part += kStep) {
    const auto mix = [&](float a, float b) { return a + (b - a) * part; };
    const QColor line = QColor::fromRgbF(mix(ground.redF(), ink.redF()), mix(ground.greenF(), ink.greenF()),
                                         mix(ground.blueF(), ink.blueF()));
    const QColor lighter = line.lighter(kDarker);
    if (Contrast(lighter.darker(kDarker), ground) >= kClear) return lighter;
  }
  return Qt::white;
}

// Draws the two arrow heads behind which a bar without room keeps what does not fit, in the color of the
// theme's texts. The toolkit's own are black pictures, and to read one it loads every reader of pictures that
// is installed.
class CMoreIcon : public QIconEngine {
 public:
  explicit CMoreIcon(bool isUpright) : m_isUpright(isUpright) {}

  QIconEngine* clone() const override { return new CMoreIcon(*this); }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const double unit = std::min(rect.width(), rect.height()) / 8.0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(QRectF(rect).center());
    if (m_isUpright) painter->rotate(90);
    painter->scale(unit, unit);
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    painter->setPen(QPen(QApplication::palette().color(group, QPalette::WindowText), 1));
    for (const double left : {-3.0, 0.0})
      painter->drawPolyline(QPolygonF{{left, -2.5}, {left + 2.5, 0}, {left, 2.5}});
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

 private:
  bool m_isUpright;
};

class CProgramStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  using QProxyStyle::polish;

  // Takes the calendar's blue where the desktop names no color of its own.
  void polish(QPalette& palette) override {
    QProxyStyle::polish(palette);
    if (palette.color(QPalette::Active, QPalette::Highlight) != QColor(kToolkitBlue)) return;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
      palette.setColor(group, QPalette::Highlight, ToQColor(kHighlightColor));
      palette.setColor(group, QPalette::HighlightedText, ToQColor(kHighlightTextColor));
      palette.setColor(group, QPalette::Link, ToQColor(kHighlightColor));
    }
  }

  // Leaves the buttons of dialogs without the toolkit's own pictures, which fit no other icon.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, answer);
  }

  QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override {
    if (which == SP_ToolBarHorizontalExtensionButton) return QIcon(new CMoreIcon(false));
    if (which == SP_ToolBarVerticalExtensionButton) return QIcon(new CMoreIcon(true));
    return QProxyStyle::standardIcon(which, option, widget);
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    switch (element) {
      case PE_IndicatorCheckBox:
      case PE_IndicatorRadioButton:
      case PE_PanelButtonCommand:
        return DrawPrimitive<QStyleOptionButton>(element, option, painter, widget);
      case PE_FrameLineEdit:
      case PE_Frame:
        return DrawPrimitive<QStyleOptionFrame>(element, option, painter, widget);
      default:
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    const auto draw = [&](const auto* typed) {
      auto clear = *typed;
      MakeClear(clear.palette);
      QProxyStyle::drawComplexControl(control, &clear, painter, widget);
    };
    if (const auto* const box = qstyleoption_cast<const QStyleOptionComboBox*>(option)) return draw(box);
    if (const auto* const box = qstyleoption_cast<const QStyleOptionSpinBox*>(option)) return draw(box);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }

 private:
  template <class Option>
  void DrawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const {
    if (const auto* const typed = qstyleoption_cast<const Option*>(option)) {
      Option clear = *typed;
      MakeClear(clear.palette);
      QProxyStyle::drawPrimitive(element, &clear, painter, widget);
    } else {
      QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
  }

  // Changes the ground of a palette where it is dark. The style keeps its pictures by palette, so palettes
  // that were changed are kept as well.
  void MakeClear(QPalette& palette) const {
    const QColor ground = palette.color(QPalette::Window);
    if (Contrast(ground, Qt::white) < Contrast(ground, Qt::black)) return;
    if (m_from != palette.cacheKey()) {
      m_from = palette.cacheKey();
      m_clear = palette;
      m_clear.setColor(QPalette::Window, GroundForFrames(ground, palette.color(QPalette::WindowText)));
    }
    palette = m_clear;
  }

  mutable qint64 m_from = 0;  // key of the palette that was changed last
  mutable QPalette m_clear;
};

}  // namespace

void SetProgramStyle() {
  const QString fusion = QStringLiteral("fusion");
  const QString name = QApplication::style()->name();
  // These draw all widgets in colors of their own. On the calendar, whose colors are the user's, nobody could
  // read them.
  const bool ignoresPalettes =
      name.startsWith(QLatin1String("adwaita")) || name.startsWith(QLatin1String("highcontrast"));
  if (!ignoresPalettes && name != fusion) return;
  const QPalette palette = QApplication::style()->standardPalette();
  QApplication::setStyle(new CProgramStyle(fusion));
  if (ignoresPalettes) QApplication::setPalette(palette);
}

}  // namespace orbisol

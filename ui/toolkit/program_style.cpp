#include "ui/toolkit/program_style.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleOption>

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
  if (QApplication::style()->name() == fusion) QApplication::setStyle(new CProgramStyle(fusion));
}

}  // namespace orbisol

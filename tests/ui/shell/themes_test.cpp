// Windows under a dark and a high-contrast theme: every text is read with ease, and every box is seen.

#include "tests/support/themes.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <map>

#include "tests/ui/shell/frame_fixture.h"
#include "ui/editors/row_list.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/program_style.h"

namespace orbisol {
namespace {

// Returns the contrast of the best seen point of a picture with its commonest color, its ground.
double BestContrast(const QImage& picture) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
  const auto ground = std::max_element(counts.begin(), counts.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
  double best = 1;
  for (const auto& [color, count] : counts) best = std::max(best, Contrast(color, ground->first));
  return best;
}

// Returns the part of a widget that shows a text of its own; empty for none.
QRect TextOf(QWidget& widget) {
  const QRect inside = widget.rect().adjusted(4, 4, -4, -4);
  if (const auto* const label = qobject_cast<QLabel*>(&widget))
    return label->text().isEmpty() ? QRect() : widget.rect();
  if (const auto* const edit = qobject_cast<QLineEdit*>(&widget))
    return edit->displayText().isEmpty() ? QRect() : inside;
  if (const auto* const button = qobject_cast<QAbstractButton*>(&widget))
    return button->text().isEmpty() || qobject_cast<const QToolButton*>(button) ? QRect() : inside;
  if (const auto* const view = qobject_cast<QAbstractItemView*>(&widget)) {
    const bool hasText = view->model()->rowCount() > 0 || dynamic_cast<const CRowList*>(view) != nullptr;
    return hasText ? view->viewport()->geometry() : QRect();
  }
  return qobject_cast<QComboBox*>(&widget) ? inside : QRect();
}

class ThemesTest : public FrameTest {
 protected:
  ~ThemesTest() override {
    QApplication::setPalette(m_before);
    QApplication::setStyle(m_style);
  }

  void ExpectReadable(QWidget& window) {
    constexpr double kLegible = 4.4;  // a letter's strokes are a little lighter than its ink
    int texts = 0;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
      const QRect text = widget->isEnabled() && widget->isVisible() ? TextOf(*widget) : QRect();
      if (text.isEmpty()) continue;
      ++texts;
      EXPECT_GE(BestContrast(widget->grab(text).toImage()), kLegible)
          << qPrintable(window.windowTitle()) << ": " << widget->metaObject()->className() << ' '
          << qPrintable(widget->objectName() + QLatin1Char(' ') + widget->accessibleName());
    }
    EXPECT_GT(texts, 0) << qPrintable(window.windowTitle());
  }

 private:
  const QPalette m_before = QApplication::palette();
  const QString m_style = QApplication::style()->name();
};

TEST_F(ThemesTest, EveryTextOfEveryWindowIsReadWithEase) {
  SetProgramStyle();
  constexpr CommandId kDialogs[] = {kCmdEditEvents,     kCmdEditVacations, kCmdPreferences,
                                    kCmdChooseCalendar, kCmdGoToDate,      kCmdAbout};
  for (const Theme& theme : {kDarkTheme, kContrastTheme}) {
    SCOPED_TRACE(theme.name);
    QApplication::setPalette(theme.Palette());
    Open();
    ExpectReadable(*frame);
    EXPECT_EQ(Dialog().Pane().palette().color(QPalette::Highlight), ToQColor(kHighlightColor))
        << "its own blue";
    for (const CommandId command : kDialogs) {
      QTimer::singleShot(0, frame.get(), [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        Settle();
        ExpectReadable(*dialog);
        dialog->close();
      });
      frame->RunCommand(command);
    }
    for (const CommandId command : {kCmdFind, kCmdHelpContents, kCmdPrint}) frame->RunCommand(command);
    Settle();
    for (QWidget* const window : QApplication::topLevelWidgets())
      if (window->isVisible() && window != frame.get() && window->windowType() != Qt::Popup)
        ExpectReadable(*window);
    frame->close();
    frame.reset();
  }
}

// An empty box is nothing but its frame, and what a bar has no room for lies behind two arrow heads.
TEST_F(ThemesTest, EmptyBoxesAndArrowHeadsAreSeenOnEveryGround) {
  SetProgramStyle();
  EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), ToQColor(kHighlightColor)) << "one blue";
  for (const Theme& theme : {kDarkTheme, kContrastTheme}) {
    QApplication::setPalette(theme.Palette());
    for (const auto arrows :
         {QStyle::SP_ToolBarHorizontalExtensionButton, QStyle::SP_ToolBarVerticalExtensionButton}) {
      QImage picture(16, 16, QImage::Format_RGB32);
      picture.fill(theme.window);
      QPainter painter(&picture);
      QApplication::style()->standardIcon(arrows).paint(&painter, picture.rect());
      painter.end();
      EXPECT_GE(BestContrast(picture), 4.5) << theme.name;
    }
    for (const auto indicator : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
      QImage picture(24, 24, QImage::Format_RGB32);
      picture.fill(theme.window);
      QPainter painter(&picture);
      QStyleOptionButton option;
      option.rect = QRect(4, 4, 16, 16);
      option.palette = theme.Palette();
      option.state = QStyle::State_Enabled | QStyle::State_Off;
      QApplication::style()->drawPrimitive(indicator, &option, &painter);
      painter.end();
      EXPECT_GE(BestContrast(picture), 2.5) << theme.name;
    }
  }
}

}  // namespace
}  // namespace orbisol

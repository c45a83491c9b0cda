#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

#include <algorithm>
#include <map>

#include "resources/menus.h"
#include "resources/strings.h"
#include "tests/support/dialog_test.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/french_toolkit.h"
#include "ui/toolkit/space_key.h"
#include "ui/window/command_table.h"
#include "ui/window/tool_icons.h"

namespace orbisol {
namespace {

TEST(PlainTextTest, NumbersAreGroupedWithAPlainSpace) {
  for (const auto& [number, text] :
       {std::pair{0, "0"}, {-999, "-999"}, {1000, "1 000"}, {-1234567, "-1 234 567"}})
    EXPECT_EQ(GroupedNumber(number), QLatin1String(text));
}

TEST(PlainTextTest, MarkupIsShownAsItWasWritten) {
  EXPECT_EQ(MenuText(u"Pierre & Marie"), QStringLiteral("Pierre && Marie"));
  const QString tip = TipMarkup(QStringLiteral("<b>Noël</b>\nsoir"));
  EXPECT_FALSE(tip.contains(QStringLiteral("<b>")));
  EXPECT_TRUE(tip.contains(QStringLiteral("&lt;b&gt;")));
  EXPECT_TRUE(tip.contains(QStringLiteral("<br")));
}

TEST(ColorsTest, InksAreMadeLegibleAndLegibleOnesStay) {
  for (const QColor ground : {QColor(Qt::white), QColor(0xF1, 0xF3, 0xF5), QColor(0x2B, 0x2E, 0x32)})
    for (const QColor ink : {QColor(Qt::yellow), QColor(Qt::darkBlue), ground})
      EXPECT_GE(Contrast(LegibleOn(ground, ink), ground), 4.5) << qPrintable(ground.name() + ink.name());
  EXPECT_EQ(LegibleOn(Qt::white, Qt::darkBlue), QColor(Qt::darkBlue));
}

TEST(CommandTableTest, EveryCommandHasItsTextsAndTheToolBarItsIcons) {
  QMainWindow window;
  std::vector<int> ran;
  CCommandTable commands(&window, [&](CommandId command) { ran.push_back(command); });
  commands.FillMenuBar(*window.menuBar(), MainMenu());
  QToolBar* const bar = window.addToolBar(QStringLiteral("bar"));
  commands.FillToolBar(*bar, MainToolBar());

  for (const Menu& menu : MainMenu())
    for (const MenuItem& item : menu.items) {
      if (item.command == kNoCommand) continue;
      SCOPED_TRACE(item.command);
      const QAction* const action = commands.Action(item.command);
      ASSERT_NE(action, nullptr);
      EXPECT_FALSE(action->statusTip().isEmpty());
      EXPECT_FALSE(action->toolTip().isEmpty());
      EXPECT_EQ(action->shortcut().isEmpty(), item.shortcut.empty());
    }
  EXPECT_EQ(commands.Action(kCmdCopyDate)->statusTip(), QStringLiteral("Copier dans le presse-papier"));
  EXPECT_EQ(commands.Action(kCmdCopyDate)->toolTip(), QStringLiteral("Copier (Ctrl+C)"));
  ASSERT_EQ(bar->actions().size(), static_cast<qsizetype>(MainToolBar().size()));
  for (const QAction* const action : bar->actions())
    EXPECT_TRUE(action->isSeparator() || !action->icon().isNull());

  commands.Action(kCmdGoBack)->trigger();
  commands.SetEnabled(kCmdGoBack, false);
  commands.Action(kCmdGoBack)->trigger();
  EXPECT_EQ(ran, std::vector<int>{kCmdGoBack});
}

QRgb InkOf(const QIcon& icon, QIcon::Mode mode, const QColor& ground) {
  const QImage picture =
      icon.pixmap(QSize(32, 32), 1.0, mode).toImage().convertToFormat(QImage::Format_ARGB32);
  std::map<QRgb, int> counts{{ground.rgba(), 0}};
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (qAlpha(picture.pixel(x, y)) == 255) ++counts[picture.pixel(x, y)];
  const auto isRarer = [](const auto& a, const auto& b) { return a.second < b.second; };
  return std::max_element(counts.begin(), counts.end(), isRarer)->first;
}

TEST(ToolIconsTest, TheyAreDrawnInTheTextColorOfTheThemeAndFollowIt) {
  const QPalette before = QApplication::palette();
  const QIcon icon = ToolIcon("copy");
  for (const QColor ground : {QColor(0xEF, 0xEF, 0xEF), QColor(0x2B, 0x2E, 0x32)}) {
    QApplication::setPalette(QPalette(ground, ground));
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(InkOf(icon, QIcon::Normal, ground), palette.color(QPalette::WindowText).rgba());
    EXPECT_EQ(InkOf(icon, QIcon::Disabled, ground),
              palette.color(QPalette::Disabled, QPalette::WindowText).rgba());
  }
  QApplication::setPalette(before);
  EXPECT_EQ(InkOf(ToolIcon("copy", Qt::darkGreen), QIcon::Normal, Qt::white), QColor(Qt::darkGreen).rgba());
  EXPECT_TRUE(ToolIcon("nothing").isNull());
}

// A line of one pixel at 16 is painted in full, not as two grey ones.
TEST(ToolIconsTest, StraightLinesAreSharpAtSmallSizesAndDoubledScale) {
  for (const auto& [side, scale] :
       {std::pair(16, 1.0), std::pair(32, 1.0), std::pair(16, 2.0), std::pair(22, 2.0)}) {
    SCOPED_TRACE(testing::Message() << side << " at " << scale);
    const QImage picture = ToolIcon("pane", Qt::black).pixmap(QSize(side, side), scale).toImage();
    ASSERT_EQ(picture.width(), static_cast<int>(side * scale));
    const int middle = picture.height() / 2;
    int first = 0;
    while (first < picture.width() && qAlpha(picture.pixel(first, middle)) == 0) ++first;
    EXPECT_EQ(qAlpha(picture.pixel(first, middle)), 255);
  }
  // The sheet of the program's icon begins with its blue head, and the white below it begins at once.
  for (const int side : {16, 22, 24, 32, 48, 64, 128, 256}) {
    const QImage picture = ProgramIcon().pixmap(QSize(side, side), 1.0).toImage();
    ASSERT_EQ(picture.width(), side);
    int y = 0;
    while (qAlpha(picture.pixel(side / 4, y)) == 0) ++y;
    const QRgb head = picture.pixel(side / 4, y);
    while (picture.pixel(side / 4, y) == head) ++y;
    EXPECT_EQ(QColor::fromRgba(head), QColor("#22496B")) << side;
    EXPECT_EQ(picture.pixelColor(side / 4, y), QColor(Qt::white)) << side;
  }
}

TEST(SpaceKeyTest, FieldsThatUseSpaceKeepIt) {
  CSpaceKeyFilter filter;
  QApplication::instance()->installEventFilter(&filter);
  QWidget window;
  QCheckBox box(&window);
  QPushButton button(&window);
  QLineEdit field(&window);
  QComboBox choice(&window);
  QWidget plain(&window);
  choice.addItem(QStringLiteral("one"));
  plain.setFocusPolicy(Qt::StrongFocus);
  QAction action;
  action.setShortcut(Qt::Key_Space);
  window.addAction(&action);
  int triggered = 0;
  int pressed = 0;
  QObject::connect(&action, &QAction::triggered, &window, [&] { ++triggered; });
  QObject::connect(&button, &QPushButton::clicked, &window, [&] { ++pressed; });
  window.show();
  window.activateWindow();
  QApplication::processEvents();
  for (QWidget* const widget : std::initializer_list<QWidget*>{&box, &button, &field, &choice, &plain}) {
    EXPECT_EQ(triggered, 0);
    widget->setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_Space);
    choice.hidePopup();
  }
  EXPECT_TRUE(box.isChecked());
  EXPECT_EQ(pressed, 1);
  EXPECT_EQ(field.text(), QStringLiteral(" "));
  EXPECT_EQ(triggered, 1);
}

// The French texts stay installed for the process, so this test is the last.
TEST(ZFrenchToolkitTest, AllTextsOfTheToolkitAreFrench) {
  SpeakFrench(*QCoreApplication::instance());
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Annuler"));
  EXPECT_EQ(QKeySequence(Qt::Key_Space).toString(QKeySequence::NativeText), QStringLiteral("Espace"));
  const auto sources = Split(StringText(kTextToolkitSource), u'|');
  ASSERT_EQ(sources.size(), Split(StringText(kTextToolkitFrench), u'|').size());
  const QByteArray longSide = "Long side binding";
  EXPECT_EQ(QCoreApplication::translate("QPrintSettingsOutput", longSide.constData()),
            QString::fromUtf8("Reliure sur le côté long"));
  EXPECT_EQ(QLocale().toString(1.5), QStringLiteral("1,5"));
}

}  // namespace
}  // namespace orbisol

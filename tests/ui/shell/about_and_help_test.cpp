#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>

#include "tests/ui/shell/frame_fixture.h"
#include "ui/window/help.h"

namespace orbisol {
namespace {

// The version has one home, the top CMakeLists.txt.
TEST_F(FrameTest, TheAboutBoxSaysTheVersionOfTheBuild) {
  QFile build(QStringLiteral(ORBISOL_SOURCE_DIR "/CMakeLists.txt"));
  ASSERT_TRUE(build.open(QIODevice::ReadOnly));
  const QRegularExpression version(QStringLiteral("project\\(orbisol VERSION ([0-9.]+)"));
  const QString expected = version.match(QString::fromUtf8(build.readAll())).captured(1);
  Open();
  QStringList texts;
  QTimer::singleShot(0, frame.get(), [&] {
    auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    for (const QLabel* const label : box->findChildren<QLabel*>()) {
      texts << label->text();
      EXPECT_FALSE(label->openExternalLinks() || label->textFormat() == Qt::RichText);
    }
    QTest::mouseClick(box->findChild<QPushButton*>(), Qt::LeftButton);
  });
  frame->RunCommand(kCmdAbout);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(
      texts.contains(QStringLiteral("Version %1 / Linux %2 bits").arg(expected).arg(8 * sizeof(void*))))
      << qPrintable(texts.join(u'|'));
}

TEST_F(FrameTest, HelpIsOpenedByItsKeyAndCommandsAndDoesNotOutliveTheProgram) {
  Open();
  const auto help = [] {
    CHelpWindow* found = nullptr;
    for (QWidget* const widget : QApplication::topLevelWidgets())
      if (auto* const window = dynamic_cast<CHelpWindow*>(widget)) found = window;
    return found;
  };
  QTest::keyClick(&Dialog().Month(), Qt::Key_F1);
  ASSERT_TRUE(help() != nullptr && help()->isVisible());
  EXPECT_TRUE(help()->Browser().toPlainText().startsWith(QString::fromUtf8("La fenêtre principale")));
  EXPECT_FALSE(help()->testAttribute(Qt::WA_QuitOnClose));
  frame->RunCommand(kCmdHelpIndex);
  EXPECT_NE(qobject_cast<QLineEdit*>(help()->focusWidget()), nullptr) << "the words are looked for";
  help()->close();
}

}  // namespace
}  // namespace orbisol

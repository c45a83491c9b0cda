#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>

#include <map>
#include <set>

#include "resources/help/help_pages.h"
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

// The second table of the page of keys names the keys that move the date, and no other key does.
TEST_F(FrameTest, KeysOfTheMonthAreThoseOfTheHelp) {
  const std::map<QString, int> kNamed = {
      {QStringLiteral("Gauche"), Qt::Key_Left},       {QStringLiteral("Droite"), Qt::Key_Right},
      {QStringLiteral("Haut"), Qt::Key_Up},           {QStringLiteral("Bas"), Qt::Key_Down},
      {QStringLiteral("Page préc."), Qt::Key_PageUp}, {QStringLiteral("Page suiv."), Qt::Key_PageDown},
      {QStringLiteral("Entrée"), Qt::Key_Return},     {QStringLiteral("Début"), Qt::Key_Home},
      {QStringLiteral("Fin"), Qt::Key_End},           {QStringLiteral("Retour"), Qt::Key_Backspace},
      {QStringLiteral("Inser"), Qt::Key_Insert},      {QStringLiteral("Suppr"), Qt::Key_Delete}};
  std::map<QString, int> keys = kNamed;
  for (int letter = Qt::Key_A; letter <= Qt::Key_Z; ++letter) keys[QString(QChar(letter))] = letter;
  for (int digit = Qt::Key_0; digit <= Qt::Key_9; ++digit) keys[QString(QChar(digit))] = digit;

  const QString table = HelpPageText(QStringLiteral("keys.html")).section(QLatin1String("</table>"), 1, 1);
  const QRegularExpression row(QStringLiteral("<tr><td>(.*?)</td>"));
  std::set<QString> named, moving;
  for (auto found = row.globalMatch(table); found.hasNext();) {
    const QString cell = found.next().captured(1);
    if (cell.contains(QLatin1String(" avec "))) continue;  // with Ctrl or Maj held
    for (const QString& key : cell.split(QStringLiteral(", "))) named.insert(key);
  }
  Open();
  for (const auto& [name, key] : keys) {
    Show(20230310);
    QTest::keyClick(&Dialog().Month(), static_cast<Qt::Key>(key));
    if (Now() != 20230310) moving.insert(name);
  }
  EXPECT_EQ(named, moving);
}

}  // namespace
}  // namespace orbisol

// The windows that the main window opens, and how it follows them.

#include <QAction>
#include <QListView>
#include <QRegularExpression>

#include <algorithm>
#include <map>

#include "resources/help/help_pages.h"
#include "tests/ui/shell/frame_fixture.h"
#include "ui/calendars/choose_calendar_dlg.h"
#include "ui/find/find_day_dialog.h"
#include "ui/print/print_frame.h"
#include "ui/window/help.h"

namespace orbisol {
namespace {

TEST_F(FrameTest, TheAboutBoxSaysTheVersionOfTheBuild) {
  Open();
  QStringList texts;
  InDialog<QDialog>([&](QDialog& box) {
    for (const QLabel* const label : box.findChildren<QLabel*>()) {
      texts << label->text();
      EXPECT_FALSE(label->openExternalLinks() || label->textFormat() == Qt::RichText);
    }
    QTest::mouseClick(box.findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_FALSE(box.isVisible());
  });
  frame->RunCommand(kCmdAbout);
  EXPECT_TRUE(
      texts.contains(QStringLiteral("Version " ORBISOL_VERSION " / Linux %1 bits").arg(8 * sizeof(void*))))
      << qPrintable(texts.join(u'|'));
}

TEST_F(FrameTest, HelpIsOpenedByItsKeyAndCommandsAndDoesNotOutliveTheProgram) {
  Open();
  Press(Qt::Key_F1);
  auto* const help = dynamic_cast<CHelpWindow*>(QApplication::activeWindow());
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->Browser().toPlainText().startsWith(QString::fromUtf8("La fenêtre principale")));
  EXPECT_FALSE(help->testAttribute(Qt::WA_QuitOnClose));
  frame->RunCommand(kCmdHelpIndex);
  EXPECT_NE(qobject_cast<QLineEdit*>(help->focusWidget()), nullptr) << "the words are looked for";
  help->close();
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

TEST_F(FrameTest, ControlGTakesATypedDateAndTheHistoryLeadsBack) {
  Open();
  InDialog<QDialog>([&](QDialog& dialog) {
    dialog.findChild<QLineEdit*>()->setText(QStringLiteral("18 brumaire an VIII"));
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
  });
  Press(Qt::Key_G, Qt::ControlModifier);
  EXPECT_EQ(Now(), 17991109);
  frame->RunCommand(kCmdGoBack);
  EXPECT_EQ(Now(), 20240515);
}

TEST_F(FrameTest, ControlFSearchesAndF3GoesOn) {
  Open();
  Content().dayEvents = {EveryYear(7, 14, u"Fête", false)};
  Press(Qt::Key_F, Qt::ControlModifier);
  auto* const window = frame->findChild<CFindDayDialog*>();
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(window->isVisible());
  window->findChild<QLineEdit*>()->setText(QStringLiteral("fete"));
  while (window->IsSearching()) Settle();
  frame->RunCommand(kCmdFindNext);
  EXPECT_EQ(Now(), 20240714);
  Show(20300101);
  frame->RunCommand(kCmdFindPrevious);
  EXPECT_EQ(Now(), 20290714) << "from the day that is selected in the calendar";
  Content().dayEvents[0].month = 8;
  frame->CalendarChanged();
  while (window->IsSearching()) Settle();
  EXPECT_TRUE(window->findChild<QListView*>()->currentIndex().data().toString().startsWith(
      QStringLiteral("Mardi 14 août 2029")));
  frame->RunCommand(kCmdFindNext);
  EXPECT_EQ(Now(), 20290814) << "in what the calendar now holds";
}

class ChangeOfCalendarTest : public FrameTest {
 protected:
  ChangeOfCalendarTest() {
    CalendarFile other;
    other.content.dayEvents = {EveryYear(5, 23, u"Autre fête")};
    other.look.colors[kColorBgCal] = 0x123456;
    other.rules.ApplyGregorianStart(17520914);
    Put(u"Calendar", u"Fête");
    files.Put(u"/user/Travail.xml", WriteCalendar(other, CalendarForm::kUser));
    Open();
    Show(20240523);
  }
};

TEST_F(ChangeOfCalendarTest, TheWindowFollows) {
  EXPECT_EQ(Status(), "Pleine lune");
  InDialog<CChooseCalendarDlg>([](CChooseCalendarDlg& dialog) {
    dialog.findChild<QListWidget*>()->setCurrentRow(1);
    dialog.accept();
  });
  Press(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(frame->windowTitle(), QStringLiteral("Orbisol - Travail"));
  EXPECT_EQ(Status(), "Autre fête | (Pleine lune)");
  EXPECT_EQ(Dialog().palette().color(QPalette::Window), QColor(0x56, 0x34, 0x12));
  EXPECT_LT(Dialog().Pane().palette().color(QPalette::Button).lightness(), 128);
  EXPECT_EQ(*TextOf(*store.Read(), "CalendarName", 200), u"Travail");
  EXPECT_EQ(Rules().startGregorian, 17520914);
  Show(17520902);
  Press(Qt::Key_Right);
  EXPECT_EQ(Now(), 17520914) << "the month goes by the new rules";
}

TEST_F(ChangeOfCalendarTest, ANewOneIsMadeByItsOwnKey) {
  InDialog<CChooseCalendarDlg>([](CChooseCalendarDlg& dialog) {
    EXPECT_TRUE(dialog.findChild<QCheckBox*>(QStringLiteral("isNew"))->isChecked());
    dialog.findChild<QLineEdit*>()->setText(QStringLiteral("Neuf"));
    dialog.accept();
  });
  Press(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(frame->windowTitle(), QStringLiteral("Orbisol - Neuf"));
  EXPECT_TRUE(Content().dayEvents.empty());
  EXPECT_EQ(files.files[u"/user/Calendar.xml"].bytes, BytesWith(u"Fête"));
}

class PrintInFrameTest : public FrameTest {
 protected:
  ~PrintInFrameTest() override {
    frame.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  CPrintFrame& OpenPrint() {
    Action(kCmdPrint).trigger();
    Settle();
    return *frame->PrintFrame();
  }
  // Returns how often a value of the key was written.
  int Writes(const char* name) const {
    return static_cast<int>(std::count_if(store.written.begin(), store.written.end(),
                                          [&](const StoreChange& change) { return change.name == name; }));
  }
};

TEST_F(PrintInFrameTest, OneWindowPrintsTheSelectedMonthAndFollowsTheCalendar) {
  Open();
  Show(15821004);
  CPrintFrame& print = OpenPrint();
  EXPECT_TRUE(print.isVisible() && print.isActiveWindow());
  EXPECT_EQ(print.StatusText(), QStringLiteral("Page 1 / 1 (octobre 1582)"));
  Show(20240515);
  EXPECT_EQ(&OpenPrint(), &print) << "the open one is brought forward";
  EXPECT_EQ(print.StatusText(), QStringLiteral("Page 1 / 1 (octobre 1582)")) << "year and month stay";
  Content().dayEvents = {EveryYear(10, 2, u"Fête nouvelle")};
  frame->CalendarChanged();
  EXPECT_TRUE(print.View().accessibleDescription().contains(QString::fromUtf8("Fête nouvelle")));
}

TEST_F(PrintInFrameTest, ClosingItReturnsToTheMonthAndSavesOnlyWhatIsUnsaved) {
  Open();
  Action(kCmdTogglePane).trigger();
  for (const bool isChanged : {false, true}) {
    CPrintFrame& print = OpenPrint();
    const int layouts = Writes("PrintWindowLayout");
    Display().changed = isChanged;
    frame->showMinimized();
    print.close();
    Settle();
    EXPECT_EQ(frame->PrintFrame(), nullptr);
    EXPECT_TRUE(!frame->isMinimized() && Dialog().Month().hasFocus());
    EXPECT_EQ(Writes("PrintWindowLayout"), layouts + 1);
    EXPECT_EQ(files.files.count(u"/user/Calendar.xml"), isChanged ? 1U : 0U);
    EXPECT_FALSE(Display().changed);
  }
  EXPECT_EQ(Writes("WindowLayout"), 1) << "that of the fixture: the main window is still open";
  EXPECT_TRUE(messages.shown.isEmpty());
}

TEST_F(PrintInFrameTest, ClosingTheMainWindowClosesItFirstAndAsksNothing) {
  Open();
  QPointer<CPrintFrame> print = &OpenPrint();
  Display().changed = true;
  files.failingWrites.insert(u"/user/Calendar.xml");
  store.written.clear();
  frame->close();
  Settle();
  ASSERT_EQ(store.written.size(), 2U);
  EXPECT_EQ(store.written[0].name, "PrintWindowLayout");
  EXPECT_EQ(store.written[1].name, "WindowLayout");
  EXPECT_FALSE(frame->isVisible() || (print && print->isVisible()));
  EXPECT_TRUE(messages.shown.isEmpty());
}

TEST_F(PrintInFrameTest, TheEndOfASessionStoresBothPlaces) {
  Open();
  OpenPrint().setGeometry(200, 100, 640, 480);
  Settle();
  frame->KeepForNextSession();
  EXPECT_EQ(Stored("PrintWindowLayout").rect, ToRect(frame->PrintFrame()->frameGeometry()));
  EXPECT_EQ(Writes("WindowLayout"), 2) << "that of the fixture and this one";
}

}  // namespace
}  // namespace orbisol

#include <QInputMethodEvent>

#include "tests/ui/calendars/calendars_fixture.h"
#include "ui/calendars/choose_calendar_dlg.h"
#include "ui/calendars/rename_calendar_dlg.h"
#include "ui/calendars/versions_dlg.h"
#include "ui/toolkit/field_note.h"

namespace orbisol {
namespace {

using namespace Qt::StringLiterals;

class CalendarDialogsTest : public CalendarsTest {
 protected:
  void Open(CalendarTask task = CalendarTask::kOpen) {
    dialog = std::make_unique<CChooseCalendarDlg>(SavePlaces{store, calendars}, task);
    QObject::connect(dialog.get(), &CChooseCalendarDlg::calendarChanged, [this] { ++changes; });
    Activate(*dialog);
  }
  template <class Widget>
  Widget* Part(const char* name) {
    return dialog->findChild<Widget*>(QLatin1String(name));
  }
  QListWidget& List() { return *Part<QListWidget>("calendars"); }
  void Select(const QString& name) {
    List().setCurrentItem(List().findItems(name, Qt::MatchExactly).value(0));
  }
  void Press(const char* button) { Part<QPushButton>(button)->click(); }
  void Type(const QString& name) {
    Part<QLineEdit>("name")->clear();
    QInputMethodEvent typed;  // keys of a test know Latin letters alone
    typed.setCommitString(name);
    QApplication::sendEvent(Part<QLineEdit>("name"), &typed);
  }
  QString Fault() {
    const auto* const note = Part<CFieldNote>("fault");
    return note->isVisible() ? note->Text() : QString();
  }
  void Key(int key) { QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key)); }

  std::unique_ptr<CChooseCalendarDlg> dialog;
  int changes = 0;
};

TEST_F(CalendarDialogsTest, CalendarsAreListedAsAFrenchDictionaryHasThem) {
  for (const char16_t* name :
       {u"États", u"Etudes", u"famille", u"Calendrier 10", u"Calendrier 2", u"שלום", u"🎂"})
    Put(name, u"x");
  files.files.erase(u"/user/Maison.xml");
  Open();
  QStringList names;
  for (int row = 0; row < List().count(); ++row) names.append(List().item(row)->text());
  EXPECT_EQ(names, QStringList({u"🎂"_s, u"Calendrier 2"_s, u"Calendrier 10"_s, u"États"_s, u"Etudes"_s,
                                u"famille"_s, u"Maison"_s, u"Travail"_s, u"שלום"_s}));
  EXPECT_EQ(List().currentItem()->text(), u"Maison"_s) << "the one in use, although it has no file yet";
  EXPECT_TRUE(List().currentItem()->font().bold());
  EXPECT_FALSE(Part<QPushButton>("remove")->isEnabled());
}

TEST_F(CalendarDialogsTest, EnterOpensTheSelectedOneAndEscapeLeavesAll) {
  Open();
  EXPECT_TRUE(List().hasFocus());
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_EQ(InUse(), "Travail /user/Travail.xml Travail work");
  EXPECT_EQ(changes, 1);
  EXPECT_FALSE(dialog->isVisible());
  Open();
  Select(u"Maison"_s);
  Key(Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(InUse(), "Travail /user/Travail.xml Travail work");

  Open(CalendarTask::kCreate);
  Select(u"Maison"_s);
  emit List().itemDoubleClicked(List().currentItem());
  EXPECT_EQ(InUse(), "Maison /user/Maison.xml Maison mine") << "a double click means what it hits";
  Open();
  List().setCurrentItem(nullptr);
  dialog->accept();
  Press("remove");
  EXPECT_EQ(messages.beeps, 2) << "nothing is selected";
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(CalendarDialogsTest, ANewNameIsJudgedAtItsField) {
  const std::pair<QString, const char*> kRows[] = {
      {u""_s, "Donnez un nom"},
      {u"  \u00A0 "_s, "Donnez un nom"},
      {u"a\u200Fb"_s, "invisible"},
      {QString(300, u'x'), "trop long"},
      {u"../Travail"_s, "ne convient pas"},
      {u"fr_public"_s, "réservés"},
      {u"TRAVAIL"_s, "porte déjà ce nom"},
      {u"maison"_s, "porte déjà ce nom"},
  };
  Open(CalendarTask::kCreate);
  EXPECT_TRUE(Part<QLineEdit>("name")->hasFocus());
  for (const auto& [name, fault] : kRows) {
    SCOPED_TRACE(qPrintable(name));
    Type(name);
    Key(Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(Fault().contains(QString::fromUtf8(fault))) << qPrintable(Fault());
    EXPECT_EQ(Part<QLineEdit>("name")->accessibleDescription(), Fault());
  }
  EXPECT_EQ(OnDisk(), "Maison=mine Travail=work ");
  Type(u"שלום 🎂 <b>"_s);
  EXPECT_EQ(Fault(), QString());
  files.failingWrites = {u"/user/שלום 🎂 <b>.xml"};
  Key(Qt::Key_Return);
  EXPECT_TRUE(dialog->isVisible()) << "the folder takes no file any more";
  EXPECT_EQ(InUse(), "Maison /user/Maison.xml Maison mine") << "the old one goes on";
  files.failingWrites.clear();
  Part<QCheckBox>("keepsEvents")->setChecked(true);
  Key(Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(InUse(), "שלום 🎂 <b> /user/שלום 🎂 <b>.xml שלום 🎂 <b> mine");
}

TEST_F(CalendarDialogsTest, AfterADeletionTheNeighbourIsSelected) {
  Put(u"Zoo", u"x");
  messages.answers = {0};
  Open();
  Select(u"Travail"_s);
  QTest::keyClick(&List(), Qt::Key_Delete);
  EXPECT_EQ(OnDisk(), "Maison=mine Zoo=x ");
  EXPECT_EQ(List().currentItem()->text(), u"Zoo"_s);
}

TEST_F(CalendarDialogsTest, TheCalendarInUseIsRenamed) {
  Open();
  InDialog<CRenameCalendarDlg>([](CRenameCalendarDlg& rename) {
    rename.findChild<QLineEdit*>()->setText(u"travail"_s);
    rename.accept();
    EXPECT_TRUE(rename.isVisible()) << "the name is taken";
    rename.findChild<QLineEdit*>()->setText(u"MAISON"_s);
    rename.accept();
  });
  QTest::keyClick(&List(), Qt::Key_F2);
  EXPECT_EQ(InUse(), "MAISON /user/MAISON.xml MAISON mine");
  EXPECT_EQ(List().currentItem()->text(), u"MAISON"_s);
  EXPECT_EQ(changes, 1);
}

TEST_F(CalendarDialogsTest, VersionsAreListedComparedAndRestored) {
  CalendarFile older;
  older.content = {{EveryYear(1, 1, u"<b>Anniversaire</b>", false)}, {Period(20260704, 20260831, u"Été")}};
  older.look.fontWeight = 700;
  calendars.KeepVersion(u"Maison", older);
  Open();
  InDialog<CVersionsDlg>([](CVersionsDlg& versions) {
    const auto text = [&] { return versions.findChild<QPlainTextEdit*>()->toPlainText(); };
    auto* const list = versions.findChild<QTreeWidget*>();
    ASSERT_EQ(list->topLevelItemCount(), 1);
    EXPECT_EQ(list->topLevelItem(0)->text(0), u"Mercredi 13 mai 2026, 12 h 00"_s);
    EXPECT_EQ(list->topLevelItem(0)->text(1), u"aucun jour férié, 1 événement, 1 période"_s);
    EXPECT_TRUE(text().startsWith(u"Revient : événement « <b>Anniversaire</b> », le 1er janvier\n"_s));
    versions.findChild<QPushButton*>(u"restore"_s)->click();
    EXPECT_EQ(list->topLevelItemCount(), 2) << "what was replaced can be restored in turn";
    list->setCurrentItem(list->topLevelItem(1));
    EXPECT_EQ(text(), u"Aucune différence avec le calendrier actuel."_s);
  });
  Press("versions");
  EXPECT_EQ(Content(), older.content);
  EXPECT_EQ(Display().fontWeight, 700);
  EXPECT_EQ(changes, 1);

  Put(u"Maison", u"theirs");
  messages.answers = {0};  // both are kept
  InDialog<CVersionsDlg>([](CVersionsDlg& versions) {
    versions.findChild<QPushButton*>(u"restore"_s)->click();
    EXPECT_EQ(versions.findChild<QLabel*>(u"heading"_s)->text(),
              u"&Versions précédentes de «\u00A0Maison (2)\u00A0»\u00A0:"_s);
  });
  Press("versions");
  EXPECT_EQ(OnDisk(), "Maison=theirs Maison (2)=mine Travail=work ");
  EXPECT_EQ(List().currentItem()->text(), u"Maison (2)"_s);

  Select(u"Travail"_s);
  InDialog<CVersionsDlg>([](CVersionsDlg& versions) {
    EXPECT_TRUE(versions.findChild<QPlainTextEdit*>()->toPlainText().startsWith(u"Aucune version"_s));
    EXPECT_FALSE(versions.findChild<QPushButton*>(u"restore"_s)->isEnabled());
  });
  Press("versions");
}

}  // namespace
}  // namespace orbisol

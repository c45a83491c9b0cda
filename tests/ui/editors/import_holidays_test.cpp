#include "files/calendar_file.h"
#include "tests/support/dialog_test.h"
#include "tests/support/memory_files.h"
#include "ui/editors/import_holidays_dlg.h"

namespace orbisol {
namespace {

using namespace Qt::StringLiterals;

class ImportHolidaysTest : public DialogTest {
 protected:
  ImportHolidaysTest() : DialogTest(20260513) {
    Put(u"/share/Legals/France.xml", {EveryYear(7, 14, u"Fête nationale"), EveryYear(1, 1, u"Jour de l'an")},
        u"expédié");
    Put(u"/user/Legals/France.xml", {EveryYear(7, 14, u"<b>Fête</b>"), EveryYear(1, 1, u"Jour de l'an")},
        u"<i>le mien</i>\u2029\u2029Lois.");
    Put(u"/share/Legals/États-Unis.xml", {EveryYear(7, 4, u"Independence Day")}, u"");
    Put(u"/share/Legals/Zambie.xml", {EveryYear(10, 24, u"Independence Day")}, u"");
    mine = {{EveryYear(7, 14, u"Ancienne fête"), EveryYear(3, 3, u"Anniversaire", false),
             EveryYear(1, 1, u"Jour de l'an")},
            {Period(20260704, 20260831, u"Été")}};
  }

  void Put(const std::u16string& path, std::vector<DayEvent> rules, std::u16string_view info) {
    CalendarFile file;
    file.content.dayEvents = std::move(rules);
    file.info = info;
    files.Put(path, WriteCalendar(file, CalendarForm::kPublic));
  }

  // Opens the dialog and leaves the rest to `act`.
  bool Import(const std::function<void(CEvtImportDlg&)>& act) {
    InDialog<CEvtImportDlg>(act);
    return ImportHolidaysInto(nullptr, {files, kMemoryFolders}, mine);
  }
  static QString Shown(const CEvtImportDlg& dialog) {
    QString days;
    const auto* const tree = dialog.findChild<QTreeWidget*>();
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
      days += tree->topLevelItem(i)->text(0) + u" : "_s + tree->topLevelItem(i)->text(1) + u"\n"_s;
    return dialog.findChild<QPlainTextEdit*>()->toPlainText() + u"\n"_s + days;
  }
  std::string Names() {
    std::u16string all;
    for (const DayEvent& rule : mine.dayEvents) all.append(rule.name.View()).append(u"; ");
    return ToUtf8(all);
  }

  CMemoryFiles files;
  CalendarContent mine;
};

TEST_F(ImportHolidaysTest, AFewLettersFindACalendarAndShowItsDaysOfThisYear) {
  EXPECT_FALSE(Import([&](CEvtImportDlg& dialog) {
    const auto* const list = dialog.findChild<QListWidget*>();
    ASSERT_EQ(list->count(), 3);
    EXPECT_EQ(list->item(0)->text(), u"États-Unis"_s);
    EXPECT_TRUE(Shown(dialog).startsWith(u"Choisissez un calendrier"_s));
    auto* const search = dialog.findChild<QLineEdit*>();
    EXPECT_EQ(dialog.focusWidget(), search);
    QTest::keyClicks(search, u"fRÀ"_s);
    EXPECT_TRUE(list->item(0)->isHidden() && !list->item(1)->isHidden());
    EXPECT_EQ(
        Shown(dialog),
        u"<i>le mien</i>\n\nLois.\njeudi 1er janvier : Jour de l'an\nmardi 14 juillet : <b>Fête</b>\n"_s);
    search->setText(u"xyz"_s);
    EXPECT_EQ(Shown(dialog), u"Aucun calendrier ne porte ce nom.\n"_s);
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(messages.beeps, 1) << "there is nothing to import";
    QTest::keyClick(search, Qt::Key_Escape);
  }));
  EXPECT_EQ(Names(), "Ancienne fête; Anniversaire; Jour de l'an; ");
}

TEST_F(ImportHolidaysTest, PublicRulesAreReplacedOrAddedAndTheUsersOwnStay) {
  const auto choose = [](bool replaces) {
    return [=](CEvtImportDlg& dialog) {
      auto* const box = dialog.findChild<QCheckBox*>();
      EXPECT_TRUE(box->isChecked());
      box->setChecked(replaces);
      QTest::keyClicks(dialog.findChild<QLineEdit*>(), u"france"_s);
      QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    };
  };
  EXPECT_TRUE(Import(choose(false)));
  EXPECT_EQ(Names(), "Ancienne fête; Anniversaire; Jour de l'an; <b>Fête</b>; ") << "nothing is doubled";
  EXPECT_FALSE(Import(choose(false))) << "nothing changes any more";
  EXPECT_TRUE(Import(choose(true)));
  EXPECT_EQ(Names(), "Anniversaire; <b>Fête</b>; Jour de l'an; ");
  EXPECT_EQ(mine.vacations.size(), 1u);
}

TEST_F(ImportHolidaysTest, ManyPersonalEventsAreAskedForFirst) {
  for (const int count : {100, 101}) {
    std::vector<DayEvent> rules;
    for (int i = 0; i < count; ++i)
      rules.push_back(EveryYear(1 + i % 12, 1 + i / 12, u"n° " + DecimalText(i), false));
    Put(u"/user/Legals/Beaucoup.xml", rules, u"");
    const auto choose = [](CEvtImportDlg& dialog) {
      QTest::keyClicks(dialog.findChild<QLineEdit*>(), u"beau"_s);
      QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    };
    mine = {};
    EXPECT_EQ(Import(choose), count == 100);
    EXPECT_EQ(messages.questions.size(), static_cast<std::size_t>(count - 100));
    messages.choice = 0;
    EXPECT_EQ(Import(choose), count == 101);
    EXPECT_EQ(mine.dayEvents.size(), static_cast<std::size_t>(count));
    messages.choice = -1;
    messages.questions.clear();
  }
}

TEST_F(ImportHolidaysTest, ACalendarThatCannotBeReadIsSaidSo) {
  files.unreadable = {u"/share/Legals/Zambie.xml"};
  EXPECT_FALSE(Import([&](CEvtImportDlg& dialog) {
    dialog.findChild<QListWidget*>()->setCurrentRow(2);
    EXPECT_EQ(Shown(dialog), u"Ce calendrier ne peut pas être lu.\n"_s);
    dialog.accept();
    EXPECT_EQ(messages.beeps, 1);
  }));
}

}  // namespace
}  // namespace orbisol

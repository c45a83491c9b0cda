#include <QListView>
#include <QProgressBar>
#include <QSignalSpy>

#include "tests/support/dialog_test.h"
#include "ui/find/find_day_dialog.h"

namespace orbisol {
namespace {

class FindDayTest : public DialogTest {
 protected:
  void Open(const CalendarContent& content) {
    dialog.Open(content, 20240515);
    Settle();
  }
  void Finish() {
    while (dialog.IsSearching()) Settle();
  }
  void Type(const QString& text) {
    field->setText(text);
    Finish();
  }
  QString Line(int row) const { return list->model()->index(row, 0).data().toString(); }
  int Count() const { return list->model()->rowCount(); }

  CFindDayDialog dialog;
  QLineEdit* field = dialog.findChild<QLineEdit*>();
  QListView* list = dialog.findChild<QListView*>();
  QLabel* message = dialog.findChild<QLabel*>(QStringLiteral("message"));
  QPushButton* stop = dialog.findChild<QPushButton*>(QStringLiteral("stop"));
  QSignalSpy found{&dialog, &CFindDayDialog::dayFound};
};

TEST_F(FindDayTest, TheListGoesFromYearToYearAndStandsAtTheSelectedDate) {
  Open({{EveryYear(5, 1, u"Fête du Travail"), EveryYear(7, 14, u"Fête nationale")},
        {Period(20240706, 20240709, u"Fêtes")}});
  Type(QString::fromUtf8("fete"));
  EXPECT_EQ(Count(), 2 * (kLastYearShown - kFirstYearShown + 1) + 1);
  EXPECT_EQ(message->text(), QString::fromUtf8("15 999 résultats."));
  EXPECT_EQ(list->currentIndex().data().toString(),
            QString::fromUtf8("Du 6 juillet 2024 au 9 juillet 2024, 4 jours : Fêtes"));
  EXPECT_EQ(Line(Count() - 1), QString::fromUtf8("Mercredi 14 juillet 3999 : Fête nationale"));

  QTest::keyClick(&dialog, Qt::Key_F3);
  QTest::keyClick(field, Qt::Key_Return);
  QTest::keyClick(&dialog, Qt::Key_F3, Qt::ShiftModifier);
  QTest::keyClick(&dialog, Qt::Key_F3, Qt::ShiftModifier);
  ASSERT_EQ(found.size(), 4);
  const PackedDate kDays[] = {20240706, 20240707, 20240706, 20240501};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(found[i][0].toInt(), kDays[i]);
}

TEST_F(FindDayTest, ASearchNeverHoldsTheWindowAndCanBeStopped) {
  CalendarContent content;
  for (int i = 0; i < 300; ++i) content.dayEvents.push_back(EveryYear(1 + i % 12, 1 + i % 28, u"Fête"));
  Open(content);
  field->setText(QStringLiteral("f"));
  ASSERT_TRUE(dialog.IsSearching());
  Settle();
  EXPECT_TRUE(stop->isVisible());
  EXPECT_TRUE(dialog.findChild<QProgressBar*>()->isVisible());
  ASSERT_TRUE(dialog.IsSearching()) << "the first slice is not the whole search";
  QTest::mouseClick(stop, Qt::LeftButton);
  EXPECT_FALSE(dialog.IsSearching());
  EXPECT_FALSE(stop->isVisible());
  EXPECT_TRUE(message->text().startsWith(QString::fromUtf8("Recherche arrêtée")));
  Type(QStringLiteral("fe"));
  EXPECT_GE(Count(), kMostHits);
  QTest::keyClick(&dialog, Qt::Key_F3);
  EXPECT_EQ(found.size(), 1);
  EXPECT_TRUE(message->text().contains(QStringLiteral("premiers")));
  field->setText(QStringLiteral("f"));
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_FALSE(dialog.IsSearching());
}

// Personal events that a public holiday hides in every year but the last one.
TEST_F(FindDayTest, TheWayToAFarDayHoldsNoWindow) {
  CalendarContent content;
  for (int i = 0; i < 200; ++i) content.dayEvents.push_back(EveryYear(1, 1, u"Fête", false));
  content.dayEvents.push_back(EveryYear(1, 1, u"Nouvel An"));
  content.dayEvents.back().ymdTo = 39981231;
  Open(content);
  field->setText(QStringLiteral("fête"));
  dialog.hide();
  dialog.FindNext();
  EXPECT_TRUE(dialog.IsSearching()) << "the first slice is not the whole way";
  EXPECT_TRUE(found.isEmpty());
  Finish();
  ASSERT_EQ(found.size(), 1);
  EXPECT_EQ(found[0][0].toInt(), 39990101);
  dialog.FindNext();
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_EQ(message->text(), QStringLiteral("Aucun autre jour ensuite."));
  dialog.FindPrevious();
  Finish();
  EXPECT_EQ(message->text(), QStringLiteral("Aucun autre jour auparavant."));
  dialog.SetSelected(20240101);
  dialog.FindNext();
  dialog.SetSelected(20250101);
  EXPECT_FALSE(dialog.IsSearching()) << "somebody went elsewhere meanwhile";
  EXPECT_EQ(found.size(), 1);
}

TEST_F(FindDayTest, AnotherContentOrOtherRulesMakeTheListAnew) {
  CalendarContent content{{EveryYear(10, 10, u"Fête")}, {}};
  Open(content);
  Type(QStringLiteral("fête"));
  const int whole = Count();
  content.dayEvents[0].day = 3;
  dialog.SetContent(content);
  Finish();
  EXPECT_EQ(list->currentIndex().data().toString(), QStringLiteral("Jeudi 3 octobre 2024 : Fête"));
  content.dayEvents[0].day = 10;
  const ScopedRules other(RulesWith(15821115));  // 10 October 1582 is no longer dropped
  dialog.SetContent(content);
  Finish();
  EXPECT_EQ(Count(), whole + 1);
}

TEST_F(FindDayTest, NothingFoundIsSaid) {
  Open({});
  Type(QStringLiteral("<b>fête</b>"));
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(message->text(), QStringLiteral("Aucun jour ne contient ce texte."));
  Type({});
  EXPECT_TRUE(message->text().isEmpty());
  EXPECT_FALSE(dialog.findChild<QPushButton*>(QStringLiteral("next"))->isEnabled());
}

}  // namespace
}  // namespace orbisol

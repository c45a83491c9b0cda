#include "tests/support/dialog_test.h"
#include "ui/find/go_to_date_dialog.h"

namespace orbisol {
namespace {

class GoToDateTest : public DialogTest {
 protected:
  GoToDateTest() { Activate(dialog); }
  void Type(const QString& text) {
    field->clear();
    for (const QChar letter : text)
      if (letter.unicode() < 0x80)
        QTest::keyClick(field, letter.toLatin1());
      else
        field->insert(letter);  // no key of the test display has it
  }
  QStringList Lines() const {
    QStringList lines;
    for (int row = 0; row < list->count(); ++row) lines.append(list->item(row)->text());
    return lines;
  }

  CGoToDateDialog dialog{nullptr, 20240515};
  QLineEdit* field = dialog.findChild<QLineEdit*>();
  QListWidget* list = dialog.findChild<QListWidget*>();
  QLabel* message = dialog.findChild<QLabel*>(QStringLiteral("message"));
  QPushButton* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
};

TEST_F(GoToDateTest, ItSaysWhileTypingHowADateIsUnderstoodAndEnterTakesTheFirst) {
  EXPECT_EQ(QApplication::focusWidget(), field);
  EXPECT_FALSE(ok->isEnabled());
  EXPECT_TRUE(message->text().isEmpty());
  Type(QStringLiteral("15/3/-44"));
  EXPECT_EQ(Lines(), QStringList(QString::fromUtf8("mardi 15 mars −44 (45 av. J.-C.), julien")));
  EXPECT_TRUE(field->accessibleDescription().contains(Lines().first()));
  EXPECT_TRUE(ok->isEnabled());
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.Date(), -440315);
}

TEST_F(GoToDateTest, SeveralReadingsAreAListThatTheArrowsMoveThrough) {
  Type(QStringLiteral("44"));
  ASSERT_EQ(list->count(), 2);
  EXPECT_EQ(dialog.Date(), 440515);
  QTest::keyClick(field, Qt::Key_Down);
  EXPECT_EQ(dialog.Date(), 20440515);
  EXPECT_EQ(QApplication::focusWidget(), field);
  QTest::keyClick(field, Qt::Key_Up);
  EXPECT_EQ(dialog.Date(), 440515);
  QTest::keyClick(field, Qt::Key_Down);
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.Date(), 20440515);
}

TEST_F(GoToDateTest, WhatIsNoDateSaysWhyAndOffersTheNearestOnes) {
  Type(QStringLiteral("31 avril 2024"));
  EXPECT_TRUE(message->text().startsWith(QStringLiteral("Cette date n'existe pas : avril 2024 a 30 jours.")));
  EXPECT_EQ(Lines(),
            QStringList({QStringLiteral("mardi 30 avril 2024"), QStringLiteral("mercredi 1er mai 2024")}));
  EXPECT_TRUE(field->accessibleDescription().contains(message->text()));
  EXPECT_FALSE(ok->isEnabled());
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_TRUE(dialog.isVisible()) << "nothing is taken that was not chosen";
  QTest::keyClick(field, Qt::Key_Down);
  EXPECT_EQ(dialog.Date(), 20240430);
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(GoToDateTest, EscapeCancelsAndAnyTextIsSurvived) {
  for (const char* const text :
       {"<b>14</b>", "🎂🎂", "‏١٤ يوليو", "", "   ", "-", "an", "14 juillet 4000"}) {
    Type(QString::fromUtf8(text));
    EXPECT_EQ(dialog.Date(), 0) << text;
  }
  Type(QString(300, u'9'));
  EXPECT_LE(field->text().size(), 100);
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

}  // namespace
}  // namespace orbisol

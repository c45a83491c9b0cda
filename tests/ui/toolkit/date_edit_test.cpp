#include "ui/toolkit/date_edit.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "core/calendar_config.h"
#include "tests/support/fakes.h"
#include "tests/support/rules.h"
#include "ui/toolkit/date_drop_down.h"
#include "ui/toolkit/plain_text.h"
#include "ui/toolkit/typed_date.h"

namespace orbisol {
namespace {

TEST(TypedDateTest, TextsAreReadInTheOrderOfTheUser) {
  const ScopedRules roman(CalendarRules{});
  constexpr auto kIncomplete = DateFault::kIncomplete;
  constexpr auto kNotADate = DateFault::kNotADate;
  const struct {
    const char16_t* text;
    int order;
    PackedDate ymd;
    DateFault fault = DateFault::kNone;
  } kTexts[] = {
      {u"14/07/1789", 1, 17890714},
      {u"07/14/1789", 0, 17890714},
      {u"1789/07/14", 2, 17890714},
      {u" 14.7.1789 ", 1, 17890714},
      {u"14-7-1789", 1, 17890714},
      {u"14 - 7 - 1789", 1, 17890714},
      {u"14\u00A07\u202F1789", 1, 17890714},
      {u"1789-07-14", 1, 17890714},
      {u"1789-07-14", 0, 17890714},
      {u"14/7/1789", 2, 17890714},
      {u"15/3/-44", 1, -440315},
      {u"15/3/\u221244", 1, -440315},
      {u"15-3--44", 1, -440315},
      {u"3 15 -44", 0, -440315},
      {u"-44/3/15", 2, -440315},
      {u"15/3/44", 1, 440315},
      {u"1/3/0", 1, 301},
      {u"29/2/-8", 1, -80229},  // shares the day number of the next day
      {u"29/2/1500", 1, 15000229},
      {u"29/2/-3999", 1, 0, DateFault::kNoDay},
      {u"1/1/-3999", 1, -39990101},
      {u"31/12/3999", 1, 39991231},
      {u"1/1/-4000", 1, 0, DateFault::kOutOfBounds},
      {u"1/1/4000", 1, 0, DateFault::kOutOfBounds},
      {u"4/10/1582", 1, 15821004},
      {u"5/10/1582", 1, 0, DateFault::kDropped},
      {u"14/10/1582", 1, 0, DateFault::kDropped},
      {u"15/10/1582", 1, 15821015},
      {u"29/2/2025", 1, 0, DateFault::kNoDay},
      {u"31/11/2026", 1, 0, DateFault::kNoDay},
      {u"0/1/2026", 1, 0, DateFault::kNoDay},
      {u"1/13/2026", 1, 0, DateFault::kNoMonth},
      {u"", 1, 0, kIncomplete},
      {u"14/7", 1, 0, kIncomplete},
      {u"14/7/", 1, 0, kIncomplete},
      {u"14 juillet 1789", 1, 0, kNotADate},
      {u"1/2/3/4", 1, 0, kNotADate},
      {u"1/1/99999999999", 1, 0, kNotADate},
  };
  for (const auto& row : kTexts) {
    SCOPED_TRACE(testing::Message() << qPrintable(ToQString(row.text)) << " in order " << row.order);
    const TypedDate typed = ReadTypedDate(row.text, row.order);
    EXPECT_EQ(typed.fault, row.fault);
    EXPECT_EQ(typed.ymd, row.ymd);
    EXPECT_EQ(DateFaultText(typed, row.order).empty(), row.fault == DateFault::kNone);
    if (typed.ymd == 0) continue;
    EXPECT_EQ(ReadTypedDate(FieldDate(typed.ymd, row.order), row.order).ymd, row.ymd);
  }
  EXPECT_EQ(DateFaultText(ReadTypedDate(u"9/10/1582", 1), 1),
            u"Cette date n'existe pas : le 4 octobre 1582 est suivi du 15 octobre 1582.");
  EXPECT_EQ(DateFaultText(ReadTypedDate(u"31/11/2026", 1), 1),
            u"Cette date n'existe pas : novembre 2026 n'a pas de jour 31.");
}

class DateEditTest : public testing::Test {
 protected:
  void SetUp() override {
    window.resize(400, 200);
    other.move(0, 100);
    window.show();
    window.activateWindow();
    edit.setFocus();
    QApplication::processEvents();
  }
  bool IsMarked() const {
    const auto* const sign = edit.findChildren<QToolButton*>().back();
    return sign->isVisibleTo(&edit) && edit.accessibleDescription() == edit.Error();
  }
  void Type(const char* text) {
    edit.selectAll();
    QTest::keyClicks(&edit, QLatin1String(text));
  }

  const ScopedRules rules{CalendarRules{}};
  const ScopedPlatform pinned{FakeLocale(), FakeClock({2024, 5, 15})};
  QWidget window;
  CDateEdit edit{&window};
  QLineEdit other{&window};
};

TEST_F(DateEditTest, ImpossibleDatesAreMarkedAndTheLastValidOneIsKept) {
  QSignalSpy changes(&edit, &CDateEdit::dateChanged);
  Type("14/7/1789");
  EXPECT_EQ(edit.Date(), 17890714);
  EXPECT_FALSE(IsMarked());
  const auto told = changes.size();
  Type("10/10/1582");
  EXPECT_FALSE(edit.IsValid());
  EXPECT_TRUE(IsMarked());
  EXPECT_NE(edit.Date(), 0);
  other.setFocus();
  EXPECT_TRUE(IsMarked());
  EXPECT_EQ(edit.text(), QStringLiteral("10/10/1582"));
  EXPECT_GT(told, 0);

  edit.setFocus();
  Type("14.7");
  EXPECT_FALSE(edit.IsValid());
  EXPECT_FALSE(IsMarked());  // it may still become one
  other.setFocus();
  EXPECT_TRUE(IsMarked());
  edit.setFocus();
  Type("1-3-44");
  other.setFocus();
  EXPECT_EQ(edit.text(), QStringLiteral("01/03/0044"));

  edit.SetNoneText(QStringLiteral("toujours"));
  edit.setFocus();
  edit.clear();
  Type(" ");
  other.setFocus();
  EXPECT_TRUE(edit.IsValid());
  EXPECT_EQ(edit.Date(), 0);
  EXPECT_EQ(edit.text(), QStringLiteral("toujours"));
}

TEST_F(DateEditTest, ADateInWordsIsTakenWhereItHasOneMeaning) {
  const struct {
    const char* text;
    PackedDate date;  // 0 where the field refuses it
  } kTexts[] = {{"14 juillet 1789", 17890714},
                {"18 brumaire an VIII", 17991109},
                {"15 mars 44 av. J.-C.", -430315},
                {"24 mars 44", 0},
                {"10 octobre 1582", 0},
                {"31 avril 2024", 0},
                {"lundi 9 novembre 1799", 0},
                {"bonjour", 0}};
  for (const auto& row : kTexts) {
    SCOPED_TRACE(row.text);
    edit.SetDate(20240515);
    Type(row.text);
    EXPECT_EQ(edit.IsValid(), row.date != 0);
    if (row.date == 0) continue;
    EXPECT_EQ(edit.Date(), row.date);
    other.setFocus();
    EXPECT_FALSE(edit.text().contains(QLatin1Char(' '))) << "it is shown in the form of the field";
    edit.setFocus();
  }
}

TEST_F(DateEditTest, ArrowsStepThePartAtTheCursor) {
  const struct {
    PackedDate from;
    int cursor;
    int key;
    Qt::KeyboardModifiers modifiers;
    PackedDate to;
  } kSteps[] = {
      {20240531, 1, Qt::Key_Up, {}, 20240601},
      {20240531, 4, Qt::Key_Down, {}, 20240430},
      {20240229, 8, Qt::Key_Up, {}, 20250228},
      {20240531, 0, Qt::Key_PageDown, {}, 20240630},
      {15821004, 2, Qt::Key_Up, {}, 15821015},
      {15820910, 3, Qt::Key_Up, {}, 15821020},
      {39991231, 0, Qt::Key_Up, {}, 39991231},
      {-39990101, 8, Qt::Key_Down, {}, -39990101},
      {10101, 0, Qt::Key_Down, {}, 1231},
      {101, 8, Qt::Key_Down, {}, -10101},
      {20240515, 0, Qt::Key_PageUp, Qt::ControlModifier, 20230515},
  };
  for (const auto& row : kSteps) {
    SCOPED_TRACE(testing::Message() << row.from << " to " << row.to);
    edit.SetDate(row.from);
    edit.setCursorPosition(row.cursor);
    QTest::keyClick(&edit, static_cast<Qt::Key>(row.key), row.modifiers);
    EXPECT_EQ(edit.Date(), row.to);
  }
}

TEST_F(DateEditTest, TheDropDownShowsTheMonthAsItWas) {
  edit.SetDate(15821004);
  QTest::keyClick(&edit, Qt::Key_Down, Qt::AltModifier);
  auto* const choice = edit.findChild<CDateDropDown*>();
  ASSERT_TRUE(choice != nullptr && choice->isVisible());
  auto* const table = choice->findChild<QTableWidget*>();
  EXPECT_EQ(table->currentItem()->text(), QStringLiteral("4"));
  EXPECT_EQ(table->item(table->currentRow(), table->currentColumn() + 1)->text(), QStringLiteral("15"));
  const auto press = [&](Qt::Key key) { QTest::keyClick(table, key); };
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_Up}) press(key);
  EXPECT_EQ(choice->Marked(), 15821025);  // 15 October, 15 November, the 1st, a week before
  press(Qt::Key_Return);
  EXPECT_FALSE(choice->isVisible());
  EXPECT_EQ(edit.Date(), 15821025);
  EXPECT_EQ(edit.text(), QStringLiteral("25/10/1582"));

  edit.OpenDropDown();
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualItemRect(table->item(0, 2)).center());
  EXPECT_EQ(edit.Date(), 15821003);
  edit.OpenDropDown();
  press(Qt::Key_PageUp);
  press(Qt::Key_Escape);
  EXPECT_FALSE(choice->isVisible());
}

}  // namespace
}  // namespace orbisol

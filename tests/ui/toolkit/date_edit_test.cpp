#include "ui/toolkit/date_edit.h"

#include <QSignalSpy>
#include <QTableWidget>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "tests/support/dialog_test.h"
#include "ui/toolkit/date_drop_down.h"
#include "ui/toolkit/typed_date.h"

namespace orbisol {
namespace {

TEST(TypedDateTest, TextsAreReadInTheOrderOfTheUser) {
  constexpr const char* kFaults[] = {"kNone",  "kIncomplete", "kNotADate",   "kNoMonth",
                                     "kNoDay", "kDropped",    "kOutOfBounds"};
  std::ifstream file(ORBISOL_TEST_DATA "/field_dates.txt");
  int rows = 0;
  for (std::string line; std::getline(file, line); ++rows) {
    if (line.starts_with('#')) continue;
    SCOPED_TRACE(line);
    std::istringstream words(line);
    int order = 0;
    PackedDate ymd = 0;
    std::string fault;
    words >> order >> ymd >> fault;
    const TypedDate typed = ReadTypedDate(FromUtf8(line.substr(line.find('|') + 1)), order);
    EXPECT_EQ(kFaults[static_cast<int>(typed.fault)], fault);
    EXPECT_EQ(typed.ymd, ymd);
    EXPECT_EQ(DateFaultText(typed, order).empty(), fault == "kNone");
    if (ymd == 0) continue;
    EXPECT_EQ(ReadTypedDate(FieldDate(ymd, order), order).ymd, ymd);
  }
  EXPECT_GT(rows, 30);
  EXPECT_EQ(DateFaultText(ReadTypedDate(u"9/10/1582", 1), 1),
            u"Cette date n'existe pas : le 4 octobre 1582 est suivi du 15 octobre 1582.");
}

class DateEditTest : public DialogTest {
 protected:
  DateEditTest() {
    window.resize(400, 200);
    other.move(0, 100);
    edit.setFocus();
    Activate(window);
  }
  bool IsMarked() const {
    const auto* const sign = edit.findChildren<QToolButton*>().back();
    return sign->isVisibleTo(&edit) && edit.accessibleDescription() == edit.Error();
  }
  void Type(const char* text) {
    edit.selectAll();
    QTest::keyClicks(&edit, QLatin1String(text));
  }

  QWidget window;
  CDateEdit edit{&window};
  QLineEdit other{&window};
};

TEST_F(DateEditTest, ImpossibleDatesAreMarkedAndTheLastValidOneIsKept) {
  QSignalSpy changes(&edit, &CDateEdit::dateChanged);
  QSignalSpy validity(&edit, &CDateEdit::validityChanged);
  Type("14/7/1789");
  EXPECT_EQ(edit.Date(), 17890714);
  EXPECT_FALSE(IsMarked());
  EXPECT_GT(changes.size(), 0);
  Type("10/10/1582");
  EXPECT_FALSE(edit.IsValid());
  EXPECT_TRUE(IsMarked());
  EXPECT_NE(edit.Date(), 0);
  other.setFocus();
  EXPECT_TRUE(IsMarked());
  EXPECT_EQ(edit.text(), QStringLiteral("10/10/1582"));
  EXPECT_EQ(validity.back(), QVariantList{false});

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
  constexpr std::pair<const char*, PackedDate> kTexts[] = {// 0 where the field refuses it
                                                           {"14 juillet 1789", 17890714},
                                                           {"18 brumaire an VIII", 17991109},
                                                           {"15 mars 44 av. J.-C.", -430315},
                                                           {"24 mars 44", 0},
                                                           {"10 octobre 1582", 0},
                                                           {"31 avril 2024", 0},
                                                           {"lundi 9 novembre 1799", 0},
                                                           {"bonjour", 0}};
  for (const auto& [text, date] : kTexts) {
    SCOPED_TRACE(text);
    edit.SetDate(20240515);
    Type(text);
    EXPECT_EQ(edit.IsValid(), date != 0);
    if (date == 0) continue;
    EXPECT_EQ(edit.Date(), date);
    other.setFocus();
    EXPECT_FALSE(edit.text().contains(QLatin1Char(' '))) << "it is shown in the form of the field";
    edit.setFocus();
  }
}

TEST_F(DateEditTest, ArrowsStepThePartAtTheCursor) {
  // From a date, with the cursor at a place and a key with modifiers, to a date.
  const std::tuple<PackedDate, int, Qt::Key, Qt::KeyboardModifiers, PackedDate> kSteps[] = {
      {20240531, 1, Qt::Key_Up, {}, 20240601}, {20240531, 4, Qt::Key_Down, {}, 20240430},
      {20240229, 8, Qt::Key_Up, {}, 20250228}, {20240531, 0, Qt::Key_PageDown, {}, 20240630},
      {15821004, 2, Qt::Key_Up, {}, 15821015}, {15820910, 3, Qt::Key_Up, {}, 15821020},
      {39991231, 0, Qt::Key_Up, {}, 39991231}, {-39990101, 8, Qt::Key_Down, {}, -39990101},
      {10101, 0, Qt::Key_Down, {}, 1231},      {20240515, 0, Qt::Key_PageUp, Qt::ControlModifier, 20230515},
  };
  for (const auto& [from, cursor, key, modifiers, to] : kSteps) {
    edit.SetDate(from);
    edit.setCursorPosition(cursor);
    QTest::keyClick(&edit, key, modifiers);
    EXPECT_EQ(edit.Date(), to) << from;
  }
  FakeLocale american;
  american.dateOrder = 0;
  const ScopedPlatform elsewhere(american, FakeClock({2024, 5, 15}));
  edit.SetDate(20240531);
  edit.setCursorPosition(1);
  QTest::keyClick(&edit, Qt::Key_Up);
  EXPECT_EQ(edit.Date(), 20240630) << "the month comes first";
  edit.setReadOnly(true);
  QTest::keyClick(&edit, Qt::Key_Up);
  EXPECT_EQ(edit.Date(), 20240630);
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
  EXPECT_EQ(table->horizontalHeaderItem(0)->text(), QStringLiteral("lun."));
  press(Qt::Key_End);
  EXPECT_EQ(choice->Marked(), 15821031);
  for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right,
                            Qt::Key_PageDown, Qt::Key_Home, Qt::Key_Up})
    press(key);
  EXPECT_EQ(choice->Marked(), 15821025);  // 15 October, 15 November, the 1st, a week before
  press(Qt::Key_Return);
  EXPECT_FALSE(choice->isVisible());
  EXPECT_EQ(edit.Date(), 15821025);
  EXPECT_EQ(edit.text(), QStringLiteral("25/10/1582"));

  edit.OpenDropDown();
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualItemRect(table->item(0, 2)).center());
  EXPECT_EQ(edit.Date(), 15821003);
  QTest::keyClick(&edit, Qt::Key_F4);
  EXPECT_TRUE(choice->isVisible());
  press(Qt::Key_PageUp);
  press(Qt::Key_Escape);
  EXPECT_FALSE(choice->isVisible());

  edit.SetDate(-39990101);
  edit.OpenDropDown();
  ASSERT_EQ(table->item(0, 0)->text(), QString());
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualItemRect(table->item(0, 0)).center());
  EXPECT_EQ(edit.Date(), -39990101) << "no day lies there";
  EXPECT_TRUE(choice->isVisible());
  const auto buttons = choice->findChildren<QPushButton*>();
  EXPECT_EQ(std::count_if(buttons.begin(), buttons.end(), [](auto* button) { return button->isVisible(); }),
            1)
      << "a field that needs a date";
  press(Qt::Key_Escape);

  edit.SetDate(20240515);
  const QRect screen = window.screen()->availableGeometry();
  window.move(screen.left(), screen.bottom() - window.height());
  edit.OpenDropDown();
  EXPECT_TRUE(screen.contains(choice->geometry()));
  EXPECT_NE(table->item(0, 0)->foreground(), table->item(0, 2)->foreground()) << "29 April is grey";
}

}  // namespace
}  // namespace orbisol

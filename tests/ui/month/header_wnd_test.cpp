// The header, with real events to a real window.

#include "ui/month/header_wnd.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QToolTip>

#include <memory>

#include "content/selected_date.h"
#include "settings/display_settings.h"
#include "tests/support/fakes.h"
#include "tests/support/rules.h"
#include "ui/month/header_part.h"
#include "ui/month/year_edit.h"

namespace orbisol {
namespace {

struct SpyHeaderHost : HeaderHost {
  int changes = 0;
  void OnHeaderDateChanged() override { ++changes; }
};

class HeaderWndTest : public ::testing::Test {
 protected:
  HeaderWndTest() : m_platform(FakeLocale(), FakeClock({2024, 5, 15})), m_rules(RulesWith(kRomanReform)) {
    Display() = DisplaySettings();
    Select(20240229);
    window.resize(600, 130);
    other = new QLineEdit(&window);  // had the focus before, like the month
    other->setGeometry(0, 80, 100, 30);
    header = new CHeaderWnd(&host, &window);
    header->setGeometry(0, 0, 600, 62);
    window.show();
    window.activateWindow();
    other->setFocus();
    QApplication::processEvents();
  }
  ~HeaderWndTest() override { Display() = DisplaySettings(); }

  void Select(PackedDate date) {
    Selected().SetPacked(date);
    if (header) header->Refresh();
  }
  static PackedDate Now() { return Selected().Packed(); }

  static QPoint Middle(const Rect& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  }
  void Click(const Rect& rect, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
             Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(header, button, modifiers, Middle(rect));
  }
  CYearEdit* OpenYear() {
    Click(header->Places().year);
    return header->findChild<CYearEdit*>();
  }
  void Type(CYearEdit* editor, const char* text) {
    editor->selectAll();
    QTest::keyClick(editor, Qt::Key_Delete);
    QTest::keyClicks(editor, QLatin1String(text));
  }
  QString TipAt(QPoint point) {
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, point, header->mapToGlobal(point));
    QApplication::sendEvent(header, &event);
    return event.isAccepted() ? QToolTip::text() : QString();
  }

  ScopedPlatform m_platform;
  ScopedRules m_rules;
  SpyHeaderHost host;
  QWidget window;
  QLineEdit* other = nullptr;
  CHeaderWnd* header = nullptr;
};

TEST_F(HeaderWndTest, ArrowsStepAsTheirKeysSay) {
  struct {
    PackedDate from;
    bool isNext;
    Qt::KeyboardModifiers modifiers;
    PackedDate to;
  } const kSteps[] = {
      {20240229, false, Qt::NoModifier, 20240129},
      {20240131, true, Qt::NoModifier, 20240229},
      {20240229, false, Qt::ControlModifier, 20230229},  // On purpose: a day that does not exist is kept.
      {20240229, true, Qt::ControlModifier, 20250229},
      {20240501, false, Qt::ShiftModifier, 20140501},
      {39950301, true, Qt::ShiftModifier, 39991231},
      {20240501, true, Qt::ControlModifier | Qt::ShiftModifier, 21240501},
      {-39500301, false, Qt::ControlModifier | Qt::ShiftModifier, -39990101},
      {39991231, true, Qt::NoModifier, 39991231},
  };
  for (const auto& step : kSteps) {
    SCOPED_TRACE(testing::Message() << step.from << " to " << step.to);
    Select(step.from);
    host.changes = 0;
    Click(step.isNext ? header->Places().next : header->Places().previous, step.modifiers);
    EXPECT_EQ(Now(), step.to);
    EXPECT_EQ(host.changes, 1);
  }
}

TEST_F(HeaderWndTest, TheRightButtonGoesToTheEndsOfTheRange) {
  Click(header->Places().previous, Qt::NoModifier, Qt::RightButton);
  EXPECT_EQ(Now(), kFirstDateShown);
  Click(header->Places().next, Qt::NoModifier, Qt::RightButton);
  EXPECT_EQ(Now(), kLastDateShown);
  EXPECT_EQ(host.changes, 2);
  Click(header->Places().month, Qt::NoModifier, Qt::RightButton);
  EXPECT_EQ(host.changes, 2);
}

TEST_F(HeaderWndTest, TheMonthMenuKeepsTheDay) {
  Select(20240531);
  Click(header->Places().month);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->actions().size(), 12);
  EXPECT_EQ(menu->actions().at(7)->text(), QString::fromUtf8("Août"));
  EXPECT_EQ(menu->actions().at(7)->data().toInt(), 1058);
  EXPECT_EQ(menu->activeAction(), menu->actions().at(4));
  menu->actions().at(3)->trigger();
  menu->close();
  EXPECT_EQ(Now(), 20240431);  // On purpose: 31 April is kept.
  EXPECT_EQ(host.changes, 1);
}

TEST_F(HeaderWndTest, MonthNamesWithAnAmpersandShowIt) {
  FakeLocale odd;
  odd.months = std::vector<std::u16string>(12, u"Jan & Co");
  const ScopedPlatform inForce(odd);
  Click(header->Places().month);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->actions().at(0)->text(), QStringLiteral("Jan && Co"));
  menu->close();
}

TEST_F(HeaderWndTest, TheYearEditorReadsEachChange) {
  CYearEdit* const editor = OpenYear();
  ASSERT_TRUE(header->IsEditingYear());
  EXPECT_EQ(editor->Text(), QStringLiteral("2024"));

  Type(editor, "1582");
  EXPECT_EQ(Now(), 15820229);
  EXPECT_EQ(editor->Text(), QStringLiteral("1582"));
  const int changes = host.changes;
  Type(editor, "-");  // nothing to read yet
  EXPECT_EQ(host.changes, changes);
  EXPECT_EQ(editor->Text(), QStringLiteral("-"));
  QTest::keyClicks(editor, QStringLiteral("5000"));
  EXPECT_EQ(Selected().year, -3999);
  EXPECT_EQ(editor->Text(), QStringLiteral("-5000"));  // never rewritten while it is typed in
  QTest::keyClicks(editor, QStringLiteral("x"));
  EXPECT_EQ(editor->Text(), QStringLiteral("-5000"));

  QTest::keyClick(editor, Qt::Key_Up);
  EXPECT_EQ(Selected().year, -3998);
  EXPECT_EQ(editor->Text(), QStringLiteral("-3998"));
  QTest::keyClick(editor, Qt::Key_PageDown);
  EXPECT_EQ(Selected().year, -3999);
}

TEST_F(HeaderWndTest, EnterClosesTheYearEditorAndGoesNoFurther) {
  CYearEdit* const editor = OpenYear();
  QTest::keyPress(editor, Qt::Key_Return);
  EXPECT_FALSE(header->IsEditingYear());
  EXPECT_FALSE(other->hasFocus());  // its repetitions must not reach the month, where Enter means today
  QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(other->hasFocus());

  OpenYear();
  other->setFocus();
  EXPECT_FALSE(header->IsEditingYear());
  OpenYear();
  Click(header->Places().next);
  EXPECT_FALSE(header->IsEditingYear());
  EXPECT_EQ(Now(), 20240329);
}

TEST_F(HeaderWndTest, TheYearIsTheCivilOne) {
  const ScopedRules florence(RulesWith(kRomanReform, {.rows = {{11000325, false}}}));
  Select(15000210);
  EXPECT_EQ(header->TitleText(), QString::fromUtf8("Février 1499"));
  EXPECT_EQ(header->CivilYearText(), QString::fromUtf8("Année civile débutant le 25 mars"));
  Type(OpenYear(), "1400");
  EXPECT_EQ(Now(), 14010210);  // 10 February 1401 lies in the civil year 1400
}

TEST_F(HeaderWndTest, TheBandsSayWhatBelongsThere) {
  Display().showWeekNumber = false;
  Select(20240101);
  EXPECT_EQ(header->LeftText(), QStringLiteral("Lundi 1 janvier 2024"));
  EXPECT_EQ(header->RightText(), QString::fromUtf8("[s. 1] 1 • 365"));
  EXPECT_EQ(header->EraText(), QString());
  EXPECT_EQ(header->CivilYearText(), QString());
  Display().showWeekNumber = true;
  EXPECT_EQ(header->RightText(), QString::fromUtf8("1 • 365"));
  Select(101);
  EXPECT_EQ(header->EraText(), QStringLiteral("753 AUC | 1 av. JC"));
  Select(10101);
  EXPECT_EQ(header->EraText(), QString());
}

TEST_F(HeaderWndTest, TipsAndCursorsFollowTheParts) {
  const HeaderLayout& places = header->Places();
  EXPECT_TRUE(TipAt({3, 3}).contains(QString::fromUtf8("Clic=mois précédent")));
  EXPECT_TRUE(TipAt({597, 3}).contains(QStringLiteral("Clic=mois suivant")));
  EXPECT_TRUE(TipAt(Middle(places.year)).contains(QString::fromUtf8("Vingt-et-unième siècle")));
  EXPECT_EQ(TipAt({100, 3}), QString());

  const auto shapeAt = [&](QPoint point) {
    QMouseEvent event(QEvent::MouseMove, point, header->mapToGlobal(point), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QApplication::sendEvent(header, &event);
    return header->cursor().shape();
  };
  for (const Rect& part : {places.previous, places.next, places.month, places.year})
    EXPECT_EQ(shapeAt(Middle(part)), Qt::PointingHandCursor);
  EXPECT_EQ(shapeAt({100, 3}), Qt::ArrowCursor);
}

TEST_F(HeaderWndTest, TheKeyboardReachesAndPressesAllParts) {
  const auto focusedPart = [] { return qobject_cast<CHeaderPart*>(QApplication::focusWidget()); };
  other->setFocus();
  QTest::keyClick(other, Qt::Key_Tab);
  ASSERT_NE(focusedPart(), nullptr);
  EXPECT_EQ(focusedPart()->accessibleName(), QString::fromUtf8("Mois précédent"));
  QTest::keyClick(focusedPart(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(Now(), 20140229);
  QTest::keyClick(focusedPart(), Qt::Key_Space);
  EXPECT_EQ(Now(), 20140129);

  QTest::keyClick(focusedPart(), Qt::Key_Right);
  EXPECT_EQ(focusedPart()->accessibleName(), QStringLiteral("Mois : Janvier"));
  QTest::keyClick(focusedPart(), Qt::Key_Return);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QApplication::activePopupWidget()->close();

  QTest::keyClick(focusedPart(), Qt::Key_Right);
  EXPECT_EQ(focusedPart()->accessibleName(), QString::fromUtf8("Année : 2014"));
  EXPECT_TRUE(focusedPart()->accessibleDescription().contains(QString::fromUtf8("Vingt-et-unième siècle")));
  QTest::keyClick(focusedPart(), Qt::Key_Return);
  ASSERT_TRUE(header->IsEditingYear());
  QTest::keyClick(header->findChild<CYearEdit*>(), Qt::Key_Escape);
  ASSERT_NE(focusedPart(), nullptr);  // back where it came from

  QTest::keyClick(focusedPart(), Qt::Key_Right);
  EXPECT_EQ(focusedPart()->accessibleName(), QStringLiteral("Mois suivant"));
  QTest::keyClick(focusedPart(), Qt::Key_Left);
  EXPECT_EQ(focusedPart()->accessibleName(), QString::fromUtf8("Année : 2014"));
}

TEST_F(HeaderWndTest, EveryTitleFitsBetweenTheArrows) {
  for (const int width : {150, 300, 900})
    for (const int height : {20, 60, 200}) {
      header->resize(width, height);
      Select(-39990901);
      SCOPED_TRACE(testing::Message() << width << " x " << height);
      EXPECT_GE(header->Places().month.left, header->Places().previous.right);
      EXPECT_LE(header->Places().year.right, header->Places().next.left);
    }
  header->resize(0, 0);  // nothing is painted, nothing fails
  header->grab();
}

TEST_F(HeaderWndTest, ColorsAreThoseOfTheCalendar) {
  Display().colors[kColorBgCal] = Rgb(10, 200, 30);
  Display().colors[kColorCalHeader] = Rgb(200, 10, 30);
  header->Refresh();
  const QImage picture = header->grab().toImage();
  EXPECT_EQ(picture.pixelColor(300, 2), QColor(10, 200, 30));
  EXPECT_EQ(picture.pixelColor(15, 31), QColor(200, 10, 30));
  EXPECT_EQ(picture.pixelColor(585, 31), QColor(200, 10, 30));
}

}  // namespace
}  // namespace orbisol

// The main frame: commands, status bar, pane, keyboard and focus, the windows it opens.

#include <QAction>
#include <QClipboard>
#include <QStatusBar>
#include <QToolBar>

#include "tests/ui/shell/frame_fixture.h"
#include "ui/header/year_edit.h"
#include "ui/toolkit/colors.h"

namespace orbisol {
namespace {

TEST_F(FrameTest, DatesAreCopiedAsTheyAreShownAlsoFromTheHiddenPane) {
  Open();
  Show(20240101);
  const auto copied = [&](CommandId command) {
    Action(command).trigger();
    return QGuiApplication::clipboard()->text();
  };
  EXPECT_EQ(copied(kCmdCopyDate), QStringLiteral("Lundi 1 janvier 2024"));
  frame->RunCommand(kCmdTogglePane);
  EXPECT_EQ(copied(kCmdCopyJulianDate), QString::fromUtf8("Lundi 19 décembre 2023"));
  EXPECT_EQ(copied(kCmdCopyRepublicanDate), QStringLiteral("Primidi 11 nivose an 232\n (an CCXXXII)"));
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Lundi 1 janvier 2024"));
}

TEST_F(FrameTest, TheStatusBarDescribesTheDay) {
  Open();
  Content().dayEvents = {EveryYear(5, 23, u"<b>Fête</b> & Cie")};
  Dialog().SettingsChanged();
  Show(20240523);  // a full moon too
  EXPECT_EQ(Status(), "<b>Fête</b> & Cie | (Pleine lune)");
  Show(20241131);
  EXPECT_EQ(Status(), "Le 31 novembre 2024 n'existe pas ; il compte comme le 1er décembre");
  Show(20240521);
  QTest::keyClick(&Dialog().Month(), Qt::Key_Right, Qt::ShiftModifier);
  Settle();
  EXPECT_EQ(Status(), "Du 21 mai 2024 au 22 mai 2024, 2 jours");
}

// The list in the pane names the holidays of the month; without it the status bar names the next one.
TEST_F(FrameTest, TheStatusBarNamesTheNextHolidayWhereNoListDoes) {
  Open();
  Content().dayEvents = {EveryYear(5, 8, u"Victoire 1945"), EveryYear(6, 1, u"Fête", false)};
  Dialog().SettingsChanged();
  Show(20240502);
  frame->resize(1100, 900);
  Settle();
  EXPECT_EQ(Status(), "");
  const std::string next = "Prochain jour férié : 8 mai 2025, Victoire 1945";
  Show(20240521);
  EXPECT_EQ(Status(), next) << "the listed one is over";
  Show(20240502);
  frame->RunCommand(kCmdTogglePane);
  EXPECT_EQ(Status(), "Prochain jour férié : 8 mai 2024, Victoire 1945");
  frame->RunCommand(kCmdTogglePane);
  Show(20240521);
  frame->resize(1100, frame->minimumHeight());
  Settle();
  EXPECT_EQ(Status(), next);
  Show(20240508);
  EXPECT_TRUE(Status().starts_with("Victoire 1945 | "));
}

TEST_F(FrameTest, WhatStandsAroundTheMonthIsPaintedWhereItBelongs) {
  Open();
  const QRect month = Dialog().Month().geometry();
  const QRect remark(month.right() - 100, 0, 100, Dialog().Header().y());
  const QRect line(month.left() - 1, month.center().y(), 1, 1);
  EXPECT_EQ(ColorsIn(Dialog(), line), std::set{ToQColor(kHighlightColor).rgb()});
  const auto plain = ColorsIn(Dialog(), remark);
  const auto status = ColorsIn(*frame->statusBar(), frame->statusBar()->rect()).size();
  EXPECT_EQ(plain.count(ToQColor(Display().ColorAt(kColorCalHeader)).rgb()), 0U);
  Show(15821004);
  EXPECT_EQ(ColorsIn(Dialog(), remark).count(ToQColor(Display().ColorAt(kColorCalHeader)).rgb()), 1U);
  EXPECT_GT(ColorsIn(Dialog(), {month.right() - 20, 2, 12, Dialog().Header().y() - 4}).size(), 2U)
      << "the note ends with the month";
  Show(15821131);
  EXPECT_EQ(ColorsIn(Dialog(), remark), plain);
  EXPECT_GT(ColorsIn(*frame->statusBar(), frame->statusBar()->rect()).size(), status + 5) << "no such date";
  Control<QPushButton>("julien")->setFocus();
  EXPECT_EQ(ColorsIn(Dialog(), line).count(ToQColor(kHighlightColor).rgb()), 0U);
  const QRect beside(Dialog().Header().geometry().right() + 20, month.center().y(), 8, 1);
  EXPECT_GT(ColorsIn(Dialog(), beside).size(), 1U);
  frame->RunCommand(kCmdTogglePane);
  EXPECT_EQ(ColorsIn(Dialog(), {Dialog().width() - 5, month.center().y(), 5, 1}).size(), 1U);
}

TEST_F(FrameTest, BarsAreHiddenAndShownAndOnlyTheStatusBarIsRemembered) {
  Open();
  frame->RunCommand(kCmdToggleToolBar);
  frame->RunCommand(kCmdToggleStatusBar);
  EXPECT_FALSE(frame->findChild<QToolBar*>()->isVisible());
  EXPECT_FALSE(frame->statusBar()->isVisible());
  EXPECT_FALSE(Action(kCmdToggleToolBar).isChecked());
  EXPECT_FALSE(Action(kCmdToggleStatusBar).isChecked());
  frame->close();
  Open();
  EXPECT_TRUE(frame->findChild<QToolBar*>()->isVisible());
  EXPECT_FALSE(frame->statusBar()->isVisible());
  frame->showMinimized();
  Settle();
  const std::size_t before = store.written.size();
  frame->close();
  EXPECT_EQ(store.written.size(), before) << "a minimized frame stores nothing";
}

TEST_F(FrameTest, AltAndArrowsGoThroughTheDatesVisited) {
  Open();
  EXPECT_FALSE(Action(kCmdGoBack).isEnabled());
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_End, Qt::Key_J, Qt::Key_PageUp}) Press(key);
  Control<QPushButton>("julien")->click();  // as near as a step, yet not one
  for (const PackedDate date : {-451201, -440101, kLastDateShown, 20240516, 20240515}) {
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Now(), date);
  }
  EXPECT_FALSE(Action(kCmdGoBack).isEnabled());
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Now(), 20240516);
  EXPECT_EQ(Dialog().Header().TitleText(), QStringLiteral("Mai 2024"));
  Show(15821004);
  EXPECT_FALSE(Action(kCmdCopyRepublicanDate).isEnabled());
  Press(Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(Now(), 20240515);
  Click(Dialog().Header(), Dialog().Header().Places().next, Qt::ControlModifier);
  EXPECT_EQ(Dialog().Month().Month().year, 2025);
  EXPECT_EQ(Dialog().JulianText(), QStringLiteral("Jeudi 2 mai 2025"));
  EXPECT_TRUE(Dialog().Month().hasFocus());  // a click in the header leaves the keyboard where it is
}

TEST_F(FrameTest, WithThePaneHiddenTheKeyboardBelongsToTheMonthOrTheHeader) {
  Open();
  frame->RunCommand(kCmdTogglePane);
  Click(Dialog().Header(), Dialog().Header().Places().year);
  auto* const editor = Dialog().Header().findChild<CYearEdit*>();
  editor->selectAll();
  QTest::keyClicks(editor, QStringLiteral("1789"));
  EXPECT_EQ(Selected().year, 1789);
  EXPECT_TRUE(Dialog().Header().IsEditingYear());  // typing is not interrupted
  QTest::keyPress(editor, Qt::Key_Return);
  QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(Dialog().Month().hasFocus());
  EXPECT_EQ(Dialog().Header().TitleText(), QStringLiteral("Mai 1789"));
  EXPECT_TRUE(Dialog().History().CanGoBack());
  frame->RunCommand(kCmdGoBack);
  EXPECT_EQ(Now(), 20240515);  // not a year passed while typing
}

// The days that the user points at stand in the fields of the editor, and what it saves is seen at once.
TEST_F(FrameTest, TheEditorsOpenOnTheDaysThatWerePointedAt) {
  Open();
  const auto point = [&](int day) {
    return ToQRect(Dialog().Month().Places().CellRect(Dialog().Month().Month().CellOf(5, day))).center();
  };
  const auto cell = [&](int day) {
    const MonthModel& month = Dialog().Month().Month();
    return month.cells[static_cast<std::size_t>(month.CellOf(5, day))];
  };
  const auto save = [](QDialog& dialog) {
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
  };
  for (const bool byKey : {true, false}) {
    Select(byKey ? 20240514 : 20240516);
    Dialog().Refresh();
    InDialog<QDialog>([=](QDialog& dialog) {
      EXPECT_EQ(dialog.findChild<QSpinBox*>(QStringLiteral("day"))->value(), byKey ? 14 : 16);
      EXPECT_EQ(dialog.findChild<QComboBox*>(QStringLiteral("month"))->currentIndex(), 4);
      QTest::keyClicks(dialog.focusWidget(), QStringLiteral("Moisson"));
      save(dialog);
    });
    if (byKey) {
      Press(Qt::Key_Menu);
    } else {
      QTest::mouseClick(&Dialog().Month(), Qt::LeftButton, {}, point(16));
      QTest::mouseDClick(&Dialog().Month(), Qt::LeftButton, {}, point(16));
    }
    EXPECT_EQ(cell(byKey ? 14 : 16).eventText, u"Moisson");
  }
  EXPECT_EQ(Content().dayEvents.size(), 2U);

  InDialog<QDialog>(save);
  QTest::mousePress(&Dialog().Month(), Qt::LeftButton, {}, point(21));
  QTest::mouseMove(&Dialog().Month(), point(23));
  QTest::mouseRelease(&Dialog().Month(), Qt::LeftButton, {}, point(23));
  Settle();
  EXPECT_EQ(Content().vacations, std::vector{Period(20240521, 20240523)});
  EXPECT_EQ(cell(22).marks & kVacationMark, kVacationMark);
  EXPECT_EQ(messages.beeps, 0);
}

TEST_F(FrameTest, TheTitleNamesAnotherCalendarThanTheUsualOneAndQuitEndsTheWindow) {
  Open();
  EXPECT_EQ(frame->windowTitle(), QStringLiteral("Orbisol"));
  store.Write({{"CalendarName", TextValue(u"Été & <b> [*]")}});
  Open();
  EXPECT_EQ(frame->windowHandle()->title(), QString::fromUtf8("Orbisol - Été & <b> [*]"));
  EXPECT_TRUE(frame->testAttribute(Qt::WA_AlwaysShowToolTips)) << "tips of inactive windows";
  Action(kCmdQuit).trigger();
  EXPECT_FALSE(frame->isVisible());
}

TEST_F(FrameTest, TabGoesThroughEverythingInAFullCircle) {
  Open();
  frame->resize(1200, 700);
  for (const bool isPaneShown : {true, false}) {
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
      Dialog().ShowPane(isPaneShown);
      Dialog().FocusMonth();
      QStringList names;
      do {
        Press(key);
        const QWidget* const focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr);
        names << focused->accessibleName() + focused->property("text").toString();
      } while (!Dialog().Month().hasFocus() && names.size() < 40);
      EXPECT_TRUE(Dialog().Month().hasFocus());
      int place = 0;  // the first four stand in the header, the others in the pane
      for (const char* const name :
           {"Mois précédent", "Mois : Mai", "Année : 2024", "Mois suivant", "Mercredi 2 mai", "Jour julien",
            "floréal", "Date retenue", "&julien", "Aujourd'hui", "Ce mois-ci"})
        EXPECT_EQ(names.filter(QString::fromUtf8(name)).size(), place++ < 4 || isPaneShown ? 1 : 0) << name;
    }
  }
}

}  // namespace
}  // namespace orbisol

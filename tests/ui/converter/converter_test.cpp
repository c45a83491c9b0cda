// The converter pane, through its controls.

#include <QAccessible>
#include <QClipboard>
#include <QMenu>

#include <algorithm>

#include "tests/ui/shell/frame_fixture.h"

namespace orbisol {
namespace {

class ConverterTest : public FrameTest {
 protected:
  ConverterTest() { Open(); }

  bool ShowsLine(const char* text) {
    for (const QLabel* const label : Dialog().Pane().findChildren<QLabel*>())
      if (label->isVisible() && label->text() == QString::fromUtf8(text)) return true;
    return false;
  }
  void Click(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }

  QCheckBox* Entry() { return Control<QCheckBox>("Saisir date républicaine"); }
  QComboBox* Day() { return Named<QComboBox>("Jour républicain"); }
  QComboBox* Month() { return Named<QComboBox>("Mois républicain"); }
  QLineEdit* Year() { return Named<QLineEdit>("Année républicaine"); }
  QLineEdit* Kept() { return Named<QLineEdit>("Date retenue"); }
  QLineEdit* Difference() { return Named<QLineEdit>("Écart en jours"); }
  QToolButton* Keep() { return Named<QToolButton>("Retenir la date affichée"); }

  void EnterRepublican(int day, int monthIndex, const char* year) {
    Year()->selectAll();
    QTest::keyClicks(Year(), QLatin1String(year));
    Month()->setCurrentIndex(monthIndex);
    Day()->setCurrentIndex(day - 1);
    Click(Control<QPushButton>("Ok"));
  }
};

TEST_F(ConverterTest, TheSelectedDateIsShownInTheOtherCalendars) {
  Show(17991109);
  EXPECT_TRUE(ShowsLine("Samedi 29 octobre 1799"));
  EXPECT_TRUE(ShowsLine("Jour julien n° 2378444"));
  EXPECT_TRUE(ShowsLine("Octidi 18 brumaire an 8\n(an VIII)"));

  Show(15821004);
  EXPECT_TRUE(ShowsLine("Jeudi 4 octobre 1582"));
  EXPECT_TRUE(ShowsLine("Grégorien proleptique : 14 octobre 1582"));
  EXPECT_FALSE(Entry()->isVisible());
  Show(15821015);
  EXPECT_TRUE(ShowsLine("Vendredi 5 octobre 1582"));
  EXPECT_FALSE(ShowsLine("Grégorien proleptique : 15 octobre 1582"));

  Rules().firstDayOfYear[0] = {15000325, false};  // the civil year, not the historical one
  Show(16000324);
  EXPECT_TRUE(ShowsLine("Vendredi 14 mars 1599"));
}

TEST_F(ConverterTest, WhatTheMonthBringsIsListedAndLeadsToItsDay) {
  frame->resize(1280, 720);
  Content().dayEvents = {EveryYear(5, 8, u"Victoire & <b>"), EveryYear(5, 20, u"Anniversaire", false)};
  Dialog().SettingsChanged();
  Settle();
  auto* const list = Named<QListWidget>("Ce mois-ci");
  ASSERT_TRUE(list->isVisible());
  QStringList lines;
  for (int i = 0; i < list->count(); ++i) lines << list->item(i)->text();
  EXPECT_EQ(lines.mid(0, 3).join(u'|'),
            QStringLiteral("Victoire & <b>|Anniversaire|Dernier quartier de lune"));

  QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(list);
  ASSERT_EQ(spoken->role(), QAccessible::List);
  EXPECT_EQ(spoken->child(0)->text(QAccessible::Name),
            QStringLiteral("Mercredi 8 mai 2024 : Victoire & <b>, jour férié"));

  list->setFocus(Qt::TabFocusReason);
  QTest::keyClick(list, Qt::Key_Home);
  QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(Now(), 20240520);
  EXPECT_TRUE(list->hasFocus());
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
  EXPECT_EQ(Now(), 20240508);
  const auto colorsOf = [&](int line) {
    const QRect place = list->visualItemRect(list->item(line));
    return ColorsIn(*list->viewport(), place.adjusted(place.width() / 8, 0, 0, 0));
  };
  EXPECT_EQ(colorsOf(0).count(list->palette().color(QPalette::HighlightedText).rgb()), 1U) << "has the keys";

  // Kinds are told by color and weight: holiday, event, moon.
  std::set<QRgb> inks;
  Show(20240530);
  Dialog().FocusMonth();
  for (const int line : {0, 1, 2}) {
    const std::set<QRgb> colors = colorsOf(line);
    inks.insert(
        *std::min_element(colors.begin(), colors.end(), [](QRgb a, QRgb b) { return qGray(a) < qGray(b); }));
  }
  EXPECT_EQ(inks.size(), 3U);
  Show(20240508);
  const std::set<QRgb> marked = colorsOf(0);
  Show(20240509);
  EXPECT_NE(colorsOf(0), marked) << "the line of the day is tinted";

  // Low, so that the list scrolls: the last line of a month leaves the next one at its first.
  frame->resize(1280, frame->height() - list->height() + 4 * list->sizeHintForRow(0));
  Show(20240530);
  Show(20240611);
  EXPECT_EQ(list->indexAt(QPoint(5, 5)).row(), 0);

  frame->resize(1280, 100);  // as low as it goes: the groups need the room
  Settle();
  EXPECT_FALSE(list->isVisible());
}

TEST_F(ConverterTest, ARepublicanDateIsEnteredAndShown) {
  Show(20240101);
  EXPECT_FALSE(Day()->isVisible());
  Click(Entry());
  ASSERT_TRUE(Day()->isVisible());
  EXPECT_EQ(Month()->count(), 13);
  EXPECT_EQ(Day()->currentText() + Month()->currentText() + Year()->text(), QStringLiteral("11nivose232"));

  EnterRepublican(18, 1, "a8");  // a letter is not taken
  EXPECT_EQ(Now(), 17991109);
  EnterRepublican(1, 0, "0");  // years count from 1
  EXPECT_EQ(Now(), 17920922);
  EXPECT_EQ(Year()->text(), QStringLiteral("1"));
  EnterRepublican(1, 0, "-12");
  EXPECT_EQ(Now(), 17920922);
  EnterRepublican(30, 11, "999999999");
  EXPECT_EQ(Selected().year, 3999);  // limited, then clamped
}

TEST_F(ConverterTest, ComplementaryDaysFollowTheYear) {
  Show(20240101);
  Click(Entry());
  Month()->setCurrentIndex(12);
  Year()->setText(QStringLiteral("3"));
  EXPECT_EQ(Day()->count(), 6);
  Day()->setCurrentIndex(5);
  Year()->setText(QStringLiteral("2"));
  EXPECT_EQ(Day()->count(), 5);
  EXPECT_EQ(Day()->currentIndex(), 4);  // reduced to the last one
  Year()->setText(QStringLiteral("3"));
  Day()->setCurrentIndex(5);
  QTest::keyClick(Year(), Qt::Key_Return);
  EXPECT_EQ(Now(), 17950922);
  EXPECT_TRUE(ShowsLine("Jour de la Révolution an 3\n(an III)"));
  Month()->setCurrentIndex(3);
  EXPECT_EQ(Day()->count(), 30);
}

TEST_F(ConverterTest, ADateBeforeTheEraEndsTheEntry) {
  Show(17920922);
  Click(Entry());
  Year()->setFocus();
  Show(17920921);
  EXPECT_TRUE(Dialog().Month().hasFocus());  // not whatever control comes next
  EXPECT_FALSE(Entry()->isVisible());
  EXPECT_FALSE(Day()->isVisible());
  Show(17920922);
  EXPECT_TRUE(Entry()->isVisible());
  EXPECT_FALSE(Entry()->isChecked());
}

TEST_F(ConverterTest, TheDistanceToARememberedDateIsShown) {
  Show(20240515);
  EXPECT_EQ(Difference()->text(), QString());
  EXPECT_EQ(Difference()->placeholderText(), QStringLiteral("jours"));
  const QString toKeep = QStringLiteral("Retenez une date avec le signet");
  EXPECT_EQ(Kept()->placeholderText(), toKeep);
  EXPECT_GT(Kept()->width(), Kept()->fontMetrics().horizontalAdvance(toKeep));
  QTest::mouseClick(Kept(), Qt::LeftButton);
  EXPECT_EQ(Now(), 20240515);  // nothing is remembered yet

  Click(Keep());
  EXPECT_EQ(Kept()->text(), QStringLiteral("15 mai 2024"));
  EXPECT_EQ(Difference()->text(), QStringLiteral("0"));
  EXPECT_TRUE(Dialog().Month().hasFocus());
  Show(20210101);
  EXPECT_EQ(Difference()->text(), QStringLiteral("-1 230"));
  Show(20240516);
  EXPECT_EQ(Difference()->text(), QStringLiteral("1"));

  // The window came to the front, a menu closed, an editor gave the focus back: nobody asked for the date.
  for (const Qt::FocusReason reason :
       {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason, Qt::OtherFocusReason}) {
    Kept()->setFocus(reason);
    EXPECT_EQ(Now(), 20240516) << reason;
    Dialog().FocusMonth();
  }
  QTest::mouseClick(Kept(), Qt::LeftButton);
  EXPECT_EQ(Now(), 20240515);
  QTest::keyClick(frame->windowHandle(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(),
            Kept()->text());  // not the long date, which the menu copies

  Click(Keep());
  EXPECT_EQ(Kept()->text() + Difference()->text(), QString());
  EXPECT_TRUE(Dialog().Month().hasFocus());
}

TEST_F(ConverterTest, TheRememberedDateIsWrittenInTheOrderAndUnderTheRulesInForce) {
  Click(Keep());
  for (const auto& [order, text] : {std::pair{0, "mai 15, 2024"}, {2, "2024 mai 15"}, {1, "15 mai 2024"}}) {
    Selected().dateOrder = order;
    Dialog().Refresh();
    EXPECT_EQ(Kept()->text(), QLatin1String(text));
  }
  Rules().firstDayOfYear[0] = {20000301, true};
  Dialog().SettingsChanged();
  EXPECT_EQ(Kept()->text(), QStringLiteral("15 mai 2025"));
}

TEST_F(ConverterTest, TheKeyboardCopiesWhatIsShownAndPressesButtons) {
  for (const char* const text : {"Mercredi 2 mai 2024", "Jour julien n° 2460446"}) {
    auto* const line = Control<QLabel>(text);
    line->setFocus(Qt::TabFocusReason);
    QTest::keyClick(frame->windowHandle(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), line->text());  // not the date, which the menu copies

    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(9, 9), line->mapToGlobal(QPoint(9, 9)));
    QApplication::sendEvent(line, &asked);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().first()->text(), QStringLiteral("&Copier"));
    menu->close();
  }

  auto* const button = Control<QPushButton>("notre ère");
  button->setFocus();
  QTest::keyClick(button, Qt::Key_Return);
  EXPECT_EQ(Now(), 10101);
}

TEST_F(ConverterTest, TheButtonsGoToNotableDays) {
  Rules().ApplyGregorianStart(17520914);
  for (const auto& [button, date] : {std::pair{"républicain", 17920922},
                                     {"grégorien", 17520914},
                                     {"notre ère", 10101},
                                     {"julien", -440101},
                                     {"Aujourd'hui", 20240515}}) {
    Click(Control<QPushButton>(button));
    EXPECT_EQ(Now(), date) << button;
    EXPECT_EQ(Dialog().Month().Month().year, Selected().year);
  }
}

}  // namespace
}  // namespace orbisol

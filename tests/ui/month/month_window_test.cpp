#include "ui/month/month_window.h"

#include <QHelpEvent>
#include <QScreen>
#include <QTemporaryDir>
#include <QToolTip>
#include <QWindow>

#include <sys/stat.h>

#include <set>

#include "tests/support/warnings.h"
#include "tests/ui/month/month_fixture.h"
#include "ui/toolkit/colors.h"

namespace orbisol {
namespace {

constexpr auto kCtrl = Qt::ControlModifier;

TEST_F(MonthWindowTest, EveryKeyMovesTheDateAsItsTableSays) {
  const struct {
    PackedDate from;
    int key;
    PackedDate to;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
  } kKeys[] = {
      {19990101, Qt::Key_Return, 20240515},
      {19990101, Qt::Key_Enter, 20240515, Qt::KeypadModifier},
      {20240331, Qt::Key_PageUp, 20240229},
      {20241231, Qt::Key_PageDown, 20250131},
      {20240229, Qt::Key_PageUp, 20230229, kCtrl},  // On purpose: the day is kept though there is none.
      {20240229, Qt::Key_PageDown, 20250229, kCtrl},
      {20240515, Qt::Key_Home, -39990101},
      {20240515, Qt::Key_End, 39991231},
      {20240501, Qt::Key_Up, 20240424},
      {15821004, Qt::Key_Right, 15821015},
      {20240531, Qt::Key_Down, 20240607, Qt::KeypadModifier},
      {20240515, Qt::Key_E, 10101},
      {20240515, Qt::Key_G, 15821015},
      {20240515, Qt::Key_J, -440101},
      {20240515, Qt::Key_R, 17920922, Qt::ShiftModifier},
      {-39990103, Qt::Key_Up, -39990101},
  };
  for (const auto& row : kKeys) {
    SCOPED_TRACE(testing::Message() << "from " << row.from << " with key " << row.key);
    Select(row.from);
    EXPECT_TRUE(Press(row.key, row.modifiers));
    EXPECT_EQ(Now(), row.to);
    EXPECT_FALSE(window->HasRange());
  }
}

// Alt and Meta belong to the frame, and so do letters with Ctrl.
TEST_F(MonthWindowTest, NoOtherKeyMovesTheDateAndNoneWithAModifierOfTheFrame) {
  const std::set<int> kMoving = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_PageUp, Qt::Key_PageDown,
                                 Qt::Key_Home,   Qt::Key_End,   Qt::Key_Left,   Qt::Key_Right,
                                 Qt::Key_Up,     Qt::Key_Down,  Qt::Key_E,      Qt::Key_G,
                                 Qt::Key_J,      Qt::Key_R};
  std::set<int> keys = {Qt::Key_Escape, Qt::Key_Menu, Qt::Key_Help, Qt::Key_Back, Qt::Key_Forward};
  for (int key = Qt::Key_Space; key <= Qt::Key_AsciiTilde; ++key) keys.insert(key);
  for (int key = Qt::Key_Backspace; key <= Qt::Key_F12; ++key) keys.insert(key);
  for (const int key : keys)
    for (unsigned held = 0; held < 16; ++held) {
      const Qt::KeyboardModifiers modifiers(QFlag(held * Qt::ShiftModifier));
      Select(20230310);
      window->Refresh();
      const bool isLetter = key <= Qt::Key_AsciiTilde;
      const bool isFrames =
          modifiers & (Qt::AltModifier | Qt::MetaModifier) || (isLetter && modifiers & kCtrl);
      const bool opens = key == Qt::Key_Menu || (key == Qt::Key_F10 && modifiers == Qt::ShiftModifier);
      const bool isMoved = kMoving.count(key) > 0 && !isFrames;
      EXPECT_EQ(Press(key, modifiers), isMoved || opens) << key << " with " << held;
      EXPECT_EQ(Now() != 20230310, isMoved) << key << " with " << held;
    }
}

TEST_F(MonthWindowTest, KeysAndClicksAreToldAsMovesAndDragsAsDrags) {
  Press(Qt::Key_Right);
  window->clearFocus();
  Down(At(5, 20));
  EXPECT_TRUE(window->hasFocus());
  EXPECT_EQ(moves, 2);
  Drag(At(5, 21));
  EXPECT_EQ(moves, 2);
  EXPECT_EQ(drags, 1);
}

TEST_F(MonthWindowTest, ClicksSelectDaysAndDragsOpenTheRangeFromItsEarlierToItsLaterDay) {
  const struct {
    const char* what;
    PackedDate shown;
    std::vector<std::pair<int, int>> path;  // months and days: one for a click
    PackedDate to;
    Ranges opened = {};
    Qt::KeyboardModifiers modifiers = {};
  } kGestures[] = {
      {"the first row's last day with Ctrl", 20240515, {{5, 4}}, 20240504, {}, kCtrl},
      {"a leading day", 20240515, {{4, 29}}, 20240429},
      {"a leading day with Ctrl", 20240229, {{1, 31}}, 20230229, {}, kCtrl},
      {"a trailing day", 20241215, {{1, 1}}, 20250101},
      {"a trailing day with Ctrl", 20240515, {{6, 1}}, 20250515, {}, kCtrl},
      {"forward", 20240515, {{5, 13}, {5, 14}, {5, 22}}, 20240522, {{20240513, 20240522}}},
      {"to and fro", 20240515, {{5, 20}, {5, 21}, {5, 20}}, 20240520},
      {"over an end", 20240515, {{5, 29}, {5, 31}, {6, 1}, {6, 12}}, 20240612, {{20240529, 20240612}}},
      {"over a beginning", 20240515, {{5, 3}, {4, 30}, {4, 24}}, 20240424, {{20240424, 20240503}}},
      {"over dropped days", 15821003, {{10, 4}, {10, 15}}, 15821015, {{15821004, 15821015}}},
      {"before the era", -440315, {{3, 10}, {3, 20}}, -440320, {{-440310, -440320}}},
      {"to the first day", -39990131, {{1, 3}, {1, 1}}, -39990101, {{-39990101, -39990103}}},
      {"to the last day", 39991201, {{12, 29}, {12, 31}}, 39991231, {{39991229, 39991231}}},
  };
  for (const bool mondayFirst : {true, false}) {
    Rules().iso8601 = mondayFirst;
    window->SettingsChanged();
    for (const auto& row : kGestures) {
      SCOPED_TRACE(testing::Message() << row.what << (mondayFirst ? ", Monday first" : ", Sunday first"));
      openedRanges.clear();
      Select(row.shown);
      const auto& [month, day] = row.path.front();
      if (window->Month().CellOf(month, day) == kNoCell) continue;  // with the other first weekday
      QPoint at = At(month, day);
      Mouse(QEvent::MouseButtonPress, at, row.modifiers);
      EXPECT_FALSE(window->HasRange());
      for (std::size_t i = 1; i < row.path.size(); ++i) Drag(at = At(row.path[i].first, row.path[i].second));
      EXPECT_EQ(window->HasRange(), row.path.size() > 1);
      Up(at);
      EXPECT_EQ(Now(), row.to);
      EXPECT_EQ(openedRanges, row.opened);
    }
  }
}

TEST_F(MonthWindowTest, FirstMonthBeginsWithEmptyCellsAndClicksBesideTheDaysChangeNothing) {
  Display().showWeekNumber = true;
  Display().grid = false;
  window->SettingsChanged();
  Select(-39990115);
  // On purpose: the first month begins with empty cells, and is painted behind them.
  QImage blank = window->grab(CellOf(1, 20)).toImage();
  blank.fill(Qt::white);
  EXPECT_NE(window->grab(CellOf(1, 20)).toImage(), blank);
  const QPoint empty(50, 90);
  const QPoint week(7 * window->Places().columnWidth, 100);
  for (const QPoint& at : {empty, week, QPoint(50, 30), QPoint(-5, 100), QPoint(50, 5000)}) {
    Down(at);
    Drag(At(1, 20));  // begun beside the days it is no drag
    Up(at);
    EXPECT_EQ(Now(), -39990115) << at.x() << ", " << at.y();
  }
}

TEST_F(MonthWindowTest, DragWaitsUntilThePointerLeavesTheCellOverWhichTheMonthChanged) {
  const QPoint first = At(6, 1);
  const QPoint second = At(6, 2);
  Down(second);
  Drag(second + QPoint(1, 0));
  Up(second);
  EXPECT_EQ(Now(), 20240602);
  EXPECT_EQ(openedRanges, Ranges());

  Select(20240515);
  Down(At(5, 31));
  Drag(first);
  Drag(first + QPoint(1, 0));
  EXPECT_EQ(Now(), 20240601);
  Drag(second);  // there stands the end of June now
  Up(second);
  EXPECT_EQ(openedRanges, (Ranges{{20240531, 20240630}}));
}

TEST_F(MonthWindowTest, ShiftWithArrowsSelectsARangeThatTheMenuKeyOpens) {
  for (const int key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Down, Qt::Key_Up}) {
    Press(key, Qt::ShiftModifier);
    EXPECT_TRUE(window->HasRange());
  }
  Press(Qt::Key_Menu);
  EXPECT_EQ(openedRanges, (Ranges{{20240515, 20240522}}));
  for (const int ending : {Qt::Key_Right, Qt::Key_Escape}) {
    Press(Qt::Key_Up, Qt::ShiftModifier);
    Press(ending);
    EXPECT_FALSE(window->HasRange());
  }
  Press(Qt::Key_Up, Qt::ShiftModifier);
  Wheel({0, 120});
  EXPECT_FALSE(window->HasRange());
  Press(Qt::Key_Up, Qt::ShiftModifier);
  Select(17890714);  // selected elsewhere
  window->Refresh();
  EXPECT_FALSE(window->HasRange());
}

// A double click on a grey day opens it: its first press has made its month the one shown.
TEST_F(MonthWindowTest, MenuKeyAndDoubleClickOpenADay) {
  Press(Qt::Key_Menu);
  Press(Qt::Key_F10, Qt::ShiftModifier);
  for (const QPoint& at : {At(5, 20), At(4, 30), QPoint(50, 30)}) {  // a day, a grey one, the header
    Down(at);
    Up(at);
    Mouse(QEvent::MouseButtonDblClick, at);
    Up(at);
  }
  EXPECT_EQ(opened, (std::vector<PackedDate>{20240515, 20240515, 20240520, 20240430}));
  // April's own first day lies where the grey 27 April was, and is grey too.
  Select(20260513);
  window->Refresh();
  Down(At(4, 27));
  Up(At(4, 27));
  Mouse(QEvent::MouseButtonDblClick, At(4, 27));
  EXPECT_EQ(opened.back(), 20260427);
}

TEST_F(MonthWindowTest, WheelStepsByNotchesHoweverSmallItsTurns) {
  struct Turn {
    int eighths;  // turn in eighths of a degree
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    Qt::ScrollPhase phase = Qt::NoScrollPhase;
    quint64 time = 0;  // time of the turn in milliseconds
    int aside = 0;
  };
  const std::tuple<const char*, std::vector<Turn>, PackedDate> kTurns[] = {
      {"a notch away", {{120}}, 20231231},
      {"two towards us are two steps", {{-240}}, 20240329},
      {"Ctrl", {{-120, kCtrl}}, 20250131},
      {"a notch bit by bit", {{-50}, {-50}, {-20}}, 20240229},
      {"the other way the rest is forgotten", {{-100}, {60}, {60}}, 20231231},
      {"fingers laid down again", {{-100}, {0, {}, Qt::ScrollBegin}, {-60}}, 20240131},
      {"Ctrl in between", {{-100}, {-60, kCtrl}}, 20240131},
      {"a second later", {{-100, {}, {}, 1000}, {-60, {}, {}, 2001}}, 20240131},
      {"aside", {{-120, {}, {}, 0, 121}}, 20240131},
  };
  for (const auto& [what, turns, to] : kTurns) {
    Select(20240131);
    for (const Turn& turn : turns) {
      const Qt::ScrollPhase phase = &turn == &turns.front() ? Qt::ScrollBegin : turn.phase;
      Wheel({turn.aside, turn.eighths}, turn.modifiers, phase, turn.time);
    }
    EXPECT_EQ(Now(), to) << what;
  }
}

// A pipe would never answer. A picture is read after the first paint and after each change of settings.
TEST_F(MonthWindowTest, PicturesComeFromRegularFilesAndWithoutBeingWaitedFor) {
  const QTemporaryDir folder;
  const QString picture = folder.filePath(QStringLiteral("picture.png"));
  const QString pipe = folder.filePath(QStringLiteral("pipe.png"));
  ASSERT_EQ(::mkfifo(qPrintable(pipe), 0600), 0);
  Display().backgroundImage = true;
  for (const auto& [path, color] :
       {std::pair{pipe, Qt::white}, {picture, Qt::red}, {picture, Qt::green}, {pipe, Qt::white}}) {
    QImage square(4, 4, QImage::Format_RGB32);
    square.fill(color);
    ASSERT_TRUE(square.save(picture));
    Display().backgroundImagePath.Set(path.toStdU16String());
    window->SettingsChanged();
    const auto seen = [&] { return window->grab().toImage().pixelColor(50, 415); };
    EXPECT_EQ(seen(), QColor(Qt::white)) << "nothing is waited for";
    EXPECT_TRUE(QTest::qWaitFor([&, wanted = QColor(color)] { return seen() == wanted; }, 60'000))
        << path.toStdString();
  }
}

TEST_F(MonthWindowTest, UnderlineFollowsTheClockWhenItsParentIsActivatedAgain) {
  QWidget parent;
  window->setParent(&parent);
  window->show();
  parent.show();
  QWidget another;
  Activate(another);
  const QImage tomorrow = window->grab(CellOf(5, 16)).toImage();
  const ScopedPlatform later{FakeLocale(), FakeClock({2024, 5, 16})};
  parent.activateWindow();
  Settle();
  EXPECT_NE(window->grab(CellOf(5, 16)).toImage(), tomorrow);
  window->setParent(nullptr);
}

TEST_F(MonthWindowTest, PointerStaysOnTheActiveCellWhenItIsMagnetic) {
  const QPoint away = window->mapToGlobal(QPoint(5, 5));
  for (const bool isMagnetic : {true, false}) {
    Display().magnetMouse = isMagnetic;
    Select(20240515);
    QCursor::setPos(away);
    Down(At(5, 29));
    Drag(At(6, 1));
    const QPoint first = window->mapToGlobal(CellOf(6, 1).topLeft() + QPoint(50, 30));
    EXPECT_EQ(QCursor::pos(), isMagnetic ? first : away) << "the month shifted under it";
    QCursor::setPos(away);
    Up(At(6, 20));
    EXPECT_EQ(QCursor::pos(), isMagnetic ? first : away) << "released elsewhere";
    QCursor::setPos(away);
    Down(QPoint(50, 30));
    Up(QPoint(50, 30));
    EXPECT_EQ(QCursor::pos(), away) << "a click on a weekday name";
  }
}

TEST_F(MonthWindowTest, TipsNameTheDayItsTextsAndItsMoon) {
  for (const auto& [eventsOnly, at, tip] :
       {std::tuple{true, At(5, 1), "Fête <b>du</b> travail\nVacances\n(Dernier quartier de lune)"},
        {true, At(5, 2), ""},
        {false, At(5, 2), "Jeudi 2 mai 2024"},
        {false, QPoint(50, 30), ""}}) {
    Display().tipsForEventsOnly = eventsOnly;
    QToolTip::hideText();
    QHelpEvent help(QEvent::ToolTip, at, window->mapToGlobal(at));
    QApplication::sendEvent(window.get(), &help);
    EXPECT_EQ(help.isAccepted() ? QToolTip::text() : QString(), TipMarkup(QString::fromUtf8(tip)));
  }
}

TEST_F(MonthWindowTest, IsSharpOnAScreenOfAnotherRatioAndPaintableInAnySize) {
  const CWarnings warnings;
  ASSERT_EQ(QGuiApplication::screens().size(), 2);
  for (const int number : {1, 0}) {
    QScreen* const screen = QGuiApplication::screens()[number];
    window->windowHandle()->setScreen(screen);
    Settle();
    const QImage picture = window->grab().toImage();
    EXPECT_EQ(picture.size(), (QSizeF(700, 420) * screen->devicePixelRatio()).toSize());
  }
  const QImage plain = window->grab().toImage();
  QFont large;
  large.setPixelSize(40);
  window->setFont(large);
  EXPECT_NE(window->grab().toImage(), plain) << "names are abbreviated rather than small";
  Display().showWeekNumber = true;
  Display().backgroundImage = true;
  Display().fontName.Set(u"No Such Font 42");
  window->SettingsChanged();
  for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(8, 400), QSize(400, 8)}) {
    window->resize(size);
    window->grab();
  }
  EXPECT_EQ(warnings.Texts(), std::vector<std::string>());
}

// At such a ratio windows begin and end in the middle of a device pixel.
TEST_F(MonthWindowTest, ClosingLinesAreSeenWhereverTheWindowLiesAtAFractionalRatio) {
  QWidget parent;
  auto* const month = new CMonthWindow(&parent);
  parent.resize(720, 440);
  parent.show();
  QScreen* const screen = QGuiApplication::screens()[1];
  parent.windowHandle()->setScreen(screen);
  const double ratio = screen->devicePixelRatio();
  Display().grid = true;
  month->SettingsChanged();
  for (const QRect& place : {QRect(0, 0, 700, 420), QRect(0, 0, 701, 421), QRect(1, 1, 700, 420),
                             QRect(1, 1, 701, 421), QRect(2, 2, 701, 421)}) {
    month->setGeometry(place);
    const QImage picture = parent.grab().toImage();
    const int right = qRound((place.x() + place.width()) * ratio) - 1;
    const int bottom = qRound((place.y() + place.height()) * ratio) - 1;
    EXPECT_EQ(picture.pixelColor(75, bottom), ToQColor(kGreyTextColor)) << place.x() << ' ' << place.width();
    EXPECT_EQ(picture.pixelColor(right, 600), ToQColor(kGreyTextColor)) << place.x() << ' ' << place.width();
  }
}

}  // namespace
}  // namespace orbisol

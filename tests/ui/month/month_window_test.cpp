#include "ui/month/month_window.h"

#include <QCursor>
#include <QHelpEvent>
#include <QTemporaryDir>
#include <QToolTip>

#include <algorithm>
#include <fstream>

#include "tests/ui/month/month_fixture.h"
#include "ui/month/tip_text.h"

namespace orbisol {
namespace {

struct KeyCase {
  PackedDate from;
  int key;
  PackedDate to;
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

TEST_F(MonthWindowTest, EveryKeyMovesTheDateAsItsTableSays) {
  const KeyCase kKeys[] = {
      {19990101, Qt::Key_Return, 20240515},
      {19990101, Qt::Key_Enter, 20240515, Qt::KeypadModifier},
      {20240515, Qt::Key_PageUp, 20240415},
      {20240331, Qt::Key_PageUp, 20240229},
      {20230131, Qt::Key_PageDown, 20230228},
      {20241231, Qt::Key_PageDown, 20250131},
      {20240229, Qt::Key_PageUp, 20230229,
       Qt::ControlModifier},  // On purpose: kept though it does not exist.
      {20240229, Qt::Key_PageDown, 20250229, Qt::ControlModifier},
      {20250229, Qt::Key_Right, 20250302},
      {20240515, Qt::Key_Home, -39990101},
      {20240515, Qt::Key_End, 39991231},
      {20240501, Qt::Key_Left, 20240430},
      {20240501, Qt::Key_Up, 20240424},
      {20240531, Qt::Key_Right, 20240601},
      {20240531, Qt::Key_Down, 20240607},
      {20240531, Qt::Key_Down, 20240607, Qt::KeypadModifier},
      {20240531, Qt::Key_Down, 20240607, Qt::ControlModifier},
      {20240515, Qt::Key_E, 10101},
      {20240515, Qt::Key_G, 15821015},
      {20240515, Qt::Key_J, -440101},
      {20240515, Qt::Key_R, 17920922},
      {20240515, Qt::Key_R, 17920922, Qt::ShiftModifier},
      // Across the reform.
      {15821004, Qt::Key_Right, 15821015},
      {15821015, Qt::Key_Left, 15821004},
      {15821018, Qt::Key_Up, 15821001},
      {15821001, Qt::Key_Down, 15821018},
      // Both ends of the range hold.
      {39991231, Qt::Key_Right, 39991231},
      {39991228, Qt::Key_Down, 39991231},
      {39991231, Qt::Key_PageDown, 39991231},
      {39990505, Qt::Key_PageDown, 39991231, Qt::ControlModifier},
      {-39990101, Qt::Key_Left, -39990101},
      {-39990103, Qt::Key_Up, -39990101},
      {-39990115, Qt::Key_PageUp, -39990101},
      {-39990505, Qt::Key_PageUp, -39990101, Qt::ControlModifier},
      // 29 February -8 shares its number with the next day; the key is not stuck on it.
      {-80301, Qt::Key_Left, -80229},
      {-80229, Qt::Key_Left, -80228},
      {-80229, Qt::Key_Right, -80302},
  };
  for (const KeyCase& row : kKeys) {
    Select(row.from);
    EXPECT_TRUE(Press(row.key, row.modifiers));
    EXPECT_EQ(Now(), row.to) << "from " << row.from << " with key " << row.key;
  }
}

TEST_F(MonthWindowTest, OtherKeysAreLeftToTheFrame) {
  const std::pair<int, Qt::KeyboardModifiers> kOthers[] = {
      {Qt::Key_A, Qt::NoModifier},      {Qt::Key_Space, Qt::NoModifier},  {Qt::Key_Tab, Qt::NoModifier},
      {Qt::Key_F8, Qt::NoModifier},     {Qt::Key_Left, Qt::AltModifier},  {Qt::Key_R, Qt::ControlModifier},
      {Qt::Key_Escape, Qt::NoModifier}, {Qt::Key_PageUp, Qt::AltModifier}};
  for (const auto& [key, modifiers] : kOthers) {
    EXPECT_FALSE(Press(key, modifiers)) << key;
    EXPECT_EQ(Now(), 20240515) << key;
  }
  Settle();
  EXPECT_EQ(host.changes, 0);
}

TEST_F(MonthWindowTest, HostHearsOfKeysAndClicksLaterAndOfDragsAtOnce) {
  Press(Qt::Key_Right);
  EXPECT_EQ(host.changes, 0);
  Settle();
  EXPECT_EQ(host.changes, 1);
  Down(At(5, 20));
  EXPECT_EQ(host.changes, 1);
  Settle();
  EXPECT_EQ(host.changes, 2);
  Drag(At(5, 21));
  EXPECT_EQ(host.changes, 3);
}

TEST_F(MonthWindowTest, WindowCanGoWhileItsHostIsStillToHear) {
  Press(Qt::Key_Right);
  window.reset();
  Settle();
  EXPECT_EQ(host.changes, 0);
}

struct ClickCase {
  const char* what;
  PackedDate shown;
  int month, day;  // of the cell
  Qt::KeyboardModifiers modifiers;
  PackedDate to;
};

TEST_F(MonthWindowTest, ClicksSelectDaysAlsoOfNeighbouringMonths) {
  const ClickCase kClicks[] = {
      {"a day of the month", 20240515, 5, 31, Qt::NoModifier, 20240531},
      {"the same with Ctrl", 20240515, 5, 31, Qt::ControlModifier, 20240531},
      {"the same with Shift", 20240515, 5, 31, Qt::ShiftModifier, 20240531},
      {"the first row's last day", 20240515, 5, 5, Qt::NoModifier, 20240505},
      {"a leading day", 20240515, 4, 29, Qt::NoModifier, 20240429},
      {"a leading day with Ctrl", 20240515, 4, 29, Qt::ControlModifier, 20230515},
      {"a trailing day", 20240515, 6, 2, Qt::NoModifier, 20240602},
      {"a trailing day with Ctrl", 20240515, 6, 2, Qt::ControlModifier, 20250515},
      {"a trailing day of December", 20241215, 1, 1, Qt::NoModifier, 20250101},
      {"a leading day of January", 20250115, 12, 31, Qt::NoModifier, 20241231},
      {"a leading day with Ctrl, 29 February", 20240229, 1, 31, Qt::ControlModifier, 20230229},
      {"behind the dropped days", 15821003, 10, 15, Qt::NoModifier, 15821015},
      {"before the era", -440315, 2, 29, Qt::NoModifier, -440229},
      {"Ctrl at the beginning", -39990215, 1, 31, Qt::ControlModifier, -39990101},
      {"Ctrl at the end", 39991115, 12, 1, Qt::ControlModifier, 39991231},
  };
  for (const ClickCase& row : kClicks) {
    SCOPED_TRACE(row.what);
    for (const bool mondayFirst : {true, false}) {
      Rules().iso8601 = mondayFirst;
      window->SettingsChanged();
      Select(row.shown);
      if (window->Month().CellOf(row.month, row.day) == kNoCell)
        continue;  // of a row with the other first day
      Click(At(row.month, row.day), row.modifiers);
      EXPECT_EQ(Now(), row.to) << (mondayFirst ? "Monday first" : "Sunday first");
    }
  }
}

TEST_F(MonthWindowTest, ClicksBesideTheDaysChangeNothing) {
  Display().showWeekNumber = true;
  window->SettingsChanged();
  const int right = 7 * window->Places().columnWidth;
  for (const QPoint& at : {QPoint(50, 30), QPoint(right, 100), QPoint(right + 5, 100), QPoint(50, 415),
                           QPoint(-5, 100), QPoint(50, -5), QPoint(50, 5000)}) {
    Click(at);
    EXPECT_EQ(Now(), 20240515) << at.x() << ", " << at.y();
  }
  Select(-39990115);
  Click({50, 90});  // an empty cell before the first day of all
  EXPECT_EQ(Now(), -39990115);
  Settle();
  EXPECT_EQ(host.changes, 0);
}

TEST_F(MonthWindowTest, DragOpensTheRangeFromItsEarlierToItsLaterDay) {
  Down(At(5, 13));
  EXPECT_FALSE(window->HasRange());
  Drag(At(5, 14));
  Drag(At(5, 22));
  EXPECT_TRUE(window->HasRange());
  EXPECT_EQ(Now(), 20240522);
  Up(At(5, 22));
  EXPECT_FALSE(window->HasRange());

  Down(At(5, 13));
  Drag(At(5, 7));
  Up(At(5, 7));
  EXPECT_EQ(host.openedRanges,
            (std::vector<std::pair<PackedDate, PackedDate>>{{20240513, 20240522}, {20240507, 20240513}}));
}

TEST_F(MonthWindowTest, DragCrossesTheEndAndTheBeginningOfAMonth) {
  Down(At(5, 29));
  Drag(At(5, 31));
  Drag(At(6, 1));
  EXPECT_EQ(Now(), 20240601);
  Drag(At(6, 12));
  Up(At(6, 12));

  Select(20240515);
  Down(At(5, 2));
  Drag(At(4, 30));
  EXPECT_EQ(Now(), 20240430);
  Drag(At(4, 24));
  Up(At(4, 24));
  EXPECT_EQ(host.openedRanges,
            (std::vector<std::pair<PackedDate, PackedDate>>{{20240529, 20240612}, {20240424, 20240502}}));
}

TEST_F(MonthWindowTest, RangeBeforeTheEraRunsByDaysNotByPackedValues) {
  Select(-440315);
  Down(At(3, 10));
  Drag(At(3, 20));
  Up(At(3, 20));
  EXPECT_EQ(host.openedRanges, (std::vector<std::pair<PackedDate, PackedDate>>{{-440310, -440320}}));
}

TEST_F(MonthWindowTest, DragsThatSelectNoRangeOpenNothing) {
  Down(At(5, 20));
  Drag(At(5, 20) + QPoint(3, 3));
  Drag(At(5, 21));
  Drag(At(5, 20));
  Up(At(5, 20));

  Down({50, 30});  // on a weekday name
  Drag(At(5, 8));
  Up(At(5, 8));
  EXPECT_EQ(Now(), 20240520);

  Down(At(5, 8));
  Drag(At(5, 12));
  Drag({800, 90});  // outside: no day
  EXPECT_EQ(Now(), 20240512);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(window->HasRange());
  Up(At(5, 12));

  window->SetRangeAllowed(false);
  Down(At(5, 8));
  Drag(At(5, 10));
  EXPECT_FALSE(window->HasRange());
  Up(At(5, 10));
  EXPECT_EQ(Now(), 20240510);
  EXPECT_TRUE(host.openedRanges.empty());
}

TEST_F(MonthWindowTest, ShiftWithArrowsSelectsARangeThatTheMenuKeyOpens) {
  Press(Qt::Key_Right, Qt::ShiftModifier);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_TRUE(window->HasRange());
  EXPECT_EQ(Now(), 20240523);
  EXPECT_TRUE(Press(Qt::Key_Menu));
  EXPECT_EQ(host.openedRanges, (std::vector<std::pair<PackedDate, PackedDate>>{{20240515, 20240523}}));
  EXPECT_FALSE(window->HasRange());
  EXPECT_TRUE(host.opened.empty());

  // A step without Shift, a move from elsewhere, and Escape drop it.
  Press(Qt::Key_Up, Qt::ShiftModifier);
  Press(Qt::Key_Right);
  EXPECT_FALSE(window->HasRange());
  Press(Qt::Key_Up, Qt::ShiftModifier);
  Select(17890714);
  window->Refresh();
  EXPECT_FALSE(window->HasRange());
  Press(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_TRUE(Press(Qt::Key_Escape));
  EXPECT_FALSE(window->HasRange());
}

TEST_F(MonthWindowTest, MenuKeyAndDoubleClickOpenADay) {
  Press(Qt::Key_Menu);
  Press(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(host.opened, (std::vector<PackedDate>{20240515, 20240515}));

  host.opened.clear();
  Click(At(5, 20));
  Mouse(QEvent::MouseButtonDblClick, At(5, 20));
  Up(At(5, 20));
  EXPECT_EQ(host.opened, std::vector<PackedDate>{20240520});

  Mouse(QEvent::MouseButtonDblClick, At(4, 30));
  Mouse(QEvent::MouseButtonDblClick, {50, 30});
  EXPECT_EQ(host.opened.size(), 1u) << "a neighbouring month's day, the header";
}

TEST_F(MonthWindowTest, WheelStepsByNotchesHoweverSmallItsTurns) {
  Turn(120);
  EXPECT_EQ(Now(), 20240415);
  Turn(-240);
  EXPECT_EQ(Now(), 20240615);
  Turn(-120, Qt::ControlModifier);
  EXPECT_EQ(Now(), 20250615);
  Turn(120, Qt::ControlModifier);
  for (int i = 0; i < 7; ++i) Turn(-15);
  EXPECT_EQ(Now(), 20240615);
  Turn(-15);
  EXPECT_EQ(Now(), 20240715);
  Turn(-100);
  Turn(60);  // the other way: the rest is forgotten
  Turn(50);
  EXPECT_EQ(Now(), 20240715);
  Turn(10);
  EXPECT_EQ(Now(), 20240615);
  Select(20240131);
  Turn(-240);
  EXPECT_EQ(Now(), 20240329) << "two steps of a month, not one of two";
  Turn(0);
  Turn(-2147483647);
  EXPECT_TRUE(IsWithinBounds(Selected()));
}

// Regions of the window that were painted, as the toolkit asked for them.
struct PaintSpy : QObject {
  QRegion painted;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

TEST_F(MonthWindowTest, MoveInsideTheMonthRepaintsTwoCells) {
  PaintSpy spy;
  window->installEventFilter(&spy);
  const auto dirty = [&](int day) {
    const Rect rect = window->Places().DirtyRect(window->Month().CellOf(5, day));
    return QRect(rect.left, rect.top, rect.Width(), rect.Height());
  };
  Press(Qt::Key_Down);
  Settle();
  EXPECT_EQ(spy.painted, QRegion(dirty(15)) + dirty(22));
  spy.painted = QRegion();
  Click(At(5, 9));
  Settle();
  EXPECT_EQ(spy.painted, QRegion(dirty(22)) + dirty(9));
  const QImage shown = window->grab().toImage();
  window->Refresh();
  EXPECT_EQ(window->grab().toImage(), shown);

  spy.painted = QRegion();
  Press(Qt::Key_PageDown);
  Settle();
  EXPECT_EQ(spy.painted, QRegion(window->rect()));
}

TEST_F(MonthWindowTest, RangeIsShownInvertedWhileItIsDragged) {
  const QPoint corner = At(5, 14) + QPoint(-45, -25);
  ASSERT_EQ(PixelAt(corner), kWindowColor);
  Down(At(5, 13));
  Drag(At(5, 15));
  EXPECT_EQ(PixelAt(corner), 0u);
  Up(At(5, 15));
  EXPECT_EQ(PixelAt(corner), kWindowColor);
}

TEST_F(MonthWindowTest, UnderlineFollowsTheClock) {
  window->SetSelectionVisible(false);
  const auto cellOf = [&](int day) {
    const Rect rect = window->Places().CellRect(window->Month().CellOf(5, day));
    return window->grab({rect.left, rect.top, rect.Width(), rect.Height()}).toImage();
  };
  const QImage today = cellOf(15);
  const QImage tomorrow = cellOf(16);
  const ScopedPlatform later{FakeLocale(), FakeClock({2024, 5, 16})};
  QEvent wake(QEvent::ActivationChange);
  QApplication::sendEvent(window.get(), &wake);
  EXPECT_NE(cellOf(15), today);
  EXPECT_NE(cellOf(16), tomorrow);
}

TEST_F(MonthWindowTest, PointerStaysOnTheActiveCellWhenItIsMagnetic) {
  const QPoint away = window->mapToGlobal(QPoint(5, 5));
  for (const bool isMagnetic : {true, false}) {
    Display().magnetMouse = isMagnetic;
    Select(20240515);
    QCursor::setPos(away);
    Down(At(5, 29));
    Drag(At(6, 1));
    const QPoint first = window->mapToGlobal(At(6, 1));
    EXPECT_EQ(QCursor::pos(), isMagnetic ? first : away) << "the month shifted under it";
    QCursor::setPos(away);
    Up(At(6, 20));
    EXPECT_EQ(QCursor::pos(), isMagnetic ? first : away) << "released elsewhere";
    QCursor::setPos(away);
    Click(At(6, 4));
    EXPECT_EQ(QCursor::pos(), away) << "released on the cell";
  }
}

std::u16string TipOf(CMonthWindow& window, int month, int day) {
  return TipText(window.Month().cells[static_cast<std::size_t>(window.Month().CellOf(month, day))],
                 Display().tipsForEventsOnly);
}

TEST_F(MonthWindowTest, TipsNameTheDayItsTextsAndItsMoon) {
  DayEvent event;
  event.month = 5;
  event.day = 8;
  event.ymdFrom = kAlwaysFrom;
  event.ymdTo = kAlwaysTo;
  event.isPublic = true;
  event.name.Set(u"Victoire <b>1945</b>");
  Content().dayEvents.push_back(event);
  event.isPublic = false;
  event.day = 9;
  event.name.Set(u"Répétition");
  Content().dayEvents.push_back(event);
  HolidayPeriod period;
  period.ymdFrom = 20240508;
  period.ymdTo = 20240509;
  period.title.Set(u"Pont");
  Content().holidays.push_back(period);
  window->Refresh();

  EXPECT_EQ(TipOf(*window, 5, 8), u"Victoire <b>1945</b>\nPont\n(Nouvelle lune)");
  EXPECT_EQ(TipOf(*window, 5, 9), u"Répétition\nPont");
  EXPECT_EQ(TipOf(*window, 5, 10), u"");
  EXPECT_EQ(TipOf(*window, 5, 23), u"(Pleine lune)");
  Display().tipsForEventsOnly = false;
  EXPECT_EQ(TipOf(*window, 5, 8), u"Mercredi 8 mai 2024\nVictoire <b>1945</b>\nPont\n(Nouvelle lune)");
  EXPECT_EQ(TipOf(*window, 5, 10), u"Vendredi 10 mai 2024");
  EXPECT_EQ(TipText(DayCell(), false), u"");

  // What is shown is no markup, and nothing is shown where there is no day.
  QHelpEvent help(QEvent::ToolTip, At(5, 8), window->mapToGlobal(At(5, 8)));
  QApplication::sendEvent(window.get(), &help);
  EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("&lt;b&gt;1945"))) << QToolTip::text().toStdString();
  QHelpEvent beside(QEvent::ToolTip, QPoint(50, 30), window->mapToGlobal(QPoint(50, 30)));
  QApplication::sendEvent(window.get(), &beside);
  EXPECT_FALSE(beside.isAccepted());
}

TEST_F(MonthWindowTest, PictureThatCannotBeReadLeavesThePlainBackground) {
  const QTemporaryDir folder;
  const std::string broken = folder.filePath(QStringLiteral("broken.png")).toStdString();
  std::ofstream(broken) << "no picture";
  const QPoint ground(5, 70);
  Display().colors[kStandardBgColor] = Rgb(0xFF, 0xF0, 0x80);
  Display().grid = false;
  for (const std::string& path : {std::string("/no/such/picture.jpg"), broken}) {
    Display().backgroundImage = true;
    Display().backgroundImagePath.Set(QString::fromStdString(path).toStdU16String());
    window->SettingsChanged();
    EXPECT_EQ(PixelAt(ground), Rgb(0xFF, 0xF0, 0x80)) << path;
    EXPECT_TRUE(Display().backgroundImage) << "the stored switch is the user's";
  }

  QImage blue(4000, 30, QImage::Format_RGB32);  // wider than any screen
  blue.fill(QColor(0x20, 0x60, 0xE0));
  const QString good = folder.filePath(QStringLiteral("blue.gif"));
  ASSERT_TRUE(blue.save(good, "BMP")) << "a picture under the name of another form";
  Display().backgroundImagePath.Set(good.toStdU16String());
  window->SettingsChanged();
  EXPECT_EQ(PixelAt(ground), Rgb(0x20, 0x60, 0xE0));
  Display().backgroundImagePath.Set(u"");
  window->SettingsChanged();
  EXPECT_NE(PixelAt(ground), Rgb(0xFF, 0xF0, 0x80)) << "the built-in picture";
}

TEST_F(MonthWindowTest, StretchedOutputShowsTheLastPictureAtTheNewSize) {
  Display().grid = false;
  Display().colors[kHeaderBgColor] = Rgb(0x20, 0x60, 0xE0);
  window->SettingsChanged();
  Settle();
  window->SetStretchedOutput(true);
  window->resize(350, 210);
  Select(17890714);
  Settle();
  EXPECT_EQ(PixelAt({1, 28}), Rgb(0x20, 0x60, 0xE0));
  EXPECT_EQ(PixelAt({1, 33}), kWindowColor);
  EXPECT_EQ(window->Places().width, 700);
  window->SetStretchedOutput(false);
  Settle();
  EXPECT_EQ(window->Places().width, 350);
}

TEST_F(MonthWindowTest, DateWithoutACellIsKeptAndShowsNoMark) {
  Display().colors[kCircleColor] = Rgb(1, 2, 3);
  window->SettingsChanged();
  Select(20240229);
  Press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(window->SelectedCell(), kNoCell);
  const QImage image = window->grab().toImage();
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ASSERT_NE(image.pixelColor(x, y), QColor(1, 2, 3));
  Up({10, 100});
  Press(Qt::Key_Left);
  EXPECT_EQ(Now(), 20250228);
}

}  // namespace
}  // namespace orbisol

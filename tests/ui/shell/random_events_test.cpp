// Random events on any control of the whole window, in any order and at any size, find what no list of cases
// would.
//
// ORBISOL_RANDOM_EVENTS sets how many events are sent.

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "files/calendar_file.h"
#include "tests/support/warnings.h"
#include "tests/ui/shell/frame_fixture.h"

namespace orbisol {
namespace {

constexpr unsigned kSeed = 1792;
constexpr int kEvents = 10000;
constexpr int kEventsBetweenLooks = 100;

int EventsToSend() {
  const char* const asked = std::getenv("ORBISOL_RANDOM_EVENTS");
  return asked == nullptr ? kEvents : std::atoi(asked);
}

// Returns how many pixels of two pictures of one size differ by more than a few levels of a color.
int Difference(const QImage& one, const QImage& other) {
  constexpr int kSameInk = 16;
  int count = 0;
  for (int y = 0; y < one.height(); ++y) {
    if (std::memcmp(one.constScanLine(y), other.constScanLine(y),
                    static_cast<std::size_t>(one.bytesPerLine())) == 0)
      continue;
    for (int x = 0; x < one.width(); ++x) {
      const QRgb a = one.pixel(x, y);
      const QRgb b = other.pixel(x, y);
      if (std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                    std::abs(qBlue(a) - qBlue(b))}) > kSameInk)
        ++count;
    }
  }
  return count;
}

class RandomEventsTest : public FrameTest {
 protected:
  RandomEventsTest() : m_random(kSeed) {
    std::ifstream file(ORBISOL_LEGALS "/France.xml", std::ios::binary);
    const std::string france{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    files.Put(u"/share/Legals/France.xml", france);
    // A dialog that an event opens is left again.
    QObject::connect(&m_leaver, &QTimer::timeout, [] {
      if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) dialog->reject();
    });
    m_leaver.start(0);
  }

  int UpTo(int last) { return static_cast<int>(m_random() % (static_cast<unsigned>(last) + 1)); }
  bool OneIn(int many) { return UpTo(many - 1) == 0; }

  Qt::KeyboardModifiers Modifiers() {
    Qt::KeyboardModifiers some;
    if (OneIn(4)) some |= Qt::ControlModifier;
    if (OneIn(4)) some |= Qt::ShiftModifier;
    if (OneIn(10)) some |= Qt::AltModifier;
    return some;
  }

  // Events go where a user's would: to the open menu first, else to the window; sometimes just beside it.
  struct Spot {
    QPointer<QWidget> widget;
    QPoint inside;
    QPoint onScreen;
  };
  Spot Anywhere() {
    QWidget* const popup = QApplication::activePopupWidget();
    QWidget* const target = popup != nullptr ? popup : frame.get();
    const QPoint at(UpTo(target->width() + 20) - 10, UpTo(target->height() + 20) - 10);
    QWidget* child = target->childAt(at);
    if (child == nullptr) child = target;
    return {child, child->mapFrom(target, at), target->mapToGlobal(at)};
  }

  void SendKey() {
    constexpr int kKeys[] = {Qt::Key_Left,      Qt::Key_Right,  Qt::Key_Up,    Qt::Key_Down,   Qt::Key_PageUp,
                             Qt::Key_PageDown,  Qt::Key_Home,   Qt::Key_End,   Qt::Key_Return, Qt::Key_Enter,
                             Qt::Key_Space,     Qt::Key_Tab,    Qt::Key_Tab,   Qt::Key_Tab,    Qt::Key_Escape,
                             Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Menu,  Qt::Key_E,      Qt::Key_G,
                             Qt::Key_J,         Qt::Key_R,      Qt::Key_C,     Qt::Key_F10,    Qt::Key_1,
                             Qt::Key_7,         Qt::Key_9,      Qt::Key_Minus, Qt::Key_F8,     Qt::Key_X};
    const auto key = static_cast<Qt::Key>(kKeys[UpTo(static_cast<int>(std::size(kKeys)) - 1)]);
    const Qt::KeyboardModifiers modifiers = Modifiers();
    QWidget* target = QApplication::activePopupWidget();
    if (target == nullptr) target = QApplication::focusWidget();
    if (target == nullptr) target = frame.get();
    QTest::keyClick(target, key, modifiers);
  }

  void SendMove() {
    const Spot spot = Anywhere();
    QMouseEvent event(QEvent::MouseMove, QPointF(spot.inside), QPointF(spot.onScreen), Qt::NoButton,
                      Qt::NoButton, Modifiers());
    QApplication::sendEvent(spot.widget, &event);
  }

  // Press and release go to one widget, as the toolkit guarantees.
  void SendGesture() {
    const Spot spot = Anywhere();
    const Qt::MouseButton button = OneIn(8) ? Qt::RightButton : Qt::LeftButton;
    const auto send = [&](QEvent::Type type, QPoint where) {
      if (spot.widget == nullptr) return;
      const bool isUp = type == QEvent::MouseButtonRelease;
      QMouseEvent event(type, QPointF(where), QPointF(spot.widget->mapToGlobal(where)),
                        type == QEvent::MouseMove ? Qt::NoButton : button,
                        isUp ? Qt::NoButton : Qt::MouseButtons(button), Modifiers());
      QApplication::sendEvent(spot.widget, &event);
    };
    send(OneIn(6) ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, spot.inside);
    QPoint last = spot.inside;
    for (int moves = OneIn(3) ? UpTo(4) : 0; moves > 0; --moves) {
      last = {UpTo(700) - 60, UpTo(500) - 60};
      send(QEvent::MouseMove, last);
    }
    send(QEvent::MouseButtonRelease, last);
  }

  void SendWheel() {
    const Spot spot = Anywhere();
    QWheelEvent event(QPointF(spot.inside), QPointF(spot.onScreen), QPoint(),
                      QPoint(OneIn(10) ? UpTo(240) - 120 : 0, UpTo(500) - 250), Qt::NoButton, Modifiers(),
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(spot.widget, &event);
  }

  void SendTip() {
    const Spot spot = Anywhere();
    QHelpEvent event(QEvent::ToolTip, spot.inside, spot.onScreen);
    QApplication::sendEvent(spot.widget, &event);
  }

  void SendResize() {
    const int share = UpTo(7);
    if (share == 0) {
      frame->showMaximized();
    } else if (share == 1) {
      frame->showNormal();
    } else {
      frame->resize(UpTo(1600), UpTo(1000));
    }
  }

  void SendSomething() {
    using Hand = void (RandomEventsTest::*)();
    constexpr Hand kKey = &RandomEventsTest::SendKey, kPress = &RandomEventsTest::SendGesture;
    constexpr Hand kWheel = &RandomEventsTest::SendWheel, kMove = &RandomEventsTest::SendMove;
    constexpr Hand kTip = &RandomEventsTest::SendTip;
    constexpr Hand kHands[] = {kKey, kKey, kKey, kKey, kPress, kPress, kPress, kWheel, kWheel, kMove, kTip};
    const int hand = UpTo(4 * static_cast<int>(std::size(kHands)));
    if (hand == 0) return SendResize();
    (this->*kHands[(hand - 1) / 4])();
  }

  // Help and menus take the keyboard away; without it no key reaches the part that has the focus.
  void ComeBack() {
    if (frame->isActiveWindow() || QApplication::activePopupWidget() != nullptr) return;
    frame->activateWindow();
    Settle();
  }

  // The law of all that is painted: parts painted anew leave a window that looks as if all had been painted
  // anew. The same digits differ by where their painting began: by a few levels, and large ones by up to 23
  // in a pixel or two. What the style fades in or a timer has just changed is painted within a second; what
  // is stale stays so, and is no smaller than the moon of a day.
  void ExpectThatNothingStaleIsShown(int event) {
    constexpr int kStrayPixels = 10;
    int difference = 0;
    for (int round = 0; round < 9; ++round) {
      Settle();
      if (round < 2) continue;          // one event brings another
      if (!frame->isVisible()) return;  // and one of them closes the window
      const QImage shown = frame->screen()->grabWindow(frame->winId()).toImage();
      const QImage anew = frame->grab().toImage().convertToFormat(shown.format());
      ASSERT_FALSE(shown.isNull()) << "after event " << event;
      difference = Difference(shown, anew.copy(shown.rect()));  // a window may end below the screen
      if (difference <= kStrayPixels) return;
      QTest::qWait(150);
    }
    FAIL() << difference << " pixels after event " << event;
  }

  std::mt19937 m_random;
  QTimer m_leaver;
};

TEST_F(RandomEventsTest, LeaveTheDateInBoundsAndTheToolkitSilent) {
  const int events = EventsToSend();
  const CWarnings warnings;
  QApplication::setCursorFlashTime(0);  // a cursor that blinks would differ from itself
  Open();
  // A menu or a dialog that runs an event loop of its own would wait for its user for ever.
  QTimer closes;
  closes.callOnTimeout([] {
    QWidget* const popup = QApplication::activePopupWidget();
    if (QWidget* const open = popup != nullptr ? popup : QApplication::activeModalWidget()) open->close();
  });
  closes.start(20);

  int months = 0;
  PackedDate before = 0;
  for (int i = 1; i <= events; ++i) {
    SendSomething();
    if (OneIn(4)) Settle();
    if (!frame->isVisible()) Open();  // the menu or the keyboard closed it, as they may
    ComeBack();
    if (Now() / 100 != before / 100) ++months;
    before = Now();
    ASSERT_TRUE(IsWithinBounds(Selected())) << Now() << " after event " << i;
    ASSERT_TRUE(CWarnings::Texts().empty()) << "after event " << i << ": " << CWarnings::Texts().front();
    if (i % kEventsBetweenLooks == 0 && QApplication::activePopupWidget() == nullptr) {
      ExpectThatNothingStaleIsShown(i);
      if (HasFatalFailure()) return;
    }
  }
  EXPECT_GT(months, events / 50);  // the events do reach something
}

}  // namespace
}  // namespace orbisol

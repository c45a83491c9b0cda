// Random events on any control, in any order and at any size, find what no list of cases would.
// ORBISOL_RANDOM_EVENTS sets how many events are sent.

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <random>

#include "tests/support/file_bytes.h"
#include "tests/support/warnings.h"
#include "tests/ui/shell/frame_fixture.h"

namespace orbisol {
namespace {

constexpr unsigned kSeed = 1792;
constexpr int kEventsBetweenLooks = 100;

// Returns how many pixels of two pictures of one size differ by more than a few levels of a color.
int Difference(const QImage& one, const QImage& other) {
  constexpr int kSameInk = 16;
  QImage levels = one.convertToFormat(QImage::Format_RGB32);
  QPainter painter(&levels);
  painter.setCompositionMode(QPainter::CompositionMode_Difference);
  painter.drawImage(0, 0, other);
  int count = 0;
  for (int y = 0; y < levels.height(); ++y)
    for (int x = 0; x < levels.width(); ++x) {
      const QRgb level = levels.pixel(x, y);
      count += std::max({qRed(level), qGreen(level), qBlue(level)}) > kSameInk;
    }
  return count;
}

class RandomEventsTest : public FrameTest {
 protected:
  RandomEventsTest() {
    files.Put(u"/share/Legals/France.xml", BytesOf(ORBISOL_LEGALS "/France.xml"));
    // A dialog that an event opens is left again.
    m_leaver.callOnTimeout([] {
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
    QWidget* target = QApplication::activePopupWidget();
    if (target == nullptr) target = QApplication::focusWidget();
    if (target == nullptr) target = frame.get();
    const int key = kKeys[UpTo(static_cast<int>(std::size(kKeys)) - 1)];
    QTest::keyClick(target, static_cast<Qt::Key>(key), Modifiers());
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
    if (share == 0) return frame->showMaximized();
    if (share == 1) return frame->showNormal();
    frame->resize(UpTo(1600), UpTo(1000));
  }

  void SendSomething() {
    const int hand = UpTo(44);
    if (hand == 0) return SendResize();
    if (hand <= 16) return SendKey();
    if (hand <= 28) return SendGesture();
    if (hand <= 36) return SendWheel();
    if (hand <= 40) return SendMove();
    SendTip();
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

  std::mt19937 m_random{kSeed};
  QTimer m_leaver;
};

TEST_F(RandomEventsTest, LeaveTheDateInBoundsAndTheToolkitSilent) {
  const char* const asked = std::getenv("ORBISOL_RANDOM_EVENTS");
  const int events = asked == nullptr ? 10000 : std::atoi(asked);
  const CWarnings warnings;
  QApplication::setCursorFlashTime(0);  // a cursor that blinks would differ from itself
  Open();
  // A menu that runs an event loop of its own would wait for its user for ever.
  QTimer closes;
  closes.callOnTimeout([] {
    if (QWidget* const open = QApplication::activePopupWidget()) open->close();
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
  EXPECT_GT(months, events / 50);   // the events do reach something
  QApplication::closeAllWindows();  // the help belongs to no other, and nobody else would delete it
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace
}  // namespace orbisol

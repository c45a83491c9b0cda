// The place where windows open, and the place that is stored, under a window manager whose frame comes late.

#include "ui/window/frame_placement.h"

#include <QScreen>
#include <QWindow>

#include "tests/support/dialog_test.h"
#include "ui/toolkit/geometry.h"

namespace orbisol {
namespace {

constexpr QMargins kFrame(3, 25, 5, 7);
constexpr QSize kLeast(420, 380);

class CFramedPlacement : public CFramePlacement {
 public:
  using CFramePlacement::CFramePlacement;
  QMargins margins;

 protected:
  QMargins FrameMargins() const override { return margins; }
};

struct FramedWindow {
  QWidget window;
  CFramedPlacement placement{window};

  FramedWindow() { window.setMinimumSize(kLeast); }

  void Open(const QRect& frame) {
    placement.Open(frame, false);
    TakeFrameOff();
  }
  // The display of the tests puts a frame of its own around windows at once.
  void TakeFrameOff() {
    const QMargins own = window.windowHandle()->frameMargins();
    window.setGeometry(window.geometry().translated(-own.left(), -own.top()));
  }
  // Puts the frame around the window as a window manager does, a pixel beside its place as on a screen with a
  // fractional ratio, and lets the placement see it.
  void PutFrame() {
    placement.margins = kFrame;
    window.setGeometry(window.geometry().translated(kFrame.left() + 1, kFrame.top() - 1));
    QTest::qWait(0);
    QApplication::processEvents();
  }
  QRect Frame() const { return window.geometry().marginsAdded(kFrame); }
};

TEST(FramePlacementTest, AWindowOpensWhereItWasStoredAndStoresThatAgain) {
  const std::tuple<const char*, QRect, QRect> kRows[] = {
      {"as it was", {100, 80, 900, 520}, {100, 80, 900, 520}},
      {"lower than it can be", {50, 50, 850, 400}, {50, 50, 850, 380 + 25 + 7}},
      {"narrower than it can be, at the right edge", {1620, 50, 300, 600}, {1492, 50, 428, 600}},
      {"lower than it can be, at the lower edge", {100, 1060, 900, 20}, {100, 668, 900, 412}},
      {"across two screens", {1500, 80, 900, 520}, {1500, 80, 900, 520}},
      {"on no screen", {4000, 3000, 900, 520}, {1020, 560, 900, 520}},
  };
  for (const auto& [what, stored, standing] : kRows) {
    SCOPED_TRACE(what);
    FramedWindow framed;
    framed.Open(stored);
    framed.PutFrame();
    EXPECT_EQ(framed.Frame(), standing);
    EXPECT_EQ(ToQRect(framed.placement.Closing().rect), standing);
  }
}

TEST(FramePlacementTest, TheFirstWindowStandsInTheMiddleWithItsFrame) {
  for (const QSize& size : {QSize(1280, 720), QSize(10, 10)}) {
    FramedWindow framed;
    framed.placement.OpenCentred(size);
    framed.TakeFrameOff();
    framed.PutFrame();
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(framed.Frame().size(), size.expandedTo(kLeast.grownBy(kFrame)));
    EXPECT_NEAR(framed.Frame().center().x(), screen.center().x(), 1);
    EXPECT_NEAR(framed.Frame().center().y(), screen.center().y(), 1);
  }
}

// The user works with the window before its frame is there.
TEST(FramePlacementTest, ALateFrameUndoesNothingThatWasDoneMeanwhile) {
  const QRect stored(100, 80, 900, 520);
  const std::tuple<const char*, void (*)(FramedWindow&), QRect> kRows[] = {
      {"nothing", [](FramedWindow&) {}, stored},
      {"made wider by a part",
       [](FramedWindow& framed) { framed.placement.Widen(200); },
       {100, 80, 1100, 520}},
      {"maximized, made narrower and put back",
       [](FramedWindow& framed) {
         framed.window.showMaximized();
         framed.placement.Widen(-200);
         framed.window.showNormal();
         QTest::qWait(100);
       },
       {100, 80, 700, 520}},
      {"made higher by hand",
       [](FramedWindow& framed) { framed.window.resize(900, 700); },
       {100, 80, 900, 732}},
      {"moved by hand",
       [](FramedWindow& framed) { framed.window.setGeometry(300, 300, 900, 520); },
       {301, 299, 900, 520}},
  };
  for (const auto& [what, act, standing] : kRows) {
    SCOPED_TRACE(what);
    FramedWindow framed;
    framed.Open(stored);
    act(framed);
    framed.PutFrame();
    EXPECT_EQ(framed.Frame(), standing);
    EXPECT_EQ(ToQRect(framed.placement.Closing().rect), standing);
  }
}

}  // namespace
}  // namespace orbisol

#include <random>

#include "tests/ui/month/month_fixture.h"

namespace orbisol {
namespace {

// What no list of cases would find: any hand, in any order, at any size.
TEST_F(MonthWindowTest, RandomEventsLeaveTheDateInBoundsAndTheToolkitSilent) {
  constexpr unsigned kSeed = 1582;
  constexpr int kEvents = 20000;
  constexpr int kKeys[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_End,
                           Qt::Key_Home,   Qt::Key_Left,  Qt::Key_Up,     Qt::Key_Right,    Qt::Key_Down,
                           Qt::Key_E,      Qt::Key_G,     Qt::Key_J,      Qt::Key_R,        Qt::Key_Menu,
                           Qt::Key_Escape, Qt::Key_Tab,   Qt::Key_X};
  std::mt19937 random(kSeed);
  const auto upTo = [&](int last) { return static_cast<int>(random() % (static_cast<unsigned>(last) + 1)); };
  const auto modifiers = [&] {
    Qt::KeyboardModifiers some;
    if (upTo(3) == 0) some |= Qt::ControlModifier;
    if (upTo(3) == 0) some |= Qt::ShiftModifier;
    if (upTo(19) == 0) some |= Qt::AltModifier;
    return some;
  };
  const auto somewhere = [&] { return QPoint(upTo(800) - 50, upTo(600) - 50); };

  const CWarnings warnings;
  Display().backgroundImage = true;
  for (int i = 0; i < kEvents; ++i) {
    switch (upTo(9)) {
      case 0:
      case 1:
      case 2:
        Press(kKeys[upTo(static_cast<int>(std::size(kKeys)) - 1)], modifiers());
        break;
      case 3:
        Down(somewhere(), modifiers());
        break;
      case 4:
        Drag(somewhere());
        break;
      case 5:
        if (upTo(1) == 0) {  // In one go, else hardly any gesture would come to its end.
          Down(somewhere());
          Drag(somewhere());
        }
        Up(somewhere());
        break;
      case 6:
        Mouse(QEvent::MouseButtonDblClick, somewhere(), Qt::LeftButton, modifiers());
        break;
      case 7:
        Turn(upTo(500) - 250, modifiers());
        break;
      case 8:
        if (upTo(9) == 0) {
          window->resize(upTo(900), upTo(600));
          Display().showWeekNumber = upTo(1) == 0;
          Rules().iso8601 = upTo(1) == 0;
          window->SettingsChanged();
        }
        break;
      default:
        window->grab();
        break;
    }
    if (upTo(9) == 0) Settle();
    ASSERT_TRUE(IsWithinBounds(Selected())) << "after event " << i;
    ASSERT_TRUE(CWarnings::Texts().empty()) << "after event " << i << ": " << CWarnings::Texts().front();
  }
  EXPECT_GT(host.changes, kEvents / 20);
  EXPECT_GT(host.opened.size(), 100u);
  EXPECT_GT(host.openedRanges.size(), 50u);
}

}  // namespace
}  // namespace orbisol

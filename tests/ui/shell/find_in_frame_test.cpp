// Going to a date and searching, by the keys of the main window.
#include <QLineEdit>
#include <QListView>
#include <QTimer>

#include "content/calendar_content.h"
#include "tests/ui/shell/frame_fixture.h"
#include "ui/find/find_day_dialog.h"

namespace orbisol {
namespace {

TEST_F(FrameTest, ControlGTakesATypedDateAndTheHistoryLeadsBack) {
  Open();
  bool wasOpen = false;
  QTimer::singleShot(0, [&] {
    auto* const field = QApplication::activeModalWidget()->findChild<QLineEdit*>();
    wasOpen = field != nullptr;
    field->setText(QStringLiteral("18 brumaire an VIII"));
    QTest::keyClick(field, Qt::Key_Return);
  });
  QTest::keyClick(frame.get(), Qt::Key_G, Qt::ControlModifier);
  EXPECT_TRUE(wasOpen);
  EXPECT_EQ(Now(), 17991109);
  frame->RunCommand(kCmdGoBack);
  EXPECT_EQ(Now(), 20240515);
}

TEST_F(FrameTest, ControlFSearchesAndF3GoesOn) {
  Open();
  DayEvent rule;
  rule.month = 7;
  rule.day = 14;
  rule.ymdFrom = kAlwaysFrom;
  rule.ymdTo = kAlwaysTo;
  rule.name.Set(u"Fête");
  Content().dayEvents = {rule};
  QTest::keyClick(frame.get(), Qt::Key_F, Qt::ControlModifier);
  auto* const window = frame->findChild<CFindDayDialog*>();
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(window->isVisible());
  window->findChild<QLineEdit*>()->setText(QStringLiteral("fete"));
  while (window->IsSearching()) Settle();
  frame->RunCommand(kCmdFindNext);
  EXPECT_EQ(Now(), 20240714);
  Show(20300101);
  frame->RunCommand(kCmdFindPrevious);
  EXPECT_EQ(Now(), 20290714) << "from the day that is selected in the calendar";
  Content().dayEvents[0].month = 8;
  frame->CalendarChanged();
  while (window->IsSearching()) Settle();
  EXPECT_TRUE(window->findChild<QListView*>()->currentIndex().data().toString().startsWith(
      QStringLiteral("Mardi 14 août 2029")));
  frame->RunCommand(kCmdFindNext);
  EXPECT_EQ(Now(), 20290814) << "in what the calendar now holds";
}

}  // namespace
}  // namespace orbisol

// Another calendar through the menus: all that the main window shows follows.

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>

#include "tests/support/calendar_builder.h"
#include "tests/ui/shell/frame_fixture.h"
#include "ui/calendars/choose_calendar_dlg.h"

namespace orbisol {
namespace {

class ChangeOfCalendarTest : public FrameTest {
 protected:
  ChangeOfCalendarTest() {
    CalendarFile other = CalendarWith(u"Autre fête");
    other.content.dayEvents[0].month = 5;
    other.content.dayEvents[0].day = 23;
    other.look.colors[kColorBgCal] = 0x123456;
    other.rules.ApplyGregorianStart(17520914);
    files.Put(u"/user/Calendar.xml", BytesWith(u"Fête"));
    files.Put(u"/user/Travail.xml", WriteCalendar(other, CalendarForm::kUser));
    Open();
    Show(20240523);
  }

  // Gives a key to the window, and leaves the dialog that opens to `act`.
  bool Press(int key, const std::function<void(CChooseCalendarDlg&)>& act) {
    bool isOpened = false;
    QTimer untilOpen;
    QObject::connect(&untilOpen, &QTimer::timeout, [&] {
      auto* const dialog = qobject_cast<CChooseCalendarDlg*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      untilOpen.stop();
      isOpened = true;
      act(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
    untilOpen.start(0);
    QTest::keyClick(frame->windowHandle(), static_cast<Qt::Key>(key), Qt::ControlModifier);
    Settle();
    return isOpened;
  }
};

TEST_F(ChangeOfCalendarTest, TheWindowFollows) {
  EXPECT_EQ(frame->StatusText(), QString::fromUtf8("(Pleine lune)"));
  EXPECT_TRUE(Press(Qt::Key_O, [](CChooseCalendarDlg& dialog) {
    dialog.findChild<QListWidget*>()->setCurrentRow(1);
    dialog.accept();
  }));
  EXPECT_EQ(frame->windowTitle(), QStringLiteral("Orbisol - Travail"));
  EXPECT_EQ(frame->StatusText(), QString::fromUtf8("Autre fête | (Pleine lune)"));
  EXPECT_EQ(Dialog().palette().color(QPalette::Window), QColor(0x56, 0x34, 0x12));
  EXPECT_EQ(*TextOf(*store.Read(), "CalendarName", 200), u"Travail");
  EXPECT_EQ(Rules().startGregorian, 17520914);
  Show(17520902);
  QTest::keyClick(&Dialog().Month(), Qt::Key_Right);
  Settle();
  EXPECT_EQ(Now(), 17520914) << "the month goes by the new rules";
}

TEST_F(ChangeOfCalendarTest, ANewOneIsMadeByItsOwnKey) {
  EXPECT_TRUE(Press(Qt::Key_N, [](CChooseCalendarDlg& dialog) {
    EXPECT_TRUE(dialog.findChild<QCheckBox*>(QStringLiteral("isNew"))->isChecked());
    dialog.findChild<QLineEdit*>()->setText(QStringLiteral("Neuf"));
    dialog.accept();
  }));
  EXPECT_EQ(frame->windowTitle(), QStringLiteral("Orbisol - Neuf"));
  EXPECT_TRUE(Content().dayEvents.empty());
  EXPECT_EQ(files.files[u"/user/Calendar.xml"].bytes, BytesWith(u"Fête"));
}

}  // namespace
}  // namespace orbisol

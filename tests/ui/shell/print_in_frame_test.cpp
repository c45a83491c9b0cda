// The print frame beside the main window: opening, following, closing.

#include <QPointer>

#include <algorithm>

#include "tests/content/rule_builder.h"
#include "tests/ui/shell/frame_fixture.h"
#include "ui/print/print_frame.h"

namespace orbisol {
namespace {

class PrintInFrameTest : public FrameTest {
 protected:
  ~PrintInFrameTest() override {
    frame.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  CPrintFrame& OpenPrint() {
    frame->Commands().Action(kCmdPrint)->trigger();
    Settle();
    return *frame->PrintFrame();
  }
  // Returns how often a value of the key was written.
  int Writes(const char* name) const {
    return static_cast<int>(std::count_if(store.written.begin(), store.written.end(),
                                          [&](const StoreChange& change) { return change.name == name; }));
  }
};

TEST_F(PrintInFrameTest, OneWindowPrintsTheSelectedMonthAndFollowsTheCalendar) {
  Open();
  Show(15821004);
  CPrintFrame& print = OpenPrint();
  EXPECT_TRUE(print.isVisible() && print.isActiveWindow());
  EXPECT_EQ(print.StatusText(), QStringLiteral("Page 1 / 1 (octobre 1582)"));
  Show(20240515);
  EXPECT_EQ(&OpenPrint(), &print) << "the open one is brought forward";
  EXPECT_EQ(print.StatusText(), QStringLiteral("Page 1 / 1 (octobre 1582)")) << "year and month stay";
  Content().dayEvents = {Rule(kFixedDate, {.month = 10, .day = 2, .name = u"Fête nouvelle"})};
  frame->CalendarChanged();
  EXPECT_TRUE(print.View().accessibleDescription().contains(QString::fromUtf8("Fête nouvelle")));
}

TEST_F(PrintInFrameTest, ClosingItReturnsToTheMonthAndSavesOnlyWhatIsUnsaved) {
  Open();
  frame->Commands().Action(kCmdTogglePane)->trigger();
  for (const bool isChanged : {false, true}) {
    CPrintFrame& print = OpenPrint();
    const int layouts = Writes("PrintWindowLayout");
    Display().changed = isChanged;
    frame->showMinimized();
    print.close();
    Settle();
    EXPECT_EQ(frame->PrintFrame(), nullptr);
    EXPECT_TRUE(!frame->isMinimized() && Dialog().Month().hasFocus());
    EXPECT_EQ(Writes("PrintWindowLayout"), layouts + 1);
    EXPECT_EQ(files.files.count(u"/user/Calendar.xml"), isChanged ? 1U : 0U);
    EXPECT_FALSE(Display().changed);
  }
  EXPECT_EQ(Writes("WindowLayout"), 1) << "that of the fixture: the main window is still open";
  EXPECT_TRUE(messages.shown.isEmpty());
}

TEST_F(PrintInFrameTest, ClosingTheMainWindowClosesItFirstAndAsksNothing) {
  Open();
  QPointer<CPrintFrame> print = &OpenPrint();
  Display().changed = true;
  files.failingWrites.insert(u"/user/Calendar.xml");
  store.written.clear();
  frame->close();
  Settle();
  ASSERT_EQ(store.written.size(), 2U);
  EXPECT_EQ(store.written[0].name, "PrintWindowLayout");
  EXPECT_EQ(store.written[1].name, "WindowLayout");
  EXPECT_FALSE(frame->isVisible() || (print && print->isVisible()));
  EXPECT_TRUE(messages.shown.isEmpty());
}

TEST_F(PrintInFrameTest, TheEndOfASessionStoresBothPlaces) {
  Open();
  OpenPrint().setGeometry(200, 100, 640, 480);
  Settle();
  frame->KeepForNextSession();
  const QRect place = frame->PrintFrame()->frameGeometry();
  WindowLayout layout;
  LayoutFromBytes(*BinaryOf(*store.Read(), "PrintWindowLayout"), layout);
  EXPECT_EQ(layout.rect, ToRect(place));
  EXPECT_EQ(Writes("WindowLayout"), 2) << "that of the fixture and this one";
}

}  // namespace
}  // namespace orbisol

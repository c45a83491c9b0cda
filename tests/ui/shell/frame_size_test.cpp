// Size and place of the main window: what opens it, what changes it, what is stored.

#include <QAction>
#include <QScreen>
#include <QWindow>

#include <filesystem>

#include "platform/desktop_locale.h"
#include "tests/support/file_bytes.h"
#include "tests/ui/shell/frame_fixture.h"

namespace orbisol {
namespace {

// Returns the rectangle of a window with its frame.
Rect WithFrame(const QWidget& window) { return ToRect(window.frameGeometry()); }

TEST_F(FrameTest, ThePaneTakesItsWidthWithIt) {
  Open();
  frame->resize(900, 500);
  Settle();
  const int grid = Dialog().Month().width();
  const int pane = Dialog().PaneWidth();
  EXPECT_EQ(pane % 7, 0);
  Press(Qt::Key_Space);
  EXPECT_FALSE(Dialog().IsPaneShown());
  EXPECT_EQ(frame->size(), QSize(900 - pane, 500));
  EXPECT_EQ(Dialog().Month().width(), grid);
  EXPECT_TRUE(Dialog().Month().hasFocus());
  EXPECT_FALSE(Action(kCmdTogglePane).isChecked());
  EXPECT_FALSE(Dialog().Pane().isVisible());

  frame->resize(0, 0);  // as small as it goes: the month is not cut
  Settle();
  EXPECT_GE(Dialog().Month().width(), 7 * 56);
  const int least = frame->width();
  frame->RunCommand(kCmdTogglePane);
  Settle();
  EXPECT_EQ(frame->width(), least + pane);
  EXPECT_TRUE(Action(kCmdTogglePane).isChecked());
}

// Also a frame without a size of its own keeps its normal rectangle, and none grows from start to start.
TEST_F(FrameTest, TheStoredRectangleAlwaysHoldsThePaneAndTheFrame) {
  for (const Qt::WindowState state : {Qt::WindowNoState, Qt::WindowMaximized, Qt::WindowFullScreen}) {
    SCOPED_TRACE(state);
    Open();
    frame->setWindowState(Qt::WindowNoState);
    frame->setGeometry(100, 80, 900, 520);
    Settle();
    const Rect whole = WithFrame(*frame);
    const int pane = Dialog().PaneWidth();
    frame->setWindowState(state);
    Settle();
    frame->RunCommand(kCmdTogglePane);
    EXPECT_EQ(frame->isFullScreen(), state == Qt::WindowFullScreen) << "nothing resizes it out of that state";
    frame->close();
    EXPECT_EQ(Stored().maximized, state == Qt::WindowMaximized ? 1 : 0);
    EXPECT_EQ(Stored().rect, whole);
    EXPECT_EQ(Stored().rightPaneShown, 0);
    EXPECT_EQ(Stored().rightPaneWidth, pane);
    for (int again = 0; again < 2; ++again) {
      Open();
      EXPECT_EQ(frame->isMaximized(), state == Qt::WindowMaximized);
      EXPECT_TRUE(frame->isMaximized() || frame->geometry() == QRect(100, 80, 900 - pane, 520));
      frame->close();
      EXPECT_EQ(Stored().rect, whole);
    }
    Open();
    frame->RunCommand(kCmdTogglePane);
    frame->close();
    EXPECT_EQ(Stored().rect, whole);
  }
}

TEST_F(FrameTest, AtEveryFontTheWindowFitsOnItsScreenAndItsTextsStayWhole) {
  Open();
  const QFont font = Dialog().font();
  const QSize screen = frame->screen()->availableSize();
  int narrower = 0;
  for (const double times : {1.0, 1.5, 2.0, 2.7}) {
    SCOPED_TRACE(times);
    QFont large = font;
    large.setPointSizeF(font.pointSizeF() * times);
    QApplication::setFont(large);
    Settle();
    for (const bool isPaneShown : {false, true}) {
      Dialog().ShowPane(isPaneShown);
      frame->resize(1, 1);  // as small as it goes
      Settle();
      EXPECT_TRUE(frame->width() <= screen.width() && frame->height() <= screen.height());
      const CHeaderWnd& header = Dialog().Header();
      const QFontMetrics metrics(header.font());
      EXPECT_LT(metrics.horizontalAdvance(header.LeftText() + header.RightText()), header.width());
      EXPECT_GE(Dialog().Month().geometry().bottom(), Dialog().height() / 2);
      EXPECT_LT(Dialog().Month().geometry().bottom(), Dialog().height());
    }
    EXPECT_GT(Dialog().PaneWidth(), narrower);
    narrower = Dialog().PaneWidth() - 1;  // on a narrow screen it cannot grow for ever
    auto* const button = Control<QPushButton>("julien");
    Dialog().setMinimumHeight(0);
    frame->setFixedHeight(static_cast<int>(300 * times));  // as on a low screen: the pane scrolls there
    Settle();
    button->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect());
    frame->setMinimumHeight(0);
    frame->setMaximumHeight(QWIDGETSIZE_MAX);
  }
  QApplication::setFont(font);
}

// The program in a session of each locale, with the calendars that ship, when the window was never closed.
TEST_F(FrameTest, TheFirstStartMarksTheHolidaysOfTheCountryOfTheSessionInAWindowInTheMiddle) {
  constexpr std::tuple<const char*, PackedDate, const char*> kFirstStarts[] = {
      {"fr_CA.UTF-8", 20260624, "Fête nationale | "},
      {"de_DE.UTF-8", 20261003, "Jour de l'Unité allemande | "},
      {"C", 20260714, "Fête nationale | "},
  };
  for (const auto& entry : std::filesystem::directory_iterator(ORBISOL_LEGALS))
    files.Put(u"/share/Legals/" + entry.path().filename().u16string(), BytesOf(entry.path().string()));
  const std::size_t shipped = files.files.size();
  for (const auto& [name, holiday, status] : kFirstStarts) {
    SCOPED_TRACE(name);
    const CDesktopLocale locale(name);
    frame.reset();
    store.Write({{"WindowLayout", {}}});
    Content() = CalendarContent();
    frame = std::make_unique<CCalendarFrame>(
        FrameServices{store, calendars, publicCalendars, {locale.Language(), locale.Country()}});
    frame->Open();
    Settle();
    EXPECT_TRUE(Dialog().IsPaneShown());
    EXPECT_EQ(frame->frameGeometry(), QRect(320, 180, 1280, 720)) << "two thirds of the screen";
    EXPECT_EQ(Dialog().Month().height() % 7, 0);
    Show(holiday);
    EXPECT_TRUE((Status() + " | ").starts_with(status)) << Status();
    const auto [year, month, day] = Unpack(holiday);
    const MonthModel& shown = Dialog().Month().Month();
    EXPECT_NE(shown.cells[static_cast<std::size_t>(shown.CellOf(month, day))].marks & kHolidayMark, 0U);
    frame->close();
    EXPECT_EQ(files.files.size(), shipped) << "opening and closing writes no calendar";
  }
}

}  // namespace
}  // namespace orbisol

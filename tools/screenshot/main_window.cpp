// The main window: first seen, in May 2026, in October 1582 and before the era, small and large, and in
// several fonts.
#include <QApplication>
#include <QMouseEvent>
#include <QPalette>
#include <QScreen>

#include "content/calendar_content.h"
#include "content/selected_date.h"
#include "files/calendar_store.h"
#include "settings/display_settings.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "tools/screenshot/pictures.h"
#include "ui/shell/calendar_frame.h"

namespace orbisol {
namespace {

void DragFromSelected(CMonthWindow& window, PackedDate to) {
  const YearMonthDay end = Unpack(to);
  const auto middle = [&](int cell) {
    const Rect rect = window.Places().CellRect(cell);
    return QPointF((rect.left + rect.right) / 2.0, (rect.top + rect.bottom) / 2.0);
  };
  const auto send = [&](QEvent::Type type, const QPointF& at, Qt::MouseButton button) {
    QMouseEvent event(type, at, window.mapToGlobal(at), button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &event);
  };
  send(QEvent::MouseButtonPress, middle(window.SelectedCell()), Qt::LeftButton);
  send(QEvent::MouseMove, middle(window.Month().CellOf(end.month, end.day)), Qt::NoButton);
}

void UseFont(int points) {
  QFont font = QApplication::font();
  font.setPointSize(points);
  QApplication::setFont(font);
}

constexpr PackedDate kToday = 20260513;

struct WindowPicture {
  const char* name;
  PackedDate date = kToday;
  void (*before)() = nullptr;                        // called before the window is made
  void (*prepare)(CCalendarFrame& frame) = nullptr;  // called with the open window
};

const WindowPicture kWindowPictures[] = {
    {"window_may_2026"},
    {"window_october_1582", 15821004},
    {"window_before_the_era", -440315},
    {"window_pane_hidden", kToday, nullptr, [](CCalendarFrame& frame) { frame.RunCommand(kCmdTogglePane); }},
    {"window_no_week_numbers", kToday, nullptr, [](CCalendarFrame&) { Display().showWeekNumber = false; }},
    {"window_sunday_first", kToday, nullptr, [](CCalendarFrame&) { Rules().iso8601 = false; }},
    {"window_range", kToday, nullptr,
     [](CCalendarFrame& frame) { DragFromSelected(frame.Dialog().Month(), 20260522); }},
    {"window_dark_theme", kToday, [] { QApplication::setPalette(DarkTheme()); }},
    {"window_font_9", kToday, [] { UseFont(9); }},
    {"window_font_14", kToday, [] { UseFont(14); }},
    {"window_font_18", kToday, [] { UseFont(18); }},
    {"window_smallest", kToday, nullptr, [](CCalendarFrame& frame) { frame.resize(0, 0); }},
    {"window_smallest_font_18", kToday, [] { UseFont(18); },
     [](CCalendarFrame& frame) { frame.resize(0, 0); }},
    {"window_large", kToday, nullptr, [](CCalendarFrame& frame) { frame.resize(1600, 900); }},
};

// Opens the program in France: with `isFresh` on a machine where it has never run, else where it was closed
// with its pane shown.
void SaveWindow(CPictureFolder& folder, const WindowPicture& picture, const QString& name, bool isFresh) {
  const QPalette theme = QApplication::palette();
  const QFont font = QApplication::font();
  if (picture.before != nullptr) picture.before();
  ResetCalendarConfig();
  Selected().SetPacked(picture.date);
  CMemoryStore store("\"CalendarName\"=\"Calendar\"\n");
  CMemoryFiles files;
  files.Put(u"/share/Legals/France.xml", FileOfFrance());
  CCalendarStore calendars(files, kMemoryFolders);
  const CPublicCalendars publicCalendars(files, kMemoryFolders);
  if (!isFresh) {
    WindowLayout layout;
    layout.rightPaneShown = true;
    store.Write({{"WindowLayout", BinaryValue(LayoutToBytes(layout))}});
  }
  CCalendarFrame frame({store, calendars, publicCalendars, {u"fr", u"FR"}});
  frame.Open();
  frame.activateWindow();
  QApplication::processEvents();
  if (picture.prepare != nullptr) picture.prepare(frame);
  if (!frame.Dialog().Month().HasRange()) frame.Dialog().SettingsChanged();
  QApplication::processEvents();
  folder.Save(frame, name);
  QApplication::setPalette(theme);
  QApplication::setFont(font);
}

}  // namespace

void TakeFirstWindow(CPictureFolder& folder) {
  const QSize screen = QApplication::primaryScreen()->size();
  const QString name = QStringLiteral("first_window_%1x%2").arg(screen.width()).arg(screen.height());
  SaveWindow(folder, WindowPicture(), name, true);
}

void TakeMainWindow(CPictureFolder& folder) {
  for (const WindowPicture& picture : kWindowPictures)
    SaveWindow(folder, picture, QString::fromLatin1(picture.name), false);
}

}  // namespace orbisol

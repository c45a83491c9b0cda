// Pictures of the main window, and of the month alone, for people to look at: one PNG a case, at the scale of
// QT_SCALE_FACTOR.
//
//   QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 orbisol_screenshots build/screenshots

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "content/calendar_content.h"
#include "content/selected_date.h"
#include "files/calendar_file.h"
#include "settings/display_settings.h"
#include "tests/support/fakes.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "ui/shell/calendar_frame.h"
#include "ui/toolkit/french_toolkit.h"

namespace orbisol {
namespace {

std::string FileOfFrance() {
  std::ifstream file(ORBISOL_SOURCE_DIR "/resources/legals/France.xml", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void AddPeriod(PackedDate from, PackedDate to) {
  HolidayPeriod period;
  period.ymdFrom = from;
  period.ymdTo = to;
  Content().holidays.push_back(period);
}

void AddEvent(int month, int day) {
  DayEvent event;
  event.month = month;
  event.day = day;
  event.ymdFrom = kAlwaysFrom;
  event.ymdTo = kAlwaysTo;
  Content().dayEvents.push_back(event);
}

// Everything that is filled, in colors that tell one another apart.
void ColorTheDays() {
  AddPeriod(20240506, 20240519);
  AddEvent(5, 14);
  AddEvent(5, 23);
  Display().colors[kHolidayBack] = Rgb(0xFF, 0xD8, 0xD0);
  Display().colors[kEventBack] = Rgb(0xFF, 0xF2, 0xA8);
  Display().colors[kVacationBack] = Rgb(0xC8, 0xE0, 0xC0);
}

QString DarkPicture(const QTemporaryDir& folder) {
  QImage picture(400, 300, QImage::Format_RGB32);
  QPainter painter(&picture);
  QLinearGradient night(0, 0, 0, 300);
  night.setColorAt(0, QColor(0x0E, 0x16, 0x26));
  night.setColorAt(1, QColor(0x3A, 0x2C, 0x48));
  painter.fillRect(picture.rect(), night);
  painter.end();
  const QString path = folder.filePath(QStringLiteral("night.png"));
  picture.save(path);
  return path;
}

// As a dark desktop sets it for all programs.
QPalette DarkTheme() {
  QPalette dark(QColor(0x3A, 0x3A, 0x3A), QColor(0x2B, 0x2B, 0x2B));
  dark.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
  dark.setColor(QPalette::Highlight, QColor(0x35, 0x84, 0xE4));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  return dark;
}

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

// The program as it opens on a fresh machine in France, its pane shown, `prepare` done to it.
struct WindowPicture {
  const char* name;
  PackedDate date;
  void (*prepare)(CCalendarFrame& frame);
};

const WindowPicture kWindowPictures[] = {
    {"window_may_2024", 20240515, [](CCalendarFrame&) {}},
    {"window_october_1582", 15821004, [](CCalendarFrame&) {}},
    {"window_before_the_era", -440315, [](CCalendarFrame&) {}},
    {"window_pane_hidden", 20240515, [](CCalendarFrame& frame) { frame.RunCommand(kCmdTogglePane); }},
    {"window_no_week_numbers", 20240515, [](CCalendarFrame&) { Display().showWeekNumber = false; }},
    {"window_sunday_first", 20240515, [](CCalendarFrame&) { Rules().iso8601 = false; }},
    {"window_range", 20240513,
     [](CCalendarFrame& frame) { DragFromSelected(frame.Dialog().Month(), 20240524); }},
    {"window_dark_theme", 20240515, [](CCalendarFrame&) { QApplication::setPalette(DarkTheme()); }},
    {"window_smallest", 20240515, [](CCalendarFrame& frame) { frame.resize(0, 0); }},
    {"window_large", 20240515, [](CCalendarFrame& frame) { frame.resize(1600, 900); }},
};

// The month alone, in what the settings can make of it.
struct MonthPicture {
  const char* name;
  PackedDate date;
  QSize size;
  void (*prepare)();
};

const MonthPicture kMonthPictures[] = {
    {"month_first", -39990101, {700, 392}, [] {}},
    {"month_bands", 20240515, {700, 392}, ColorTheDays},
    {"month_cells",
     20240515,
     {700, 392},
     [] {
       ColorTheDays();
       Display().fullCellBackground = true;
     }},
    {"month_rounded",
     20240515,
     {700, 392},
     [] {
       ColorTheDays();
       Display().fullCellBackground = true;
       Display().collapseCells = false;
       Display().circleTheDay = true;
       Display().circleWidth = 3;
     }},
    {"month_plain",
     20240515,
     {700, 392},
     [] {
       Display().backgroundImage = false;
       Display().grid = false;
       Display().showWeekNumber = true;
       Display().fontWeight = 700;
     }},
    {"month_narrow", 20240515, {210, 300}, [] { Display().showWeekNumber = true; }},
    {"month_small", 20240515, {140, 90}, [] {}},
};

bool Save(QWidget& window, const QString& folder, const QString& name) {
  const QString path =
      QStringLiteral("%1/%2@%3.png").arg(folder, name).arg(window.devicePixelRatioF(), 0, 'g', 3);
  if (window.grab().save(path)) return true;
  std::fprintf(stderr, "%s cannot be written\n", qPrintable(path));
  return false;
}

bool SaveWindow(const WindowPicture& picture, const std::string& france, const QString& folder) {
  ResetCalendarConfig();
  Selected().SetPacked(picture.date);
  CMemoryStore store("\"CalendarName\"=\"Calendar\"\n");
  CMemoryFiles files;
  files.Put(u"/share/Legals/France.xml", france);
  CCalendarStore calendars(files);
  const QPalette theme = QApplication::palette();
  WindowLayout layout;
  layout.rightPaneShown = 1;
  store.Write({{"WindowLayout", BinaryValue(LayoutToBytes(layout))}});
  CCalendarFrame frame({store, calendars, {u"fr", u"FR"}});
  frame.Open();
  frame.activateWindow();
  QApplication::processEvents();
  picture.prepare(frame);
  if (!frame.Dialog().Month().HasRange()) frame.Dialog().SettingsChanged();
  QApplication::processEvents();
  const bool saved = Save(frame, folder, QString::fromLatin1(picture.name));
  QApplication::setPalette(theme);
  return saved;
}

bool SaveMonths(const std::string& france, const QString& folder) {
  const CalendarContent legal = ReadCalendar(france).content;
  const auto restore = [&](PackedDate date) {
    ResetCalendarConfig();
    Display() = DisplaySettings();
    Content() = legal;
    Selected().SetPacked(date);
  };
  bool saved = true;
  for (const MonthPicture& picture : kMonthPictures) {
    restore(picture.date);
    picture.prepare();
    CMonthWindow window(nullptr);
    window.resize(picture.size);
    saved = Save(window, folder, QString::fromLatin1(picture.name)) && saved;
  }

  restore(20240515);
  const QTemporaryDir scratch;
  Display().backgroundImagePath.Set(DarkPicture(scratch).toStdU16String());
  Display().colors[kStandardTextColor] = Rgb(0xFF, 0xFF, 0xFF);
  Display().colors[kGrayTextColor] = Rgb(0xA0, 0xA8, 0xB0);
  CMonthWindow window(nullptr);
  window.resize(700, 392);
  return Save(window, folder, QStringLiteral("month_dark_picture")) && saved;
}

bool TakeAll(const QString& folder) {
  const std::string france = FileOfFrance();
  const ScopedPlatform pinned(FakeLocale(), FakeClock({2024, 5, 15}));
  bool saved = true;
  for (const WindowPicture& picture : kWindowPictures) saved = SaveWindow(picture, france, folder) && saved;
  return SaveMonths(france, folder) && saved;
}

}  // namespace
}  // namespace orbisol

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: orbisol_screenshots FOLDER\n", stderr);
    return 2;
  }
  orbisol::SpeakFrench(application);
  const QString folder = QString::fromLocal8Bit(argv[1]);
  return QDir().mkpath(folder) && orbisol::TakeAll(folder) ? 0 : 1;
}

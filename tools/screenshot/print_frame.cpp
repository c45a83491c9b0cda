// The print frame: as it opens, on pages of several formats, zoomed, in the default font and in one a third
// larger; its dialog for several years, and its icons at their sizes.
#include "ui/print/print_frame.h"

#include <QApplication>
#include <QLabel>

#include <initializer_list>

#include "content/calendar_content.h"
#include "content/selected_date.h"
#include "files/calendar_file.h"
#include "resources/menus.h"
#include "settings/display_settings.h"
#include "tests/support/memory_store.h"
#include "tools/screenshot/pictures.h"
#include "ui/print/print_years_dlg.h"

namespace orbisol {
namespace {

constexpr double kLarge = 4.0 / 3;

struct FramePicture {
  const char* name;
  PackedDate date;
  std::initializer_list<CommandId> commands;
};

const FramePicture kFramePictures[] = {
    {"print_frame", 20260513, {}},
    {"print_frame_year", 20260513, {kCmdPeriodYear, kCmdFormatYear}},
    {"print_frame_quarter", 20260513, {kCmdPeriodYear, kCmdFormatQuarter, kCmdNextPage, kCmdFitWidth}},
    {"print_frame_month", 17991101, {kCmdFormatMonth, kCmdPrintRepublican, kCmdPrintJulian}},
    {"print_frame_table", 20260513, {kCmdFormatTable, kCmdActualSize}},
};

void Shoot(CPictureFolder& folder, QWidget& window, const QString& name) {
  window.show();
  window.activateWindow();
  QApplication::processEvents();
  folder.Save(window, name);
}

void TakeFrames(CPictureFolder& folder, const QString& suffix) {
  for (const FramePicture& picture : kFramePictures) {
    CMemoryStore store("\"CalendarName\"=\"Calendar\"\n");
    CPrintFrame frame(store, Unpack(picture.date).year, Unpack(picture.date).month);
    frame.Open();
    QApplication::processEvents();
    for (const CommandId command : picture.commands) frame.RunCommand(command);
    Shoot(folder, frame, QString::fromLatin1(picture.name) + suffix);
  }
  PrintJob job(2026, 5);
  job.ChoosePeriod(kCmdPeriodYear);
  job.ChooseFormat(kCmdFormatMonth);
  CPrintYearsDlg years(job);
  Shoot(folder, years, QStringLiteral("print_years") + suffix);
}

}  // namespace

void TakePrintFrame(CPictureFolder& folder) {
  ResetCalendarConfig();
  Content() = ReadCalendar(FileOfFrance()).content;
  Display() = DisplaySettings();
  Display().printLayout.rect = {50, 50, 850, 650};
  const QFont font = QApplication::font();
  for (const bool isLarge : {false, true}) {
    QFont used = font;
    if (isLarge) used.setPointSizeF(font.pointSizeF() * kLarge);
    QApplication::setFont(used);
    TakeFrames(folder, isLarge ? QStringLiteral("_large_font") : QString());
  }
  QApplication::setFont(font);
  Display() = DisplaySettings();
  Content() = CalendarContent();
}

}  // namespace orbisol

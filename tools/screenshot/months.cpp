// The month alone, in what the settings can make of it.
#include <QEventLoop>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTimer>

#include "content/calendar_content.h"
#include "content/selected_date.h"
#include "files/calendar_file.h"
#include "settings/display_settings.h"
#include "tests/content/rule_builder.h"
#include "tools/screenshot/pictures.h"
#include "ui/month/month_window.h"

namespace orbisol {
namespace {

// Fills everything that can be filled, in colors that tell one another apart.
void ColorTheDays() {
  Content().vacations.push_back(Period(20240506, 20240519));
  for (const int day : {14, 23}) Content().dayEvents.push_back(EveryYear(5, day, u"", false));
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

}  // namespace

void TakeMonths(CPictureFolder& folder) {
  const CalendarContent legal = ReadCalendar(FileOfFrance()).content;
  const auto restore = [&](PackedDate date) {
    ResetCalendarConfig();
    Display() = DisplaySettings();
    Content() = legal;
    Selected().SetPacked(date);
  };
  for (const MonthPicture& picture : kMonthPictures) {
    restore(picture.date);
    picture.prepare();
    CMonthWindow window(nullptr);
    window.resize(picture.size);
    folder.Save(window, QString::fromLatin1(picture.name));
  }

  restore(20240515);
  const QTemporaryDir scratch;
  Display().backgroundImagePath.Set(DarkPicture(scratch).toStdU16String());
  Display().colors[kStandardTextColor] = Rgb(0xFF, 0xFF, 0xFF);
  Display().colors[kGrayTextColor] = Rgb(0xA0, 0xA8, 0xB0);
  CMonthWindow window(nullptr);
  window.resize(700, 392);
  window.grab();  // the file is read after the first paint
  QEventLoop waits;
  QTimer::singleShot(500, &waits, &QEventLoop::quit);
  waits.exec();
  folder.Save(window, QStringLiteral("month_dark_picture"));
}

}  // namespace orbisol

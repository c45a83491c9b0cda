// The printed pages in every format, upright and wide, as a preview shows them.
#include <QImage>
#include <QLinearGradient>
#include <QPageLayout>
#include <QPainter>

#include "content/calendar_content.h"
#include "files/calendar_file.h"
#include "resources/command_ids.h"
#include "tests/content/rule_builder.h"
#include "tools/screenshot/pictures.h"
#include "ui/painting/month_pictures.h"
#include "ui/print/page_painter.h"

namespace orbisol {
namespace {

constexpr int kPictureResolution = 110;  // dots per inch of the pictures

struct PagePicture {
  const char* name;
  int year;
  int month;
  int period;
  int format;
  QPageLayout::Orientation orientation;
  std::vector<int> options = {};  // options that are turned
};

const PagePicture kPages[] = {
    {"page_year_wide", 2024, 5, kCmdPeriodYear, kCmdFormatYear, QPageLayout::Landscape},
    {"page_year_upright", 2024, 5, kCmdPeriodYear, kCmdFormatYear, QPageLayout::Portrait},
    {"page_half_wide", 2024, 5, kCmdPeriodHalf1, kCmdFormatHalf, QPageLayout::Landscape},
    {"page_half_upright", 2024, 5, kCmdPeriodHalf1, kCmdFormatHalf, QPageLayout::Portrait},
    {"page_quarter_wide", 2024, 5, kCmdPeriodQuarter2, kCmdFormatQuarter, QPageLayout::Landscape},
    {"page_quarter_upright", 2024, 5, kCmdPeriodQuarter2, kCmdFormatQuarter, QPageLayout::Portrait},
    {"page_month_wide", 2024, 5, kCmdPeriodMonth, kCmdFormatMonth, QPageLayout::Landscape},
    {"page_month_upright", 2024, 5, kCmdPeriodMonth, kCmdFormatMonth, QPageLayout::Portrait},
    {"page_table_wide", 2024, 5, kCmdPeriodMonth, kCmdFormatTable, QPageLayout::Landscape},
    {"page_table_upright", 2024, 5, kCmdPeriodMonth, kCmdFormatTable, QPageLayout::Portrait},
    {"page_screen_wide", 2024, 5, kCmdPeriodMonth, kCmdFormatScreen, QPageLayout::Landscape},
    {"page_screen_upright", 2024, 5, kCmdPeriodMonth, kCmdFormatScreen, QPageLayout::Portrait},
    {"page_month_both_calendars",
     1799,
     11,
     kCmdPeriodMonth,
     kCmdFormatMonth,
     QPageLayout::Portrait,
     {kCmdPrintJulian, kCmdPrintRepublican}},
    {"page_table_both_calendars",
     1799,
     11,
     kCmdPeriodMonth,
     kCmdFormatTable,
     QPageLayout::Landscape,
     {kCmdPrintJulian, kCmdPrintRepublican}},
    {"page_table_both_upright",
     1793,
     9,
     kCmdPeriodMonth,
     kCmdFormatTable,
     QPageLayout::Portrait,
     {kCmdPrintJulian, kCmdPrintRepublican}},
    {"page_table_republican",
     1793,
     9,
     kCmdPeriodMonth,
     kCmdFormatTable,
     QPageLayout::Landscape,
     {kCmdPrintRepublican}},
    {"page_table_reform", 1582, 10, kCmdPeriodMonth, kCmdFormatTable, QPageLayout::Landscape},
    {"page_quarter_reform", 1582, 10, kCmdPeriodQuarter4, kCmdFormatQuarter, QPageLayout::Landscape},
    {"page_table_before_era", -43, 3, kCmdPeriodMonth, kCmdFormatTable, QPageLayout::Landscape},
    {"page_table_picture_upright",
     2024,
     5,
     kCmdPeriodMonth,
     kCmdFormatTable,
     QPageLayout::Portrait,
     {kCmdPrintImage}},
    {"page_table_picture_wide",
     2024,
     5,
     kCmdPeriodMonth,
     kCmdFormatTable,
     QPageLayout::Landscape,
     {kCmdPrintImage}},
    {"page_year_picture_wide",
     2024,
     5,
     kCmdPeriodYear,
     kCmdFormatYear,
     QPageLayout::Landscape,
     {kCmdPrintImage}},
};

// Returns a family's calendar: the days of France, birthdays, and holidays of the schools.
CalendarContent FamilyContent() {
  CalendarContent content = ReadCalendar(FileOfFrance()).content;
  for (const DayEvent& event :
       {EveryYear(1, 6, u"Galette", false), EveryYear(3, 19, u"Anniversaire de Joséphine", false),
        EveryYear(5, 23, u"Rendez-vous chez le dentiste avec les enfants, à quatorze heures", false),
        EveryYear(11, 23, u"Anniversaire de Clément", false)})
    content.dayEvents.push_back(event);
  content.vacations = {Period(20231223, 20240107, u"Vacances de Noël"),
                       Period(20240210, 20240225, u"Vacances d'hiver"),
                       Period(20240406, 20240421, u"Vacances de printemps"),
                       Period(20240508, 20240512, u"Pont de l'Ascension"),
                       Period(20240706, 20240901, u"Vacances d'été"),
                       Period(20241019, 20241103, u"Vacances de la Toussaint"),
                       Period(20241221, 20250105, u"Vacances de Noël")};
  return content;
}

QImage Sunset() {
  QImage picture(1200, 800, QImage::Format_RGB32);
  QPainter painter(&picture);
  QLinearGradient sky(0, 0, 0, 800);
  sky.setColorAt(0, QColor(0x22, 0x49, 0x6B));
  sky.setColorAt(0.7, QColor(0xE8, 0xA3, 0x3D));
  sky.setColorAt(1, QColor(0x5A, 0x3A, 0x3A));
  painter.fillRect(picture.rect(), sky);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0xFF, 0xF2, 0xC8));
  painter.drawEllipse(QPoint(820, 500), 90, 90);
  return picture;
}

}  // namespace

void TakePrinting(CPictureFolder& folder) {
  ResetCalendarConfig();
  const PrintSource source = {FamilyContent(),     DisplaySettings(), Rules(),
                              BuiltInBackground(), Sunset(),          QFont()};
  for (const PagePicture& page : kPages) {
    PrintJob job(page.year, page.month);
    job.ChooseFormat(page.format);
    job.ChoosePeriod(page.period);
    for (const int option : page.options) job.ToggleOption(option);
    const QPageLayout layout(QPageSize(QPageSize::A4), page.orientation, QMarginsF(10, 10, 10, 10),
                             QPageLayout::Millimeter);
    QImage picture(layout.fullRectPixels(kPictureResolution).size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    const double zoom = static_cast<double>(kPictureResolution) / kPrintResolution;
    painter.scale(zoom, zoom);
    CPagePainter(job, source).Paint(painter, 0, SpaceOf(layout, kPrintResolution));
    painter.end();
    folder.Save(picture, QString::fromLatin1(page.name));
  }
}

}  // namespace orbisol

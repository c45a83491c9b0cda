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
  QPageSize::PageSizeId paper = QPageSize::A4;
  bool isCrowded = false;  // whether something with a long name falls on each day
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
    {"page_table_a3",
     2024,
     5,
     kCmdPeriodMonth,
     kCmdFormatTable,
     QPageLayout::Landscape,
     {kCmdPrintJulian},
     QPageSize::A3},
    {"page_year_a3", 2024, 5, kCmdPeriodYear, kCmdFormatYear, QPageLayout::Landscape, {}, QPageSize::A3},
    {"page_table_crowded",
     2024,
     9,
     kCmdPeriodMonth,
     kCmdFormatTable,
     QPageLayout::Landscape,
     {kCmdPrintImage, kCmdPrintJulian, kCmdPrintRepublican},
     QPageSize::A4,
     true},
    {"page_month_crowded",
     2024,
     9,
     kCmdPeriodMonth,
     kCmdFormatMonth,
     QPageLayout::Portrait,
     {kCmdPrintImage, kCmdPrintJulian, kCmdPrintRepublican},
     QPageSize::A4,
     true},
    {"page_half_crowded",
     2024,
     9,
     kCmdPeriodHalf2,
     kCmdFormatHalf,
     QPageLayout::Landscape,
     {kCmdPrintImage},
     QPageSize::A4,
     true},
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

// Returns a calendar with a holiday, an event or both on each day, and vacations that follow one another.
CalendarContent CrowdedContent() {
  CalendarContent content;
  for (int day = 1; day <= 31; ++day) {
    for (int month = 1; month <= 12; ++month) {
      if (day % 3 != 0)
        content.dayEvents.push_back(
            EveryYear(month, day, u"Anniversaire de Marie-Joséphine de La Rochefoucauld", false));
      if (day % 4 < 2)
        content.dayEvents.push_back(EveryYear(month, day, u"Commémoration de l'armistice", true));
      if (day % 7 == 1 && day < 28)
        content.vacations.push_back(Period(20240000 + 100 * month + day, 20240000 + 100 * month + day + 6,
                                           u"Vacances d'automne à l'étranger"));
    }
  }
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
  PrintSource crowded = source;
  crowded.content = CrowdedContent();
  for (const PagePicture& page : kPages) {
    PrintJob job(page.year, page.month);
    job.ChooseFormat(page.format);
    job.ChoosePeriod(page.period);
    for (const int option : page.options) job.ToggleOption(option);
    const QPageLayout layout(QPageSize(page.paper), page.orientation, QMarginsF(10, 10, 10, 10),
                             QPageLayout::Millimeter);
    QImage picture(layout.fullRectPixels(kPictureResolution).size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    const double zoom = static_cast<double>(kPictureResolution) / kPrintResolution;
    painter.scale(zoom, zoom);
    CPagePainter(job, page.isCrowded ? crowded : source).Paint(painter, 0, SpaceOf(layout, kPrintResolution));
    painter.end();
    folder.Save(picture, QString::fromLatin1(page.name));
  }
}

}  // namespace orbisol

// Painted pages, held by laws: which ground a day has, that no text leaves its place, which rows stay blank.

#include "ui/print/page_painter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "tests/support/rules.h"
#include "tests/ui/print/print_fixture.h"
#include "ui/print/concordance.h"
#include "ui/print/page_month.h"
#include "ui/toolkit/geometry.h"

namespace orbisol {
namespace {

// Resolution of pictures in which positions are those of the layout.
constexpr int kResolution = 150;

// A page painted in the units of its layout, without a scale.
struct PaintedPage {
  QImage image;
  PageBands bands;

  explicit PaintedPage(const PrintJob& job, const PrintSource& source = SourceOfTests(),
                       QPageLayout::Orientation orientation = QPageLayout::Landscape) {
    const QPageLayout layout = Paper(orientation);
    image = QImage(layout.fullRectPixels(kResolution).size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    const PageSpace space = SpaceOf(layout, kResolution);
    bands = PageBandsOf(space.area, PageUnits(kResolution), job.MonthsPerPage(),
                        job.formatCommand == kCmdFormatTable,
                        job.Has(kImageOption) ? PictureSize{300, 200} : PictureSize());
    QPainter painter(&image);
    CPagePainter(job, source).Paint(painter, 0, space);
  }

  ColumnLayout Column(int months, int index) const {
    ColumnLayout column = ColumnOnPage(bands.body, PageUnits(kResolution), months, index);
    const CPageFonts fonts(SourceOfTests().settings, QFont());
    column.letter = WidthOf(fonts.OfHeight(column.TitleFontHeight(), Lettering::kBold), QStringLiteral("M"));
    return column;
  }

  // Returns the color most found in a rectangle, which is that of its ground.
  QRgb Ground(const Rect& rect) const {
    std::map<QRgb, int> counts;
    for (int y = rect.top; y < rect.bottom; ++y)
      for (int x = rect.left; x < rect.right; ++x) ++counts[image.pixel(x, y)];
    const auto more = [](const auto& a, const auto& b) { return a.second < b.second; };
    return counts.empty() ? 0 : std::max_element(counts.begin(), counts.end(), more)->first;
  }

  // Returns the sum of a value of grey over the pixels of a rectangle.
  template <class Value>
  int Sum(const Rect& rect, Value value) const {
    int sum = 0;
    for (int y = rect.top; y < rect.bottom; ++y)
      for (int x = rect.left; x < rect.right; ++x) sum += value(qGray(image.pixel(x, y)));
    return sum;
  }
  int Darkness(const Rect& rect) const {
    return Sum(rect, [](int grey) { return 255 - grey; });
  }
  bool IsBlank(const Rect& rect) const { return Darkness(rect) == 0; }
  int BlackPixels(const Rect& rect) const {
    return Sum(rect, [](int grey) { return grey < 80 ? 1 : 0; });
  }
};

PrintJob WithOptions(PrintJob job, unsigned options) {
  job.options = options;
  return job;
}

PrintSource Nameless(PrintSource source) {
  for (DayEvent& event : source.content.dayEvents) event.name.Set(u" ");
  for (HolidayPeriod& period : source.content.vacations) period.title.Set(u"");
  return source;
}

Rect Inner(const Rect& rect) { return rect.Shrunk(3); }

TEST(PagePainterTest, TheGroundOfADayFollowsItsMarksAndTheOptions) {
  constexpr QRgb kWhite = qRgb(255, 255, 255);
  constexpr QRgb kLight = qRgb(224, 224, 224);
  constexpr QRgb kMiddle = qRgb(192, 192, 192);
  constexpr QRgb kBlue = qRgb(224, 224, 255);
  struct {
    unsigned options;
    int day;
    QRgb row, strip;
  } const kRows[] = {
      {kHolidayOption | kEventOption | kVacationOption, 1, kMiddle, kMiddle},
      {kHolidayOption | kEventOption | kVacationOption, 23, kLight, kLight},
      {kHolidayOption | kEventOption | kVacationOption, 9, kWhite, kBlue},
      {kHolidayOption | kEventOption | kVacationOption, 12, kLight, kBlue},  // a Sunday
      {kHolidayOption | kEventOption | kVacationOption, 2, kWhite, kWhite},
      {kVacationOption, 1, kWhite, kWhite},
      {kHolidayOption, 23, kWhite, kWhite},
      {0, 9, kWhite, kWhite},
      {0, 5, kLight, kLight},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(testing::Message() << "options " << row.options << ", day " << row.day);
    const PaintedPage page(WithOptions(JobOf(kCmdFormatMonth), row.options));
    const ColumnLayout column = page.Column(1, 0);
    EXPECT_EQ(page.Ground(Inner(column.Text(row.day))), row.row);
    EXPECT_EQ(page.Ground(Inner(column.Strip(row.day))), row.strip);

    const PaintedPage tablePage(WithOptions(JobOf(kCmdFormatTable), row.options));
    const TableLayout table = TableOnPage(tablePage.bands.body, PageUnits(kResolution), 5, 0);
    const int place = row.day + 1;  // May 2024 begins on a Wednesday
    const TableCell parts = PartsOf(table.Cell(place / 7, place % 7), table);
    EXPECT_EQ(tablePage.Ground(Inner(parts.text)), row.row);
    EXPECT_EQ(tablePage.Ground(Inner(parts.head)), row.strip);
  }
}

// Names of holiday, event and vacation on ordinary days, all alike, differ in their lettering alone.
TEST(PagePainterTest, LetteringTellsMarksApart) {
  PrintSource source = SourceOfTests();
  source.content.dayEvents = {Rule(kFixedDate, {.month = 5, .day = 2, .name = u"Maxime"}),
                              Rule(kFixedDate, {.isPublic = false, .month = 5, .day = 3, .name = u"Maxime"})};
  source.content.vacations = {Period(20240507, 20240508, u"Maxime"), Period(20240509, 20240509, u"Zoé")};
  const PaintedPage page(JobOf(kCmdFormatMonth), source);
  const PaintedPage bare(JobOf(kCmdFormatMonth), Nameless(source));
  const ColumnLayout column = page.Column(1, 0);
  const auto ink = [&](int day) {
    return (page.Darkness(column.Text(day)) - bare.Darkness(column.Text(day))) * 100 /
           std::max(1, qGray(page.Ground(Inner(column.Text(day)))));
  };
  EXPECT_GT(ink(2), ink(3) * 12 / 10) << "a holiday is bold";
  EXPECT_NE(ink(7), ink(3)) << "a vacation is italic";
  EXPECT_GT(ink(7), 0);
  EXPECT_EQ(ink(8), 0) << "it is named on its first day alone";
  EXPECT_GT(ink(9), 0) << "another one begins";

  // In a table, numbers tell holidays and the days of other months apart.
  const PaintedPage inTable(JobOf(kCmdFormatTable));
  const PaintedPage plain(WithOptions(JobOf(kCmdFormatTable), 0));
  const TableLayout table = TableOnPage(plain.bands.body, PageUnits(kResolution), 5, 0);
  const auto number = [&](int place) { return PartsOf(table.Cell(place / 7, place % 7), table).number; };
  EXPECT_EQ(inTable.BlackPixels(number(0)), 0) << "29 April is grey";
  EXPECT_GT(inTable.BlackPixels(number(2)), plain.BlackPixels(number(2)) * 12 / 10) << "1 May is bold";
  EXPECT_EQ(inTable.BlackPixels(number(3)), plain.BlackPixels(number(3)));
}

// Ink that names add lies in the place of the text of their own day, also where they are much too long.
TEST(PagePainterTest, NoTextLeavesItsPlace) {
  const std::u16string words(254, u'W');
  std::u16string sentence;
  while (sentence.size() < 240) sentence += u"Anniversaire de Zoé ";
  for (const std::u16string& name : {words, sentence}) {
    for (const int format :
         {kCmdFormatYear, kCmdFormatHalf, kCmdFormatQuarter, kCmdFormatMonth, kCmdFormatTable}) {
      SCOPED_TRACE(format);
      PrintSource source = SourceOfTests();
      source.content.dayEvents.clear();
      source.content.vacations.clear();
      for (int day = 1; day <= 31; ++day) {
        source.content.dayEvents.push_back(Rule(kFixedDate, {.month = 5, .day = day, .name = name}));
        source.content.vacations.push_back(Period(20240500 + day, 20240500 + day, name));
      }
      PrintJob job = JobOf(format);
      job.options |= kJulianOption | kRepublicanOption;
      // The narrowest columns have their moon above the text.
      const auto orientation = format == kCmdFormatYear ? QPageLayout::Portrait : QPageLayout::Landscape;
      const PaintedPage full(job, source, orientation);
      const PaintedPage empty(job, Nameless(source), orientation);

      QRegion allowed;
      QRegion moons;  // white ones, on which names would be seen
      for (int day = 1; day <= 31; ++day) {
        const int months = job.MonthsPerPage();
        const int may = months == 12 || months == 6 ? 4 : months == 3 ? 1 : 0;
        const TableLayout table = TableOnPage(full.bands.body, PageUnits(kResolution), 5, 2);
        const int place = day + 1;
        allowed += ToQRect(format == kCmdFormatTable ? PartsOf(table.Cell(place / 7, place % 7), table).text
                                                     : full.Column(months, may).Text(day))
                       .adjusted(-2, -1, 2, 1);  // letters may lean out of their own width
        if (format != kCmdFormatTable && (day == 15 || day == 23))
          moons += ToQRect(full.Column(months, may).Moon(day));
      }
      allowed -= moons;
      int inside = 0;
      for (int y = 0; y < full.image.height(); ++y) {
        for (int x = 0; x < full.image.width(); ++x) {
          if (full.image.pixel(x, y) == empty.image.pixel(x, y)) continue;
          if (allowed.contains(QPoint(x, y)))
            ++inside;
          else
            ASSERT_TRUE(false) << "ink at " << x << ", " << y;
        }
      }
      EXPECT_GT(inside, 100);
    }
  }
}

TEST(PagePainterTest, RowsOfDroppedDaysStayBlank) {
  struct {
    PackedDate reform;
    int year, month, firstBlank, lastBlank;
  } const kMonths[] = {{15821015, 1582, 10, 5, 14},
                       {17520914, 1752, 9, 3, 13},
                       {19180214, 1918, 2, 1, 13},
                       {17000301, 1700, 2, 19, 31},
                       {39990301, 3999, 2, 1, 31}};
  for (const auto& month : kMonths) {
    SCOPED_TRACE(month.reform);
    const ScopedRules inForce(RulesWith(month.reform));
    const PaintedPage page(JobOf(kCmdFormatMonth, kCmdPeriodMonth, month.year, month.month));
    const ColumnLayout column = page.Column(1, 0);
    Rect blank = {column.StripRight() + 4, column.RowTop(month.firstBlank) + 4,
                  column.left + column.width - 4, column.RowTop(month.lastBlank + 1) - 4};
    EXPECT_TRUE(page.IsBlank(blank));
    blank = {column.left + 4, blank.top, column.StripRight() - 4, blank.bottom};
    EXPECT_TRUE(page.IsBlank(blank));
    if (month.firstBlank > 1) {
      EXPECT_FALSE(page.IsBlank(column.Number(month.firstBlank - 1)));
    }
    if (month.lastBlank < 31) {
      EXPECT_FALSE(page.IsBlank(column.Number(month.lastBlank + 1)));
    }
  }
}

TEST(PagePainterTest, MoonWeeksAndSundaysFollowTheirSwitches) {
  const PaintedPage page(JobOf(kCmdFormatMonth));
  const ColumnLayout column = page.Column(1, 0);
  EXPECT_FALSE(page.IsBlank(column.Moon(15))) << "first quarter";
  EXPECT_TRUE(page.IsBlank(column.Moon(16)));
  const PaintedPage moonless(WithOptions(JobOf(kCmdFormatMonth), 0));
  EXPECT_TRUE(moonless.IsBlank(column.Moon(15)));

  const auto label = [&](int day) {
    const Rect corner = column.WeekLabel(day);
    return Rect{corner.right - 40, corner.bottom - column.SmallFontHeight(), corner.right - 4,
                corner.bottom - 1};
  };
  EXPECT_FALSE(moonless.IsBlank(label(6))) << "a Monday";
  EXPECT_TRUE(moonless.IsBlank(label(7)));
  PrintSource civil = SourceOfTests();
  civil.rules = RulesWith(kRomanReform, {.iso8601 = false});
  const PaintedPage american(WithOptions(JobOf(kCmdFormatMonth), 0), civil);
  EXPECT_TRUE(american.IsBlank(label(6)));
  EXPECT_NE(american.Darkness(label(5)), moonless.Darkness(label(5))) << "a Sunday";
}

TEST(PagePainterTest, LinesAreHeavierUnderAWeekAMonthAndADecade) {
  const PaintedPage page(WithOptions(JobOf(kCmdFormatMonth, kCmdPeriodMonth, 1799, 11), kRepublicanOption));
  const ColumnLayout column = page.Column(1, 0);
  const auto line = [&](int day, int left, int right) {
    const int y = column.RowTop(day + 1);
    return page.Darkness({left, y - 4, right, y + 4});
  };
  const int middle = column.left + column.width / 2;
  const int thin = line(4, middle, middle + 50);
  EXPECT_GT(line(3, middle, middle + 50), thin * 17 / 10) << "a Sunday";
  EXPECT_GT(line(30, middle, middle + 50), thin * 17 / 10) << "a Saturday, but the last day";
  const int right = column.left + column.width;
  EXPECT_GT(line(1, right - column.width / 4, right), line(4, right - column.width / 4, right) * 12 / 10)
      << "the end of a decade";

  const PaintedPage tablePage(
      WithOptions(JobOf(kCmdFormatTable, kCmdPeriodMonth, 1799, 11), kRepublicanOption));
  const TableLayout table = TableOnPage(tablePage.bands.body, PageUnits(kResolution), 5, 1);
  const auto leftOf = [&](int week) {
    const Rect cell = table.Cell(week, 5);
    return tablePage.Darkness({cell.left - 4, cell.top + 4, cell.left + 4, cell.bottom - 4});
  };
  EXPECT_GT(leftOf(0), leftOf(1) * 3) << "the second of November";
}

// Also in the month of the complementary days, whose names are the longest.
TEST(PagePainterTest, DatesOfOtherCalendarsStandAlikeInAllTablesOfAYear) {
  PrintSource source = SourceOfTests();
  source.content.vacations = {Period(17930101, 17931231, u"Repos")};
  for (const auto orientation : {QPageLayout::Portrait, QPageLayout::Landscape}) {
    std::set<int> heights;  // of the grounds of vacations, which end below the dates
    for (int month = 1; month <= 12; ++month) {
      const PrintJob job = JobOf(kCmdFormatTable, kCmdPeriodMonth, 1793, month);
      const PaintedPage page(WithOptions(job, kRepublicanOption | kVacationOption), source, orientation);
      const Rect body = page.bands.body;
      const int x = TableOnPage(body, PageUnits(kResolution), 5, 1).Cell(0, 3).left + 3;
      int height = 0;
      for (int y = body.top, run = 0; y < body.bottom; ++y, height = std::max(height, run))
        run = page.image.pixel(x, y) == qRgb(224, 224, 255) ? run + 1 : 0;
      heights.insert(height);
    }
    EXPECT_EQ(heights.size(), 1U) << testing::PrintToString(heights);
  }
}

TEST(PagePainterTest, AMonthAsOnTheScreenHasItsColorsItsGroundAndItsTexts) {
  PrintSource source = SourceOfTests();
  PrintSource other = source;
  other.content.dayEvents[0].name.Set(u"Muguet");
  const PrintJob job = JobOf(kCmdFormatScreen);
  EXPECT_EQ(PaintedPage(job, source).image, PaintedPage(job, other).image) << "texts are off";
  source.settings.cellTexts = other.settings.cellTexts = true;
  EXPECT_NE(PaintedPage(job, source).image, PaintedPage(job, other).image);
  source.settings.colors[kHeaderBgColor] = Rgb(10, 60, 20);
  for (const Color ground : {kWindowColor, kButtonFaceColor, Rgb(250, 240, 200)}) {
    source.settings.colors[kColorBgCal] = ground;
    const PaintedPage page(job, source);
    EXPECT_EQ(page.Ground(page.bands.title),
              ground == Rgb(250, 240, 200) ? qRgb(250, 240, 200) : qRgb(255, 255, 255));
    const Rect body = page.bands.body;
    EXPECT_EQ(page.Ground({body.left, body.top, body.right, body.top + body.Height() / 8}), qRgb(10, 60, 20));
  }
}

// A page keeps the state it began with, and does not touch the rules in force.
TEST(PagePainterTest, APageBeyondTheLastIsNotPaintedAndRulesArePutBack) {
  QImage image(100, 100, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  PrintSource source = SourceOfTests();
  source.rules = RulesWith(17520914);
  const CPagePainter pages(JobOf(kCmdFormatMonth), source);
  EXPECT_FALSE(pages.Paint(painter, 1, {{0, 0, 100, 100}, 72}));
  EXPECT_FALSE(pages.Paint(painter, -1, {{0, 0, 100, 100}, 72}));
  EXPECT_TRUE(pages.Paint(painter, 0, {{0, 0, 0, 0}, 72})) << "an area without room is no fault";
  QImage white(image.size(), image.format());
  white.fill(Qt::white);
  EXPECT_EQ(image, white);
  EXPECT_TRUE(pages.Paint(painter, 0, {{0, 0, 100, 100}, 72}));
  EXPECT_EQ(Rules().startGregorian, kRomanReform);
}

TEST(ConcordanceTest, DatesOfOtherCalendarsNameTheirMonthWhereItBegins) {
  const auto dates = [](int year, int month, OtherCalendar calendar) {
    MonthModel model;
    model.year = year;
    model.month = month;
    model.Build({}, CalendarLook().colors, MonthModel::kWithoutMoon);
    return OtherDates(DaysOfMonth(model), calendar);
  };
  const auto brumaire = dates(1799, 11, OtherCalendar::kRepublican);
  EXPECT_EQ(brumaire.size(), 30u);
  EXPECT_EQ(brumaire[0].text, u"10 brumaire");
  EXPECT_EQ(brumaire[8].text, u"18");
  EXPECT_EQ(brumaire[21].text, u"1er frimaire");
  for (const std::size_t day : {1u, 11u, 21u}) EXPECT_TRUE(brumaire[day].beginsDecade);
  EXPECT_FALSE(brumaire[0].beginsDecade);
  const auto complementary = dates(1793, 9, OtherCalendar::kRepublican);
  EXPECT_EQ(complementary[16].text, u"1er complémentaire");
  EXPECT_TRUE(complementary[16].beginsDecade);
  EXPECT_EQ(complementary[21].text, u"1er vendémiaire");
  const auto first = dates(1792, 9, OtherCalendar::kRepublican);
  EXPECT_EQ(first[20].text, u"") << "the calendar begins the day after";
  EXPECT_EQ(first[21].text, u"1er vendémiaire");

  const ScopedRules russian(RulesWith(19180214));
  const auto october = dates(1917, 11, OtherCalendar::kJulian);
  EXPECT_EQ(october[6].text, u"7") << "still Julian";
  const auto reform = dates(1918, 2, OtherCalendar::kJulian);
  EXPECT_EQ(reform.size(), 15u);
  EXPECT_EQ(reform[0].text, u"1er février") << "14 February";
}

}  // namespace
}  // namespace orbisol

// The print job: periods, formats, rounding, pages, captions, and the states of its commands.

#include "ui/print/print_job.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "core/text.h"
#include "resources/command_ids.h"
#include "tests/support/rules.h"
#include "ui/print/page_layout.h"

namespace orbisol {
namespace {

constexpr int kPeriods[] = {kCmdPeriodMonth,    kCmdPeriodQuarter1, kCmdPeriodQuarter2, kCmdPeriodQuarter3,
                            kCmdPeriodQuarter4, kCmdPeriodHalf1,    kCmdPeriodHalf2,    kCmdPeriodYear};

// For May and each period: first and last month printed, pages, and the period that is then checked. Written
// down from how a user would answer, not computed.
constexpr struct {
  int format;
  const char* months;
} kFormats[] = {
    {kCmdFormatYear,
     "1-12/1:120 1-12/1:120 1-12/1:120 1-12/1:120 1-12/1:120 1-12/1:120 1-12/1:120 1-12/1:120 "},
    {kCmdFormatHalf, "1-6/1:118 1-6/1:118 1-6/1:118 7-12/1:118 7-12/1:118 1-6/1:118 7-12/1:119 1-12/2:120 "},
    {kCmdFormatQuarter,
     "4-6/1:114 1-3/1:114 4-6/1:115 7-9/1:116 10-12/1:117 1-6/2:118 7-12/2:119 1-12/4:120 "},
    {kCmdFormatMonth,
     "5-5/1:113 1-3/3:114 4-6/3:115 7-9/3:116 10-12/3:117 1-6/6:118 7-12/6:119 1-12/12:120 "},
};

TEST(PrintJobTest, APeriodIsRoundedToWholePagesAndItsMarkFollowsTheFormat) {
  for (const auto& row : kFormats) {
    std::string months;
    for (const int period : kPeriods) {
      PrintJob job(2024, 5);
      job.ChoosePeriod(period);
      job.ChooseFormat(row.format);
      months += std::to_string(job.FirstMonth()) + '-' + std::to_string(job.LastMonth()) + '/' +
                std::to_string(job.PageCount());
      for (const int mark : kPeriods)
        if (job.IsChecked(mark)) months += ':' + std::to_string(mark) + ' ';
      EXPECT_EQ(job.MonthOnPage(job.PageCount() - 1, job.MonthsPerPage() - 1),
                (PrintMonth{2024, job.LastMonth()}));
      const int pages = job.PageCount();
      for (const int format : {kCmdFormatScreen, kCmdFormatTable}) {
        if (row.format != kCmdFormatMonth) break;
        job.ChooseFormat(format);
        EXPECT_EQ(job.PageCount(), pages);
      }
    }
    EXPECT_EQ(months, row.months);
  }
}

TEST(PrintJobTest, AFormatMovesTheMarkAloneAndAPeriodTheMonths) {
  PrintJob job(2024, 5);
  job.ChooseFormat(kCmdFormatQuarter);
  EXPECT_TRUE(job.IsChecked(kCmdPeriodQuarter1)) << "although April to June are printed";
  EXPECT_EQ(job.FirstMonth(), 4);
  for (const int period : kPeriods) EXPECT_EQ(job.IsEnabled(period), period != kCmdPeriodMonth);
  job.ChoosePeriod(kCmdPeriodMonth);
  EXPECT_TRUE(job.IsChecked(kCmdPeriodQuarter1)) << "a disabled period is not chosen";
  job.ChooseFormat(kCmdFormatYear);
  job.ChooseFormat(kCmdFormatMonth);
  EXPECT_TRUE(job.IsChecked(kCmdPeriodYear));
  EXPECT_EQ(job.PageCount(), 1) << "the months are still those of the period that was chosen: May";
  job.ChoosePeriod(kCmdPeriodYear);
  EXPECT_EQ(job.PageCount(), 12);

  job.ShowPage(11);
  EXPECT_FALSE(job.IsEnabled(kCmdNextPage));
  job.ShowPage(12);
  EXPECT_EQ(job.currentPage, 11);
  job.ChoosePeriod(kCmdPeriodHalf1);
  EXPECT_EQ(job.currentPage, 0) << "there is no twelfth page any more";
  EXPECT_FALSE(job.IsEnabled(kCmdPreviousPage));
  job.ShowPage(2);
  job.ChoosePeriod(kCmdPeriodQuarter3);
  EXPECT_EQ(job.currentPage, 2);
  job.ChooseFormat(kCmdFormatTable);
  EXPECT_EQ(job.currentPage, 0);
}

TEST(PrintJobTest, OptionsAreShownWhereTheFormatHasAUseForThem) {
  constexpr int kOptions[] = {kCmdPrintHolidays, kCmdPrintEvents, kCmdPrintVacations, kCmdPrintMoon,
                              kCmdPrintImage,    kCmdPrintJulian, kCmdPrintRepublican};
  const auto shown = [&](const PrintJob& job) {
    std::string states;
    for (const int option : kOptions)
      states += job.IsChecked(option) ? 'x' : job.IsEnabled(option) ? '.' : ' ';
    return states;
  };
  PrintJob job(2024, 5);
  EXPECT_EQ(shown(job), "       ");
  job.ToggleOption(kCmdPrintMoon);
  job.ChooseFormat(kCmdFormatMonth);
  EXPECT_EQ(shown(job), "xxxx...") << "a disabled option is not turned";
  for (const int option : {kCmdPrintEvents, kCmdPrintImage, kCmdPrintJulian, kCmdPrintRepublican})
    job.ToggleOption(option);
  EXPECT_EQ(shown(job), "x.xxxxx");
  job.ChooseFormat(kCmdFormatHalf);
  EXPECT_EQ(shown(job), "x.xxx  ");
  EXPECT_FALSE(job.Has(kJulianOption));
  job.ChooseFormat(kCmdFormatScreen);
  EXPECT_EQ(shown(job), "       ");
  job.ChooseFormat(kCmdFormatTable);
  EXPECT_EQ(shown(job), "x.xx.xx") << "the picture is turned off for good, the others are kept";
}

TEST(PrintJobTest, CaptionsAndTitlesNameTheCivilAndTheRepublicanYears) {
  const auto texts = [](PrintJob job, int format, int period, int page) {
    job.ChooseFormat(format);
    job.ChoosePeriod(period);
    return ToUtf8(job.Caption(page)) + " / " + ToUtf8(job.Title(page));
  };
  EXPECT_EQ(texts(PrintJob(2024, 5), kCmdFormatScreen, kCmdPeriodMonth, 0),
            "Page 1 / 1 (mai 2024) / Mai 2024");
  EXPECT_EQ(texts(PrintJob(2024, 5), kCmdFormatMonth, kCmdPeriodYear, 0),
            "Page 1 / 12 (Imprimer de janvier 2024 à décembre 2024) / 2024");
  EXPECT_EQ(texts(PrintJob(-43, 3), kCmdFormatTable, kCmdPeriodMonth, 0),
            "Page 1 / 1 (mars -43) / Mars -43 (44 av. JC)");
  EXPECT_EQ(texts(PrintJob(0, 3), kCmdFormatYear, kCmdPeriodYear, 0),
            "Page 1 / 1 (Imprimer de janvier 0 à décembre 0) / 0 (1 av. JC)");
  PrintJob century(1950, 5);
  century.ChooseFormat(kCmdFormatQuarter);
  century.ChoosePeriod(kCmdPeriodYear);
  century = century.WithYears(1900, 1999);
  EXPECT_EQ(century.PageCount(), 400);
  EXPECT_EQ(ToUtf8(century.Caption(399)), "Page 400 / 400 (Imprimer de janvier 1900 à décembre 1999)");
  EXPECT_EQ(century.MonthOnPage(399, 2), (PrintMonth{1999, 12}));
  EXPECT_EQ(ToUtf8(PrintJob(2024, 5).WithYears(2024, 2025).Caption(1)),
            "Page 2 / 2 (Imprimer de mai 2024 à mai 2025)")
      << "one month, but not of one year";

  const ScopedRules english(RulesWith(17520914, {.rows = {{17520101, false}, {11550325, false}}}));
  EXPECT_EQ(texts(PrintJob(1700, 3), kCmdFormatQuarter, kCmdPeriodQuarter1, 0),
            "Page 1 / 1 (Imprimer de janvier 1699 à mars 1700) / 1699 – 1700");
  EXPECT_EQ(texts(PrintJob(1700, 3), kCmdFormatTable, kCmdPeriodMonth, 0),
            "Page 1 / 1 (mars 1699) / Mars 1699");

  const ScopedRules roman(RulesWith(kRomanReform));
  PrintJob job(1793, 9);
  job.ChooseFormat(kCmdFormatTable);
  job.ToggleOption(kCmdPrintRepublican);
  EXPECT_EQ(ToUtf8(job.Title(0)), "Septembre 1793 · ans I – II");
  EXPECT_EQ(ToUtf8(job.WithYears(1799, 1799).Title(0)), "Septembre 1799 · ans VII – VIII");
  EXPECT_EQ(ToUtf8(job.WithYears(1792, 1792).Title(0)), "Septembre 1792 · an I");
  EXPECT_EQ(ToUtf8(job.WithYears(1791, 1791).Title(0)), "Septembre 1791");
}

// On any paper and with any picture the parts of a page lie inside its area and do not meet.
TEST(PageLayoutTest, ThePartsOfAPageLieInsideItAndDoNotMeet) {
  const auto isInside = [](const Rect& inner, const Rect& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom && inner.Width() >= 0 && inner.Height() >= 0;
  };
  const PaperSetup papers[] = {{2100, 2970, {100, 150, 200, 250}}, {2970, 2100, {35, 35, 35, 35}},
                               {420, 594, {50, 50, 50, 50}},       {500, 100, {20, 90, 20, 90}},
                               {1000, 1000, {600, 600, 600, 600}}, {0, 0, {0, 0, 0, 0}}};
  const PictureSize pictures[] = {{0, 0}, {300, 200}, {1, 9000}, {9000, 1}};
  for (const PaperSetup& paper : papers) {
    for (const PictureSize& picture : pictures) {
      for (const int resolution : {72, 96, 600, 1200}) {
        for (const int months : {1, 3, 6, 12}) {
          SCOPED_TRACE(testing::Message()
                       << paper.width << " " << picture.width << " " << resolution << " " << months);
          const Rect area = PageArea(paper, resolution);
          const PageUnits units(resolution);
          const PageBands bands = PageBandsOf(area, units, months, resolution == 96, picture);
          for (const Rect& band : {bands.title, bands.body, bands.caption}) EXPECT_TRUE(isInside(band, area));
          EXPECT_LE(bands.title.bottom, std::max(bands.body.top, bands.title.bottom));
          EXPECT_LE(bands.body.bottom, std::max(bands.caption.top, bands.body.top));
          if (bands.picture.Width() > 0) {
            EXPECT_TRUE(isInside(bands.picture, area));
            EXPECT_TRUE(bands.picture.bottom <= bands.title.top || bands.picture.right <= bands.title.left ||
                        bands.title.Width() == 0 || bands.title.Height() == 0);
            EXPECT_NEAR(bands.picture.Width() * picture.height, bands.picture.Height() * picture.width,
                        std::max(picture.width, picture.height))
                << "it is distorted";
          }
          const ColumnLayout last = ColumnOnPage(bands.body, units, months, months - 1);
          EXPECT_TRUE(isInside({last.left, last.top, last.left + last.width, last.Bottom()}, bands.body));
          TableLayout table = TableOnPage(bands.body, units, 6, 2);
          table.hasDatesBelow = months == 1;
          for (int cell = 0; cell < 42; ++cell) {
            const Rect place = table.Cell(cell / 7, cell % 7);
            EXPECT_TRUE(isInside(place, bands.body));
            const TableCell parts = PartsOf(place, table);
            for (const Rect& part : {parts.head, parts.number, parts.dates, parts.moon, parts.text})
              EXPECT_TRUE(isInside(part, place));
            if (table.hasDatesBelow) {
              EXPECT_GE(parts.dates.top, std::max(parts.number.bottom, parts.moon.bottom));
              EXPECT_GE(parts.dates.Height(),
                        std::min(2 * table.SmallFontHeight(), place.bottom - parts.dates.top));
            }
          }
        }
      }
    }
  }
}

TEST(PageLayoutTest, TitlesAndTablesGrowWithThePaper) {
  const PageUnits units(600);
  const auto heights = [&](int width, int height) {
    const PageBands bands = PageBandsOf({0, 0, width, height}, units, 1, true, {});
    const TableLayout table = TableOnPage(bands.body, units, 6, 0);
    return std::array{bands.title.Height(), table.HeaderFontHeight(), table.NumberFontHeight(),
                      table.SmallFontHeight()};
  };
  for (const bool isWide : {false, true}) {
    const auto once = isWide ? heights(6500, 4400) : heights(4400, 6500);
    const auto twice = isWide ? heights(13000, 8800) : heights(8800, 13000);
    for (std::size_t i = 0; i < once.size(); ++i) EXPECT_NEAR(twice[i], 2 * once[i], once[i] / 8.0) << i;
  }
}

}  // namespace
}  // namespace orbisol

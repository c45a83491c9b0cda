// Pages through the real PDF path: their number, their fonts, their texts, their ink, and that a preview
// looks like them. The files are read by the tools of poppler.

#include <QDir>
#include <QPageLayout>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>

#include "core/platform.h"
#include "tests/ui/print/print_fixture.h"
#include "ui/print/print_run.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

bool GoOn(int, int) { return true; }

// Returns what a tool writes; it must be there and succeed.
QByteArray Output(const QString& tool, const QStringList& arguments) {
  QProcess process;
  process.start(tool, arguments);
  EXPECT_TRUE(process.waitForFinished(30000) && process.exitCode() == 0) << tool.toStdString();
  return process.readAllStandardOutput();
}

struct PdfFile {
  QTemporaryDir folder;
  QString path = folder.filePath(QStringLiteral("pages.pdf"));

  PdfFile(const PrintJob& job, const PrintSource& source, const QPageLayout& layout) {
    EXPECT_EQ(WritePdf(CPagePainter(job, source), layout, path, AllPages(job), GoOn), RunResult::kDone);
  }

  int Pages() const {
    const QString info = QString::fromUtf8(Output(QStringLiteral("pdfinfo"), {path}));
    return QRegularExpression(QStringLiteral("Pages: +(\\d+)")).match(info).captured(1).toInt();
  }

  // Returns the text with blanks of any kind as one.
  QString Text() const {
    return QString::fromUtf8(Output(QStringLiteral("pdftotext"), {path, QStringLiteral("-")})).simplified();
  }

  std::vector<QImage> Pictures(int resolution) const {
    Output(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QString::number(resolution), path,
                                        folder.filePath(QStringLiteral("page"))});
    std::vector<QImage> pictures;
    for (const QString& name : QDir(folder.path()).entryList({QStringLiteral("*.ppm")}))
      pictures.push_back(QImage(folder.filePath(name)).convertToFormat(QImage::Format_RGB32));
    return pictures;
  }
};

// Every pair of options meets in all four states in these eight rows.
constexpr std::array<unsigned, 8> kOptionRows = {0b0000000, 0b1010101, 0b0110011, 0b1100110,
                                                 0b0001111, 0b1011010, 0b0111100, 0b1101001};

void CheckFonts(const PdfFile& file) {
  const QString fonts = QString::fromUtf8(Output(QStringLiteral("pdffonts"), {file.path}));
  const QStringList lines = fonts.split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(2);
  EXPECT_FALSE(lines.isEmpty());
  // The columns are: embedded, named as a part of the font, with the characters of its glyphs.
  const QRegularExpression embedded(QStringLiteral(" yes +(yes|no) +yes "));
  for (const QString& line : lines) EXPECT_TRUE(embedded.match(line).hasMatch()) << fonts.toStdString();
}

void CheckText(const PdfFile& file, const PrintJob& job) {
  const QString text = file.Text();
  const bool isScreen = job.formatCommand == kCmdFormatScreen;
  for (int page = 0; page < job.PageCount(); ++page) {
    EXPECT_TRUE(text.contains(ToQString(job.Caption(page)))) << text.toStdString();
    for (int k = 0; k < job.MonthsPerPage(); ++k)
      EXPECT_TRUE(text.contains(
          ToQString(UpperFirst(CurrentPlatform().locale->MonthName(job.MonthOnPage(page, k).month)))));
  }
  const bool hasMay = job.FirstMonth() <= 5 && 5 <= job.LastMonth() && !isScreen;
  EXPECT_EQ(text.contains(QStringLiteral("Travail")), hasMay && job.Has(kHolidayOption));
  EXPECT_EQ(text.contains(QStringLiteral("Dentiste")), hasMay && job.Has(kEventOption));
  EXPECT_EQ(text.contains(QStringLiteral("Repos")), hasMay && job.Has(kVacationOption));
  EXPECT_EQ(text.contains(QStringLiteral("floréal")), hasMay && job.Has(kRepublicanOption));
  EXPECT_EQ(text.contains(QStringLiteral("Julien Républicain")),
            job.formatCommand == kCmdFormatMonth && job.Has(kJulianOption) && job.Has(kRepublicanOption));
  if (hasMay) {
    EXPECT_TRUE(text.contains(QStringLiteral("s. 22"))) << "the week of the 27th";
  }
  if (hasMay && job.formatCommand != kCmdFormatTable) {
    EXPECT_TRUE(text.contains(QRegularExpression(QStringLiteral("\\b1 M\\b")))) << "a Wednesday";
  }
  EXPECT_EQ(
      text.contains(QStringLiteral("avril")),
      (hasMay && job.Has(kJulianOption)) || ToQString(job.Caption(0)).contains(QStringLiteral("avril")));
}

void CheckNoInkOutside(const PdfFile& file) {
  constexpr int kResolution = 48;
  constexpr double kPixelsPerMillimetre = kResolution / 25.4;
  const auto pixels = [&](int margin) { return static_cast<int>(margin * kPixelsPerMillimetre) - 1; };
  for (const QImage& picture : file.Pictures(kResolution)) {
    const QRect area =
        picture.rect().adjusted(pixels(10), pixels(12), -pixels(14), -pixels(16));  // as in Paper()
    int ink = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (qGray(picture.pixel(x, y)) > 250) continue;
        ASSERT_TRUE(area.contains(x, y)) << "ink at " << x << ", " << y;
        ++ink;
      }
    }
    EXPECT_GT(ink, 500);
  }
}

class EveryFormatTest : public testing::TestWithParam<int> {};

TEST_P(EveryFormatTest, PagesHaveTheirTextsFontsAndMargins) {
  const int format = GetParam();
  for (int i = 0; i < 8; ++i) {
    SCOPED_TRACE(testing::Message() << "period " << kCmdPeriodMonth + i);
    PrintJob job(2024, 5);
    job.ChoosePeriod(kCmdPeriodMonth + i);
    job.options = kOptionRows[static_cast<std::size_t>(i)];
    job.ChooseFormat(format);
    const QPageLayout layout = Paper(i % 2 == 0 ? QPageLayout::Landscape : QPageLayout::Portrait);
    const PdfFile file(job, SourceOfTests(), layout);
    EXPECT_EQ(file.Pages(), job.PageCount());
    CheckFonts(file);
    CheckText(file, job);
    CheckNoInkOutside(file);
  }
}

// Names that are cut or broken in a plainer layout, though the page has room for them.
TEST(PdfTest, NamesAreWholeWhereThereIsRoom) {
  const std::u16string longName(40, u'm');
  const struct {
    int format, year, month;
    DayEvent event;
    unsigned options;
    const char16_t* text;
  } kRows[] = {
      {kCmdFormatTable, 1793, 9, {}, kJulianOption | kRepublicanOption, u"1er complémentaire"},
      {kCmdFormatTable, 2024, 9, {}, kRepublicanOption, u"ans CCXXXII – CCXXXIII"},
      {kCmdFormatTable, 2024, 5, Rule(kFixedDate, {.month = 5, .day = 14, .name = u"Commémorations"}),
       kHolidayOption, u"Commémorations"},
      // beside the moon, and before a vacation that begins on the same day
      {kCmdFormatYear, 2024, 5,
       Rule(kFixedDate, {.isPublic = false, .month = 5, .day = 15, .name = u"Anniversaire de Zoé"}),
       kEventOption | kMoonOption, u"Anniversaire"},
      {kCmdFormatHalf, 2024, 5, Rule(kFixedDate, {.month = 5, .day = 8, .name = longName}),
       kHolidayOption | kVacationOption, u"Repos"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(ToQString(row.text).toStdString());
    PrintSource source = SourceOfTests();
    source.content.dayEvents.push_back(row.event);
    PrintJob job = JobOf(row.format, kCmdPeriodMonth, row.year, row.month);
    job.options = row.options;
    const QString text = PdfFile(job, source, Paper(QPageLayout::Portrait)).Text();
    EXPECT_TRUE(text.contains(ToQString(row.text))) << text.toStdString();
  }
}

// Printers show the pixels of a picture as squares.
TEST(PdfTest, ASmallPictureIsMadeFineOnceForAllPages) {
  PrintSource source = SourceOfTests();
  source.background = QImage(6, 4, QImage::Format_RGB32);
  for (int i = 0; i < 24; ++i) source.background.setPixel(i % 6, i / 6, qRgb(10 * i, 255 - 10 * i, 100));
  for (const int format : {kCmdFormatScreen, kCmdFormatTable}) {
    PrintJob job = JobOf(format, kCmdPeriodQuarter1);
    if (format == kCmdFormatTable) job.ToggleOption(kCmdPrintImage);
    const PdfFile file(job, source, Paper(QPageLayout::Landscape));
    const QStringList images =
        QString::fromUtf8(Output(QStringLiteral("pdfimages"), {QStringLiteral("-list"), file.path}))
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
            .mid(2);
    ASSERT_EQ(images.size(), 3) << "one on each page";
    enum Column { kObject = 10, kPixelsPerInch = 12 };
    const auto column = [&](int page, int index) {
      return images[page].simplified().split(QLatin1Char(' '))[index].toInt();
    };
    EXPECT_GE(column(0, kPixelsPerInch), 149);
    EXPECT_EQ(column(0, kObject), column(2, kObject));
  }
}

constexpr int kComparedResolution = 300;

// Returns the grey of squares of two millimetres, each that of all its pixels together.
QImage GreyOfSquares(const QImage& page) {
  constexpr int kSquare = 24;
  const QSize squares = (page.size() - QSize(1, 1)) / kSquare;  // the engines round paper to other pixels
  return page.copy(QRect(QPoint(), squares * kSquare))
      .scaled(squares, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
      .convertToFormat(QImage::Format_Grayscale8);
}

// Returns the difference in the square that differs most, 0..255.
int GreatestDifference(const QImage& page, const QImage& other) {
  const QImage a = GreyOfSquares(page);
  const QImage b = GreyOfSquares(other);
  EXPECT_EQ(a.size(), b.size());
  int greatest = 0;
  for (int y = 0; y < std::min(a.height(), b.height()); ++y)
    for (int x = 0; x < std::min(a.width(), b.width()); ++x)
      greatest = std::max(greatest, std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))));
  return greatest;
}

// The engine that shows the file moves the edges of lines to whole pixels, so that a line on the border of a
// square counts a little more in one of the pictures. A word on another line differs by 60.
constexpr int kTolerance = 18;

TEST_P(EveryFormatTest, APreviewLooksLikeThePaper) {
  PrintSource source = SourceOfTests();
  for (int day = 2; day < 31; day += 2) {  // names that only just fit, or just not
    const std::u16string name =
        u"Rendez-vous chez le dentiste " + std::u16string(static_cast<std::size_t>(day), u'i');
    source.content.dayEvents.push_back(
        Rule(kFixedDate, {.isPublic = day % 4 == 0, .month = 5, .day = day, .name = name}));
  }
  for (const auto orientation : {QPageLayout::Portrait, QPageLayout::Landscape}) {
    SCOPED_TRACE(orientation);
    const QPageLayout layout = Paper(orientation);
    const PrintJob job = JobOf(GetParam());
    const QImage paper = PdfFile(job, source, layout).Pictures(kComparedResolution).at(0);
    EXPECT_LE(GreatestDifference(paper, Preview(job, source, layout, kComparedResolution)), kTolerance);
    const PrintJob november = JobOf(GetParam(), kCmdPeriodMonth, 2024, 11);
    if (GetParam() != kCmdFormatYear) {
      EXPECT_GT(GreatestDifference(paper, Preview(november, source, layout, kComparedResolution)), kTolerance)
          << "the comparison sees nothing";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(PdfTest, EveryFormatTest, testing::Range<int>(kCmdFormatYear, kCmdFormatTable + 1));

}  // namespace
}  // namespace orbisol

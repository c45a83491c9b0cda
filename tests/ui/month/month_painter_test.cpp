#include "ui/month/month_painter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <cmath>

#include "core/calendar_config.h"
#include "resources/pictures/pictures.h"
#include "tests/support/rules.h"
#include "ui/common/geometry.h"
#include "ui/month/month_pictures.h"

namespace orbisol {
namespace {

constexpr Color kBlue = Rgb(0x20, 0x60, 0xE0);
constexpr Color kYellow = Rgb(0xFF, 0xF0, 0x80);

// A month in May 2024 unless said otherwise, painted as a window does. Plain and without a grid, so that a
// pixel has one reason for its color.
struct Page {
  CalendarContent content;
  DisplaySettings settings;
  MonthMarks marks;
  int width = 700, height = 420;
  double ratio = 1;
  int year = 2024, month = 5;
  CMonthPainter::Medium medium = CMonthPainter::kScreen;

  Page() {
    settings.backgroundImage = false;
    settings.grid = false;
    marks.isVisible = false;
  }

  MonthLayout Layout() const { return {width, height, settings.showWeekNumber, Rules().iso8601}; }

  MonthModel Model() const {
    MonthModel model;
    model.year = year;
    model.month = month;
    model.Build(content, settings.colors, MonthModel::kWithMoon);
    return model;
  }

  int CellOf(int ofMonth, int day) const { return Model().CellOf(ofMonth, day); }

  void AddPeriod(PackedDate from, PackedDate to) {
    HolidayPeriod period;
    period.ymdFrom = from;
    period.ymdTo = to;
    content.holidays.push_back(period);
  }

  void PaintOn(QImage& canvas, const QRegion& region = {}) const {
    CMonthPainter painter;
    painter.SetUp(Layout(), settings, QFont(), medium);
    painter.SetBackground(LoadBackground(settings));
    QPainter ink(&canvas);
    painter.Paint(ink, Model(), marks, region);
  }

  QImage Paint() const {
    QImage canvas((QSizeF(width, height) * ratio).toSize(), QImage::Format_RGB32);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::magenta);
    PaintOn(canvas);
    return canvas;
  }
};

Color PixelAt(const QImage& image, int x, int y) {
  const QRgb pixel = image.pixel(x, y);
  return Rgb(static_cast<unsigned>(qRed(pixel)), static_cast<unsigned>(qGreen(pixel)),
             static_cast<unsigned>(qBlue(pixel)));
}

// How often a color stands in a rectangle.
int CountOf(const QImage& image, const Rect& rect, Color color) {
  int count = 0;
  for (int y = rect.top; y < rect.bottom; ++y)
    for (int x = rect.left; x < rect.right; ++x) count += PixelAt(image, x, y) == color ? 1 : 0;
  return count;
}

TEST(MonthPainterTest, HeaderBandEndsOnePixelBelowItsRow) {
  Page page;
  page.settings.colors[kHeaderBgColor] = kBlue;
  page.settings.colors[kStandardBgColor] = kYellow;
  const QImage image = page.Paint();
  EXPECT_EQ(PixelAt(image, 1, 1), kBlue);
  EXPECT_EQ(PixelAt(image, 699, 60), kBlue);
  EXPECT_EQ(PixelAt(image, 1, 61), kYellow);
  EXPECT_EQ(PixelAt(image, 699, 419), kYellow);
}

TEST(MonthPainterTest, GridLinesStandAtTheCellsEdges) {
  Page page;
  page.settings.grid = true;
  QImage image = page.Paint();
  for (const int x : {0, 100, 600, 699}) EXPECT_EQ(PixelAt(image, x, 65), kGreyTextColor) << x;
  for (const int y : {0, 60, 360, 419}) EXPECT_EQ(PixelAt(image, 5, y), kGreyTextColor) << y;
  EXPECT_EQ(PixelAt(image, 101, 65), kWindowColor);

  page.width = 725;
  page.settings.grid = false;
  page.settings.showWeekNumber = true;
  image = page.Paint();
  EXPECT_EQ(PixelAt(image, 700, 5), kGreyTextColor);
  EXPECT_EQ(PixelAt(image, 700, 419), kGreyTextColor);
  EXPECT_EQ(PixelAt(image, 100, 65), kWindowColor);
}

// Each line of a row of cells, in device pixels, at ratios where logical pixels are none of the screen.
TEST(MonthPainterTest, GridLinesAreEquallyWideAtEveryRatio) {
  for (const auto& [ratio, expected] : {std::pair{1.0, 1}, {1.25, 1}, {1.5, 1}, {2.0, 2}, {3.0, 3}}) {
    Page page;
    page.width = 713;
    page.settings.grid = true;
    page.ratio = ratio;
    const QImage image = page.Paint();
    const int y = static_cast<int>(65 * ratio);
    int lines = 0;
    for (int x = 0; x < image.width();) {
      int wide = 0;
      while (x < image.width() && PixelAt(image, x, y) == kGreyTextColor) ++wide, ++x;
      if (wide > 0) {
        EXPECT_EQ(wide, expected) << "at ratio " << ratio << ", before pixel " << x;
        ++lines;
      } else {
        ++x;
      }
    }
    EXPECT_EQ(lines, 8) << ratio;
  }
}

struct FillCase {
  const char* what;
  bool fullCell, collapse;
  bool corner, top, left, bottom;  // whether the cell is filled there
};
constexpr FillCase kFills[] = {
    {"a band across the top", false, true, true, true, false, false},
    {"a band, cells apart", false, false, true, true, false, false},
    {"the whole cell", true, true, true, true, true, true},
    {"a rounded rectangle", true, false, false, false, false, false},
};

TEST(MonthPainterTest, FillsHaveTheFormOfTheSettings) {
  for (const FillCase& form : kFills) {
    SCOPED_TRACE(form.what);
    Page page;
    page.AddPeriod(20240514, 20240514);
    page.settings.fullCellBackground = form.fullCell;
    page.settings.collapseCells = form.collapse;
    page.settings.backgroundAlpha = 255;
    page.settings.colors[kHolidaysBgColor] = kYellow;
    const Rect cell = page.Layout().CellRect(page.CellOf(5, 14));
    const QImage image = page.Paint();
    const auto isFilled = [&](int dx, int dy) {
      return PixelAt(image, cell.left + dx, cell.top + dy) == kYellow;
    };
    EXPECT_EQ(isFilled(0, 0), form.corner);
    EXPECT_EQ(isFilled(50, 0), form.top);
    EXPECT_EQ(isFilled(0, 30), form.left);
    EXPECT_EQ(isFilled(99, 59), form.bottom);
    EXPECT_EQ(isFilled(6, 12), form.fullCell) << "under the band";
    EXPECT_EQ(isFilled(6, 11), true);
    EXPECT_EQ(isFilled(4, 64 - 60), form.collapse || !form.fullCell) << "in the rounded corner";
  }
}

TEST(MonthPainterTest, FillsAreAsOpaqueAsTheSettingsSay) {
  for (const auto& [alpha, expected] :
       {std::pair{255, kBlue}, {1000, kBlue}, {0, kWindowColor}, {-5, kWindowColor}}) {
    Page page;
    page.AddPeriod(20240514, 20240514);
    page.settings.fullCellBackground = true;
    page.settings.backgroundAlpha = alpha;
    page.settings.colors[kHolidaysBgColor] = kBlue;
    const Rect cell = page.Layout().CellRect(page.CellOf(5, 14));
    EXPECT_EQ(PixelAt(page.Paint(), cell.left + 2, cell.top + 2), expected) << alpha;

    page.settings.backgroundAlpha = 128;
    const QRgb half = page.Paint().pixel(cell.left + 2, cell.top + 2);
    EXPECT_NEAR(qRed(half), (0x20 + 0xFF) / 2.0, 1);
    EXPECT_NEAR(qGreen(half), (0x60 + 0xFF) / 2.0, 1);
    EXPECT_NEAR(qBlue(half), (0xE0 + 0xFF) / 2.0, 1);
  }
}

TEST(MonthPainterTest, DaysInTheWindowColorAreNotFilledWhateverTheBackground) {
  Page page;
  page.AddPeriod(20240514, 20240514);
  page.settings.fullCellBackground = true;
  page.settings.backgroundAlpha = 255;
  page.settings.colors[kStandardBgColor] = kYellow;
  page.settings.colors[kHolidaysBgColor] = kWindowColor;
  const Rect cell = page.Layout().CellRect(page.CellOf(5, 14));
  EXPECT_EQ(PixelAt(page.Paint(), cell.left + 2, cell.top + 2), kYellow);
}

TEST(MonthPainterTest, MarkIsAFrameOrAnEllipseInTheChosenWidth) {
  Page page;
  page.marks.isVisible = true;
  page.marks.month = 5;
  page.marks.day = 15;
  page.settings.colors[kCircleColor] = kBlue;
  const Rect cell = page.Layout().CellRect(page.CellOf(5, 15));
  for (const auto& [stored, wide] : {std::pair{0, 1}, {1, 1}, {2, 2}, {3, 3}, {9, 3}}) {
    page.settings.circleTheDay = false;
    page.settings.circleWidth = stored;
    QImage image = page.Paint();
    EXPECT_EQ(CountOf(image, {cell.left - 5, cell.top + 30, cell.left + 10, cell.top + 31}, kBlue), wide);
    EXPECT_EQ(CountOf(image, {cell.right - 10, cell.top + 30, cell.right + 5, cell.top + 31}, kBlue), wide);
    EXPECT_EQ(CountOf(image, {cell.left + 3, cell.top - 5, cell.left + 4, cell.top + 10}, kBlue), wide);

    // Five pixels inside the sides, three inside top and bottom, a twentieth of the cell each.
    page.settings.circleTheDay = true;
    image = page.Paint();
    EXPECT_NE(PixelAt(image, cell.left + 5, cell.top + 30), kWindowColor);
    EXPECT_NE(PixelAt(image, cell.left + 50, cell.top + 3), kWindowColor);
    EXPECT_EQ(PixelAt(image, cell.left + 1, cell.top + 1), kWindowColor);
  }
}

TEST(MonthPainterTest, MarkCanStandOnADayOfTheNeighbouringMonthOrNowhere) {
  Page page;
  page.marks.isVisible = true;
  page.settings.colors[kCircleColor] = kBlue;
  page.marks.month = 4;
  page.marks.day = 30;
  EXPECT_EQ(PixelAt(page.Paint(), 100, 61), kBlue);  // The second cell of the first row.

  const QImage unmarked = [&] {
    Page none = page;
    none.marks.isVisible = false;
    return none.Paint();
  }();
  page.marks.day = 3;
  EXPECT_EQ(page.Paint(), unmarked);
}

TEST(MonthPainterTest, RangeInvertsItsCellsAndNothingElse) {
  Page page;
  page.settings.backgroundImage = true;
  page.settings.grid = true;
  const QImage before = page.Paint();
  page.marks.hasRange = true;
  page.marks.firstDayNumber = Date(20240430).DayNumber();
  page.marks.lastDayNumber = Date(20240502).DayNumber();
  const QImage after = page.Paint();
  const MonthLayout layout = page.Layout();
  for (int y = 0; y < page.height; ++y) {
    for (int x = 0; x < page.width; ++x) {
      const int cell = layout.CellAt(x, y);
      const bool isInRange = cell >= 2 && cell <= 4;  // Monday is the 29th.
      ASSERT_EQ(PixelAt(after, x, y),
                isInRange ? kWindowColor - PixelAt(before, x, y) : PixelAt(before, x, y))
          << x << ", " << y;
    }
  }
}

TEST(MonthPainterTest, PaperShowsNeitherRangeNorToday) {
  Page page;
  page.medium = CMonthPainter::kPaper;
  const QImage before = page.Paint();
  page.marks.hasRange = true;
  page.marks.firstDayNumber = Date(20240501).DayNumber();
  page.marks.lastDayNumber = Date(20240531).DayNumber();
  page.marks.today = 20240515;
  EXPECT_EQ(page.Paint(), before);
}

TEST(MonthPainterTest, TodayIsUnderlinedInItsOwnColor) {
  Page page;
  page.settings.colors[kStandardTextColor] = kBlue;
  const QImage before = page.Paint();
  page.marks.today = 20240514;
  const QImage after = page.Paint();
  const Rect cell = page.Layout().CellRect(page.CellOf(5, 14));
  const int added = CountOf(after, cell, kBlue) - CountOf(before, cell, kBlue);
  EXPECT_GE(added, 2 * 20);
  page.marks.today = 20230514;
  EXPECT_EQ(page.Paint(), before) << "the same day of another year";
}

// The law that lets the window repaint two cells only.
TEST(MonthPainterTest, PartsPaintedAnewAreThoseOfAWholePainting) {
  for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
    for (const bool circle : {false, true}) {
      Page page;
      page.ratio = ratio;
      page.width = 711;
      page.height = 433;
      page.settings.backgroundImage = true;
      page.settings.grid = true;
      page.settings.showWeekNumber = true;
      page.settings.fullCellBackground = true;
      page.settings.circleTheDay = circle;
      page.settings.circleWidth = 3;
      page.settings.colors[kHolidaysBgColor] = kBlue;
      page.AddPeriod(20240506, 20240526);
      page.marks.isVisible = true;
      page.marks.month = 5;
      page.marks.day = 12;  // the last of its row
      QImage canvas = page.Paint();
      QRegion moved(ToQRect(page.Layout().DirtyRect(page.CellOf(5, 12))));
      page.marks.day = 20;
      moved += ToQRect(page.Layout().DirtyRect(page.CellOf(5, 20)));
      page.PaintOn(canvas, moved);
      EXPECT_EQ(canvas, page.Paint()) << "ratio " << ratio << (circle ? ", circle" : ", frame");
    }
  }
}

// On purpose: the first month shown begins with empty cells, and they are no end of it.
TEST(MonthPainterTest, FirstMonthIsPaintedBehindItsEmptyCells) {
  Page page;
  page.year = -3999;
  page.month = 1;
  page.AddPeriod(-39990131, -39990101);  // packed dates of a year before the era run backwards
  page.settings.colors[kHolidaysBgColor] = kYellow;
  page.settings.backgroundAlpha = 255;
  const int first = page.CellOf(1, 1);
  ASSERT_GT(first, page.Layout().firstCell);
  const QImage image = page.Paint();
  for (int cell = page.Layout().firstCell; cell < first + 31; ++cell) {
    const Rect rect = page.Layout().CellRect(cell);
    EXPECT_EQ(PixelAt(image, rect.left + 2, rect.top + 2), cell < first ? kWindowColor : kYellow) << cell;
  }
}

TEST(MonthPainterTest, EachRowWithDaysHasAWeekNumber) {
  Page page;
  page.settings.showWeekNumber = true;
  const MonthLayout layout = page.Layout();
  const QImage image = page.Paint();
  for (int row = 1; row <= kWeekRows; ++row) {
    const Rect rect = layout.WeekNumberRect(row);
    const int blank = CountOf(image, rect, kWindowColor);
    EXPECT_EQ(blank < rect.Width() * rect.Height(), row <= 5) << row;  // May 2024 has five weeks.
  }
}

TEST(MonthPainterTest, PictureIsStretchedOverTheRowsAlone) {
  const auto stripes = [](QImage::Format format) {
    QImage picture(2, 2, format);
    picture.fill(qRgb(0x20, 0x60, 0xE0));
    return picture;
  };
  Page page;
  page.settings.colors[kHeaderBgColor] = kYellow;
  CMonthPainter painter;
  painter.SetUp(page.Layout(), page.settings, QFont(), CMonthPainter::kScreen);
  painter.SetBackground(stripes(QImage::Format_RGB32));
  QImage canvas(700, 420, QImage::Format_RGB32);
  QPainter ink(&canvas);
  painter.Paint(ink, page.Model(), page.marks);
  EXPECT_EQ(PixelAt(canvas, 1, 59), kYellow);
  EXPECT_EQ(PixelAt(canvas, 1, 62), kBlue);
  EXPECT_EQ(PixelAt(canvas, 699, 419), kBlue);

  // What a picture leaves transparent shows the plain background, never what was there before.
  QImage glass = stripes(QImage::Format_ARGB32);
  glass.fill(Qt::transparent);
  painter.SetBackground(glass);
  painter.Paint(ink, page.Model(), page.marks);
  EXPECT_EQ(PixelAt(canvas, 699, 419), kWindowColor);
}

TEST(MonthPainterTest, EveryPixelIsPaintedAtEveryRatio) {
  for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    for (const bool picture : {false, true}) {
      Page page;
      page.width = 701;
      page.height = 431;
      page.ratio = ratio;
      page.settings.backgroundImage = picture;
      const QImage image = page.Paint();  // on magenta
      EXPECT_EQ(CountOf(image, {0, 0, image.width(), image.height()}, Rgb(0xFF, 0, 0xFF)), 0)
          << ratio << (picture ? " with" : " without") << " a picture";
    }
  }
}

TEST(MonthPainterTest, AnySizeCanBePainted) {
  for (const QSize size :
       {QSize(0, 0), QSize(1, 1), QSize(6, 6), QSize(8, 400), QSize(400, 8), QSize(20, 20)}) {
    Page page;
    page.width = size.width();
    page.height = size.height();
    page.settings.backgroundImage = true;
    page.settings.showWeekNumber = true;
    page.settings.grid = true;
    page.settings.fontName.Set(u"No Such Font 42");
    page.marks.isVisible = true;
    page.marks.month = 5;
    page.marks.day = 15;
    QImage canvas(400, 400, QImage::Format_RGB32);
    canvas.fill(Qt::magenta);
    page.PaintOn(canvas);
    EXPECT_EQ(PixelAt(canvas, 0, 0) == Rgb(0xFF, 0, 0xFF), size.isEmpty());
  }
}

TEST(MonthPainterTest, FontsFillTheirHeightAndNamesTheirColumns) {
  for (const int width : {1400, 700, 350, 170}) {
    const MonthLayout layout(width, 392, true, true);
    const MonthFonts fonts = MakeMonthFonts(layout, DisplaySettings(), QFont());
    EXPECT_LE(QFontMetrics(fonts.upright).height(), layout.FontHeight());
    QFont larger = fonts.upright;
    larger.setPixelSize(larger.pixelSize() + 1);
    EXPECT_GT(QFontMetrics(larger).height(), layout.FontHeight());
    for (int column = 0; column < kColumns; ++column)
      EXPECT_LE(QFontMetrics(fonts.names).horizontalAdvance(ColumnName(layout, column)),
                layout.NameRect(column).Width())
          << width;
  }
}

TEST(MonthPainterTest, SundayStandsFirstOrLast) {
  const MonthLayout monday(700, 392, false, true);
  EXPECT_EQ(ColumnName(monday, 0), QStringLiteral("Lundi"));
  EXPECT_EQ(ColumnName(monday, 6), QStringLiteral("Dimanche"));
  const MonthLayout sunday(700, 392, false, false);
  EXPECT_EQ(ColumnName(sunday, 0), QStringLiteral("Dimanche"));
  EXPECT_EQ(ColumnName(sunday, 6), QStringLiteral("Samedi"));
}

double Luminance(QRgb color) {
  const auto linear = [](int level) {
    const double value = level / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

// Contrast as the accessibility guidelines of the web reckon it.
double Contrast(QRgb paper, QRgb ink) { return (Luminance(paper) + 0.05) / (Luminance(ink) + 0.05); }

TEST(MonthPicturesTest, NumbersAreLegibleEverywhereOnTheBuiltInBackground) {
  const QImage picture(BackgroundPicturePath());
  ASSERT_EQ(picture.size(), QSize(336, 248));
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      ASSERT_GE(Contrast(picture.pixel(x, y), ToQColor(kGreyTextColor).rgb()), 4.5) << x << ", " << y;
      ASSERT_GE(Contrast(picture.pixel(x, y), qRgb(255, 0, 0)), 3.4) << x << ", " << y;
    }
  }
}

// In the north the waxing moon is lit at its right.
TEST(MonthPicturesTest, GlyphsAreLitAsSeenFromEuropeOnScreenAndPaper) {
  constexpr struct {
    MoonPhase phase;
    bool leftLit, rightLit;
  } kPhases[] = {{kNewMoon, false, false},
                 {kFirstQuarter, false, true},
                 {kFullMoon, true, true},
                 {kLastQuarter, true, false}};
  for (const auto& [phase, leftLit, rightLit] : kPhases) {
    for (const int side : {12, 48, 200}) {
      QImage paper(side, side, QImage::Format_RGB32);
      paper.fill(Qt::white);
      QPainter painter(&paper);
      DrawMoonOnPaper(painter, QRectF(0, 0, side, side), phase, 1);
      for (const QImage& glyph : {MoonGlyph(phase, side), paper}) {
        EXPECT_EQ(qGray(glyph.pixel(side * 3 / 10, side / 2)) > 128, leftLit) << phase << " at " << side;
        EXPECT_EQ(qGray(glyph.pixel(side * 7 / 10, side / 2)) > 128, rightLit) << phase << " at " << side;
      }
      EXPECT_EQ(qAlpha(MoonGlyph(phase, side).pixel(0, 0)), 0);
    }
  }
}

}  // namespace
}  // namespace orbisol

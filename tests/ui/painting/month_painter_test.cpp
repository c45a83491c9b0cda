#include "ui/painting/month_painter.h"

#include <QProcess>
#include <QTemporaryDir>

#include <set>

#include "core/calendar_config.h"
#include "tests/ui/painting/month_page.h"
#include "ui/painting/month_texts.h"

namespace orbisol {
namespace {

constexpr Color kBlue = Rgb(0x20, 0x60, 0xE0);
constexpr Color kYellow = Rgb(0xFF, 0xF0, 0x80);

// Plain and without a grid, so that a pixel has one reason for its color.
struct Page : MonthPage {
  Page() {
    settings.grid = false;
    settings.fullCellBackground = true;
    settings.backgroundAlpha = 255;
    settings.colors[kVacationBack] = kYellow;
    settings.colors[kCircleColor] = kBlue;
  }
  void FillDays(PackedDate from, PackedDate to) { content.vacations.push_back(Period(from, to)); }
};

Color PixelAt(const QImage& image, int x, int y) {
  const QRgb pixel = image.pixel(x, y);
  return Rgb(static_cast<unsigned>(qRed(pixel)), static_cast<unsigned>(qGreen(pixel)),
             static_cast<unsigned>(qBlue(pixel)));
}

// Returns the widths of the stripes of a color that a line of the image crosses, from left to right or down.
std::set<int> Widths(const QImage& image, Color color, int at, bool isDown) {
  std::set<int> widths;
  int wide = 0;
  for (int i = 0; i < (isDown ? image.height() : image.width()); ++i) {
    const bool isIn = PixelAt(image, isDown ? at : i, isDown ? i : at) == color;
    if (!isIn && wide > 0) widths.insert(wide);
    wide = isIn ? wide + 1 : 0;
  }
  if (wide > 0) widths.insert(wide);
  return widths;
}

QImage Plain(const QColor& color) {
  QImage picture(2, 2, QImage::Format_ARGB32);
  picture.fill(color);
  return picture;
}

TEST(MonthPainterTest, HeaderEndsAPixelBelowItsRowAndAPictureBeginsThere) {
  Page page;
  page.settings.colors[kHeaderBgColor] = kMagenta;
  page.settings.colors[kStandardBgColor] = kYellow;
  for (const auto& [picture, ground] :
       {std::pair{QImage(), kYellow}, {Plain(ToQColor(kBlue)), kBlue}, {Plain(Qt::transparent), kYellow}}) {
    page.picture = picture;
    const QImage image = page.Paint();
    EXPECT_EQ(PixelAt(image, 699, 60), kMagenta);
    EXPECT_EQ(PixelAt(image, 1, 61), ground);
    EXPECT_EQ(PixelAt(image, 699, 419), ground);
  }
}

// On purpose: the lines that close the grid are drawn a pixel before their places.
TEST(MonthPainterTest, GridLinesStandAtTheCellsEdgesAndNumbersBesideWeeksWithDays) {
  Page page;
  page.settings.grid = true;
  const QImage grid = page.Paint();
  for (const int x : {0, 100, 600, 699}) EXPECT_EQ(PixelAt(grid, x, 65), kGreyTextColor) << x;
  for (const int y : {0, 60, 360, 419}) EXPECT_EQ(PixelAt(grid, 5, y), kGreyTextColor) << y;
  page.size.setWidth(725);
  page.settings.grid = false;
  page.settings.showWeekNumber = true;
  const QImage weeks = page.Paint();
  EXPECT_EQ(PixelAt(weeks, 700, 5), kGreyTextColor);
  EXPECT_EQ(PixelAt(weeks, 100, 65), kWindowColor);
  EXPECT_NE(Widths(weeks.copy(701, 300, 23, 60), kWindowColor, 30, false), std::set{23});
  EXPECT_EQ(Widths(weeks.copy(701, 360, 23, 60), kWindowColor, 30, false), std::set{23}) << "a week too many";
}

// Lines are measured in device pixels, at ratios where these are not the pixels of the layout.
TEST(MonthPainterTest, LinesAndFramesAreEquallyWideAtEveryRatio) {
  Page page;
  page.size.setWidth(713);
  page.settings.grid = true;
  page.settings.circleWidth = 2;
  for (const auto& [ratio, line, stroke] :
       {std::tuple{1.0, 1, 2}, {1.25, 1, 3}, {1.5, 1, 3}, {1.75, 1, 4}, {2.0, 2, 4}, {3.0, 3, 6}})
    for (int day = 13; day <= 19; ++day) {
      SCOPED_TRACE(testing::Message() << "ratio " << ratio << ", the " << day);
      page.ratio = ratio;
      page.marks.day = day;
      const QImage image = page.Paint();
      const auto pixel = [ratio = ratio](int place) { return static_cast<int>((place + 8) * ratio); };
      EXPECT_EQ(Widths(image, kBlue, pixel(page.Cell(day).top), false), std::set{stroke});
      EXPECT_EQ(Widths(image, kBlue, pixel(page.Cell(day).left), true), std::set{stroke});
      EXPECT_EQ(Widths(image, kGreyTextColor, pixel(60), false), std::set{line});
    }
}

TEST(MonthPainterTest, FillsHaveTheFormAndTheOpacityOfTheSettings) {
  const struct {
    const char* what;
    bool isFull, isCollapsed;
    int alpha;
    Color fill;
    Color edge, rounded, below;  // what is seen at the cell's edge, in the corner, and under a band
  } kFills[] = {
      {"a band", false, true, 255, kBlue, kBlue, kBlue, kYellow},
      {"a rounded rectangle", true, false, 255, kBlue, kYellow, kYellow, kBlue},
      {"the whole cell, more than opaque", true, true, 1000, kBlue, kBlue, kBlue, kBlue},
      {"half", true, false, 128, 0, kYellow, kYellow, Rgb(0x7F, 0x78, 0x40)},
      {"less than nothing", true, true, -5, kBlue, kYellow, kYellow, kYellow},
      // On purpose: the window's color is not filled, though the ground has another.
      {"white", true, true, 255, kWindowColor, kYellow, kYellow, kYellow},
  };
  for (const auto& row : kFills) {
    Page page;
    page.FillDays(20240514, 20240514);
    page.settings.fullCellBackground = row.isFull;
    page.settings.collapseCells = row.isCollapsed;
    page.settings.backgroundAlpha = row.alpha;
    page.settings.colors[kVacationBack] = row.fill;
    page.settings.colors[kStandardBgColor] = kYellow;
    const QImage image = page.Paint();  // the cell's corner is 100, 180
    EXPECT_EQ(PixelAt(image, 150, 180), row.edge) << row.what;
    EXPECT_EQ(PixelAt(image, 104, 184), row.rounded) << row.what;
    EXPECT_EQ(PixelAt(image, 106, 192), row.below) << row.what;
  }
}

TEST(MonthPainterTest, MarkCanBeAnEllipseAndStandOnANeighboringMonthsDay) {
  Page page;
  page.settings.circleTheDay = true;
  page.settings.circleWidth = 9;  // three, as it is clamped
  page.marks.month = 4;
  page.marks.day = 30;  // five pixels inside the sides, three inside top and bottom, a twentieth of the cell
  EXPECT_EQ(PixelAt(page.Paint(), 105, 90), kBlue);
  EXPECT_EQ(PixelAt(page.Paint(), 150, 63), kBlue);
  EXPECT_EQ(PixelAt(page.Paint(), 101, 61), kWindowColor);
}

TEST(MonthPainterTest, RangeInvertsItsCellsAndNothingElseAndNothingOnPaper) {
  Page page;
  page.picture = BuiltInBackground();
  QImage expected = page.Paint();
  const QRect cells(100, 60, 300, 60);  // of 30 April to 2 May
  QImage inverted = expected.copy(cells);
  inverted.invertPixels();
  QPainter(&expected).drawImage(cells, inverted);
  Page ranged = page;
  ranged.marks.hasRange = true;
  ranged.marks.firstDayNumber = Date(20240430).DayNumber();
  ranged.marks.lastDayNumber = Date(20240502).DayNumber();
  EXPECT_EQ(ranged.Paint(), expected);
  ranged.medium = page.medium = CMonthPainter::kPaper;
  EXPECT_EQ(ranged.Paint(), page.Paint());
}

// The law that lets the window repaint two cells only. No pixel is left out in either painting.
TEST(MonthPainterTest, PartsPaintedAnewAreThoseOfAWholePainting) {
  for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0})
    for (const auto& [isCircle, isSmall] :
         {std::pair{false, false}, {true, false}, {true, true}, {false, true}}) {
      SCOPED_TRACE(testing::Message()
                   << "ratio " << ratio << (isCircle ? ", circle " : ", frame ") << isSmall);
      Page page;
      page.ratio = ratio;
      page.size = isSmall ? QSize(75, 61) : QSize(711, 433);  // there the mark leaves its cell
      if (isCircle) page.picture = BuiltInBackground();
      page.settings.showWeekNumber = true;
      page.settings.circleTheDay = isCircle;
      page.settings.circleWidth = 3;
      page.settings.cellTexts = isCircle;
      page.content.dayEvents = {EveryYear(5, 12, u"Réunion de toute l'équipe"), EveryYear(5, 20, u"Piscine")};
      page.FillDays(20240506, 20240526);
      page.marks.day = 12;  // the last of its row
      QImage canvas = page.Paint();
      page.marks.day = 20;
      const auto dirty = [&](int day) { return ToQRect(page.Layout().DirtyRect(page.CellOf(day))); };
      page.PaintOn(canvas, QRegion(dirty(12)) + dirty(20));
      EXPECT_EQ(canvas, page.Paint());
      for (int y = 0; y < canvas.height(); ++y) EXPECT_TRUE(Widths(canvas, kMagenta, y, false).empty());
      // A window may be asked for any part, also for one that ends inside a device pixel.
      const QRect part(31, 23, 26, 31);
      canvas.fill(ToQColor(kMagenta));
      page.PaintOn(canvas, part);
      const QRect pixels = QRectF(part.topLeft() * ratio, QSizeF(part.size()) * ratio).toAlignedRect();
      EXPECT_EQ(canvas.copy(pixels), page.Paint().copy(pixels));
    }
}

bool Holds(const QImage& image, Color color) {
  for (int y = 0; y < image.height(); ++y)
    if (!Widths(image, color, y, false).empty()) return true;
  return false;
}

TEST(MonthPainterTest, NumbersHaveTheirDaysColorAndNeighborsAreItalic) {
  Page page;
  page.moon = MonthModel::kWithoutMoon;
  page.content.dayEvents = {EveryYear(5, 8, u"x")};
  page.settings.colors[kHolidayText] = kMagenta;
  page.settings.colors[kHolidayBack] = kWindowColor;
  page.settings.colors[kGrayTextColor] = page.settings.colors[kStandardTextColor];
  const QImage image = page.Paint();
  // Without the edge, on which the header ends in the first row.
  const auto cell = [&](int day, int month) { return image.copy(ToQRect(page.Cell(day, month).Shrunk(2))); };
  EXPECT_TRUE(Holds(cell(8, 5), kMagenta));
  EXPECT_FALSE(Holds(cell(9, 5), kMagenta));
  EXPECT_TRUE(Holds(cell(1, 5), page.settings.ColorAt(kStandardTextColor)));
  EXPECT_NE(cell(1, 5), cell(1, 6)) << "the 1st of June leans";
  page.settings.fontWeight = 900;
  EXPECT_NE(page.Paint(), image);
}

TEST(MonthPainterTest, MoonStandsInItsSquareAndNowhereElse) {
  Page page;
  const MonthLayout layout = page.Layout();
  const QFontMetrics metrics(MakeMonthFonts(layout, page.settings, QFont()).upright);
  for (const int ratio : {1, 2}) {
    page.ratio = ratio;
    page.moon = MonthModel::kWithMoon;
    const QImage with = page.Paint();
    page.moon = MonthModel::kWithoutMoon;
    QImage without = page.Paint();
    for (const int day : {1, 8, 15, 23, 30}) {
      const QRect square = ToQRect(layout.GlyphRect(
          page.Model().CellOf(5, day), metrics.horizontalAdvance(QStringLiteral("30")), metrics.height()));
      const QRect pixels(square.topLeft() * ratio, square.size() * ratio);
      const QImage moon = with.copy(pixels);
      EXPECT_NE(moon, without.copy(pixels)) << day;
      QPainter(&without).drawImage(square, moon);
    }
    EXPECT_EQ(with, without) << ratio;
  }
}

// Today's tint lies under the fills of its day; today's date in another year is a day like others.
TEST(MonthPainterTest, TodayIsTintedAndUnderlinedOnScreenInItsOwnMonth) {
  Page page;
  const QImage plain = page.Paint();
  const Rect cell = page.Cell(14);
  for (const PackedDate other : {20230514, 20240614}) {
    page.marks.today = other;
    EXPECT_EQ(page.Paint(), plain) << other;
  }
  page.marks.today = 20240514;
  const QImage tinted = page.Paint();
  EXPECT_EQ(PixelAt(tinted, cell.left + 1, cell.top + 1), Rgb(0xE0, 0xE5, 0xEA));
  EXPECT_EQ(PixelAt(tinted, cell.left - 1, cell.top + 1), kWindowColor);
  // A line as wide as the number, in its color.
  const QFontMetrics metrics(MakeMonthFonts(page.Layout(), page.settings, QFont()).upright);
  std::set<int> widths;
  for (int y = cell.top + 40; y < cell.bottom; ++y)
    widths.merge(
        Widths(tinted.copy(cell.left, y, 100, 1), page.settings.ColorAt(kStandardTextColor), 0, false));
  EXPECT_EQ(widths.count(metrics.horizontalAdvance(QStringLiteral("14"))), 1U);
  page.FillDays(20240514, 20240514);
  EXPECT_EQ(PixelAt(page.Paint(), cell.left + 1, cell.top + 1), kYellow);
  page.medium = CMonthPainter::kPaper;
  const QImage paper = page.Paint();
  page.marks.today = 0;
  EXPECT_EQ(page.Paint(), paper);
}

TEST(MonthPainterTest, TitleOfTheWeekNumbersHasAFontOfItsOwn) {
  Page page;
  page.size = {2000, 500};
  page.settings.showWeekNumber = true;
  const MonthFonts fonts = MakeMonthFonts(page.Layout(), page.settings, QFont());
  ASSERT_LT(fonts.weekTitle.pixelSize(), fonts.names.pixelSize());
  const QImage title = page.Paint().copy(ToQRect(page.Layout().WeekHeaderRect()));
  int rows = 0;
  for (int y = 0; y < title.height(); ++y)
    rows += !Widths(title, page.settings.ColorAt(kHeaderTextColor), y, false).empty();
  EXPECT_GT(rows, 0);
  EXPECT_LE(rows, QFontMetrics(fonts.weekTitle).xHeight() + 1);
}

TEST(MonthPainterTest, HeaderOfSundayFirstWeeksIsThatOfMondayFirstOnesMovedOn) {
  Page page;
  const QImage monday = page.Paint();
  const ScopedRules rules(Rules());
  Rules().iso8601 = false;
  const QImage sunday = page.Paint();
  for (int column = 0; column < kColumns; ++column) {
    const QImage name = monday.copy(ToQRect(page.Layout().NameRect(column)));
    EXPECT_TRUE(Holds(name, page.settings.ColorAt(kHeaderTextColor))) << column;
    EXPECT_EQ(sunday.copy(ToQRect(page.Layout().NameRect((column + 1) % kColumns))), name) << column;
  }
}

// Nothing in a month is smaller than the text beside it where there is room, and nothing leaves its place.
TEST(MonthPainterTest, FontsFillTheirPlacesAndStayLegible) {
  for (const int dialogSize : {12, 19, 24})
    for (const QSize size : {QSize(1400, 800), QSize(700, 392), QSize(504, 300), QSize(396, 240), QSize()}) {
      SCOPED_TRACE(testing::Message() << size.width() << " wide, texts of " << dialogSize);
      QFont dialogFont;
      dialogFont.setPixelSize(dialogSize);
      const QSize places = size.isValid() ? size : LeastMonthSize(dialogFont);
      const MonthLayout layout(places.width(), places.height(), true, true);
      const MonthFonts fonts = MakeMonthFonts(layout, DisplaySettings(), dialogFont);
      const int height = QFontMetrics(fonts.upright).height();
      EXPECT_LE(height, layout.FontHeight());
      EXPECT_GE(height, layout.FontHeight() * 9 / 10);
      const QFontMetrics names(fonts.names);
      for (const QString& name : fonts.nameTexts)
        EXPECT_LE(names.horizontalAdvance(name), layout.columnWidth * 7 / 8 + 1) << name.toStdString();
      EXPECT_LE(fonts.names.pixelSize(), fonts.upright.pixelSize());
      EXPECT_EQ(fonts.nameTexts[2].size() > 4, fonts.names.pixelSize() >= std::max(11, dialogSize) &&
                                                   fonts.nameTexts[2] != QStringLiteral("Mer."));
      EXPECT_GE(fonts.names.pixelSize(), size.isValid() ? 1 : dialogSize);
      EXPECT_GE(fonts.small.pixelSize(), 8);
      EXPECT_GE(fonts.weekTitle.pixelSize(), 8);
      EXPECT_LE(QFontMetrics(fonts.small).height(), std::max(10, layout.SmallFontHeight()));
    }
}

// In the north the waxing moon is lit at its right.
TEST(MonthPicturesTest, GlyphsAreLitAsSeenFromEuropeOnScreenAndPaper) {
  for (const auto& [phase, left, right] : {std::tuple{kNewMoon, false, false},
                                           {kFirstQuarter, false, true},
                                           {kFullMoon, true, true},
                                           {kLastQuarter, true, false}})
    for (const int side : {8, 12, 48, 200})
      for (const bool isPaper : {false, true}) {
        QImage glyph = Plain(Qt::white).scaled(side, side);
        QPainter painter(&glyph);
        if (isPaper) DrawMoonOnPaper(painter, glyph.rect(), phase, side / 16.0);
        if (!isPaper) painter.drawImage(0, 0, MoonGlyph(phase, side));
        const auto gray = [&](int x) { return qGray(glyph.pixel(x, side / 2)); };
        EXPECT_EQ(gray(side * 3 / 10) > 128, left) << phase << " at " << side;
        EXPECT_EQ(gray(side * 7 / 10) > 128, right) << phase << " at " << side;
        EXPECT_LT(std::min(gray(0), gray(side / 12)), 160) << "the rim of " << phase << " at " << side;
      }
}

TEST(MonthPicturesTest, AreThoseThatTheirProgramDraws) {
  const QTemporaryDir folder;
  ASSERT_EQ(QProcess::execute(QStringLiteral(ORBISOL_DRAW_PICTURES), {folder.path()}), 0);
  const QString kept = QStringLiteral(ORBISOL_SOURCE_DIR "/resources/pictures/");
  EXPECT_EQ(QImage(folder.filePath("moon.png")), QImage(kept + "moon.png"));
  const QImage drawn(folder.filePath("background.jpg"));
  const QImage shipped(kept + "background.jpg");
  ASSERT_EQ(drawn.size(), shipped.size());
  for (qsizetype i = 0; i < shipped.sizeInBytes(); ++i)
    ASSERT_LE(std::abs(drawn.constBits()[i] - shipped.constBits()[i]), 1) << i;
  // A tone darker, and grey or red numbers would have too little contrast.
  for (int y = 0; y < shipped.height(); ++y)
    for (int x = 0; x < shipped.width(); ++x) ASSERT_GE(qGray(shipped.pixel(x, y)), 0xEC);
}

}  // namespace
}  // namespace orbisol

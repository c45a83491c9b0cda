// Months with texts in their cells.

#include "tests/ui/painting/month_page.h"

namespace orbisol {
namespace {

// May 2024 with a holiday under a pile of accents, a day of four events beside a full moon, and a vacation.
struct TextPage : MonthPage {
  TextPage() {
    size = {1280, 800};
    settings.cellTexts = true;
    for (const char16_t* const name : {u"Réunion de toute l'équipe au deuxième étage", u"Piscine", u"Chorale",
                                       u"Dîner", u"Poubelles", u"Courses", u"Lecture", u"Sport"})
      content.dayEvents.push_back(Rule(kFixedDate, {.isPublic = false, .month = 5, .day = 23, .name = name}));
    content.dayEvents.push_back(
        Rule(kFixedDate,
             {.month = 5,
              .day = 8,
              .name = u"V\u0301\u0301\u0301\u0301\u0301\u0301ictoire de mil neuf cent quarante-cinq"}));
    content.vacations.push_back(Period(20240513, 20240524, u"Vacances de printemps à la montagne"));
    marks.day = 2;
  }
};

// Returns the rectangle around all pixels in which two pictures differ.
QRect DifferenceOf(const QImage& a, const QImage& b, const QRect& within) {
  QRect found;
  for (int y = within.top(); y <= within.bottom(); ++y)
    for (int x = within.left(); x <= within.right(); ++x)
      if (a.pixel(x, y) != b.pixel(x, y)) found |= QRect(x, y, 1, 1);
  return found;
}

QRect Scaled(const Rect& rect, double ratio) {
  return QRectF(rect.left * ratio, rect.top * ratio, rect.Width() * ratio, rect.Height() * ratio)
      .toAlignedRect();
}

// Names never reach the number, the moon, the edges or another cell, whatever the size.
TEST(CellTextsTest, LinesStayBelowNumberAndMoonInsideTheirCells) {
  for (const QSize size : {QSize(850, 434), QSize(1280, 800), QSize(1920, 1080), QSize(500, 900)}) {
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
      SCOPED_TRACE(std::to_string(size.width()) + " at " + std::to_string(ratio));
      TextPage page;
      page.size = size;
      page.ratio = ratio;
      page.Paint();  // large glyphs are drawn a little otherwise the first time
      const QImage with = page.Paint();
      TextPage nameless = page;
      for (DayEvent& rule : nameless.content.dayEvents) rule.name.Set(u"");
      nameless.content.vacations[0].title.Set(u"");
      const QImage without = nameless.Paint();
      const MonthModel model = page.Model();
      for (int i = model.FirstCell(); i <= model.LastCell(); ++i) {
        const int day = model.cells[static_cast<std::size_t>(i)].day;
        const QRect cell = Scaled(page.Layout().CellRect(i), ratio).intersected(with.rect());
        const QRect found = DifferenceOf(with, without, cell.adjusted(1, 1, -1, -1));
        const bool hasTitle = model.cells[static_cast<std::size_t>(i)].month == 5 && (day == 13 || day == 20);
        const bool hasNames = model.cells[static_cast<std::size_t>(i)].month == 5 && (day == 8 || day == 23);
        EXPECT_EQ(!found.isEmpty(), hasTitle || hasNames) << day;
        if (found.isEmpty()) continue;
        EXPECT_TRUE(Scaled(page.Layout().TextRect(i), ratio).contains(found)) << day;
        const Rect moon = page.Layout().CornerGlyphRect(i);
        EXPECT_FALSE(found.intersects(Scaled(moon, ratio))) << day;
      }
    }
  }
}

TEST(CellTextsTest, MonthsWithoutRoomForTwoLinesAreDrawnAsWithoutTexts) {
  for (const QSize size : {QSize(500, 250), QSize(210, 300), QSize(140, 90), QSize(150, 900), QSize(7, 7)}) {
    TextPage page;
    page.size = size;
    const QImage with = page.Paint();
    page.settings.cellTexts = false;
    EXPECT_EQ(with, page.Paint()) << size.width();
  }
}

TEST(CellTextsTest, TextsHaveTheirMarksColorAndCanBeReadOnTheirGround) {
  TextPage page;
  page.content.dayEvents.erase(page.content.dayEvents.begin(), page.content.dayEvents.end() - 1);
  page.settings.backgroundAlpha = 255;
  for (const PackedDate today : {0, 20240508}) {
    page.marks.today = today;
    page.settings.fullCellBackground = today == 0;  // a fill would hide today's tint
    for (const Color ink : {Rgb(255, 230, 0), Rgb(0, 0, 160), Rgb(255, 0, 0)}) {
      for (const Color ground : {Rgb(255, 255, 255), Rgb(30, 30, 40)}) {
        page.settings.colors[kHolidayText] = ink;
        page.settings.colors[kHolidayBack] = ground;
        page.settings.colors[kStandardBgColor] = ground;
        const QImage image = page.Paint();
        const QRect place = ToQRect(page.Layout().TextRect(page.CellOf(8)));
        const QColor behind = image.pixelColor(place.bottomRight());
        double best = 0;  // letters are blended with their ground; their middle is not
        for (int y = place.top(); y <= place.bottom(); ++y)
          for (int x = place.left(); x <= place.right(); ++x)
            best = std::max(best, Contrast(image.pixelColor(x, y), behind));
        EXPECT_GE(best, 4.2) << ink << " on " << ground << " today " << today;
      }
    }
  }
}

// The circle goes around the small number, and stays in its cell.
TEST(CellTextsTest, CircleSurroundsTheNumberInTheCorner) {
  TextPage page;
  page.settings.circleTheDay = true;
  const QImage with = page.Paint();
  page.marks.day = 0;
  const QImage without = page.Paint();
  const Rect cell = page.Layout().CellRect(page.CellOf(2));
  const QRect found = DifferenceOf(with, without, with.rect());
  EXPECT_TRUE(ToQRect(cell).contains(found));
  EXPECT_LT(found.right(), (cell.left + cell.right) / 2);
  EXPECT_LT(found.bottom(), (cell.top + cell.bottom) / 2 + page.Layout().TextInset());
}

}  // namespace
}  // namespace orbisol

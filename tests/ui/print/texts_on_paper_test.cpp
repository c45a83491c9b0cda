// The month as on the screen, printed with texts in its cells.

#include <QImage>
#include <QPageLayout>
#include <QPainter>

#include <gtest/gtest.h>

#include "tests/content/rule_builder.h"
#include "tests/support/rules.h"
#include "ui/print/page_painter.h"

namespace orbisol {
namespace {

constexpr int kResolution = 150;

QImage PrintedMay(bool hasTexts, std::u16string_view name) {
  PrintSource source;
  source.rules = RulesWith(kRomanReform);
  source.settings.cellTexts = hasTexts;
  source.content.dayEvents = {Rule(kFixedDate, {.month = 5, .day = 8, .name = name})};
  const QPageLayout paper(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(10, 10, 10, 10),
                          QPageLayout::Millimeter);
  QImage page(paper.fullRectPixels(kResolution).size(), QImage::Format_RGB32);
  page.fill(Qt::white);
  QPainter painter(&page);
  CPagePainter(PrintJob(2024, 5), source).Paint(painter, 0, SpaceOf(paper, kResolution));
  return page;
}

TEST(TextsOnPaperTest, FollowTheSwitch) {
  const ScopedRules inForce(RulesWith(kRomanReform));
  EXPECT_NE(PrintedMay(true, u"Victoire"), PrintedMay(true, u"Armistice"));
  EXPECT_EQ(PrintedMay(false, u"Victoire"), PrintedMay(false, u"Armistice"));
  EXPECT_NE(PrintedMay(true, u"Victoire"), PrintedMay(false, u"Victoire"));
}

}  // namespace
}  // namespace orbisol

// What tests of printing print: May 2024 and its year, with marks of every kind.
#pragma once

#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>

#include <gtest/gtest.h>

#include "resources/command_ids.h"
#include "tests/content/rule_builder.h"
#include "ui/print/page_painter.h"

namespace orbisol {

inline PrintSource SourceOfTests() {
  PrintSource source;
  source.content.dayEvents = {
      Rule(kFixedDate, {.month = 5, .day = 1, .name = u"Travail"}),
      Rule(kFixedDate, {.isPublic = false, .month = 5, .day = 23, .name = u"Dentiste"})};
  source.content.vacations = {Period(20240508, 20240512, u"Repos")};
  source.rules = Rules();
  source.picture = QImage(300, 200, QImage::Format_RGB32);
  source.picture.fill(QColor(0x22, 0x49, 0x6B));
  source.settings.fontName.Set(u"DejaVu Sans");
  return source;
}

inline QPageLayout Paper(QPageLayout::Orientation orientation) {
  return {QPageSize(QPageSize::A4), orientation, QMarginsF(10, 12, 14, 16), QPageLayout::Millimeter};
}

// Returns a job with all options as they are at first and the months of a period.
inline PrintJob JobOf(int format, int period = kCmdPeriodMonth, int year = 2024, int month = 5) {
  PrintJob job(year, month);
  job.ChoosePeriod(period);
  job.ChooseFormat(format);
  return job;
}

// Returns a page as a preview shows it, in so many dots per inch.
inline QImage Preview(const PrintJob& job, const PrintSource& source, const QPageLayout& layout,
                      int resolution, int page = 0) {
  QImage image(layout.fullRectPixels(resolution).size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  const double zoom = static_cast<double>(resolution) / kPrintResolution;
  painter.scale(zoom, zoom);
  EXPECT_TRUE(CPagePainter(job, source).Paint(painter, page, SpaceOf(layout, kPrintResolution)));
  return image;
}

}  // namespace orbisol

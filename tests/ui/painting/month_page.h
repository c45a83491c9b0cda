// A page of May 2024, painted as a window does.
#pragma once

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include "tests/content/rule_builder.h"
#include "ui/painting/month_painter.h"
#include "ui/painting/month_pictures.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/geometry.h"

namespace orbisol {

constexpr Color kMagenta = Rgb(0xFF, 0, 0xFF);  // color where nothing was painted

struct MonthPage {
  CalendarContent content;
  DisplaySettings settings;
  QImage picture;
  MonthMarks marks;
  QSize size{700, 420};
  double ratio = 1;
  CMonthPainter::Medium medium = CMonthPainter::kScreen;
  MonthModel::Moon moon = MonthModel::kWithMoon;

  MonthPage() { marks.month = 5; }

  MonthLayout Layout() const {
    return {size.width(), size.height(), settings.showWeekNumber, Rules().iso8601};
  }
  MonthModel Model() const { return BuiltMonth(2024, 5, content, moon, settings.colors); }
  int CellOf(int day, int month = 5) const { return Model().CellOf(month, day); }
  Rect Cell(int day, int month = 5) const { return Layout().CellRect(CellOf(day, month)); }
  void PaintOn(QImage& canvas, const QRegion& region = {}) const {
    CMonthPainter painter;
    painter.SetUp(Layout(), settings, QFont(), medium);
    painter.SetBackground(picture);
    painter.SetTexts(Model(), content);
    QPainter ink(&canvas);
    painter.Paint(ink, Model(), marks, region);
  }
  QImage Paint() const {
    QImage canvas((QSizeF(size) * ratio).toSize(), QImage::Format_RGB32);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(ToQColor(kMagenta));
    PaintOn(canvas);
    return canvas;
  }
};

}  // namespace orbisol

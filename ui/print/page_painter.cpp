#include "ui/print/page_painter.h"

#include <QPageLayout>
#include <QPainter>

#include <cmath>
#include <utility>

#include "core/integers.h"
#include "resources/command_ids.h"
#include "ui/painting/month_painter.h"
#include "ui/print/month_column.h"
#include "ui/print/month_table.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr int kScreenResolution = 96;  // for which the line widths of the month view are meant
constexpr int kCaptionPoints = 8;      // height of its font

constexpr int kFineResolution = 150;  // pixels per inch of a picture in which none of them is seen

// Returns a picture that looks smooth in its place on paper, where engines show each pixel as a square. A
// small one is enlarged into `fine`, which serves all pages, so that a PDF file holds it once.
const QImage& Smooth(const QImage& picture, const Rect& place, int resolution, QImage& fine) {
  const auto pixels = [&](int length) { return MulDiv(length, kFineResolution, resolution); };
  const QSize size = picture.size().expandedTo(QSize(pixels(place.Width()), pixels(place.Height())));
  if (picture.isNull() || size == picture.size()) return picture;
  if (fine.size() != size) fine = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  return fine;
}

int Tenths(double millimetres) { return static_cast<int>(std::lround(millimetres * 10)); }

MonthModel ModelOf(const PrintSource& source, const PrintMonth& month, bool withMoon) {
  MonthModel model;
  model.year = month.year;
  model.month = month.month;
  model.Build(source.content, source.settings.colors,
              withMoon ? MonthModel::kWithMoon : MonthModel::kWithoutMoon);
  return model;
}

// Paints a month as the window shows it, without the mark of the selected day.
void PaintAsOnScreen(QPainter& painter, const PrintSource& source, const QImage& background,
                     const PageSpace& space, const Rect& body, const PrintMonth& month) {
  const MonthModel model = ModelOf(source, month, true);
  if (model.month != month.month) return;
  CMonthPainter view;
  view.SetUp(MonthLayout(body.Width(), body.Height(), source.settings.showWeekNumber, Rules().iso8601,
                         std::max(1, MulDiv(1, space.resolution, kScreenResolution))),
             source.settings, source.dialogFont, CMonthPainter::kPaper);
  view.SetBackground(background);
  view.SetTexts(model, source.content);
  painter.save();
  painter.translate(body.left, body.top);
  painter.setClipRect(0, 0, body.Width(), body.Height(), Qt::IntersectClip);
  view.Paint(painter, model, MonthMarks());
  painter.restore();
}

}  // namespace

PageSpace SpaceOf(const QPageLayout& layout, int resolution) {
  const QRectF paper = layout.fullRect(QPageLayout::Millimeter);
  const QMarginsF margins = layout.margins(QPageLayout::Millimeter);
  const PaperSetup setup = {
      Tenths(paper.width()),
      Tenths(paper.height()),
      {Tenths(margins.left()), Tenths(margins.top()), Tenths(margins.right()), Tenths(margins.bottom())}};
  return {PageArea(setup, resolution), resolution};
}

CPagePainter::CPagePainter(const PrintJob& job, PrintSource source)
    : m_job(job), m_source(std::move(source)), m_fonts(m_source.settings, m_source.dialogFont) {}

bool CPagePainter::Paint(QPainter& painter, int page, const PageSpace& space) const {
  if (page < 0 || page >= m_job.PageCount()) return false;
  const ScopedRules inForce(m_source.rules);
  painter.save();
  painter.setClipRect(ToQRect(space.area), Qt::IntersectClip);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  PaintBands(painter, page, space);
  painter.restore();
  return true;
}

void CPagePainter::PaintBands(QPainter& painter, int page, const PageSpace& space) const {
  const PageUnits units(space.resolution);
  const QImage picture = m_job.Has(kImageOption) ? m_source.picture : QImage();
  const bool isTable = m_job.formatCommand == kCmdFormatTable;
  const PageBands bands =
      PageBandsOf(space.area, units, m_job.MonthsPerPage(), isTable, {picture.width(), picture.height()});
  if (GroundColor() != Qt::white) painter.fillRect(ToQRect(space.area), GroundColor());
  if (!picture.isNull())
    painter.drawImage(ToQRect(bands.picture),
                      Smooth(picture, bands.picture, space.resolution, m_finePicture));
  PaintTitle(painter, page, bands.title, units);
  PaintMonths(painter, page, space, bands.body);
  painter.setPen(LegibleOn(GroundColor(), ToQColor(kGreyTextColor)));
  painter.setFont(m_fonts.OfHeight(kCaptionPoints * units.point));
  DrawLine(painter, bands.caption, Qt::AlignHCenter | Qt::AlignBottom, ToQString(m_job.Caption(page)));
}

void CPagePainter::PaintTitle(QPainter& painter, int page, const Rect& title, const PageUnits& units) const {
  const bool isScreen = m_job.formatCommand == kCmdFormatScreen;
  const QColor ink = isScreen ? ToQColor(m_source.settings.ColorAt(kColorCalHeader)) : QColor(Qt::black);
  painter.setPen(LegibleOn(GroundColor(), ink));
  const QString text = ToQString(m_job.Title(page));
  painter.setFont(
      FittingFont(m_fonts, title.Height() - 2 * units.point, Lettering::kBold, text, title.Width()));
  DrawLine(painter, title, Qt::AlignCenter, text);
}

void CPagePainter::PaintMonths(QPainter& painter, int page, const PageSpace& space, const Rect& body) const {
  if (m_job.formatCommand == kCmdFormatScreen) {
    const QImage& background = Smooth(m_source.background, body, space.resolution, m_fineBackground);
    PaintAsOnScreen(painter, m_source, background, space, body, m_job.MonthOnPage(page, 0));
    return;
  }
  const PageStyle style = {m_job, m_fonts, PageUnits(space.resolution)};
  for (int k = 0; k < m_job.MonthsPerPage(); ++k) {
    const PrintMonth month = m_job.MonthOnPage(page, k);
    const MonthModel model = ModelOf(m_source, month, m_job.Has(kMoonOption));
    if (m_job.formatCommand == kCmdFormatTable) {
      PaintMonthTable(painter, style, body, month, model);
    } else {
      const ColumnLayout column = ColumnOnPage(body, style.units, m_job.MonthsPerPage(), k);
      PaintMonthColumn(painter, style, body, column, month, model);
    }
  }
}

// Returns the color behind a page: that behind the calendar where the page is as on the screen, but white for
// the plain color of windows, which is no choice of the user's.
QColor CPagePainter::GroundColor() const {
  const Color color = m_source.settings.ColorAt(kColorBgCal);
  const bool isChosen = m_job.formatCommand == kCmdFormatScreen && color != kButtonFaceColor;
  return isChosen ? ToQColor(color) : QColor(Qt::white);
}

}  // namespace orbisol

// Paints the pages of a print job: the same code for the preview, the printer and PDF.
//
//   const CPagePainter pages(job, PrintSource{Content(), Display(), Rules(), background, picture, font()});
//   pages.Paint(painter, 0, SpaceOf(pageLayout, 600));
//
// A painter keeps copies of all it needs, so that pages of a job that runs stay as they were when it began,
// whatever changes meanwhile. Painting changes nothing but the device.
//
// A preview gives the page at the printer's resolution and scales the painter, so that it breaks lines where
// the paper does:
//
//   painter.scale(zoom, zoom);  // the origin is the upper left corner of the paper
//   pages.Paint(painter, job.currentPage, SpaceOf(printer.pageLayout(), printer.resolution()));
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>

#include "content/calendar_content.h"
#include "core/calendar_config.h"
#include "core/rect.h"
#include "settings/display_settings.h"
#include "ui/print/page_layout.h"
#include "ui/print/page_text.h"
#include "ui/print/print_job.h"

class QPageLayout;
class QPainter;

namespace orbisol {

// Resolution of previews, printers and PDF files in dots per inch; the printed lines then do not depend on
// the driver.
constexpr int kPrintResolution = 600;

// The state that pages show.
struct PrintSource {
  CalendarContent content;
  DisplaySettings settings;
  CalendarRules rules;  // in force while a page is painted
  QImage background;    // picture behind a month as on the screen, null for none
  QImage picture;       // the inserted picture, null for none
  QFont dialogFont;     // font where the calendar names none
};

// Where a page may be painted.
struct PageSpace {
  Rect area;           // inside the margins, in device units from the upper left corner of the paper
  int resolution = 0;  // device units per inch
};

// Returns the space that a page setup leaves, at a resolution.
PageSpace SpaceOf(const QPageLayout& layout, int resolution);

class CPagePainter {
 public:
  CPagePainter(const PrintJob& job, PrintSource source);

  const PrintJob& Job() const { return m_job; }

  // Paints a page on a painter whose origin is the corner of the paper and whose units are those of `space`.
  // Nothing is painted outside the area. Returns false for a page that there is not, and then paints nothing.
  bool Paint(QPainter& painter, int page, const PageSpace& space) const;

 private:
  void PaintBands(QPainter& painter, int page, const PageSpace& space) const;
  void PaintTitle(QPainter& painter, int page, const Rect& title, const PageUnits& units) const;
  void PaintMonths(QPainter& painter, int page, const PageSpace& space, const Rect& body) const;
  QColor GroundColor() const;

  PrintJob m_job;
  PrintSource m_source;
  CPageFonts m_fonts;
  mutable QImage m_fineBackground;  // small pictures enlarged for the size last painted
  mutable QImage m_finePicture;
};

}  // namespace orbisol

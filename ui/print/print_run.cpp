#include "ui/print/print_run.h"

#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include <unistd.h>

#include <algorithm>

#include "platform/descriptor.h"
#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

// Returns the part of a range that the job has; empty if there is none.
PageRange PagesThere(const PrintJob& job, const PageRange& range) {
  return {std::max(range.first, 0), std::min(range.last, job.PageCount() - 1)};
}

int CountOf(const PageRange& range) { return std::max(range.last - range.first + 1, 0); }

// Paints pages on a device that `painter` has begun and whose next page newPage() begins.
template <class Device>
RunResult PaintPages(const CPagePainter& pages, Device& device, QPainter& painter, const PageSpace& space,
                     const PageRange& range, const PageProgress& progress) {
  const int count = CountOf(range);
  for (int done = 0; done < count; ++done) {
    if (!progress(done, count)) return RunResult::kAborted;
    if (done > 0 && !device.newPage()) return RunResult::kFailed;
    if (!pages.Paint(painter, range.first + done, space)) return RunResult::kFailed;
  }
  return progress(count, count) ? RunResult::kDone : RunResult::kAborted;
}

// Writes the pages into a file that is open.
RunResult PaintPdf(const CPagePainter& pages, const QPageLayout& layout, QIODevice& file,
                   const PageRange& range, const PageProgress& progress) {
  QPageLayout whole = layout;
  whole.setMode(QPageLayout::FullPageMode);  // the origin is then the corner of the paper
  QPdfWriter writer(&file);
  writer.setResolution(kPrintResolution);
  writer.setPageLayout(whole);
  writer.setTitle(ToQString(pages.Job().Title(range.first)));
  writer.setCreator(TableText(kTextProgramName));
  QPainter painter;
  if (!painter.begin(&writer)) return RunResult::kFailed;
  const RunResult result =
      PaintPages(pages, writer, painter, SpaceOf(layout, kPrintResolution), range, progress);
  return painter.end() ? result : RunResult::kFailed;
}

}  // namespace

PageRange AllPages(const PrintJob& job) { return {0, job.PageCount() - 1}; }

PageRange RangeOfDialog(const PrintJob& job, int from, int to) {
  return from == 0 && to == 0 ? AllPages(job) : PageRange{from - 1, to - 1};
}

RunResult WritePdf(const CPagePainter& pages, const QPageLayout& layout, const QString& path,
                   const PageRange& range, const PageProgress& progress) {
  const PageRange there = PagesThere(pages.Job(), range);
  if (CountOf(there) == 0) return RunResult::kNoPages;
  // The file has no name of its own before commit(), which gives it the rights of the one that it replaces.
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return RunResult::kFailed;
  const RunResult result = PaintPdf(pages, layout, file, there, progress);
  if (result != RunResult::kDone) return result;
  // A full disk may be reported only here. commit() takes no notice of a failed sync.
  if (file.error() != QFileDevice::NoError || !file.flush() ||
      Repeat([&] { return fsync(file.handle()); }) != 0)
    return RunResult::kFailed;
  return file.commit() ? RunResult::kDone : RunResult::kFailed;
}

RunResult PrintPages(const CPagePainter& pages, QPrinter& printer, const PageRange& range,
                     const PageProgress& progress) {
  if (printer.outputFormat() == QPrinter::PdfFormat)
    return WritePdf(pages, printer.pageLayout(), printer.outputFileName(), range, progress);
  const PageRange there = PagesThere(pages.Job(), range);
  if (CountOf(there) == 0) return RunResult::kNoPages;
  const PageSpace space = SpaceOf(printer.pageLayout(), printer.resolution());
  printer.setFullPage(true);  // the origin is then the corner of the paper
  QPainter painter;
  if (!painter.begin(&printer)) return RunResult::kFailed;
  const RunResult result = PaintPages(pages, printer, painter, space, there, progress);
  if (result != RunResult::kDone) printer.abort();
  const bool isEnded = painter.end();
  if (result != RunResult::kDone) return result;
  return isEnded && printer.printerState() != QPrinter::Error ? RunResult::kDone : RunResult::kFailed;
}

}  // namespace orbisol

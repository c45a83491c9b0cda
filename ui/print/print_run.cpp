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

// Paints pages on a device that `painter` has begun and whose next page newPage() begins.
template <class Device>
RunResult PaintPages(const CPagePainter& pages, Device& device, QPainter& painter, const PageSpace& space,
                     const PageList& list, const PageProgress& progress) {
  const int count = static_cast<int>(list.size());
  for (int done = 0; done < count; ++done) {
    if (!progress(done, count)) return RunResult::kAborted;
    if (done > 0 && !device.newPage()) return RunResult::kFailed;
    if (!pages.Paint(painter, list[static_cast<std::size_t>(done)], space)) return RunResult::kFailed;
  }
  return progress(count, count) ? RunResult::kDone : RunResult::kAborted;
}

// Writes the pages into a file that is open.
RunResult PaintPdf(const CPagePainter& pages, const QPageLayout& layout, QIODevice& file,
                   const PageList& list, const PageProgress& progress) {
  QPageLayout whole = layout;
  whole.setMode(QPageLayout::FullPageMode);  // the origin is then the corner of the paper
  QPdfWriter writer(&file);
  writer.setResolution(kPrintResolution);
  writer.setPageLayout(whole);
  writer.setTitle(ToQString(pages.Job().Title(list.front())));
  writer.setCreator(TableText(kTextProgramName));
  QPainter painter;
  if (!painter.begin(&writer)) return RunResult::kFailed;
  const RunResult result =
      PaintPages(pages, writer, painter, SpaceOf(layout, kPrintResolution), list, progress);
  return painter.end() ? result : RunResult::kFailed;
}

RunResult ResultOf(ServerAnswer answer) {
  switch (answer) {
    case ServerAnswer::kTaken:
      return RunResult::kDone;
    case ServerAnswer::kHeld:
      return RunResult::kHeld;
    case ServerAnswer::kNotAccepting:
      return RunResult::kNotAccepting;
    case ServerAnswer::kFailed:
      break;
  }
  return RunResult::kFailed;
}

}  // namespace

PageList AllPages(const PrintJob& job) { return PagesOf(job, {}); }

PageList PagesOf(const PrintJob& job, const PageChoice& choice) {
  const int count = job.PageCount();
  PageList once;
  const auto add = [&](const PageSpan& range) {
    for (int page = std::max(range.first, 1); page <= std::min(range.last, count); ++page)
      once.push_back(page - 1);
  };
  if (choice.ranges.empty()) add({1, count});
  for (const PageSpan& range : choice.ranges) add(range);
  if (choice.isReversed) std::reverse(once.begin(), once.end());

  PageList list;
  const int outer = choice.isCollated ? choice.copies : 1;
  const auto inner = static_cast<std::size_t>(choice.isCollated ? 1 : choice.copies);
  for (int copy = 0; copy < outer; ++copy)
    for (const int page : once) list.insert(list.end(), inner, page);
  return list;
}

RunResult WritePdf(const CPagePainter& pages, const QPageLayout& layout, const QString& path,
                   const PageList& list, const PageProgress& progress) {
  if (list.empty()) return RunResult::kNoPages;
  // The file has no name of its own before commit(), which gives it the rights of the one that it replaces.
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return RunResult::kFailed;
  const RunResult result = PaintPdf(pages, layout, file, list, progress);
  if (result != RunResult::kDone) return result;
  // A full disk may be reported only here. commit() takes no notice of a failed sync.
  if (file.error() != QFileDevice::NoError || !file.flush() ||
      Repeat([&] { return fsync(file.handle()); }) != 0)
    return RunResult::kFailed;
  return file.commit() ? RunResult::kDone : RunResult::kFailed;
}

QPageLayout LayoutOn(const QPageLayout& own, const QPageLayout& layout) {
  QPageLayout set = layout;
  if (!own.pageSize().isEquivalentTo(layout.pageSize())) set.setPageSize(own.pageSize());
  set.setOrientation(own.orientation());
  // The widest of the four, because printers give those of the upright paper also where it lies wide.
  QPageLayout least = own;
  least.setUnits(set.units());
  const QMarginsF edges = least.minimumMargins();
  const double edge = std::max({edges.left(), edges.top(), edges.right(), edges.bottom()});
  const QMarginsF margins = set.margins();
  set.setMargins({std::max(margins.left(), edge), std::max(margins.top(), edge),
                  std::max(margins.right(), edge), std::max(margins.bottom(), edge)});
  return set;
}

QPageLayout SetPaper(QPrinter& printer, const QPageLayout& layout) {
  if (printer.outputFormat() == QPrinter::PdfFormat) return layout;
  // One by one: a whole layout is refused for the sake of one narrow margin.
  printer.setPageSize(layout.pageSize());
  printer.setPageOrientation(layout.orientation());
  printer.setFullPage(true);  // the origin is then the corner of the paper
  return LayoutOn(printer.pageLayout(), layout);
}

RunResult PrintPages(const CPagePainter& pages, const QPageLayout& layout, QPrinter& printer,
                     const PageList& list, const PageProgress& progress, const PrintServer& server) {
  if (list.empty()) return RunResult::kNoPages;
  QPainter painter;
  if (!painter.begin(&printer)) return RunResult::kFailed;
  const RunResult result =
      PaintPages(pages, printer, painter, SpaceOf(layout, printer.resolution()), list, progress);
  if (result != RunResult::kDone) printer.abort();
  const bool isEnded = painter.end();
  if (result != RunResult::kDone) return result;
  if (!isEnded || printer.printerState() == QPrinter::Error) return RunResult::kFailed;
  return ResultOf(server(printer.printerName()));
}

}  // namespace orbisol

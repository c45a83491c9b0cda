// Runs a print job: page after page, to a printer or into a PDF file.
//
//   const CPagePainter pages(job, source);
//   const auto goOn = [&](int done, int count) { return ShowProgress(done, count); };
//   switch (WritePdf(pages, layout, path, AllPages(job), goOn)) …
//
// A PDF file is written beside its place and moved there when it is whole and on the disk: after an abort, on
// a full disk, or when the program is killed, the name holds what it held before, or nothing.
#pragma once

#include <QPageLayout>
#include <QString>

#include <functional>

#include "ui/print/page_painter.h"

class QPrinter;

namespace orbisol {

// Pages from `first` to `last`, counted from 0, both inclusive.
struct PageRange {
  int first = 0;
  int last = -1;
};

PageRange AllPages(const PrintJob& job);

// Returns the range that a print dialog gives, counted from 1; its 0 and 0 stand for all pages.
PageRange RangeOfDialog(const PrintJob& job, int from, int to);

enum class RunResult {
  kDone,
  kAborted,  // progress said so
  kNoPages,  // the range begins beyond the last page
  kFailed,   // the printer refused, or the file could not be written
};

// Called before each page, and once behind the last, with the pages that are done and their number. Returns
// false to abort the job. It may handle events.
using PageProgress = std::function<bool(int done, int count)>;

// Prints pages; those of the range beyond the last page are left out. The printer's page setup and resolution
// hold. A printer that writes a PDF file (QPrinter::PdfFormat) does so by WritePdf().
RunResult PrintPages(const CPagePainter& pages, QPrinter& printer, const PageRange& range,
                     const PageProgress& progress);

// Writes pages into a PDF file, whose fonts are embedded and whose texts can be searched. `path` is replaced
// if it exists; links are followed, its rights kept.
RunResult WritePdf(const CPagePainter& pages, const QPageLayout& layout, const QString& path,
                   const PageRange& range, const PageProgress& progress);

}  // namespace orbisol

// Runs a print job: page after page, to a printer or into a PDF file.
//
//   const CPagePainter pages(job, source);
//   const auto goOn = [&](int done, int count) { return ShowProgress(done, count); };
//   switch (WritePdf(pages, layout, path, AllPages(job), goOn)) …
//   PagesOf(job, {.ranges = {{1, 3}, {5, 5}}, .isReversed = true});  // {4, 2, 1, 0}
//
// A PDF file is written beside its place and moved there when it is whole and on the disk: after an abort, on
// a full disk, or when the program is killed, the name holds what it held before, or nothing.
#pragma once

#include <QPageLayout>
#include <QString>

#include <functional>
#include <vector>

#include "ui/print/page_painter.h"
#include "ui/print/print_server.h"

class QPrinter;

namespace orbisol {

// The pages to print, counted from 0, in their order. A page may be there several times.
using PageList = std::vector<int>;

// Pages from `first` to `last`, both inclusive, counted from 1 as users do.
struct PageSpan {
  int first = 1;
  int last = 1;
};

// The choice made in a print dialog.
struct PageChoice {
  std::vector<PageSpan> ranges = {};  // none for all pages
  bool isReversed = false;
  int copies = 1;  // that the pages are repeated for; 1 where the printer makes them itself
  bool isCollated = true;
};

PageList AllPages(const PrintJob& job);

// Returns the pages of a choice. Those that the job does not have are left out; there may be none.
PageList PagesOf(const PrintJob& job, const PageChoice& choice);

enum class RunResult {
  kDone,
  kAborted,       // progress said so
  kNoPages,       // the list is empty
  kFailed,        // the printer refused, or the file could not be written
  kNotAccepting,  // the queue of the printer takes no jobs
  kHeld,          // the pages wait for a printer that is stopped
};

// Called before each page, and once behind the last, with the pages that are done and their number. Returns
// false to abort the job. It may handle events.
using PageProgress = std::function<bool(int done, int count)>;

// Returns the layout that a printer prints whose own one is `own`: with its paper where it does not know that
// of `layout`, and margins as wide as those it cannot print on.
QPageLayout LayoutOn(const QPageLayout& own, const QPageLayout& layout);

// Sets the paper of a printer, and returns what LayoutOn() makes of it. A PDF file takes any.
QPageLayout SetPaper(QPrinter& printer, const QPageLayout& layout);

// Prints pages on a paper that SetPaper() has returned, at the printer's resolution, and waits for the answer
// of its server. What a printer would write into a PDF file, WritePdf() writes.
RunResult PrintPages(const CPagePainter& pages, const QPageLayout& layout, QPrinter& printer,
                     const PageList& list, const PageProgress& progress,
                     const PrintServer& server = AskPrintServer);

// Writes pages into a PDF file, whose fonts are embedded and whose texts can be searched. `path` is replaced
// if it exists; links are followed, its rights kept.
RunResult WritePdf(const CPagePainter& pages, const QPageLayout& layout, const QString& path,
                   const PageList& list, const PageProgress& progress);

}  // namespace orbisol

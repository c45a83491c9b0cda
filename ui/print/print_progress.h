// Shows how far a print job is, with a button that ends it. A job that is done in a moment shows nothing.
//
//   CPrintProgress progress(this);
//   WritePdf(pages, layout, path, AllPages(job), progress.AsFunction());
#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

#include "ui/print/print_run.h"

namespace orbisol {

class CPrintProgress {
 public:
  explicit CPrintProgress(QWidget* parent);

  // Returns what the job calls before each page. It lives as long as this object.
  PageProgress AsFunction();

  // Ends the job before its next page.
  void Abort() { m_isAborted = true; }
  void Hide() { m_dialog.hide(); }

 private:
  bool Show(int done, int count);

  QProgressDialog m_dialog;
  QElapsedTimer m_sinceBegin;
  QElapsedTimer m_sinceEvents;
  bool m_isAborted = false;
};

}  // namespace orbisol

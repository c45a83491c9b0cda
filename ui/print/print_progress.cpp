#include "ui/print/print_progress.h"

#include <QCoreApplication>

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr int kShownAfter = 400;  // milliseconds without a dialog
constexpr int kEventsEvery = 30;  // milliseconds between two looks at the user's events
constexpr int kLettersWide = 40;  // of the dialog, so that it keeps its width while numbers grow

}  // namespace

CPrintProgress::CPrintProgress(QWidget* parent) : m_dialog(parent) {
  m_dialog.setWindowTitle(TableText(kTextPrintTitle));
  m_dialog.setWindowModality(Qt::WindowModal);
  m_dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  m_dialog.setAutoReset(false);
  m_dialog.setAutoClose(false);
  m_dialog.setMinimumWidth(kLettersWide * m_dialog.fontMetrics().averageCharWidth());
  m_dialog.reset();  // nothing is shown before Show() asks for it
  m_sinceBegin.start();
  m_sinceEvents.start();
}

PageProgress CPrintProgress::AsFunction() {
  return [this](int done, int count) { return Show(done, count); };
}

bool CPrintProgress::Show(int done, int count) {
  if (m_sinceEvents.elapsed() >= kEventsEvery && !m_isAborted) {
    const bool isLong = m_dialog.isVisible() || m_sinceBegin.elapsed() >= kShownAfter;
    if (isLong) {
      m_dialog.setMaximum(count);
      m_dialog.setLabelText(TableText(kTextPrintProgress, {done, count}));
      m_dialog.show();
      m_dialog.setValue(done);
    }
    // Until the dialog is there to keep them away, keys and clicks wait.
    QCoreApplication::processEvents(isLong ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    m_sinceEvents.restart();
  }
  return !m_isAborted && !m_dialog.wasCanceled();
}

}  // namespace orbisol

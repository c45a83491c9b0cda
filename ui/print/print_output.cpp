#include "ui/print/print_output.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPageSetupDialog>
#include <QPrinter>
#include <QStandardPaths>

#include <utility>

#include "core/civil_year.h"
#include "core/date_text.h"
#include "files/calendar_name.h"
#include "resources/strings.h"
#include "ui/print/print_dialog.h"
#include "ui/print/print_progress.h"
#include "ui/print/toolkit_dialogs.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

enum NameText { kPlainName, kYearBeforeEra, kFromTo };  // indices of its pieces
enum ExportText { kExportTitle, kPdfFilter };           // likewise
enum EndText {
  kOnePrinted,
  kManyPrinted,
  kOneWritten,
  kManyWritten,
  kAbortedPrint,
  kAbortedFile
};  // likewise
enum FaultText {
  kNotTheOnePage,
  kNotTheseManyPages,
  kPrinterFault,
  kFileFault,
  kClosedQueue,
  kStoppedPrinter
};  // likewise

QString PdfPath(const QString& folder, const QString& name) {
  return QDir(folder).filePath(name + QStringLiteral(".pdf"));
}

// Returns "janvier", or "janvier à mars".
std::u16string FromTo(const std::u16string& from, const std::u16string& to) {
  if (from == to) return from;
  return FormatText(Piece(StringText(kTextPrintName), u'|', kFromTo), {from, to});
}

std::u16string YearName(int year) {
  if (year > 0) return DecimalText(year);
  return FormatText(Piece(StringText(kTextPrintName), u'|', kYearBeforeEra), {YearBeforeEra(year)});
}

}  // namespace

QString ProposedName(const PrintJob& job, std::u16string_view calendarName) {
  const bool isNamed = !calendarName.empty() && calendarName != kDefaultCalendarName;
  std::u16string name(isNamed ? calendarName : Piece(StringText(kTextPrintName), u'|', kPlainName));
  if (job.FirstMonth() != 1 || job.LastMonth() != 12)
    name += u' ' + FromTo(MonthName(job.FirstMonth()), MonthName(job.LastMonth()));
  const auto civilYear = [&](int year) { return YearName(CivilYearOf(Date(year, job.FirstMonth(), 1))); };
  return ToQString(name + u' ' + FromTo(civilYear(job.firstYear), civilYear(job.lastYear)));
}

CPrintOutput::CPrintOutput(QWidget& window) : QObject(&window), m_window(window) {}

CPrintOutput::~CPrintOutput() = default;

// Returns the printer of this window, set up for a document.
QPrinter& CPrintOutput::Printer(const QPageLayout& layout, const QString& name) {
  if (!m_printer) {
    m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    m_printer->setCreator(TableText(kTextProgramName));
  }
  m_printer->setResolution(kPrintResolution);
  m_printer->setDocName(name);
  m_printer->setPageLayout(layout);
  SetPaper(*m_printer, layout);
  return *m_printer;
}

// The dialog gets a printer of its own, without a machine: it would put that one's usual paper in the place
// of the one that was set up before.
bool CPrintOutput::SetUpPage(QPageLayout& layout) {
  QPrinter paper(QPrinter::HighResolution);
  paper.setOutputFormat(QPrinter::PdfFormat);
  paper.setPageLayout(layout);
  QPageSetupDialog dialog(&paper, &m_window);
  NameControls(dialog);
  FitScreen(dialog);
  if (dialog.exec() != QDialog::Accepted) return false;
  layout = paper.pageLayout();
  return true;
}

QString CPrintOutput::Folder() const {
  if (!m_folder.isEmpty()) return m_folder;
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

void CPrintOutput::Print(const CPagePainter& pages, QPageLayout& layout, const QString& name) {
  QPrinter& printer = Printer(layout, name);
  const QString file = PdfPath(Folder(), name);
  if (printer.outputFormat() == QPrinter::PdfFormat) printer.setOutputFileName(file);
  printer.setPrintRange(QPrinter::AllPages);
  printer.setFromTo(0, 0);
  printer.setPageOrder(QPrinter::FirstPageFirst);
  printer.setCopyCount(1);
  CPrintDialog dialog(printer, pages.Job().PageCount(), file, &m_window);
  if (dialog.exec() != QDialog::Accepted) return;
  layout = SetPaper(printer, dialog.Paper(layout));
  const PageList list = PagesOf(pages.Job(), dialog.Choice());
  if (printer.outputFormat() == QPrinter::PdfFormat)
    WriteTo(printer.outputFileName(), pages, layout, list);
  else
    PrintOn(printer, pages, layout, list);
}

void CPrintOutput::Export(const CPagePainter& pages, const QPageLayout& layout, const QString& name) {
  QFileDialog dialog(&m_window, TablePiece(kTextExportPdf, kExportTitle), Folder(),
                     TablePiece(kTextExportPdf, kPdfFilter));
  dialog.setOption(QFileDialog::DontUseNativeDialog);  // it would be in the session's language
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.selectFile(name + QStringLiteral(".pdf"));
  PressWithEnter(dialog);
  FitScreen(dialog);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  WriteTo(dialog.selectedFiles().front(), pages, layout, AllPages(pages.Job()));
}

template <class Job>
void CPrintOutput::Run(const CPagePainter& pages, const PageList& list, const Target& target, Job job) {
  CPrintProgress progress(&m_window);
  m_progress = &progress;
  const RunResult result = job(progress.AsFunction());
  m_progress = nullptr;
  progress.Hide();
  if (!m_isSilent) Report(result, pages, list, target);
}

void CPrintOutput::PrintOn(QPrinter& printer, const CPagePainter& pages, const QPageLayout& layout,
                           const PageList& list, const PrintServer& server) {
  Run(pages, list, {printer.printerName(), false}, [&](const PageProgress& progress) {
    return PrintPages(pages, layout, printer, list, progress, server);
  });
}

void CPrintOutput::WriteTo(const QString& path, const CPagePainter& pages, const QPageLayout& layout,
                           const PageList& list) {
  m_folder = QFileInfo(path).absolutePath();
  Run(pages, list, {QDir::toNativeSeparators(path), true},
      [&](const PageProgress& progress) { return WritePdf(pages, layout, path, list, progress); });
}

void CPrintOutput::Report(RunResult result, const CPagePainter& pages, const PageList& list,
                          const Target& target) {
  const auto tell = [&](int one, int many, int count) {
    const std::u16string_view text = Piece(StringText(kTextPrintEnds), u'|', count == 1 ? one : many);
    const std::u16string_view name = Utf16View(target.name);
    emit ended(ToQString(count == 1 ? FormatText(text, {name}) : FormatText(text, {count, name})));
  };
  const auto fault = [&](int piece, const FormatArgument& argument) {
    Messages().ShowError(&m_window,
                         ToQString(FormatText(Piece(StringText(kTextPrintFaults), u'|', piece), {argument})));
  };
  const int done = static_cast<int>(list.size());
  const int count = pages.Job().PageCount();
  switch (result) {
    case RunResult::kDone:
      target.isFile ? tell(kOneWritten, kManyWritten, done) : tell(kOnePrinted, kManyPrinted, done);
      break;
    case RunResult::kAborted:
      emit ended(TablePiece(kTextPrintEnds, target.isFile ? kAbortedFile : kAbortedPrint));
      break;
    case RunResult::kNoPages:
      fault(count == 1 ? kNotTheOnePage : kNotTheseManyPages, count);
      break;
    case RunResult::kFailed:
      fault(target.isFile ? kFileFault : kPrinterFault, Utf16View(target.name));
      break;
    case RunResult::kNotAccepting:
      fault(kClosedQueue, Utf16View(target.name));
      break;
    case RunResult::kHeld:
      fault(kStoppedPrinter, Utf16View(target.name));
      break;
  }
}

void CPrintOutput::Abort() {
  m_isSilent = true;
  if (m_progress != nullptr) m_progress->Abort();
}

}  // namespace orbisol

#include "ui/print/print_output.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>

#include <utility>

#include "core/civil_year.h"
#include "core/date_text.h"
#include "files/calendar_name.h"
#include "resources/strings.h"
#include "ui/print/print_progress.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

enum NameText { kPlainName, kYearBeforeEra, kFromTo };  // indices of its pieces
enum ExportText { kExportTitle, kPdfFilter };           // likewise
enum EndText { kOnePage, kManyPages, kOneWritten, kManyWritten, kAbortedPrint, kAbortedFile };
enum FaultText { kNoSuchPages, kPrinterFault, kFileFault };

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

QPrinter& CPrintOutput::Printer(const QPageLayout& layout, const QString& name) {
  if (!m_printer) {
    m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    m_printer->setCreator(TableText(kTextProgramName));
  }
  m_printer->setResolution(kPrintResolution);
  m_printer->setDocName(name);
  m_printer->setPageLayout(layout);
  return *m_printer;
}

bool CPrintOutput::SetUpPage(QPageLayout& layout) {
  QPrinter& printer = Printer(layout, QString());
  QPageSetupDialog dialog(&printer, &m_window);
  if (dialog.exec() != QDialog::Accepted) return false;
  layout = printer.pageLayout();
  return true;
}

QString CPrintOutput::Folder() const {
  if (!m_folder.isEmpty()) return m_folder;
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

void CPrintOutput::Print(const CPagePainter& pages, QPageLayout& layout, const QString& name) {
  QPrinter& printer = Printer(layout, name);
  const bool isFile = printer.outputFormat() == QPrinter::PdfFormat;
  // The dialog proposes this file where its user prints into one; a real printer stays the one chosen.
  if (isFile) printer.setOutputFileName(PdfPath(Folder(), name));
  printer.setPrintRange(QPrinter::AllPages);
  printer.setFromTo(0, 0);
  QPrintDialog dialog(&printer, &m_window);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  dialog.setMinMax(1, pages.Job().PageCount());
  if (dialog.exec() != QDialog::Accepted) return;
  layout = printer.pageLayout();
  // Pages that were listed one by one are picked by the printer itself, from all of them.
  const bool isRange = printer.printRange() == QPrinter::PageRange;
  const PageRange range =
      isRange ? RangeOfDialog(pages.Job(), printer.fromPage(), printer.toPage()) : AllPages(pages.Job());
  if (printer.outputFormat() == QPrinter::PdfFormat)
    WriteTo(printer.outputFileName(), pages, layout, range);
  else
    PrintOn(printer, pages, range);
}

void CPrintOutput::Export(const CPagePainter& pages, const QPageLayout& layout, const QString& name) {
  QFileDialog dialog(&m_window, TablePiece(kTextExportPdf, kExportTitle), Folder(),
                     TablePiece(kTextExportPdf, kPdfFilter));
  dialog.setOption(QFileDialog::DontUseNativeDialog);  // it would be in the session's language
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.selectFile(name + QStringLiteral(".pdf"));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  WriteTo(dialog.selectedFiles().front(), pages, layout, AllPages(pages.Job()));
}

template <class Job>
void CPrintOutput::Run(const CPagePainter& pages, const PageRange& range, const QString& target, bool isFile,
                       Job job) {
  CPrintProgress progress(&m_window);
  m_progress = &progress;
  const RunResult result = job(progress.AsFunction());
  m_progress = nullptr;
  progress.Hide();
  if (!m_isSilent) Report(result, pages, range, target, isFile);
}

void CPrintOutput::PrintOn(QPrinter& printer, const CPagePainter& pages, const PageRange& range) {
  Run(pages, range, printer.printerName(), false,
      [&](const PageProgress& progress) { return PrintPages(pages, printer, range, progress); });
}

void CPrintOutput::WriteTo(const QString& path, const CPagePainter& pages, const QPageLayout& layout,
                           const PageRange& range) {
  m_folder = QFileInfo(path).absolutePath();
  Run(pages, range, QDir::toNativeSeparators(path), true,
      [&](const PageProgress& progress) { return WritePdf(pages, layout, path, range, progress); });
}

void CPrintOutput::Report(RunResult result, const CPagePainter& pages, const PageRange& range,
                          const QString& target, bool isFile) {
  const int count = pages.Job().PageCount();
  const int done = std::min(range.last + 1, count) - range.first;
  const auto end = [&](int piece) {
    return ToQString(FormatText(Piece(StringText(kTextPrintEnds), u'|', piece), {done, Utf16View(target)}));
  };
  const auto fault = [&](int piece, std::initializer_list<FormatArgument> arguments) {
    Messages().ShowError(&m_window,
                         ToQString(FormatText(Piece(StringText(kTextPrintFaults), u'|', piece), arguments)));
  };
  switch (result) {
    case RunResult::kDone:
      emit ended(end((isFile ? kOneWritten : kOnePage) + (done > 1 ? 1 : 0)));
      break;
    case RunResult::kAborted:
      emit ended(end(isFile ? kAbortedFile : kAbortedPrint));
      break;
    case RunResult::kNoPages:
      fault(kNoSuchPages, {range.first + 1, count});
      break;
    case RunResult::kFailed:
      fault(isFile ? kFileFault : kPrinterFault, {Utf16View(target)});
      break;
  }
}

void CPrintOutput::Abort() {
  m_isSilent = true;
  if (m_progress != nullptr) m_progress->Abort();
}

}  // namespace orbisol

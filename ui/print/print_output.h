// Where the pages of a window go: to a printer or into a PDF file. It asks for what it needs, runs the job
// with its progress, and says what went wrong. The printer is made when it is first needed.
//
//   CPrintOutput output(*this);
//   if (output.SetUpPage(layout)) …                  // "Mise en page..."
//   output.Print(pages, layout, "Calendrier 2026");  // "Imprimer..."
//   output.Export(pages, layout, "Calendrier 2026"); // "Exporter en PDF..."
//
// One job runs at a time; while it runs, events are handled.
#pragma once

#include <QObject>
#include <QPageLayout>
#include <QString>

#include <memory>

#include "ui/print/print_run.h"

class QPrinter;
class QWidget;

namespace orbisol {

class CPrintProgress;

// Returns the name that is proposed for the file of a job, without ending: "Calendrier mai 2026", with the
// name of the calendar where it has one of its own.
QString ProposedName(const PrintJob& job, std::u16string_view calendarName);

class CPrintOutput : public QObject {
  Q_OBJECT

 public:
  explicit CPrintOutput(QWidget& window);
  ~CPrintOutput() override;

  // Asks for paper, orientation and margins. Returns false, and leaves `layout`, when the user cancels.
  bool SetUpPage(QPageLayout& layout);

  // Ask where to and which pages, and run the job. `layout` becomes what the user chose in the print dialog.
  void Print(const CPagePainter& pages, QPageLayout& layout, const QString& name);
  void Export(const CPagePainter& pages, const QPageLayout& layout, const QString& name);

  // Run a job without asking. `layout` is one that SetPaper() has returned for the printer.
  void PrintOn(QPrinter& printer, const CPagePainter& pages, const QPageLayout& layout, const PageList& list,
               const PrintServer& server = AskPrintServer);
  void WriteTo(const QString& path, const CPagePainter& pages, const QPageLayout& layout,
               const PageList& list);

  bool IsRunning() const { return m_progress != nullptr; }
  // Ends the job that runs before its next page; nothing is said about it.
  void Abort();

 signals:
  // Tells in a sentence how a job ended that did not fail.
  void ended(const QString& text);

 private:
  QPrinter& Printer(const QPageLayout& layout, const QString& name);
  QString Folder() const;
  // Where a job goes: the name of a printer, or the path of a file.
  struct Target {
    QString name;
    bool isFile;
  };
  template <class Job>
  void Run(const CPagePainter& pages, const PageList& list, const Target& target, Job job);
  void Report(RunResult result, const CPagePainter& pages, const PageList& list, const Target& target);

  QWidget& m_window;
  std::unique_ptr<QPrinter> m_printer;
  CPrintProgress* m_progress = nullptr;  // of the job that runs
  bool m_isSilent = false;               // whether nothing is said any more
  QString m_folder;                      // where a file was last written; empty before
};

}  // namespace orbisol

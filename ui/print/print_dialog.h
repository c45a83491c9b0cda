// The toolkit's print dialog, with what it lacks: it proposes a file under every desktop, takes lists of
// pages, leaves the paper as it was set up, and all its controls have names.
//
//   CPrintDialog dialog(printer, pageCount, "/home/ada/Calendrier 2026.pdf", this);
//   if (dialog.exec() == QDialog::Accepted) Print(PagesOf(job, dialog.Choice()), dialog.Paper(paper));
#pragma once

#include <QPageLayout>
#include <QPrintDialog>

#include <vector>

#include "ui/print/print_run.h"

class QLineEdit;
class QRadioButton;
class QTabWidget;

namespace orbisol {

class CPrintDialog : public QPrintDialog {
  Q_OBJECT

 public:
  // `printer` outlives the dialog. `file` is proposed where pages go into a PDF file.
  CPrintDialog(QPrinter& printer, int pageCount, const QString& file, QWidget* parent);

  // Returns which pages are printed, once the dialog is accepted.
  PageChoice Choice() const;

  // Returns `paper`, with what the user has changed of it in the properties of the printer.
  QPageLayout Paper(const QPageLayout& paper) const;

  void accept() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void EnableParts();

  // Controls of the toolkit; null where it has none of that name.
  QRadioButton* m_all;
  QRadioButton* m_list;
  QLineEdit* m_pages;
  QTabWidget* m_tabs;
  std::vector<PageSpan> m_ranges;  // pages of the list; empty where no list was asked for
};

}  // namespace orbisol

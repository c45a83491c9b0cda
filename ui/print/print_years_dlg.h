// "Plusieurs années": asks for the first and the last year of a long print job, and where its pages go.
//
//   CPrintYearsDlg dialog(job, this);
//   if (dialog.exec() == QDialog::Accepted) Export(job.WithYears(dialog.FirstYear(), dialog.LastYear()));
//
// The number of pages follows what is entered; years in the wrong order are said and cannot be confirmed.
#pragma once

#include <QDialog>

#include <memory>

#include "ui/print/print_job.h"

class QSpinBox;

namespace Ui {  // NOLINT(readability-identifier-naming): as the forms are generated
class PrintYears;
}

namespace orbisol {

class CPrintYearsDlg : public QDialog {
  Q_OBJECT

 public:
  // Proposes the ten years that begin with the one of `job`.
  explicit CPrintYearsDlg(const PrintJob& job, QWidget* parent = nullptr);
  ~CPrintYearsDlg() override;

  int FirstYear() const;
  int LastYear() const;
  bool IsForPrinter() const;  // false: a PDF file

 private:
  void ShowPages();

  std::unique_ptr<Ui::PrintYears> m_form;
  PrintJob m_job;
};

}  // namespace orbisol

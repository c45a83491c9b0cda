#include "ui/print/print_dialog.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPageRanges>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRadioButton>
#include <QScreen>
#include <QTabWidget>

#include <algorithm>

#include "resources/strings.h"
#include "ui/print/toolkit_dialogs.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

CPrintDialog::CPrintDialog(QPrinter& printer, int pageCount, const QString& file, QWidget* parent)
    : QPrintDialog(&printer, parent),
      m_all(findChild<QRadioButton*>(QStringLiteral("printAll"))),
      m_list(findChild<QRadioButton*>(QStringLiteral("pagesRadioButton"))),
      m_pages(findChild<QLineEdit*>(QStringLiteral("pagesLineEdit"))),
      m_tabs(findChild<QTabWidget*>(QStringLiteral("tabs"))) {
  setOption(QAbstractPrintDialog::PrintPageRange);
  setMinMax(1, pageCount);
  if (auto* const path = findChild<QLineEdit*>(QStringLiteral("filename"))) path->setText(file);
  if (auto* const printers = findChild<QComboBox*>(QStringLiteral("printers")))
    connect(printers, &QComboBox::currentIndexChanged, this, &CPrintDialog::EnableParts);
  NameControls(*this);
  PressWithEnter(*this);
  FitScreen(*this);
}

void CPrintDialog::showEvent(QShowEvent* event) {
  QPrintDialog::showEvent(event);
  EnableParts();
  // The toolkit cuts the name of a printer, though the screen has room.
  if (auto* const printers = findChild<QComboBox*>(QStringLiteral("printers")))
    printers->setMinimumWidth(std::min(printers->sizeHint().width(), screen()->availableSize().width() / 2));
}

// Allows lists of pages, which the toolkit leaves to real printers, and keeps colors and sides of the sheet
// for these, because a PDF file has all colors and no sheets.
void CPrintDialog::EnableParts() {
  if (m_list != nullptr) m_list->setEnabled(true);
  if (m_tabs == nullptr) return;
  const int options = m_tabs->indexOf(findChild<QWidget*>(QStringLiteral("optionsTab")));
  m_tabs->setTabEnabled(options, printer()->outputFormat() != QPrinter::PdfFormat);
}

// On purpose: a list is read here and hidden from the toolkit, which refuses each in version 6.4, and would
// have them picked by a spooler that no PDF file goes through.
void CPrintDialog::accept() {
  m_ranges.clear();
  const bool isList = m_list != nullptr && m_pages != nullptr && m_all != nullptr && m_list->isChecked();
  if (!isList) {
    QPrintDialog::accept();
    return;
  }
  for (const QPageRanges::Range& range : QPageRanges::fromString(m_pages->text()).toRangeList())
    m_ranges.push_back({range.from, range.to});
  if (m_ranges.empty()) {
    Messages().ShowError(this, TableText(kTextPageList));
    m_pages->setFocus();
    return;
  }
  m_all->setChecked(true);
  QPrintDialog::accept();
  if (isVisible()) m_list->setChecked(true);  // the file was refused
}

PageChoice CPrintDialog::Choice() const {
  PageChoice choice;
  choice.ranges = m_ranges;
  if (printer()->printRange() == QPrinter::PageRange)
    choice.ranges = {{printer()->fromPage(), printer()->toPage()}};
  choice.isReversed = printer()->pageOrder() == QPrinter::LastPageFirst;
  if (!printer()->supportsMultipleCopies()) choice.copies = std::max(1, printer()->copyCount());
  choice.isCollated = printer()->collateCopies();
  return choice;
}

// The dialog puts a printer's usual paper in the place of the one that was set up.
QPageLayout CPrintDialog::Paper(const QPageLayout& paper) const {
  const QPageLayout left = printer()->pageLayout();
  if (printer()->outputFormat() == QPrinter::PdfFormat) return left;
  const QPageSize usual = QPrinterInfo(*printer()).defaultPageSize();
  const QList<QDialog*> properties = findChildren<QDialog*>();
  const bool isChosen = std::any_of(properties.begin(), properties.end(), [](const QDialog* dialog) {
    return dialog->result() == QDialog::Accepted;
  });
  QPageLayout chosen = paper;
  if (!isChosen) return chosen;
  if (!left.pageSize().isEquivalentTo(usual)) chosen.setPageSize(left.pageSize());
  chosen.setOrientation(left.orientation());
  return chosen;
}

}  // namespace orbisol

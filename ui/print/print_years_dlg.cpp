#include "ui/print/print_years_dlg.h"

#include <QPushButton>

#include <algorithm>

#include "core/civil_year.h"
#include "core/date_range.h"
#include "resources/help/help_pages.h"
#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/help.h"
#include "ui_print_years.h"

namespace orbisol {
namespace {

constexpr int kYearsProposed = 10;

enum YearsText { kEra, kYearsAndPages, kWrongOrder, kContinue };  // indices of its pieces

// Shows the number of a year before the era beside its astronomical number.
void ShowEra(QSpinBox& year) {
  const int value = year.value();
  year.setSuffix(value > 0 ? QString()
                           : ToQString(FormatText(Piece(StringText(kTextPrintYears), u'|', kEra),
                                                  {YearBeforeEra(value)})));
}

}  // namespace

CPrintYearsDlg::CPrintYearsDlg(const PrintJob& job, QWidget* parent)
    : QDialog(parent), m_form(std::make_unique<Ui::PrintYears>()), m_job(job) {
  m_form->setupUi(this);
  for (QSpinBox* const year : {m_form->first, m_form->last}) {
    year->setRange(kFirstYearShown, kLastYearShown);
    connect(year, &QSpinBox::valueChanged, this, [this, year] {
      ShowEra(*year);
      ShowPages();
    });
  }
  m_form->first->setValue(job.firstYear);
  m_form->last->setValue(std::min(job.firstYear + kYearsProposed - 1, kLastYearShown));
  m_form->buttons->button(QDialogButtonBox::Ok)->setText(TablePiece(kTextPrintYears, kContinue));
  connect(m_form->buttons, &QDialogButtonBox::helpRequested, this, [] { ShowHelp(kHelpPrinting); });
  AddHelpKey(*this, kHelpPrinting);
  ShowEra(*m_form->first);
  ShowEra(*m_form->last);
  ShowPages();
  m_form->first->selectAll();
}

CPrintYearsDlg::~CPrintYearsDlg() = default;

int CPrintYearsDlg::FirstYear() const { return m_form->first->value(); }

int CPrintYearsDlg::LastYear() const { return m_form->last->value(); }

bool CPrintYearsDlg::IsForPrinter() const { return m_form->toPrinter->isChecked(); }

void CPrintYearsDlg::ShowPages() {
  const bool isInOrder = FirstYear() <= LastYear();
  QString text = TablePiece(kTextPrintYears, kWrongOrder);
  if (isInOrder) {
    const QString years = GroupedNumber(LastYear() - FirstYear() + 1);
    const QString pages = GroupedNumber(m_job.WithYears(FirstYear(), LastYear()).PageCount());
    text = ToQString(FormatText(Piece(StringText(kTextPrintYears), u'|', kYearsAndPages),
                                {Utf16View(years), Utf16View(pages)}));
  }
  m_form->pages->setText(text);
  m_form->last->setAccessibleDescription(text);
  m_form->buttons->button(QDialogButtonBox::Ok)->setEnabled(isInOrder);
}

}  // namespace orbisol

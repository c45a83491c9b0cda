#include "ui/calendars/rename_calendar_dlg.h"

#include <utility>

#include "resources/help/help_pages.h"
#include "ui/calendars/name_check.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/help.h"
#include "ui_rename_calendar.h"

namespace orbisol {
namespace {

constexpr int kNameChars = 40;

}  // namespace

CRenameCalendarDlg::CRenameCalendarDlg(std::u16string_view name, std::vector<std::u16string> others,
                                       QWidget* parent)
    : QDialog(parent), m_form(new Ui::RenameCalendar), m_name(nullptr) {
  m_form->setupUi(this);
  m_name = new CNameCheck(*m_form->name, *m_form->fault);
  m_name->SetTaken(std::move(others));
  m_form->name->setMinimumWidth(fontMetrics().averageCharWidth() * kNameChars);
  m_form->name->setText(ToQString(name));
  m_form->name->selectAll();
  AddHelpKey(*this, kHelpCalendars);
}

CRenameCalendarDlg::~CRenameCalendarDlg() = default;

std::u16string CRenameCalendarDlg::Name() const { return m_name->Name(); }

void CRenameCalendarDlg::accept() {
  if (m_name->Accepts())
    QDialog::accept();
  else
    Messages().Beep();
}

}  // namespace orbisol

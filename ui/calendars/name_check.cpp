#include "ui/calendars/name_check.h"

#include <QLineEdit>

#include "files/calendar_name.h"
#include "resources/strings.h"
#include "ui/toolkit/field_note.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

CNameCheck::CNameCheck(QLineEdit& field, CFieldNote& note) : QObject(&field), m_field(field), m_note(note) {
  note.SetField(field);
  // An empty field is no fault while somebody begins to type.
  connect(&field, &QLineEdit::textEdited, this,
          [this] { m_note.Say(m_field.text().isEmpty() ? QString() : Fault()); });
}

std::u16string CNameCheck::Name() const { return std::u16string(Utf16View(m_field.text())); }

QString CNameCheck::Fault() const {
  const NameFault fault = FaultOfNewName(Utf16View(m_field.text()), m_taken);
  return fault == NameFault::kNone ? QString() : TablePiece(kTextNameFaults, static_cast<int>(fault) - 1);
}

bool CNameCheck::Accepts() {
  const QString fault = Fault();
  m_note.Say(fault);
  if (!fault.isEmpty()) {
    m_field.setFocus(Qt::OtherFocusReason);
    m_field.selectAll();
  }
  return fault.isEmpty();
}

void CNameCheck::Clear() { m_note.Say({}); }

}  // namespace orbisol

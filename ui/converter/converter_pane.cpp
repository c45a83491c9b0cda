#include "ui/converter/converter_pane.h"

#include <QVBoxLayout>

#include "content/selected_date.h"
#include "core/date_text.h"
#include "ui/converter/julian_group.h"
#include "ui/converter/kept_date_group.h"
#include "ui/converter/notable_days.h"
#include "ui/converter/republican_group.h"

namespace orbisol {

CConverterPane::CConverterPane(QWidget* parent)
    : QWidget(parent),
      m_julian(new CJulianGroup),
      m_republican(new CRepublicanGroup),
      m_kept(new CKeptDateGroup) {
  auto* const days = new CNotableDays;
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 5, 7, 5);
  column->setSpacing(6);
  for (QWidget* const part : std::initializer_list<QWidget*>{m_julian, m_republican, m_kept, days})
    column->addWidget(part);
  column->addStretch(1);
  connect(m_republican, &CRepublicanGroup::dateEntered, this, &CConverterPane::GoTo);
  connect(m_republican, &CRepublicanGroup::focusGivenUp, this, &CConverterPane::focusGivenUp);
  connect(m_kept, &CKeptDateGroup::dateChosen, this, &CConverterPane::GoTo);
  connect(m_kept, &CKeptDateGroup::focusGivenUp, this, &CConverterPane::focusGivenUp);
  connect(days, &CNotableDays::dateChosen, this, &CConverterPane::GoTo);
  Refresh();
}

QString CConverterPane::JulianText() const { return m_julian->JulianText(); }

QString CConverterPane::RepublicanText() const { return m_republican->RepublicanText(); }

void CConverterPane::SettingsChanged() {
  m_julian->FitToFont();
  m_kept->ColorsChanged();
}

void CConverterPane::Refresh() {
  m_julian->Refresh();
  m_republican->Refresh();
  m_kept->Refresh();
}

void CConverterPane::GoTo(PackedDate date) {
  Selected().SetPacked(date);
  ClampToBounds(Selected());
  emit dateChanged();
}

}  // namespace orbisol

#include "ui/converter/kept_date_group.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

#include "content/selected_date.h"
#include "core/civil_year.h"
#include "core/date_text.h"
#include "resources/strings.h"
#include "settings/display_settings.h"
#include "ui/converter/group_parts.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/plain_text.h"
#include "ui/toolkit/read_only_field.h"
#include "ui/window/tool_icons.h"

namespace orbisol {

CKeptDateGroup::CKeptDateGroup(QWidget* parent)
    : CCalendarGroup(TableText(kTextDifferenceGroup), parent),
      m_keep(new QToolButton),
      m_kept(new CReadOnlyField),
      m_difference(new CReadOnlyField) {
  m_keep->setCheckable(true);
  m_kept->setPlaceholderText(TablePiece(kTextKeptPlaceholders, 0));
  NameField(m_kept, kFieldKept);
  m_difference->setAlignment(Qt::AlignRight);
  m_difference->setPlaceholderText(TablePiece(kTextKeptPlaceholders, 1));
  NameField(m_difference, kFieldDifference);
  auto* const row = new QHBoxLayout;
  row->addWidget(m_keep);
  row->addWidget(m_kept, 1);
  row->addWidget(m_difference);
  SetGroupLayout(this, row);
  FitToFont();
  ColorsChanged();
  connect(m_keep, &QToolButton::clicked, this, &CKeptDateGroup::Keep);
  connect(m_kept, &CReadOnlyField::visited, this, [this] {
    if (m_keptDate != 0) emit dateChosen(m_keptDate);
  });
}

void CKeptDateGroup::changeEvent(QEvent* event) {
  CCalendarGroup::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitToFont();
}

void CKeptDateGroup::FitToFont() {
  m_kept->setMinimumWidth(FieldWidth(*m_kept, m_kept->placeholderText()));
  m_difference->setFixedWidth(FieldWidth(*m_difference, QStringLiteral("-0 000 000")));
}

void CKeptDateGroup::Keep(bool isKept) {
  m_keptDate = isKept ? Selected().Packed() : 0;
  ColorsChanged();
  Refresh();
  emit focusGivenUp();
}

void CKeptDateGroup::ColorsChanged() {
  const bool isKept = m_keptDate != 0;
  const QString action = TablePiece(kTextKeepDate, isKept ? 1 : 0);
  m_keep->setIcon(ToolIcon(isKept ? "kept" : "keep", ToQColor(Display().ColorAt(kColorCalHeader))));
  m_keep->setToolTip(TipMarkup(action));
  m_keep->setAccessibleName(TablePiece(kTextKeepDate, 0));
  m_keep->setAccessibleDescription(action);  // without one, readers would get the tip with its markup
}

// Shows the date. It is written anew each time, because other calendar rules may write it differently.
void CKeptDateGroup::Refresh() {
  // The toolkit hides a centred placeholder while the field has the keyboard.
  m_kept->setAlignment(m_keptDate == 0 ? Qt::AlignLeft : Qt::AlignCenter);
  if (m_keptDate == 0) {
    m_kept->clear();
    m_difference->clear();
    return;
  }
  const Date kept(m_keptDate);
  m_kept->ShowText(
      ToQString(DayMonthYear(Selected().dateOrder, kept.day, MonthName(kept.month), CivilYearOf(kept))));
  m_difference->ShowText(GroupedNumber(Selected().DayNumber() - kept.DayNumber()));
}

}  // namespace orbisol

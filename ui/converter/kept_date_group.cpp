#include "ui/converter/kept_date_group.h"

#include <QEvent>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

#include "content/selected_date.h"
#include "core/civil_year.h"
#include "core/date_text.h"
#include "resources/strings.h"
#include "settings/display_settings.h"
#include "ui/converter/group_parts.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/tool_icons.h"

namespace orbisol {

CKeptDateGroup::CKeptDateGroup(QWidget* parent)
    : CCalendarGroup(TableText(kTextDifferenceGroup), parent),
      m_keep(new QToolButton),
      m_kept(new QLineEdit),
      m_difference(new QLineEdit) {
  m_keep->setCheckable(true);
  m_kept->setReadOnly(true);
  m_kept->setAlignment(Qt::AlignCenter);
  NameField(m_kept, kNameKept);
  m_difference->setReadOnly(true);
  m_difference->setAlignment(Qt::AlignRight);
  NameField(m_difference, kNameDifference);
  auto* const row = new QHBoxLayout;
  row->addWidget(m_keep);
  row->addWidget(m_kept, 1);
  row->addWidget(m_difference);
  SetGroupLayout(this, row);
  FitToFont();
  ColorsChanged();
  connect(m_keep, &QToolButton::clicked, this, &CKeptDateGroup::Keep);
  m_kept->installEventFilter(this);
}

void CKeptDateGroup::changeEvent(QEvent* event) {
  CCalendarGroup::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitToFont();
}

void CKeptDateGroup::FitToFont() {
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
  m_keep->setAccessibleDescription(action);  // else readers are given the tip with its markup
}

// The date is written anew each time: the calendar rules may have changed how it is called.
void CKeptDateGroup::Refresh() {
  if (m_keptDate == 0) {
    m_kept->clear();
    m_difference->clear();
    return;
  }
  const Date kept(m_keptDate);
  m_kept->setText(
      ToQString(DayMonthYear(Selected().dateOrder, kept.day, MonthName(kept.month), CivilYearOf(kept))));
  m_difference->setText(GroupedNumber(Selected().DayNumber() - kept.DayNumber()));
}

bool CKeptDateGroup::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_kept && event->type() == QEvent::FocusIn && m_keptDate != 0) {
    // Only where the user went there: a menu that closes, an editor or a window that gives the focus back
    // moves nothing.
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
        reason == Qt::ShortcutFocusReason)
      emit dateChosen(m_keptDate);
  }
  return CCalendarGroup::eventFilter(watched, event);
}

}  // namespace orbisol

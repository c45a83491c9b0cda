#include "ui/converter/republican_group.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "content/selected_date.h"
#include "core/republican.h"
#include "resources/strings.h"
#include "ui/converter/group_parts.h"
#include "ui/converter/republican_entry.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

CRepublicanGroup::CRepublicanGroup(QWidget* parent)
    : CCalendarGroup(TableText(kTextRepublicanGroup), parent),
      m_republican(MakeDateLabel()),
      m_isEntry(new QCheckBox(TableText(kTextRepublicanEntry))),
      m_entry(new CRepublicanEntry) {
  KeepRoomWhenHidden(m_isEntry);
  m_entry->hide();
  auto* const column = new QVBoxLayout;
  column->addWidget(m_republican);
  column->addWidget(m_isEntry);
  column->addWidget(m_entry);
  SetGroupLayout(this, column);
  FitToFont();
  connect(m_isEntry, &QCheckBox::clicked, this, &CRepublicanGroup::ShowEntry);
  connect(m_entry, &CRepublicanEntry::dateEntered, this, &CRepublicanGroup::dateEntered);
}

QString CRepublicanGroup::RepublicanText() const { return m_text; }

void CRepublicanGroup::changeEvent(QEvent* event) {
  CCalendarGroup::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitToFont();
}

void CRepublicanGroup::FitToFont() {
  m_republican->setMinimumHeight(2 * m_republican->fontMetrics().lineSpacing());
  m_republican->setMinimumWidth(m_entry->minimumSizeHint().width());  // the form has room when it appears
}

void CRepublicanGroup::Refresh() {
  m_text = ToQString(orbisol::RepublicanText(Selected()));
  m_republican->setText(QString(m_text).replace(QLatin1String("\n "), QLatin1String("\n")));
  m_republican->setFocusPolicy(m_text.isEmpty() ? Qt::ClickFocus : Qt::StrongFocus);
  if (m_text.isEmpty()) {
    // A control that is hidden while it has the focus would pass it on to the next control.
    QWidget* const focused = QApplication::focusWidget();
    if (focused == m_isEntry || m_entry->isAncestorOf(focused)) emit focusGivenUp();
    m_isEntry->setChecked(false);
  }
  m_isEntry->setVisible(!m_text.isEmpty());
  ShowEntry(m_isEntry->isChecked());
}

void CRepublicanGroup::ShowEntry(bool isShown) {
  if (isShown) m_entry->Load(ToRepublican(Selected()));
  m_entry->setVisible(isShown);
}

}  // namespace orbisol

#include "ui/converter/converter_pane.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>

#include "content/selected_date.h"
#include "core/date_text.h"
#include "ui/converter/julian_group.h"
#include "ui/converter/kept_date_group.h"
#include "ui/converter/month_list.h"
#include "ui/converter/notable_days.h"
#include "ui/converter/republican_group.h"
#include "ui/toolkit/thin_scroll_bar.h"

namespace orbisol {
namespace {

constexpr QMargins kMargins(0, 5, CThinScrollBar::kThickness, 5);

}  // namespace

CConverterPane::CConverterPane(QWidget* parent)
    : QScrollArea(parent),
      m_julian(new CJulianGroup),
      m_republican(new CRepublicanGroup),
      m_kept(new CKeptDateGroup),
      m_month(new CMonthList) {
  auto* const days = new CNotableDays;
  auto* const content = new QWidget;
  auto* const column = new QVBoxLayout(content);
  column->setSpacing(4);
  for (QWidget* const part : std::initializer_list<QWidget*>{m_julian, m_republican, m_kept, days})
    column->addWidget(part);
  column->addWidget(m_month, 1);
  column->addStretch();
  m_month->hide();

  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setVerticalScrollBar(new CThinScrollBar(Qt::Vertical));
  setHorizontalScrollBar(new CThinScrollBar(Qt::Horizontal));
  setWidget(content);
  for (QWidget* const ground : {content, viewport()}) ground->setAutoFillBackground(false);
  for (const QScrollBar* const bar : {verticalScrollBar(), horizontalScrollBar()})
    connect(bar, &QScrollBar::rangeChanged, this, &CConverterPane::FitMargins);
  FitMargins();

  connect(m_republican, &CRepublicanGroup::dateEntered, this, &CConverterPane::GoTo);
  connect(m_republican, &CRepublicanGroup::focusGivenUp, this, &CConverterPane::focusGivenUp);
  connect(m_kept, &CKeptDateGroup::dateChosen, this, &CConverterPane::GoTo);
  connect(m_kept, &CKeptDateGroup::focusGivenUp, this, &CConverterPane::focusGivenUp);
  connect(m_month, &CMonthList::dateChosen, this, &CConverterPane::GoTo);
  connect(days, &CNotableDays::dateChosen, this, &CConverterPane::GoTo);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now != nullptr && widget()->isAncestorOf(now)) ensureWidgetVisible(now);
  });
  Refresh();
}

// Puts the scroll bars into the margins of the content, so that they take no room from it.
void CConverterPane::FitMargins() {
  const auto isNeeded = [](const QScrollBar* bar) { return bar->maximum() > 0; };
  QMargins margins = kMargins;
  if (isNeeded(verticalScrollBar())) margins.setRight(0);
  if (isNeeded(horizontalScrollBar())) margins.setBottom(0);
  widget()->layout()->setContentsMargins(margins);
}

QSize CConverterPane::sizeHint() const {
  const QLayout* const column = widget()->layout();
  QSize size = column->minimumSize().shrunkBy(column->contentsMargins()).grownBy(kMargins);
  if (!m_month->isHidden()) size.rheight() -= m_month->minimumSizeHint().height() + column->spacing();
  return size;
}

// Shows the list of the month if there is room for its least number of lines below the groups.
void CConverterPane::FitList() {
  const int free = viewport()->height() - sizeHint().height() - widget()->layout()->spacing();
  m_month->setMaximumHeight(std::min(m_month->HeightWithin(free), m_month->sizeHint().height()));
  const bool isShown = free >= m_month->minimumSizeHint().height();
  if (isShown == ListsMonth()) return;
  m_month->setVisible(isShown);
  emit listShown();
}

void CConverterPane::resizeEvent(QResizeEvent* event) {
  FitList();
  QScrollArea::resizeEvent(event);
}

bool CConverterPane::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) FitList();  // a group may have grown
  return QScrollArea::eventFilter(watched, event);
}

// Leaves all keys, among them those of the scroll area, to the widgets above, which move the calendar by
// them.
void CConverterPane::keyPressEvent(QKeyEvent* event) { event->ignore(); }

QString CConverterPane::JulianText() const { return m_julian->JulianText(); }

QString CConverterPane::RepublicanText() const { return m_republican->RepublicanText(); }

void CConverterPane::SettingsChanged() {
  m_julian->FitToFont();
  m_kept->ColorsChanged();
  m_month->SettingsChanged();
}

void CConverterPane::Refresh() {
  m_julian->Refresh();
  m_republican->Refresh();
  m_kept->Refresh();
}

void CConverterPane::ShowMonth(const MonthModel& month) {
  m_month->Show(month);
  m_month->MarkDate(Selected().Packed());
}

bool CConverterPane::ListsMonth() const { return !m_month->isHidden(); }

bool CConverterPane::NamesHolidayFrom(PackedDate date) const {
  return ListsMonth() && m_month->NamesHolidayFrom(date);
}

void CConverterPane::GoTo(PackedDate date) {
  Selected().SetPacked(date);
  ClampToBounds(Selected());
  emit dateChanged();
}

}  // namespace orbisol

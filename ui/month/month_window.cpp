#include "ui/month/month_window.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

#include "content/spoken_text.h"
#include "ui/month/month_accessible.h"
#include "ui/toolkit/geometry.h"

namespace orbisol {
namespace {

// Returns today; 0 while the clock stands outside the years shown.
PackedDate TodayPacked() {
  const Date today = Date::Today();
  return IsWithinBounds(today) ? today.Packed() : 0;
}

}  // namespace

CMonthWindow::CMonthWindow(QWidget* parent) : QWidget(parent), m_shown(Selected()) {
  InstallMonthAccessible();
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);  // painting covers everything, so nothing need be erased first
  connect(&m_background, &CBackgroundPicture::arrived, this, [this] {
    m_painter.SetBackground(m_background.Picture());
    update();
  });
  LoadPicture();
  CheckToday();
}

void CMonthWindow::Refresh() {
  if (m_shown.SameDay(Selected())) return;
  if (!m_range.IsDragging()) CancelRange();
  m_shown = Selected();
  update();
  NotifyScreenReader(*this, MonthNews::kSelection);
}

void CMonthWindow::SettingsChanged() {
  LoadPicture();
  LayOut();
  m_builtFor = 0;
  Refresh();
  update();
  NotifyScreenReader(*this, MonthNews::kTexts);
}

const MonthModel& CMonthWindow::Month() {
  const Date& selected = Selected();
  const PackedDate first = Pack(selected.year, selected.month, 1);
  if (m_builtFor != first) {
    m_month.year = selected.year;
    m_month.month = selected.month;
    m_month.day = 1;
    m_month.Build(Content(), Display().colors, MonthModel::kWithMoon);
    m_builtFor = first;
  }
  return m_month;
}

int CMonthWindow::SelectedCell() { return Month().CellOf(Selected().month, Selected().day); }

int CMonthWindow::CellAt(QPoint position) {
  const int cell = Places().CellAt(position.x(), position.y());
  if (cell == kNoCell || Month().cells[static_cast<std::size_t>(cell)].day == 0) return kNoCell;
  return cell;
}

std::u16string CMonthWindow::RangeText() const {
  if (!HasRange()) return {};
  const Date anchor(m_range.Anchor());
  const Date& selected = Selected();
  const bool isForward = anchor.DayNumber() <= selected.DayNumber();
  return isForward ? orbisol::RangeText(anchor, selected) : orbisol::RangeText(selected, anchor);
}

bool CMonthWindow::IsSelected(int cell) {
  const DayCell& day = Month().cells[static_cast<std::size_t>(cell)];
  if (HasRange()) return Marks().IsInRange(day);
  return day.day != 0 && cell == SelectedCell();
}

bool CMonthWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) {
    // The timer is late after the machine has slept, and does not notice a change of time zone. Both are
    // checked when the user comes back to the window.
    m_midnight.Restart();
    CheckToday();
  }
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    if (!ShowTip(help->pos(), help->globalPos())) event->ignore();
    return true;
  }
  return QWidget::event(event);
}

// Paints the month. The toolkit shows the result in one step, so nothing flickers.
void CMonthWindow::paintEvent(QPaintEvent* event) {
  m_builtFor = 0;  // rules, periods or colors may have changed since the model was built
  m_painter.SetTexts(Month(), Content());
  QPainter painter(this);
  m_painter.Paint(painter, Month(), Marks(), event->region());
  painter.end();
  m_background.Read();
}

void CMonthWindow::LoadPicture() {
  m_background.Load(Display());
  m_painter.SetBackground(m_background.Picture());
}

MonthMarks CMonthWindow::Marks() {
  const Date& selected = Selected();
  MonthMarks marks;
  marks.month = selected.month;
  marks.day = selected.day;
  marks.today = m_today;
  if (HasRange()) {
    marks.hasRange = true;
    const int anchor = Date(m_range.Anchor()).DayNumber();
    marks.firstDayNumber = std::min(anchor, selected.DayNumber());
    marks.lastDayNumber = std::max(anchor, selected.DayNumber());
  }
  return marks;
}

void CMonthWindow::resizeEvent(QResizeEvent*) { LayOut(); }

void CMonthWindow::showEvent(QShowEvent*) { CheckToday(); }

void CMonthWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) {
    LayOut();
    update();
  }
  QWidget::changeEvent(event);
}

void CMonthWindow::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  m_focusLine.Show(*this);
  // The toolkit will announce the focus of the whole window; the day must be announced after that.
  QMetaObject::invokeMethod(
      this, [this] { NotifyScreenReader(*this, MonthNews::kFocus); }, Qt::QueuedConnection);
}

void CMonthWindow::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  m_focusLine.Hide();
}

void CMonthWindow::LayOut() {
  m_painter.SetUp(MonthLayout(width(), height(), Display().showWeekNumber, Rules().iso8601), Display(),
                  font(), CMonthPainter::kScreen);
}

void CMonthWindow::UpdateCell(int cell) {
  if (cell != kNoCell) update(ToQRect(Places().DirtyRect(cell)));
}

// Shows a move of the selected date that was made in this window. `before` is the date until then.
void CMonthWindow::ShowMove(const Date& before) {
  const Date& selected = Selected();
  const bool isOtherMonth = before.year != selected.year || before.month != selected.month;
  if (isOtherMonth) m_range.MonthChanged();
  if (isOtherMonth || HasRange()) {
    update();
  } else {
    UpdateCell(Month().CellOf(before.month, before.day));
    UpdateCell(SelectedCell());
  }
  m_shown = selected;
  NotifyScreenReader(*this, MonthNews::kSelection);
}

// Marks today anew if the clock has come to another day.
void CMonthWindow::CheckToday() {
  const PackedDate today = TodayPacked();
  if (today != m_today) update();
  m_today = today;
}

}  // namespace orbisol

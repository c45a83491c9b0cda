// Keys, mouse and wheel of the month view.

#include <QContextMenuEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "core/republican.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/plain_text.h"
#include "ui/month/month_accessible.h"
#include "content/selected_date.h"
#include "ui/month/month_window.h"
#include "content/tip_text.h"

namespace orbisol {
namespace {

constexpr int kWheelStep = 120;                // eighths of a degree, a notch of an ordinary wheel
constexpr int kMostTurned = 100 * kWheelStep;  // in one event; more is no wheel
constexpr quint64 kWheelPause = 1000;          // milliseconds after which a turn begins anew

bool IsArrow(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

// Other keys that move the date name a day.
bool IsStep(int key) { return IsArrow(key) || key == Qt::Key_PageUp || key == Qt::Key_PageDown; }

}  // namespace

void CMonthWindow::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  if (key == Qt::Key_Menu || (key == Qt::Key_F10 && modifiers == Qt::ShiftModifier)) {
    OpenRangeOrDay();
    return;
  }
  if (key == Qt::Key_Escape && m_isRangeActive) {
    CancelRange();
    m_isDragging = false;
    return;
  }
  // Alt belongs to the frame's own keys.
  if (modifiers & (Qt::AltModifier | Qt::MetaModifier)) {
    event->ignore();
    return;
  }
  const bool extends = IsArrow(key) && (modifiers & Qt::ShiftModifier) && m_isRangeAllowed;
  const Date before = Selected();
  const bool hadRange = m_isRangeActive;
  if (extends) BeginRange();
  if (!MoveByKey(key, modifiers)) {
    event->ignore();
    return;
  }
  ClampToBounds(Selected());
  if (hadRange && !extends && !m_isDragging) CancelRange();
  Moved(before, IsStep(key) ? DateMove::kStep : DateMove::kLeap);
}

// False for a key that moves nothing, as letters with Ctrl, which belong to the frame.
bool CMonthWindow::MoveByKey(int key, Qt::KeyboardModifiers modifiers) {
  Date& date = Selected();
  const bool hasCtrl = modifiers & Qt::ControlModifier;
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter: {
      const Date today = Date::Today();
      SelectDate(date, today.year, today.month, today.day);
      return true;
    }
    case Qt::Key_PageUp:
      StepMonthsOrYears(date, -1, hasCtrl ? 1 : 0);
      return true;
    case Qt::Key_PageDown:
      StepMonthsOrYears(date, 1, hasCtrl ? 1 : 0);
      return true;
    case Qt::Key_Home:
      date.SetPacked(kFirstDateShown);
      return true;
    case Qt::Key_End:
      date.SetPacked(kLastDateShown);
      return true;
    case Qt::Key_Left:
      StepDays(date, -1);
      return true;
    case Qt::Key_Right:
      StepDays(date, 1);
      return true;
    case Qt::Key_Up:
      StepDays(date, -kColumns);
      return true;
    case Qt::Key_Down:
      StepDays(date, kColumns);
      return true;
    default:
      break;
  }
  if (hasCtrl) return false;
  switch (key) {
    case Qt::Key_E:
      date.SetPacked(kFirstDayOfEra);
      return true;
    case Qt::Key_G:
      date.SetPacked(Rules().startGregorian);
      return true;
    case Qt::Key_J:
      date.SetPacked(kFirstJulianDay);
      return true;
    case Qt::Key_R:
      date.SetPacked(kRepublicanEpoch);
      return true;
    default:
      return false;
  }
}

// The key has done what the menu of the keyboard stands for; the mouse has no menu here.
void CMonthWindow::contextMenuEvent(QContextMenuEvent* event) {
  event->setAccepted(event->reason() == QContextMenuEvent::Keyboard);
}

void CMonthWindow::wheelEvent(QWheelEvent* event) {
  const int turned = std::clamp(event->angleDelta().y(), -kMostTurned, kMostTurned);
  const int aside = std::clamp(event->angleDelta().x(), -kMostTurned, kMostTurned);
  const bool byYear = event->modifiers() & Qt::ControlModifier;
  const quint64 pause = event->timestamp() - std::exchange(m_wheelTime, event->timestamp());
  if (event->phase() == Qt::ScrollBegin || pause > kWheelPause || byYear != m_isWheelByYear) m_wheelRest = 0;
  m_isWheelByYear = byYear;
  if (turned == 0 || std::abs(aside) > std::abs(turned)) {
    event->ignore();
    return;
  }
  event->accept();
  // A turn the other way begins anew.
  if ((turned < 0) != (m_wheelRest < 0)) m_wheelRest = 0;
  m_wheelRest += turned;
  const int steps = m_wheelRest / kWheelStep;
  if (steps == 0) return;
  m_wheelRest %= kWheelStep;

  const Date before = Selected();
  if (!m_isDragging) CancelRange();
  StepMonthsOrYears(Selected(), -steps, byYear ? 1 : 0);
  Moved(before, DateMove::kStep);
}

void CMonthWindow::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    event->ignore();
    return;
  }
  setFocus(Qt::MouseFocusReason);
  CancelRange();
  m_isPressed = true;
  const int cell = CellAt(Cut(event->position()));
  m_isDragging = cell != kNoCell;
  m_pointedAt = cell;
  m_waitsIn = kNoCell;
  if (cell != kNoCell) SelectCell(cell, event->modifiers() & Qt::ControlModifier);
}

void CMonthWindow::SelectCell(int cell, bool byYear) {
  CancelRange();
  if (Month().cells[static_cast<std::size_t>(cell)].day == 0) return;
  const Date before = Selected();
  Moved(before, TakeCell(cell, byYear));
}

// Selects a cell's day. `byYear` turns a day of a neighboring month into a step of a year.
DateMove CMonthWindow::TakeCell(int cell, bool byYear) {
  Date& date = Selected();
  const DayCell& day = Month().cells[static_cast<std::size_t>(cell)];
  if (byYear && day.month != date.month) {
    StepYears(date, Places().IsInFirstRow(cell) ? -1 : 1);
    return DateMove::kStep;
  }
  const YearMonthDay taken = Unpack(day.ymd);
  SelectDate(date, taken.year, taken.month, taken.day);
  return DateMove::kLeap;
}

void CMonthWindow::mouseMoveEvent(QMouseEvent* event) {
  if (!m_isDragging || !(event->buttons() & Qt::LeftButton)) return;
  const QPoint point = Cut(event->position());
  m_pointedAt = Places().CellAt(point.x(), point.y());
  if (m_waitsIn != kNoCell && m_pointedAt == m_waitsIn) return;
  m_waitsIn = kNoCell;
  const int cell = CellAt(point);
  if (cell == kNoCell) return;
  const bool begins = m_isRangeAllowed && BeginRange();
  const Date before = Selected();
  TakeCell(cell, false);
  if (!begins && before.SameDay(Selected())) return;
  update();
  Moved(before, DateMove::kStep, kAtOnce);
  if (before.month != Selected().month || before.year != Selected().year) PullPointer();
}

void CMonthWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !std::exchange(m_isPressed, false)) return;
  const int cell = SelectedCell();
  const QPoint point = Cut(event->position());
  if (cell != kNoCell && !Places().CellRect(cell).Contains(point.x(), point.y())) PullPointer();
  if (!std::exchange(m_isDragging, false) || m_anchor == 0) return;
  const Date anchor(m_anchor);
  CancelRange();
  OpenRange(anchor);
}

void CMonthWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    event->ignore();
    return;
  }
  CancelRange();
  m_isDragging = false;
  const int cell = CellAt(Cut(event->position()));
  if (cell == kNoCell || m_host == nullptr) return;
  UpdateCell(SelectedCell());
  if (Month().cells[static_cast<std::size_t>(cell)].month == Selected().month)
    m_host->OpenEventsEditor(Date(Selected()));
}

// The range selected with keys, else the selected day. While an editor is open the selected date can move: it
// gets one of its own.
void CMonthWindow::OpenRangeOrDay() {
  const PackedDate anchor = m_anchor;
  CancelRange();
  if (anchor != 0 && !Date(anchor).SameDay(Selected())) {
    OpenRange(Date(anchor));
  } else if (m_host != nullptr) {
    m_host->OpenEventsEditor(Date(Selected()));
  }
}

// From the anchor to the selected date, or back; nothing for a single day.
void CMonthWindow::OpenRange(const Date& anchor) {
  const Date selected = Selected();
  if (m_host == nullptr || anchor.SameDay(selected)) return;
  const bool isForward = anchor.DayNumber() <= selected.DayNumber();
  const QPointer<CMonthWindow> alive(this);
  m_host->OpenPeriodEditor(isForward ? anchor : selected, isForward ? selected : anchor);
  if (alive) update();
}

// True when a range begins at the selected date, false when one is under way.
bool CMonthWindow::BeginRange() {
  if (m_anchor != 0) return false;
  m_anchor = Selected().Packed();
  m_isRangeActive = true;
  return true;
}

void CMonthWindow::CancelRange() {
  m_anchor = 0;
  if (!std::exchange(m_isRangeActive, false)) return;
  update();
  TellReader(*this, MonthNews::kSelection);
}

// To the middle of the selected cell, where the settings want the pointer to stay on it. Wayland lets nobody
// move the pointer, and the toolkit would complain.
void CMonthWindow::PullPointer() {
  if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) return;
  const int cell = SelectedCell();
  if (!Display().magnetMouse || cell == kNoCell) return;
  const Rect rect = Places().CellRect(cell);
  QCursor::setPos(mapToGlobal(QPoint((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2)));
}

// False where there is nothing to say; a tip still shown there is hidden.
bool CMonthWindow::ShowTip(const QPoint& position, const QPoint& onScreen) {
  const int cell = CellAt(position);
  const std::u16string text =
      cell == kNoCell ? std::u16string()
                      : TipText(Month().cells[static_cast<std::size_t>(cell)], Display().tipsForEventsOnly);
  if (text.empty()) {
    QToolTip::hideText();
    return false;
  }
  const Rect rect = Places().CellRect(cell);
  // Names are no markup: "<b>" in one is shown as it is written.
  QToolTip::showText(onScreen, TipMarkup(ToQString(text)), this,
                     {rect.left, rect.top, rect.Width(), rect.Height()});
  return true;
}

}  // namespace orbisol

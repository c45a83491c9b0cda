// Keys, mouse and wheel of the month view.

#include <QContextMenuEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

#include "content/selected_date.h"
#include "content/tip_text.h"
#include "core/republican.h"
#include "ui/month/month_accessible.h"
#include "ui/month/month_window.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

bool IsArrow(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

// Returns whether a key moves the date by a step; other keys that move it lead to a certain day.
bool IsStep(int key) { return IsArrow(key) || key == Qt::Key_PageUp || key == Qt::Key_PageDown; }

}  // namespace

void CMonthWindow::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  if (key == Qt::Key_Menu || (key == Qt::Key_F10 && modifiers == Qt::ShiftModifier)) {
    OpenRangeOrDay();
    return;
  }
  if (key == Qt::Key_Escape && HasRange()) {
    CancelRange();
    m_range.Release();
    return;
  }
  // Keys with Alt belong to the frame.
  if (modifiers & (Qt::AltModifier | Qt::MetaModifier)) {
    event->ignore();
    return;
  }
  const bool extends = IsArrow(key) && (modifiers & Qt::ShiftModifier);
  const Date before = Selected();
  const bool hadRange = HasRange();
  if (extends) m_range.Begin(before);
  if (!MoveByKey(key, modifiers)) {
    event->ignore();
    return;
  }
  ClampToBounds(Selected());
  if (hadRange && !extends && !m_range.IsDragging()) CancelRange();
  ShowMove(before);
  emit dateMoved(IsStep(key) ? DateMove::kStep : DateMove::kLeap);
}

// Moves the selected date. Returns false for a key that moves nothing, such as a letter with Ctrl, which
// belongs to the frame.
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

// Accepts the event of the menu key, which has already opened the day. There is no context menu here.
void CMonthWindow::contextMenuEvent(QContextMenuEvent* event) {
  event->setAccepted(event->reason() == QContextMenuEvent::Keyboard);
}

void CMonthWindow::wheelEvent(QWheelEvent* event) {
  const int steps = m_wheel.Take(*event);
  if (steps == 0) return;
  const Date before = Selected();
  if (!m_range.IsDragging()) CancelRange();
  StepMonthsOrYears(Selected(), -steps, event->modifiers() & Qt::ControlModifier ? 1 : 0);
  ShowMove(before);
  emit dateMoved(DateMove::kStep);
}

void CMonthWindow::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    event->ignore();
    return;
  }
  setFocus(Qt::MouseFocusReason);
  CancelRange();
  const int cell = CellAt(PixelAt(event->position()));
  m_range.Press(cell);
  m_isDayPressed = cell != kNoCell && SelectCell(cell, event->modifiers() & Qt::ControlModifier);
}

bool CMonthWindow::SelectCell(int cell, bool byYear) {
  CancelRange();
  if (Month().cells[static_cast<std::size_t>(cell)].day == 0) return false;
  const Date before = Selected();
  const DateMove move = TakeCell(cell, byYear);
  ShowMove(before);
  emit dateMoved(move);
  return move == DateMove::kLeap;
}

// Selects the day of a cell. With `byYear` a day of a neighboring month makes a step of a year instead.
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
  if (!m_range.IsDragging() || !(event->buttons() & Qt::LeftButton)) return;
  const QPoint point = PixelAt(event->position());
  if (!m_range.Enters(Places().CellAt(point.x(), point.y()))) return;
  const int cell = CellAt(point);
  if (cell == kNoCell) return;
  const Date before = Selected();
  const bool begins = m_range.Begin(before);
  TakeCell(cell, false);
  if (!begins && before.SameDay(Selected())) return;
  ShowMove(before);
  emit dateDragged();
  if (before.month != Selected().month || before.year != Selected().year) PullPointer();
}

void CMonthWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !m_range.Release()) return;
  const int cell = SelectedCell();
  const QPoint point = PixelAt(event->position());
  if (cell != kNoCell && !Places().CellRect(cell).Contains(point.x(), point.y())) PullPointer();
  const PackedDate anchor = m_range.Anchor();
  CancelRange();
  if (anchor != 0) OpenRange(anchor);
}

void CMonthWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    event->ignore();
    return;
  }
  CancelRange();
  m_range.Release();
  // The first press has selected the day, also one whose month was not shown: another day lies there now.
  if (!m_isDayPressed) return;
  UpdateCell(SelectedCell());
  emit dayOpened(Date(Selected()));
}

// Opens the range selected with keys, else the selected day. While an editor is open the selected date can
// move, so the editor gets a date of its own.
void CMonthWindow::OpenRangeOrDay() {
  const PackedDate anchor = m_range.Anchor();
  CancelRange();
  if (anchor != 0 && anchor != Selected().Packed()) {
    OpenRange(anchor);
  } else {
    emit dayOpened(Date(Selected()));
  }
}

// Opens the range between the anchor and the selected date; a single day is no range.
void CMonthWindow::OpenRange(PackedDate anchor) {
  const Date selected = Selected();
  const Date other(anchor);
  if (other.SameDay(selected)) return;
  const bool isForward = other.DayNumber() <= selected.DayNumber();
  emit periodChosen(isForward ? other : selected, isForward ? selected : other);
}

void CMonthWindow::CancelRange() {
  if (m_range.End() == 0) return;
  update();
  NotifyScreenReader(*this, MonthNews::kSelection);
}

// Moves the pointer to the middle of the selected cell if the settings ask for that. Under Wayland no program
// can move the pointer, and the toolkit would log a warning.
void CMonthWindow::PullPointer() {
  if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) return;
  const int cell = SelectedCell();
  if (!Display().magnetMouse || cell == kNoCell) return;
  const Rect rect = Places().CellRect(cell);
  QCursor::setPos(mapToGlobal(QPoint((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2)));
}

// Shows the tip of the day at a position. Where there is none it hides the last tip and returns false.
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
  // Names are plain text: "<b>" in a name is shown as it is written.
  QToolTip::showText(onScreen, TipMarkup(ToQString(text)), this,
                     {rect.left, rect.top, rect.Width(), rect.Height()});
  return true;
}

}  // namespace orbisol

// Mouse, keys, month menu and year editor of the header.

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <utility>

#include "content/selected_date.h"
#include "core/civil_year.h"
#include "ui/header/header_part.h"
#include "ui/header/header_wnd.h"
#include "ui/header/month_menu.h"
#include "ui/header/year_edit.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/keys.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

void CHeaderWnd::mouseMoveEvent(QMouseEvent* event) {
  const QPoint point = PixelAt(event->position());
  const HeaderPart part = m_layout.PartAt(point.x(), point.y());
  setCursor(part == HeaderPart::kNone ? Qt::ArrowCursor : Qt::PointingHandCursor);
  SetPointedAt(part);
}

void CHeaderWnd::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  SetPointedAt(HeaderPart::kNone);
}

void CHeaderWnd::SetPointedAt(HeaderPart part) {
  if (part != std::exchange(m_pointedAt, part)) update();
}

void CHeaderWnd::wheelEvent(QWheelEvent* event) {
  const int steps = m_wheel.Take(*event);
  if (steps == 0) return;
  CloseYearEditor();
  StepMonthsOrYears(Selected(), -steps, event->modifiers() & Qt::ControlModifier ? 1 : 0);
  Changed(DateMove::kStep);
}

// Accepts the press, so that the release arrives here too.
void CHeaderWnd::mousePressEvent(QMouseEvent* event) { event->accept(); }

void CHeaderWnd::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint point = PixelAt(event->position());
  const HeaderPart part = m_layout.PartAt(point.x(), point.y());
  if (event->button() == Qt::LeftButton) {
    if (part == HeaderPart::kNone) CloseYearEditor();
    Press(part, event->modifiers());
  } else if (event->button() == Qt::RightButton &&
             (part == HeaderPart::kPrevious || part == HeaderPart::kNext)) {
    CloseYearEditor();
    Selected().SetPacked(part == HeaderPart::kPrevious ? kFirstDateShown : kLastDateShown);
    Changed(DateMove::kLeap);
  }
}

void CHeaderWnd::Press(HeaderPart part, Qt::KeyboardModifiers modifiers) {
  switch (part) {
    case HeaderPart::kPrevious:
    case HeaderPart::kNext:
      Step(part == HeaderPart::kNext, modifiers);
      break;
    case HeaderPart::kMonth:
      OpenMonthMenu();
      break;
    case HeaderPart::kYear:
      OpenYearEditor();
      break;
    case HeaderPart::kNone:
      break;
  }
}

void CHeaderWnd::Step(bool isForward, Qt::KeyboardModifiers modifiers) {
  CloseYearEditor();
  const bool hasCtrl = modifiers & Qt::ControlModifier;
  const bool hasShift = modifiers & Qt::ShiftModifier;
  const int years = hasCtrl && hasShift ? 100 : hasShift ? 10 : hasCtrl ? 1 : 0;
  StepMonthsOrYears(Selected(), isForward ? 1 : -1, years);
  Changed(DateMove::kStep);
}

void CHeaderWnd::OpenMonthMenu() {
  CloseYearEditor();
  auto* const menu = new CMonthMenu(Selected().month, this);
  connect(menu, &CMonthMenu::monthChosen, this, &CHeaderWnd::SelectMonth);
  constexpr int kOverlap = 5;
  menu->popup(mapToGlobal(QPoint(m_layout.month.left, m_layout.month.bottom - kOverlap)));
}

// Sets the month. On purpose: the day stays, even if the month has no such day.
void CHeaderWnd::SelectMonth(int month) {
  Selected().month = month;
  ClampToBounds(Selected());
  Changed(DateMove::kLeap);
}

void CHeaderWnd::OpenYearEditor() {
  if (IsEditingYear()) return;
  m_focusBefore = QApplication::focusWidget();
  m_isTyping = false;
  FitEditor();
  LayOut();
  m_year->Open(CivilYearOf(Selected()));
  update(ToQRect(m_layout.year));
}

void CHeaderWnd::SetYear(int year) {
  SetCivilYear(Selected(), year);
  ClampToBounds(Selected());
  Changed(std::exchange(m_isTyping, true) ? DateMove::kTyping : DateMove::kTypingBegins);
}

void CHeaderWnd::CloseYearEditor() {
  if (IsEditingYear()) YearEditorClosed(false);
}

void CHeaderWnd::YearEditorClosed(bool byEnter) {
  if (!IsEditingYear()) return;
  const QSignalBlocker closesOnce(m_year);  // losing the focus closes it too
  // The window knows its focus widget even while another window has the keyboard.
  const bool hadFocus = window()->focusWidget() == m_year;
  // Enter means "today" in the month, so repetitions of this press must not reach it: the focus waits here
  // until the key is up.
  m_isEnterDown = byEnter && hadFocus;
  if (m_isEnterDown) setFocus(Qt::OtherFocusReason);
  // The focus moves before the editor is hidden, else the toolkit would give it to the arrow beside.
  if (hadFocus && !m_isEnterDown) GiveFocusBack();
  m_year->hide();
  TakeDate();  // the title was not updated under the editor
  LayOut();
  update();
}

void CHeaderWnd::GiveFocusBack() {
  if (m_focusBefore && m_focusBefore->isVisible()) {
    m_focusBefore->setFocus(Qt::OtherFocusReason);
  } else {
    m_yearPart->setFocus(Qt::OtherFocusReason);
  }
}

void CHeaderWnd::keyPressEvent(QKeyEvent* event) {
  if (m_isEnterDown && !IsEnter(event->key())) {
    // A key pressed before Enter is up is meant for the widget that had the focus.
    m_isEnterDown = false;
    GiveFocusBack();
    if (QWidget* const receiver = QApplication::focusWidget(); receiver && receiver != this)
      QCoreApplication::sendEvent(receiver, event);
    return;
  }
  if (m_isEnterDown) return;
  QWidget::keyPressEvent(event);
}

void CHeaderWnd::keyReleaseEvent(QKeyEvent* event) {
  if (m_isEnterDown && IsEnter(event->key()) && !event->isAutoRepeat()) {
    m_isEnterDown = false;
    GiveFocusBack();
    return;
  }
  QWidget::keyReleaseEvent(event);
}

void CHeaderWnd::Changed(DateMove move) {
  Refresh();
  emit dateChanged(move);
}

}  // namespace orbisol

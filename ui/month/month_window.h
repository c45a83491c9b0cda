// The month view: the month of the selected date as a grid of days, with the keys, clicks and turns of the
// wheel that move that date.
//
//   CMonthWindow month(parent);
//   connect(&month, &CMonthWindow::dateMoved, …, Qt::QueuedConnection);
//   Selected() = …;           // the date was moved, here or elsewhere:
//   month.Refresh();
//   Display() = …;            // content, colors, fonts, picture, switches or calendar rules changed:
//   month.SettingsChanged();
//
// It shows Selected(), Content(), Display() and Rules() as they are when it paints. It changes
// only the selected date, always within the bounds, and emits a signal for each change it makes.
#pragma once

#include <QWidget>

#include <string>

#include "content/month_model.h"
#include "content/selected_date.h"
#include "platform/today_timer.h"
#include "ui/month/focus_line.h"
#include "ui/month/range_drag.h"
#include "ui/painting/background_picture.h"
#include "ui/painting/month_layout.h"
#include "ui/painting/month_painter.h"
#include "ui/toolkit/wheel_steps.h"

namespace orbisol {

class CMonthWindow : public QWidget {
  Q_OBJECT

 public:
  explicit CMonthWindow(QWidget* parent = nullptr);

  // Shows the selected date without emitting a signal. A date that was moved elsewhere ends a range that is
  // being selected with keys.
  void Refresh();
  // Computes the layout, loads the background picture and paints, all anew.
  void SettingsChanged();

  // Returns the model of the month shown, built anew if another month is selected.
  const MonthModel& Month();
  const MonthLayout& Places() const { return m_painter.Layout(); }
  // Returns the cell of the selected date; kNoCell for a date that has none, as 29 February 2025.
  int SelectedCell();
  // Returns the cell with a day at a position in the window; kNoCell elsewhere.
  int CellAt(QPoint position);
  bool HasRange() const { return m_range.HasRange(); }
  // Returns ends and length of the range that is being drawn; empty if there is none.
  std::u16string RangeText() const;
  // Returns whether a cell's day is the selected one or, while there is a range, lies in it.
  bool IsSelected(int cell);
  PackedDate Today() const { return m_today; }  // 0 while the clock stands outside the years shown

  // Selects a cell's day like a click on it; with `byYear` a day of a neighboring month makes a step of a
  // year instead. Returns whether the selected date is the cell's now.
  bool SelectCell(int cell, bool byYear = false);

  QSize sizeHint() const override { return {560, 392}; }

 signals:
  // Tells that a key, a click or the wheel moved the selected date. Connect it queued, because a slot may
  // take longer than the keyboard needs to repeat a key.
  void dateMoved(DateMove move);
  // Tells that drawing a range moved the selected date. Connect it directly, so that all views follow the
  // pointer.
  void dateDragged();
  // Tells that a range of at least two days was drawn or selected with keys; `from` is the earlier.
  void periodChosen(const Date& from, const Date& to);
  // Tells that a double click or the menu key opened the selected day.
  void dayOpened(const Date& date);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  // Life and views (month_window.cpp).
  void LayOut();
  void LoadPicture();
  MonthMarks Marks();
  void UpdateCell(int cell);
  void ShowMove(const Date& before);
  void CheckToday();

  // Keys, mouse and wheel (month_input.cpp).
  bool MoveByKey(int key, Qt::KeyboardModifiers modifiers);
  DateMove TakeCell(int cell, bool byYear);
  void CancelRange();
  void OpenRangeOrDay();
  void OpenRange(PackedDate anchor);
  void PullPointer();
  bool ShowTip(const QPoint& position, const QPoint& onScreen);

  CMonthPainter m_painter;
  CBackgroundPicture m_background;
  MonthModel m_month;
  PackedDate m_builtFor = 0;  // first day of the month that m_month holds; 0 if it must be built anew
  Date m_shown;               // selected date as this window last knew it
  PackedDate m_today = 0;
  CTodayTimer m_midnight{[this] { CheckToday(); }};
  CFocusLine m_focusLine;
  CRangeDrag m_range;
  bool m_isDayPressed = false;  // whether the last press of the left button selected the day under it
  CWheelSteps m_wheel;
};

}  // namespace orbisol

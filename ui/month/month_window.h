// The month view: the month of the selected date as a grid of days, and the hands that move that date.
//
//   CMonthWindow month(host, parent);
//   Selected() = …;           // somebody else moved the date:
//   month.Refresh();
//   Display() = …;            // colors, fonts, picture, switches or calendar rules changed:
//   month.SettingsChanged();
//
// It shows Selected(), Content(), Display() and Rules() as they are when it paints. Only the selected date is
// ever changed by it, always within the bounds; the host hears of each change made here.
#pragma once

#include <QImage>
#include <QWidget>

#include "content/month_model.h"
#include "content/selected_date.h"
#include "ui/month/month_host.h"
#include "ui/painting/month_layout.h"
#include "ui/painting/month_painter.h"
#include "platform/today_timer.h"

namespace orbisol {

class CMonthWindow : public QWidget {
  Q_OBJECT

 public:
  // The host outlives the window; without one nobody is told of changes and nothing opens.
  explicit CMonthWindow(MonthHost* host, QWidget* parent = nullptr);

  // The date or the content was changed elsewhere. A range that is being selected with keys ends.
  void Refresh();
  // Lays out, loads the background picture and paints anew.
  void SettingsChanged();

  void SetSelectionVisible(bool isVisible);
  void SetRangeAllowed(bool isAllowed) { m_isRangeAllowed = isAllowed; }
  // While it is on, the last picture is stretched over the window instead of painting.
  void SetStretchedOutput(bool isStretched);

  // The model of the month shown, built when another one was selected.
  const MonthModel& Month();
  const MonthLayout& Places() const { return m_painter.Layout(); }
  // The cell of the selected date; kNoCell for a date that has none, as 29 February 2025.
  int SelectedCell();
  // A cell with a day, by a position in the window; kNoCell elsewhere.
  int CellAt(QPoint position);
  bool HasRange() const { return m_isRangeActive; }
  // Whether a cell's day is the selected one, or lies in the range where there is one.
  bool IsSelected(int cell);
  // As a click on a cell; `byYear` turns a day of a neighboring month into a step of a year.
  void SelectCell(int cell, bool byYear = false);

  QSize sizeHint() const override { return {560, 392}; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  enum Report { kPosted, kAtOnce };

  // Life (month_window.cpp).
  void LayOut();
  void RenderCanvas(const QRegion& region);
  MonthMarks Marks();
  void UpdateCell(int cell);
  void Moved(const Date& before, DateMove move, Report report = kPosted);
  void CheckToday();

  // Hands (month_input.cpp).
  bool MoveByKey(int key, Qt::KeyboardModifiers modifiers);
  DateMove TakeCell(int cell, bool byYear);
  bool BeginRange();
  void CancelRange();
  void OpenRangeOrDay();
  void OpenRange(const Date& anchor);
  void PullPointer();
  bool ShowTip(const QPoint& position, const QPoint& onScreen);

  MonthHost* m_host;
  CMonthPainter m_painter;
  MonthModel m_month;
  PackedDate m_builtFor = 0;  // first of the month that m_month was built for
  Date m_shown;               // the selected date as this window last knew it
  QImage m_canvas;            // opaque, in device pixels
  bool m_isCanvasPainted = false;
  PackedDate m_today = 0;
  CTodayTimer m_midnight{[this] { CheckToday(); }};

  bool m_isSelectionVisible = true;
  bool m_isStretched = false;
  bool m_isReportPending = false;
  DateMove m_pendingMove = DateMove::kStep;  // a leap, if one of the moves not yet reported was

  bool m_isRangeAllowed = true;
  bool m_isRangeActive = false;
  PackedDate m_anchor = 0;    // where the range began; 0 is none
  bool m_isDragging = false;  // the left button went down on a day
  bool m_isPressed = false;   // the left button went down here
  int m_pointedAt = kNoCell;  // where the pointer was last seen in a drag
  int m_waitsIn = kNoCell;    // until it leaves this cell a drag does nothing: the month changed under it

  int m_wheelRest = 0;  // turned by a touchpad since the last step, eighths of a degree
  bool m_isWheelByYear = false;
  quint64 m_wheelTime = 0;  // of the last turn, milliseconds
};

}  // namespace orbisol

// A range of days while it is drawn, with the mouse held down or with Shift and the arrow keys. It knows
// where the range began; where it ends is the selected date.
//
//   range.Press(cell);             // the left button went down
//   if (range.Enters(cell)) …      // the pointer moved on to another cell: take its day
//   range.Begin(Selected());       // before the first move
//   range.Release();               // whether a drag was under way
//   const PackedDate from = range.End();
#pragma once

#include <utility>

#include "content/month_model.h"
#include "core/date.h"

namespace orbisol {

class CRangeDrag {
 public:
  // Day where the range began; 0 while there is none.
  PackedDate Anchor() const { return m_anchor; }
  bool HasRange() const { return m_anchor != 0; }

  // Begins a range at `date`; false when one is under way.
  bool Begin(const Date& date) {
    if (HasRange()) return false;
    m_anchor = date.Packed();
    return true;
  }
  // Ends the range and returns where it began; 0 when there was none.
  PackedDate End() { return std::exchange(m_anchor, 0); }

  // The left button was pressed on a cell; kNoCell beside the days, where no drag begins.
  void Press(int cell) {
    m_isDragging = cell != kNoCell;
    m_pointedAt = cell;
    m_waitsIn = kNoCell;
  }
  // Ends the drag; false when none was under way.
  bool Release() { return std::exchange(m_isDragging, false); }
  bool IsDragging() const { return m_isDragging; }

  // Notes where the pointer is now. False while it stays in a cell over which the month has changed.
  bool Enters(int cell) {
    m_pointedAt = cell;
    if (m_waitsIn != kNoCell && m_pointedAt == m_waitsIn) return false;
    m_waitsIn = kNoCell;
    return true;
  }
  // Another month came under the pointer: a drag would run away through the months if it went on at once.
  void MonthChanged() {
    if (m_isDragging) m_waitsIn = m_pointedAt;
  }

 private:
  PackedDate m_anchor = 0;
  bool m_isDragging = false;  // a press that hit a day has not been released
  int m_pointedAt = kNoCell;  // cell where the pointer was last seen in a drag
  int m_waitsIn = kNoCell;    // cell that the pointer must leave before the drag goes on
};

}  // namespace orbisol

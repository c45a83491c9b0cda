// A range of days while it is drawn, with the mouse held down or with Shift and the arrow keys. The range
// begins at the anchor held here and ends at the selected date.
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
  // Returns the day where the range began; 0 while there is none.
  PackedDate Anchor() const { return m_anchor; }
  bool HasRange() const { return m_anchor != 0; }

  // Begins a range at `date`. Returns false if one is under way.
  bool Begin(const Date& date) {
    if (HasRange()) return false;
    m_anchor = date.Packed();
    return true;
  }
  // Ends the range and returns the day where it began; 0 if there was none.
  PackedDate End() { return std::exchange(m_anchor, 0); }

  // Begins a drag at the press of the left button on a cell; kNoCell, beside the days, begins none.
  void Press(int cell) {
    m_isDragging = cell != kNoCell;
    m_pointedAt = cell;
    m_waitsIn = kNoCell;
  }
  // Ends the drag. Returns false if none was under way.
  bool Release() { return std::exchange(m_isDragging, false); }
  bool IsDragging() const { return m_isDragging; }

  // Notes the cell under the pointer. Returns false while the pointer stays where it was when the month
  // changed.
  bool Enters(int cell) {
    m_pointedAt = cell;
    if (m_waitsIn != kNoCell && m_pointedAt == m_waitsIn) return false;
    m_waitsIn = kNoCell;
    return true;
  }
  // Makes the drag wait until the pointer leaves its cell, because another month has come under it and the
  // drag would run on through the months.
  void MonthChanged() {
    if (m_isDragging) m_waitsIn = m_pointedAt;
  }

 private:
  PackedDate m_anchor = 0;
  bool m_isDragging = false;  // whether a press that hit a day is still held
  int m_pointedAt = kNoCell;  // cell where the pointer was last seen in a drag
  int m_waitsIn = kNoCell;    // cell that the pointer must leave before the drag goes on
};

}  // namespace orbisol

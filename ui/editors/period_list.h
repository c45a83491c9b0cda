// The vacation periods of a calendar as a table: title, first and last day, length, a remark on those that
// overlap.
//
//   CPeriodList periods(undo);
//   periods.SetRows(RowsOf<HolidayPeriod>(content.vacations));
#pragma once

#include <vector>

#include "ui/editors/joined_rows.h"
#include "ui/editors/rows_model.h"

namespace orbisol {

class CPeriodList : public CEditedRows<PeriodRow> {
 public:
  enum Column { kTitle, kFrom, kTo, kLength, kRemark, kColumns };

  explicit CPeriodList(QUndoStack& undo) : CEditedRows(undo, kColumns) {}

  QString NameOf(int row) const override;
  bool Fits(int row, const RowFilter& filter) const override;
  bool Precedes(int a, int b, int column) const override;

 protected:
  QString CellText(int row, int column) const override;
  QString TitleOf(int column) const override;
  bool HoldsNumbers(int column) const override { return column == kLength; }
  void RowsExchanged(std::size_t at, std::size_t removed, std::size_t inserted) override;

 private:
  std::size_t OverlapOf(int row) const;

  mutable std::vector<std::size_t> m_overlaps;  // empty until they are asked for
};

// Returns the remark on a period that overlaps another one.
QString OverlapText(const PeriodRow& other);

}  // namespace orbisol

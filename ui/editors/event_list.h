// The events of a calendar as a table: name, day in words, the days of one year, kind.
//
//   CEventList events(undo, 2024);
//   events.SetRows(RowsOf<DayEvent>(content.dayEvents));
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ui/editors/joined_rows.h"
#include "ui/editors/rows_model.h"

namespace orbisol {

class CEventList : public CEditedRows<EventRow> {
 public:
  enum Column { kName, kDay, kDates, kKind, kColumns };

  // `year` is the one whose days are shown.
  CEventList(QUndoStack& undo, int year) : CEditedRows(undo, kColumns), m_year(year) {}

  QString NameOf(int row) const override;
  bool Fits(int row, const RowFilter& filter) const override;
  bool Precedes(int a, int b, int column) const override;

 protected:
  QString CellText(int row, int column) const override { return TextsOf(row).texts[column]; }
  QString TitleOf(int column) const override;
  void RowsExchanged(std::size_t at, std::size_t removed, std::size_t inserted) override;

 private:
  // The texts of a row and what it is sorted and found by, computed when first asked for.
  // NOLINTNEXTLINE(readability-identifier-naming): the compiler's own name for copying the array
  struct Texts {
    QString texts[kColumns];
    std::u16string folded;       // name and day, as a search compares them
    std::u16string foldedName;   // as an alphabet sorts it
    std::int64_t dayOrder = 0;   // month and day; Easter after them
    std::int64_t dateOrder = 0;  // first day of the year, or after all others
  };
  const Texts& TextsOf(int row) const;

  int m_year;
  mutable std::vector<std::optional<Texts>> m_texts;
};

// Returns the words of a row with its validity (content/rule_text.h).
std::u16string TextOf(const EventRow& row);

}  // namespace orbisol

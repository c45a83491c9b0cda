// The rows of an editor as a table model, changed through an undo stack alone, and a sorted and filtered view
// of them. Sorting is a view: the rows themselves keep the order in which the calendar stores them.
//
//   CEventList events(undo, 2024);          // a CEditedRows<EventRow>
//   events.SetRows(RowsOf<DayEvent>(content.dayEvents));
//   events.Splice(1, 1, {row}, step);       // exchanges the second row; `undo` can take it back
//   CRowsView view(events);
//   view.SetFilter({u"noel", RowKind::kPublic});
#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <QUndoStack>

#include <string>
#include <utility>
#include <vector>

namespace orbisol {

enum class RowKind { kAny, kPublic, kPersonal };

struct RowFilter {
  std::u16string text;  // folded (core/text.h); empty fits every row
  RowKind kind = RowKind::kAny;
};

class CRowsModel : public QAbstractTableModel {
 public:
  explicit CRowsModel(int columns) : m_columns(columns) {}

  // Returns how steps of the undo stack call a row.
  virtual QString NameOf(int row) const = 0;
  virtual bool Fits(int row, const RowFilter& filter) const = 0;
  // Returns whether a row stands before another where the table is sorted by a column.
  virtual bool Precedes(int a, int b, int column) const = 0;

  // Deletes rows, given in rising order, in one step.
  virtual void Delete(const std::vector<int>& rows) = 0;
  // Exchanges a row with the one before it (-1) or after it (1); without effect at the end of the list.
  virtual void Move(int row, int by) = 0;

  int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : m_columns; }
  // Returns the text of a cell, which is its tip too.
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // Returns the row that the last step changed or added, or the one that took a deleted one's place; -1 for
  // none.
  int TouchedRow() const { return m_touched; }

 protected:
  virtual QString CellText(int row, int column) const = 0;
  virtual QString TitleOf(int column) const = 0;
  // Returns whether a column holds numbers, which stand at its right.
  virtual bool HoldsNumbers(int /*column*/) const { return false; }

  int m_touched = -1;

 private:
  QVariant Alignment(int column, int role) const;

  int m_columns;
};

// Returns the text of a step on a row, by its piece in the list of steps (resources/strings.h).
QString StepText(int piece, const QString& name);
enum StepPiece { kStepAdd, kStepChange, kStepDelete, kStepDeleteSome, kStepUp, kStepDown, kStepImport };

template <class Row>
class CEditedRows : public CRowsModel {
 public:
  // The stack outlives every call of this model.
  CEditedRows(QUndoStack& undo, int columns) : CRowsModel(columns), m_undo(undo) {}

  const std::vector<Row>& Rows() const { return m_rows; }
  const Row& RowAt(int row) const { return m_rows[static_cast<std::size_t>(row)]; }

  // Sets all rows, without a step that could be taken back; the caller clears the stack.
  void SetRows(std::vector<Row> rows) {
    beginResetModel();
    RowsExchanged(0, m_rows.size(), rows.size());
    m_rows = std::move(rows);
    m_touched = -1;
    endResetModel();
  }

  // Puts other rows, any number, in the place of `count` rows from `at` on, as one step.
  void Splice(std::size_t at, std::size_t count, std::vector<Row> rows, const QString& step) {
    const auto begin = m_rows.begin() + static_cast<std::ptrdiff_t>(at);
    std::vector<Row> before(begin, begin + static_cast<std::ptrdiff_t>(count));
    m_undo.push(new CSplice(*this, at, std::move(before), std::move(rows), step));
  }

  void Delete(const std::vector<int>& rows) override {
    if (rows.empty()) return;
    m_undo.beginMacro(rows.size() == 1 ? StepText(kStepDelete, NameOf(rows[0]))
                                       : StepText(kStepDeleteSome, QString::number(rows.size())));
    // From the last run of neighbors to the first, so that the numbers of those still to go stay.
    for (std::size_t end = rows.size(); end > 0;) {
      std::size_t begin = end - 1;
      while (begin > 0 && rows[begin - 1] == rows[begin] - 1) --begin;
      Splice(static_cast<std::size_t>(rows[begin]), end - begin, {}, {});
      end = begin;
    }
    m_undo.endMacro();
  }

  void Move(int row, int by) override {
    const int other = row + by;
    if (other < 0 || other >= rowCount({})) return;
    const int first = std::min(row, other);
    Splice(static_cast<std::size_t>(first), 2, {RowAt(first + 1), RowAt(first)},
           StepText(by < 0 ? kStepUp : kStepDown, NameOf(row)));
    m_touched = other;
  }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
  }

 protected:
  // Called before `removed` rows from `at` on make way for `inserted` others: what was computed of them is
  // void.
  virtual void RowsExchanged(std::size_t at, std::size_t removed, std::size_t inserted) = 0;

 private:
  class CSplice : public QUndoCommand {
   public:
    CSplice(CEditedRows& rows, std::size_t at, std::vector<Row> before, std::vector<Row> after,
            const QString& step)
        : QUndoCommand(step),
          m_rows(rows),
          m_at(at),
          m_before(std::move(before)),
          m_after(std::move(after)) {}
    void redo() override { m_rows.Exchange(m_at, m_before.size(), m_after); }
    void undo() override { m_rows.Exchange(m_at, m_after.size(), m_before); }

   private:
    CEditedRows& m_rows;
    std::size_t m_at;
    std::vector<Row> m_before, m_after;
  };

  void Exchange(std::size_t at, std::size_t count, const std::vector<Row>& rows) {
    const int first = static_cast<int>(at);
    const auto begin = [&] { return m_rows.begin() + static_cast<std::ptrdiff_t>(at); };
    if (count == rows.size()) {
      RowsExchanged(at, count, count);
      std::copy(rows.begin(), rows.end(), begin());
      if (count > 0)
        emit dataChanged(index(first, 0), index(first + static_cast<int>(count) - 1, columnCount({}) - 1));
    } else {
      if (count > 0) {
        beginRemoveRows({}, first, first + static_cast<int>(count) - 1);
        RowsExchanged(at, count, 0);
        m_rows.erase(begin(), begin() + static_cast<std::ptrdiff_t>(count));
        endRemoveRows();
      }
      if (!rows.empty()) {
        beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
        RowsExchanged(at, 0, rows.size());
        m_rows.insert(begin(), rows.begin(), rows.end());
        endInsertRows();
      }
    }
    m_touched = std::min(first, static_cast<int>(m_rows.size()) - 1);
  }

  QUndoStack& m_undo;
  std::vector<Row> m_rows;
};

class CRowsView : public QSortFilterProxyModel {
 public:
  explicit CRowsView(CRowsModel& rows);

  void SetFilter(const RowFilter& filter);
  bool IsFiltered() const { return !m_filter.text.empty() || m_filter.kind != RowKind::kAny; }

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  CRowsModel& m_rows;
  RowFilter m_filter;
};

}  // namespace orbisol

// The month as a screen reader knows it: a table of six weeks under the names of the weekdays, with the week
// numbers, where they are shown, as the headers of its rows. A day is named by what its tip says.
//
//   InstallMonthAccessible();                     // once; again does nothing
//   TellReader(window, MonthNews::kSelection);    // after each move of the selected date
//
// Texts, places and marks are asked of the window when somebody asks for them; nothing is kept but what was
// last told.
#pragma once

#include <QAccessibleActionInterface>
#include <QAccessibleTableInterface>
#include <QAccessibleWidget>

#include <array>
#include <bitset>

#include "ui/month/month_window.h"

namespace orbisol {

enum class MonthNews {
  kSelection,  // the selected date or the range
  kTexts,      // names of days too: content, rules or settings
  kFocus,      // the window has taken the focus
};

// Makes CMonthWindow known to the toolkit.
void InstallMonthAccessible();

// Costs nothing where no reader listens.
void TellReader(CMonthWindow& window, MonthNews news);

// What is told goes to `listener` until it is nullptr again. For tests: off-screen the toolkit has no
// readers.
void SetReader(void (*listener)(QAccessibleEvent* event));

class CMonthItem;

class CMonthAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit CMonthAccessible(CMonthWindow* window);
  ~CMonthAccessible() override;

  void Tell(MonthNews news);

  void* interface_cast(QAccessible::InterfaceType type) override;
  QString text(QAccessible::Text kind) const override;
  QAccessible::State state() const override;

  // The header row, then the weeks; each from left to right, its week number last.
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;

  // Rows 0..5 and columns 0..6, days alone.
  QAccessibleInterface* cellAt(int row, int column) const override;
  int rowCount() const override { return kWeekRows; }
  int columnCount() const override { return kColumns; }
  QString columnDescription(int column) const override;
  QString rowDescription(int row) const override;  // the week number; empty where none is shown
  int selectedCellCount() const override;
  QList<QAccessibleInterface*> selectedCells() const override;

  // Days are selected one by one or as a range of dates, never a row or a column.
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

 private:
  friend class CMonthItem;

  // Places of the whole table, the headers included: row 0 has the names, column 7 the week numbers.
  static constexpr int kAllRows = kWeekRows + 1;
  static constexpr int kAllColumns = kColumns + 1;

  CMonthWindow& Window() const;
  int ShownColumns() const;  // 8 with week numbers, else 7
  int IndexOf(int row, int column) const { return row * ShownColumns() + column; }
  int IndexOfCell(int cell) const;
  // nullptr for a place that is not shown.
  CMonthItem* Item(int row, int column) const;
  CMonthItem* ItemOfCell(int cell) const;
  void Send(QAccessible::Event type, int index) const;

  // Made when first asked for, and kept: a place keeps its identity whatever month it shows.
  mutable std::array<QAccessible::Id, kAllRows * kAllColumns> m_ids{};

  std::bitset<kCellCount> m_toldSelected;
  int m_toldCell = kNoCell;
  int m_toldColumns = 0;
  PackedDate m_toldMonth = 0;  // its first; 0: nothing told yet
};

// A day, the name of a weekday or a week number: one place of the table.
class CMonthItem : public QAccessibleInterface,
                   public QAccessibleTableCellInterface,
                   public QAccessibleActionInterface {
 public:
  // As they are counted in the whole table.
  CMonthItem(const CMonthAccessible* table, int row, int column);

  int Row() const { return m_row; }
  int Column() const { return m_column; }

  void* interface_cast(QAccessible::InterfaceType type) override;
  bool isValid() const override { return m_table->isValid(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return m_table->window(); }
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}

  bool isSelected() const override;
  QList<QAccessibleInterface*> columnHeaderCells() const override;
  QList<QAccessibleInterface*> rowHeaderCells() const override;
  int columnIndex() const override { return m_column; }
  int rowIndex() const override { return m_row - 1; }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

  // A day is pressed as a click on it would.
  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  bool IsHeader() const { return m_row == 0 || m_column == kColumns; }
  int Cell() const;  // of the model; meant for days
  const DayCell& Day() const;

  const CMonthAccessible* m_table;
  int m_row;
  int m_column;
};

}  // namespace orbisol

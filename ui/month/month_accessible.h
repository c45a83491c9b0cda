// The month as a screen reader knows it: a table of six weeks under the names of the weekdays, with the week
// numbers, where they are shown, as the headers of its rows. A day is named by its date and all that falls on
// it; the day at the end of a range also by the range.
//
//   InstallMonthAccessible();                             // once; again does nothing
//   NotifyScreenReader(window, MonthNews::kSelection);    // after each move of the selected date
//
// Texts, places and marks are taken from the window when a reader asks for them; only the last news is kept.
#pragma once

#include <QAccessibleActionInterface>
#include <QAccessibleTableInterface>
#include <QAccessibleWidget>

#include <array>
#include <bitset>

#include "ui/month/month_window.h"

namespace orbisol {

enum class MonthNews {
  kSelection,  // change of the selected date or of the range
  kTexts,      // change of the names of days too: of content, rules or settings
  kFocus,      // focus that the window has taken
};

// Makes CMonthWindow known to the toolkit.
void InstallMonthAccessible();

// Tells readers what has changed. Costs nothing when none listens.
void NotifyScreenReader(CMonthWindow& window, MonthNews news);

// Sends all news to `spy` instead, until it is nullptr again. For tests: off-screen the toolkit has no
// readers.
void SetAccessibilitySpy(void (*spy)(QAccessibleEvent* event));

class CMonthItem;

class CMonthAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit CMonthAccessible(CMonthWindow* window);
  ~CMonthAccessible() override;

  void Tell(MonthNews news);

  void* interface_cast(QAccessible::InterfaceType type) override;
  QString text(QAccessible::Text kind) const override;
  QAccessible::State state() const override;

  // Children are the days of the six weeks, each week from left to right; then the names of the weekdays;
  // then, where they are shown, the title of the week numbers and the numbers.
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;

  // Returns a day in rows 0..5 and columns 0..6, and the other children in further rows, seven a row. Any
  // other place gives the first day, never nullptr: the toolkit passes on whatever readers send and uses the
  // answer unchecked.
  QAccessibleInterface* cellAt(int row, int column) const override;
  int rowCount() const override { return kWeekRows; }
  int columnCount() const override { return kColumns; }
  QString columnDescription(int column) const override;
  QString rowDescription(int row) const override;  // "Semaine 18"; empty where none is shown
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

  // Indices of the children.
  static constexpr int kFirstName = kDayPlaces;
  static constexpr int kWeekHeader = kFirstName + kColumns;
  static constexpr int kFirstWeek = kWeekHeader + 1;
  static constexpr int kMostChildren = kFirstWeek + kWeekRows;

  CMonthWindow& Window() const;
  // Returns nullptr for a child that is not shown.
  CMonthItem* Item(int index) const;
  // Returns the child of a cell of the model; -1 for kNoCell and for a cell below the six weeks.
  int IndexOfCell(int cell) const;
  CMonthItem* ItemOfCell(int cell) const { return Item(IndexOfCell(cell)); }
  void Send(QAccessible::Event type, int index) const;

  // Ids of the children, made on first use and kept: a place keeps its identity whatever month it shows.
  mutable std::array<QAccessible::Id, kMostChildren> m_ids{};

  std::bitset<kDayPlaces> m_toldSelected;
  int m_toldCell = kNoCell;
  int m_toldEnd = -1;  // child last told as the end of a range
  QString m_toldName;
  int m_toldChildren = 0;
  PackedDate m_toldMonth = 0;  // first day of the month last told; 0 before any
};

// A day, the name of a weekday or a week number: one place of the table.
class CMonthItem : public QAccessibleInterface,
                   public QAccessibleTableCellInterface,
                   public QAccessibleActionInterface {
 public:
  CMonthItem(const CMonthAccessible* table, int index) : m_table(table), m_index(index) {}

  int Index() const { return m_index; }

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
  int columnIndex() const override { return m_index % kColumns; }
  int rowIndex() const override { return m_index / kColumns; }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

  // Actions of a day: a press does the same as a click, and the focus comes with the selection.
  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  bool IsHeader() const { return m_index >= CMonthAccessible::kFirstName; }
  bool IsWeek() const { return m_index >= CMonthAccessible::kFirstWeek; }
  int Cell() const;  // index in the model, for days only
  const DayCell& Day() const;
  Rect Place() const;  // rectangle in the window

  const CMonthAccessible* m_table;
  int m_index;
};

}  // namespace orbisol

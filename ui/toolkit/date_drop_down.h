// The drop-down of a date field: one month as a plain table, in which a day is chosen with the mouse or the
// keyboard. It shows every year and reform that the calendar knows: October 1582 without the days that the
// reform removed, and years before the first.
//
//   auto* const choice = new CDateDropDown(field);
//   connect(choice, &CDateDropDown::dateChosen, field, &CDateEdit::SetDate);
//   choice->Open(20240515, u"toujours");
//
// Keys: arrows by days and weeks, Page Up and Page Down by months and with Ctrl by years, Home and End inside
// the month, Enter chooses, Escape closes.
#pragma once

#include <QFrame>

#include <optional>

#include "content/month_model.h"
#include "core/date.h"

class QLabel;
class QPushButton;
class QTableWidget;

namespace orbisol {

class CDateDropDown : public QFrame {
  Q_OBJECT

 public:
  // Opens below `field`, or above it where the screen has no room below.
  explicit CDateDropDown(QWidget* field);

  // Shows the month of `ymd` with that day marked; that of today for 0. With `noneText` a button of that text
  // chooses no date. Months are those under `rules`, or under the rules in force.
  void Open(PackedDate ymd, const QString& noneText, const std::optional<CalendarRules>& rules = {});

  PackedDate Marked() const { return m_marked; }

 signals:
  void dateChosen(orbisol::PackedDate ymd);  // 0 for none; the drop-down is closed by then

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  CalendarRules RulesOfMonths() const { return m_rules.value_or(Rules()); }
  void MarkDay(PackedDate ymd);
  void Mark(const Date& date);
  void StepMonth(int months);
  void ShowMonth();
  void SetColumnWidths();
  bool HandleKey(int key, Qt::KeyboardModifiers modifiers);
  void ChooseToday();
  void Choose(PackedDate ymd);
  int CellAt(int row, int column) const { return m_month.FirstCell() + row * 7 + column; }

  QLabel* m_title;
  QTableWidget* m_table;
  QPushButton* m_none;
  std::optional<CalendarRules> m_rules;
  MonthModel m_month;
  PackedDate m_marked = 0;
};

}  // namespace orbisol

// The pane right of the month: the selected date in other calendars, the distance to a remembered date,
// buttons to notable days and, where there is room below them, a list of what the month brings.
//
//   CConverterPane pane(parent);
//   connect(&pane, &CConverterPane::dateChanged, …);
//   pane.Refresh();  // the selected date was changed, here or elsewhere
//
// In a window too small for it the pane scrolls.
#pragma once

#include <QScrollArea>

#include "core/date.h"

namespace orbisol {

class CJulianGroup;
class CKeptDateGroup;
class CMonthList;
class CRepublicanGroup;
struct MonthModel;

class CConverterPane : public QScrollArea {
  Q_OBJECT

 public:
  explicit CConverterPane(QWidget* parent = nullptr);

  // Shows the selected date in all its forms. A date before the Republican era ends the entry of one.
  void Refresh();
  // Lists the days of `month`, which was built for the selected date.
  void ShowMonth(const MonthModel& month);
  // Returns whether the window has room for that list.
  bool ListsMonth() const;
  // Returns whether that list is shown with a public holiday on or after `date`.
  bool NamesHolidayFrom(PackedDate date) const;
  // Takes over colors and calendar rules that were changed; Refresh() then shows the dates by them.
  void SettingsChanged();

  // Return the dates as the pane shows them, also while it is hidden.
  QString JulianText() const;
  QString RepublicanText() const;  // two lines; empty before the era

  // Returns the size at which all groups fit, without the list of the month.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {0, 0}; }

 signals:
  // Tells that a control of the pane changed the selected date.
  void dateChanged();
  // Tells that a control has done its work or disappears, so that the month should take the focus.
  void focusGivenUp();
  // Tells that the list of the month appeared or disappeared.
  void listShown();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void GoTo(PackedDate date);
  void FitMargins();
  void FitList();

  CJulianGroup* m_julian;
  CRepublicanGroup* m_republican;
  CKeptDateGroup* m_kept;
  CMonthList* m_month;
};

}  // namespace orbisol

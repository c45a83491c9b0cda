// The pane right of the month: the selected date in other calendars, the distance to a remembered date, and
// buttons to notable days.
//
//   CConverterPane pane(parent);
//   connect(&pane, &CConverterPane::dateChanged, …);
//   pane.Refresh();  // the selected date was changed, here or elsewhere
#pragma once

#include <QWidget>

#include "core/date.h"

namespace orbisol {

class CJulianGroup;
class CKeptDateGroup;
class CRepublicanGroup;

class CConverterPane : public QWidget {
  Q_OBJECT

 public:
  explicit CConverterPane(QWidget* parent = nullptr);

  // Shows the selected date in all its forms. A date before the Republican era ends the entry of one.
  void Refresh();
  // Takes over colors and calendar rules that were changed; the dates themselves wait for Refresh().
  void SettingsChanged();

  // Return the dates as the pane shows them, also while it is hidden.
  QString JulianText() const;
  QString RepublicanText() const;  // two lines; empty before the era

 signals:
  // The selected date was changed by a control of the pane.
  void dateChanged();
  // A control has done its work or disappears, and the keyboard belongs to the month again.
  void focusGivenUp();

 private:
  void GoTo(PackedDate date);

  CJulianGroup* m_julian;
  CRepublicanGroup* m_republican;
  CKeptDateGroup* m_kept;
};

}  // namespace orbisol

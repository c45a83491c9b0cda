// The group "Écart en jours avec le :": a date that the user has remembered, and how many days the selected
// date lies behind it.
//
//   CKeptDateGroup group;
//   group.Refresh();  // the selected date was changed
#pragma once

#include "core/date.h"
#include "ui/toolkit/calendar_group.h"

class QToolButton;

namespace orbisol {

class CReadOnlyField;

class CKeptDateGroup : public CCalendarGroup {
  Q_OBJECT

 public:
  explicit CKeptDateGroup(QWidget* parent = nullptr);

  // Shows the remembered date, under the rules in force, and its distance to the selected date.
  void Refresh();
  // Draws the button in the colors of the calendar, which were changed.
  void ColorsChanged();

 signals:
  void dateChosen(PackedDate date);  // tells that the user went to the field of the remembered date
  void focusGivenUp();               // tells that the button has done its work

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Keep(bool isKept);
  void FitToFont();

  PackedDate m_keptDate = 0;  // 0 is none
  QToolButton* m_keep;
  CReadOnlyField* m_kept;
  CReadOnlyField* m_difference;
};

}  // namespace orbisol

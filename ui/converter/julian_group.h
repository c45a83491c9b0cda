// The group "Calendrier julien": the selected date in the Julian calendar, its Julian day number and, before
// the reform, the Gregorian date that it would have had.
//
//   CJulianGroup group;
//   group.Refresh();  // the selected date was changed
#pragma once

#include "ui/toolkit/calendar_group.h"

class QLabel;

namespace orbisol {

class CJulianGroup : public CCalendarGroup {
  Q_OBJECT

 public:
  explicit CJulianGroup(QWidget* parent = nullptr);

  // Shows the selected date.
  void Refresh();
  // Fits the group to its font and to the order in which dates are written.
  void FitToFont();

  // Returns the Julian date as the group shows it.
  QString JulianText() const;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QLabel* m_julian;
  QLabel* m_dayNumber;
  QLabel* m_proleptic;
};

}  // namespace orbisol

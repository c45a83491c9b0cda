// The group "Calendrier républicain": the selected date in the French Republican calendar, and a form to
// enter one, which a check box shows.
//
//   CRepublicanGroup group;
//   group.Refresh();  // the selected date was changed
#pragma once

#include "core/date.h"
#include "ui/toolkit/calendar_group.h"

class QCheckBox;
class QLabel;

namespace orbisol {

class CRepublicanEntry;

class CRepublicanGroup : public CCalendarGroup {
  Q_OBJECT

 public:
  explicit CRepublicanGroup(QWidget* parent = nullptr);

  // Shows the selected date. A date before the Republican era hides the check box and ends the entry of a
  // date.
  void Refresh();

  // Returns the Republican date in its two lines, the second with the leading space that the label leaves
  // out; empty before the era.
  QString RepublicanText() const;

 signals:
  void dateEntered(PackedDate date);  // as CRepublicanEntry::dateEntered
  // Tells that the control with the focus is about to be hidden.
  void focusGivenUp();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void FitToFont();
  void ShowEntry(bool isShown);

  QString m_text;
  QLabel* m_republican;
  QCheckBox* m_isEntry;
  CRepublicanEntry* m_entry;
};

}  // namespace orbisol

// The pane right of the month: the selected date in other calendars, the distance to a remembered date, and
// buttons to notable days.
//
//   CConverterPane pane(host, parent);
//   pane.Refresh();  // the selected date was changed, here or elsewhere
#pragma once

#include <QWidget>

#include "core/date.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace orbisol {

struct PaneHost {
  virtual ~PaneHost() = default;

  // The selected date was changed by a control of the pane.
  virtual void OnPaneDateChanged() = 0;
  // A control has done its work, and the keyboard belongs to the month again.
  virtual void FocusMonth() = 0;
};

// "14 octobre 1582", for the day that the calendar in force calls 4 October 1582: as if the Gregorian
// calendar had always been in force, years counted from 1 January.
std::u16string ProlepticGregorianText(const Date& date);

class CConverterPane : public QWidget {
  Q_OBJECT

 public:
  // The host outlives the pane.
  CConverterPane(PaneHost* host, QWidget* parent);

  // Shows the selected date in all its forms. A date before the Republican era ends the entry of one.
  void Refresh();
  // The colors of the calendar were changed.
  void SettingsChanged();

  QString JulianText() const;
  QString RepublicanText() const;  // two lines; empty before the era

 private:
  QGroupBox* MakeJulianGroup();
  QGroupBox* MakeRepublicanGroup();
  QGroupBox* MakeDifferenceGroup();
  QWidget* MakeButtons();

  void FitToFont();
  void ShowRepublicanEntry(bool isShown);
  void LoadRepublicanDate();
  void FillRepublicanDays();
  void GoToRepublicanDate();
  void KeepDate(bool isKept);
  void ShowKeepButton();
  void ShowKeptDate();
  void GoToKeptDate();
  void GoTo(PackedDate date);

  bool IsEntry() const;  // a Republican date can be entered

  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  PaneHost* m_host;
  PackedDate m_keptDate = 0;  // the date to compare with; 0 is none

  QLabel* m_julian = nullptr;
  QLabel* m_dayNumber = nullptr;
  QLabel* m_proleptic = nullptr;
  QLabel* m_republican = nullptr;
  QCheckBox* m_entry = nullptr;
  QWidget* m_entryRow = nullptr;
  QComboBox* m_day = nullptr;
  QComboBox* m_month = nullptr;
  QLineEdit* m_year = nullptr;
  QPushButton* m_go = nullptr;
  QToolButton* m_keep = nullptr;
  QLineEdit* m_kept = nullptr;
  QLineEdit* m_difference = nullptr;
};

}  // namespace orbisol

// The form in which a French Republican date is entered: day, month, year and a button that goes there.
//
//   CRepublicanEntry entry;
//   entry.Load(ToRepublican(Selected()));
//   connect(&entry, &CRepublicanEntry::dateEntered, …);
#pragma once

#include <QWidget>

#include "core/republican.h"

class QComboBox;
class QLineEdit;
class QPushButton;

namespace orbisol {

class CRepublicanEntry : public QWidget {
  Q_OBJECT

 public:
  explicit CRepublicanEntry(QWidget* parent = nullptr);

  // Puts a date of the Republican era into the fields.
  void Load(const RepublicanDate& date);

 signals:
  // Tells that "Ok" was pressed, or Enter in the year. The year field then shows the year limited to
  // 1 … kLastRepublicanYear; `date` may still lie behind the last date shown.
  void dateEntered(PackedDate date);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void FitToFont();
  void FillDays();
  void Enter();
  int Year() const;

  QComboBox* m_day;
  QComboBox* m_month;
  QLineEdit* m_year;
  QPushButton* m_go;
};

}  // namespace orbisol

// "Aller à une date...": one line that takes a date as people write it, and says while it is typed how it is
// understood.
//
//   CGoToDateDialog dialog(&frame, Selected().Packed());
//   if (dialog.exec() == QDialog::Accepted) show(dialog.Date());
//
// Each reading is a line of the list, best first; Enter takes the one that is marked. What is no date has its
// reason below the field, and the nearest dates that can be meant in the list, none of them marked: one must
// be chosen before Enter takes it. Up and Down in the field move through the list. A screen reader hears how
// the text is understood as the description of the field.
#pragma once

#include <QDialog>

#include <memory>

#include "core/date_reader.h"

class QListWidget;

namespace Ui {  // NOLINT(readability-identifier-naming): as the forms are generated
class GoToDateDialog;
}

namespace orbisol {

class CGoToDateDialog : public QDialog {
 public:
  // `selected` gives what a text leaves out.
  CGoToDateDialog(QWidget* parent, PackedDate selected);
  ~CGoToDateDialog() override;

  // Returns the date of the marked line; 0 while none is.
  PackedDate Date() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Read(const QString& text);
  void Say(const QString& message);
  void ShowDates(const std::vector<DateReading>& readings, bool marksFirst);
  void FollowMark();

  std::unique_ptr<Ui::GoToDateDialog> m_form;
  PackedDate m_selected;
  bool m_isRefused = false;  // the list holds offers, not readings
};

}  // namespace orbisol

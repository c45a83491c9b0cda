// "Choisir un calendrier": the user's calendars, to be opened, made, renamed, copied and thrown away.
//
//   CChooseCalendarDlg dialog({store, calendars}, CalendarTask::kOpen, frame);
//   connect(&dialog, &CChooseCalendarDlg::calendarChanged, frame, &CCalendarFrame::CalendarChanged);
//   dialog.exec();
#pragma once

#include <QDialog>

#include <memory>

#include "ui/calendars/calendar_actions.h"

namespace Ui {  // NOLINT(readability-identifier-naming): as the forms are generated
class ChooseCalendar;
}

namespace orbisol {

class CNameCheck;

enum class CalendarTask {
  kOpen,
  kCreate,  // "Nouveau calendrier" is checked from the beginning
};

class CChooseCalendarDlg : public QDialog {
  Q_OBJECT

 public:
  // Works on the calendar in force.
  CChooseCalendarDlg(const SavePlaces& places, CalendarTask task, QWidget* parent = nullptr);
  ~CChooseCalendarDlg() override;

  // Opens the selected calendar, or makes the new one. Without a selection, beeps; where the calendar in use
  // cannot be saved or a name is refused, the dialog stays.
  void accept() override;

 signals:
  // Another calendar is in force, or the same one under another name or in another state.
  void calendarChanged();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::u16string Selected() const;
  void Fill(std::u16string_view selected);
  void UpdateControls();
  void Finish(bool isDone);
  void OpenSelected();
  void OnNewToggled(bool isNew);
  void OnDelete();
  void OnRename();
  void OnExport();
  void OnVersions();

  CCalendarActions m_actions;
  std::unique_ptr<Ui::ChooseCalendar> m_form;
  CNameCheck* m_newName;
};

}  // namespace orbisol

// "Versions précédentes": what saves replaced, by time, with what a version holds and what it would change.
//
//   CVersionsDlg dialog(actions, u"Famille", this);
//   connect(&dialog, &CVersionsDlg::restored, …);
//   dialog.exec();
#pragma once

#include <QDialog>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/calendars/calendar_actions.h"

namespace Ui {  // NOLINT(readability-identifier-naming): as the forms are generated
class Versions;
}

namespace orbisol {

class CVersionsDlg : public QDialog {
  Q_OBJECT

 public:
  // `actions` outlives the dialog.
  CVersionsDlg(CCalendarActions& actions, std::u16string_view name, QWidget* parent = nullptr);
  ~CVersionsDlg() override;

  // Returns the calendar whose versions are shown.
  const std::u16string& Name() const { return m_name; }

 signals:
  // A version was restored, or the calendar in use was reloaded instead; the dialog goes on.
  void restored();

 private:
  struct Row {
    CalendarVersion version;
    CalendarFile calendar;
  };

  void Fill();
  void ShowDifference();
  void OnRestore();

  CCalendarActions& m_actions;
  std::u16string m_name;
  CalendarFile m_state;  // what a version would replace
  std::vector<Row> m_rows;
  std::unique_ptr<Ui::Versions> m_form;
};

}  // namespace orbisol

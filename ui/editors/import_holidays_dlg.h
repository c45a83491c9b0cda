// "Importer des jours fériés": the list of public calendars, what the chosen one is, and its days of this
// year.
//
//   CalendarContent edited = …;
//   if (ImportHolidaysInto(this, publicCalendars, edited)) …  // `edited` has them
//
// Nothing but the content that is given changes: the editor of events takes an import back in one step, and
// saves it.
#pragma once

#include <QDialog>

#include <memory>
#include <optional>
#include <vector>

#include "content/calendar_content.h"
#include "files/public_calendars.h"

namespace Ui {  // NOLINT(readability-identifier-naming): as the forms are generated
class ImportHolidays;
}

namespace orbisol {

// More personal events than this are not taken in without a question.
constexpr std::size_t kManyPersonalEvents = 100;

struct HolidayImport {
  std::u16string path;       // of the public calendar
  CalendarContent holidays;  // all that it holds
  bool replaces = true;      // whether they take the place of the public rules
};

class CEvtImportDlg : public QDialog {
  Q_OBJECT

 public:
  // `publicCalendars` outlives the dialog.
  explicit CEvtImportDlg(const CPublicCalendars& publicCalendars, QWidget* parent = nullptr);
  ~CEvtImportDlg() override;

  // Returns what was chosen; nothing unless the dialog was accepted.
  const std::optional<HolidayImport>& Choice() const { return m_choice; }

  // Ends the dialog with the chosen calendar; without one, or where it cannot be read, beeps and stays.
  void accept() override;

 private:
  void Fill();
  void Filter(const QString& words);
  void ShowChosen();

  const CPublicCalendars& m_publicCalendars;
  std::vector<PublicCalendar> m_calendars;  // in the order of the list
  std::optional<CalendarFile> m_shown;      // the selected one
  std::optional<HolidayImport> m_choice;
  std::unique_ptr<Ui::ImportHolidays> m_form;
};

// Lets the user choose holidays and adds them to `content` (content/import_holidays.h). Returns whether they
// changed it.
bool ImportHolidaysInto(QWidget* parent, const CPublicCalendars& publicCalendars, CalendarContent& content);

}  // namespace orbisol

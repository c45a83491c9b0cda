// The editor of vacation periods.
//
//   CVacationsDialog dialog(services, Content(), {20240706, 20240901}, frame);  // a new period is begun
//   dialog.exec();
//
// After it the calendar may have been saved, under another name too, or read anew: what shows it must be
// told.
#pragma once

#include <memory>

#include "ui/editors/editor_dialog.h"
#include "ui/editors/period_fields.h"
#include "ui/editors/period_list.h"

namespace Ui {  // NOLINT(readability-identifier-naming): as the forms are generated
class VacationsForm;
}

namespace orbisol {

class CVacationsDialog : public CEditorDialog {
  Q_OBJECT

 public:
  // `from` and `to` fill in the fields of a new period, which saving then adds; 0 for none.
  CVacationsDialog(const EditorServices& services, const CalendarContent& content, PackedDate from,
                   PackedDate to, QWidget* parent = nullptr);
  ~CVacationsDialog() override;

  const CPeriodList& Periods() const { return *m_periods; }

 protected:
  void ShowFields(int row) override;
  bool IsFormEdited() const override;
  bool IsFormRead() const override;
  bool IsEntryBegun() const override;
  bool IsEntryWanted() const override;
  bool IsFormGood() override;
  void TakeFields(int row) override;
  void FocusFirstField() override;
  std::u16string TypedText() const override { return Fields().title; }
  void ReadContent(const CalendarContent& content) override;
  CalendarContent EditedContent() const override;

 private:
  PeriodFields Fields() const;
  void SetFields(const PeriodFields& fields);
  std::vector<Refusal<PeriodField>> Refusals() const;
  void ShowNotes(bool all);
  QString LengthText() const;

  std::unique_ptr<Ui::VacationsForm> m_form;
  CPeriodList* m_periods;          // owned by the base
  std::vector<DayEvent> m_events;  // of the content, which this dialog leaves alone
  PeriodFields m_fresh;            // that the dialog opened with; empty once they were added
  PeriodFields m_draft;            // of the new period that was begun
  PeriodFields m_shown;            // as ShowFields() left them
  bool m_isSetting = false;
};

}  // namespace orbisol

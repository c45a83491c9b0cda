// The editor of events and public holidays.
//
//   CEventsDialog dialog(services, Content(), 20240514, 2024, frame);  // a new event on 14 May is begun
//   dialog.exec();
//
// After it the calendar may have been saved, under another name too, or read anew: what shows it must be
// told.
#pragma once

#include <memory>

#include "ui/editors/editor_dialog.h"
#include "ui/editors/event_fields.h"
#include "ui/editors/event_list.h"

namespace Ui {  // NOLINT(readability-identifier-naming): as the forms are generated
class EventsForm;
}

namespace orbisol {

class CEventsDialog : public CEditorDialog {
  Q_OBJECT

 public:
  // `day` fills in the fields of a new event, 0 for none. The list shows the days of `year`, the form those
  // of it and of the two that follow.
  CEventsDialog(const EditorServices& services, const CalendarContent& content, PackedDate day, int year,
                QWidget* parent = nullptr);
  ~CEventsDialog() override;

  const CEventList& Events() const { return *m_events; }

 protected:
  void changeEvent(QEvent* event) override;
  void ShowFields(int row) override;
  bool IsFormEdited() const override;
  bool IsFormRead() const override;
  bool IsEntryBegun() const override;
  bool IsFormGood() override;
  void TakeFields(int row) override;
  void FocusFirstField() override;
  std::u16string TypedText() const override { return Fields().name; }
  RowKind ShownKind() const override;
  void ReadContent(const CalendarContent& content) override;
  CalendarContent EditedContent() const override;

 private:
  EventFields Fields() const;
  void SetFields(const EventFields& fields);
  std::vector<Refusal<EventField>> Refusals() const;
  void ConnectForm();
  void ColorHelp();
  void OnEdited();
  void ShowKind();
  void ShowNotes(bool all);
  void OnImport();

  std::unique_ptr<Ui::EventsForm> m_form;
  CEventList* m_events;                    // owned by the base
  std::vector<HolidayPeriod> m_vacations;  // of the content; importing can add some
  int m_year;
  EventFields m_fresh;  // of a new event
  EventFields m_draft;  // of the new event that was begun
  EventFields m_shown;  // as ShowFields() left them
  QString m_added;      // what to say of the event just added; empty once another is begun
  bool m_isSetting = false;
};

}  // namespace orbisol

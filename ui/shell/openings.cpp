#include "ui/shell/openings.h"

#include <algorithm>
#include <iterator>

#include "content/calendar_content.h"
#include "content/selected_date.h"
#include "ui/calendars/choose_calendar_dlg.h"
#include "ui/editors/events_dialog.h"
#include "ui/editors/import_holidays_dlg.h"
#include "ui/editors/vacations_dialog.h"
#include "ui/find/find_day_dialog.h"
#include "ui/find/go_to_date_dialog.h"
#include "ui/preferences/prefs_prop_sheet.h"
#include "ui/shell/about.h"
#include "ui/shell/calendar_frame.h"
#include "ui/window/help.h"

namespace orbisol {
namespace {

void OpenCalendars(CCalendarFrame& frame, CalendarTask task) {
  CChooseCalendarDlg dialog({frame.Services().store, frame.Services().calendars}, task, &frame);
  QObject::connect(&dialog, &CChooseCalendarDlg::calendarChanged, &frame, &CCalendarFrame::CalendarChanged);
  dialog.exec();
}

void ChooseCalendar(const OpeningRequest& request) { OpenCalendars(request.frame, CalendarTask::kOpen); }
void MakeCalendar(const OpeningRequest& request) { OpenCalendars(request.frame, CalendarTask::kCreate); }
void OpenHelpContents(const OpeningRequest&) { ShowHelpContents(); }
void OpenHelpIndex(const OpeningRequest&) { ShowHelpIndex(); }
void OpenPrint(const OpeningRequest& request) { request.frame.OpenPrintFrame(); }
void OpenAbout(const OpeningRequest& request) { CAboutBox(&request.frame).exec(); }

EditorServices ServicesOf(const CCalendarFrame& frame) {
  const FrameServices& services = frame.Services();
  return {.places = {services.store, services.calendars},
          .importHolidays = [&services](QWidget* parent, CalendarContent& content) {
            return ImportHolidaysInto(parent, services.publicCalendars, content);
          }};
}

void OpenEvents(const OpeningRequest& request) {
  CEventsDialog(ServicesOf(request.frame), Content(), request.from, Selected().year, &request.frame).exec();
  request.frame.CalendarChanged();
}

void OpenVacations(const OpeningRequest& request) {
  CVacationsDialog(ServicesOf(request.frame), Content(), request.from, request.to, &request.frame).exec();
  request.frame.CalendarChanged();
}

void OpenPreferences(const OpeningRequest& request) {
  CCalendarFrame& frame = request.frame;
  CPrefsPropSheet sheet({frame.Services().store, frame.Services().calendars}, &frame);
  QObject::connect(&sheet, &CPrefsPropSheet::settingsSaved, &frame, &CCalendarFrame::CalendarChanged);
  sheet.exec();
  frame.Dialog().FocusMonth();
}

void OpenGoToDate(const OpeningRequest& request) {
  CGoToDateDialog dialog(&request.frame, Selected().Packed());
  if (dialog.exec() == QDialog::Accepted && dialog.Date() != 0) request.frame.GoTo(dialog.Date());
}

// Returns the one window of a frame that searches, made when first needed.
CFindDayDialog& FindDialogOf(CCalendarFrame& frame) {
  if (auto* const made = frame.findChild<CFindDayDialog*>()) return *made;
  auto* const dialog = new CFindDayDialog(&frame);
  QObject::connect(dialog, &CFindDayDialog::dayFound, &frame, &CCalendarFrame::GoTo);
  QObject::connect(&frame.Dialog(), &CMainDlg::dateShown, dialog,
                   [dialog] { dialog->SetSelected(Selected().Packed()); });
  QObject::connect(&frame, &CCalendarFrame::calendarShown, dialog,
                   [dialog] { dialog->SetContent(Content()); });
  dialog->SetContent(Content());
  dialog->SetSelected(Selected().Packed());
  return *dialog;
}

void OpenFind(const OpeningRequest& request) {
  FindDialogOf(request.frame).Open(Content(), Selected().Packed());
}

void FindNext(const OpeningRequest& request) { FindDialogOf(request.frame).FindNext(); }

void FindPrevious(const OpeningRequest& request) { FindDialogOf(request.frame).FindPrevious(); }

// clang-format off: a row each, so that windows made side by side change lines of their own.
constexpr Opening kOpenings[] = {
    {kCmdChooseCalendar, ChooseCalendar},
    {kCmdNewCalendar, MakeCalendar},
    {kCmdPrint, OpenPrint},
    {kCmdEditEvents, OpenEvents},
    {kCmdEditVacations, OpenVacations},
    {kCmdPreferences, OpenPreferences},
    {kCmdHelpContents, OpenHelpContents},
    {kCmdHelpIndex, OpenHelpIndex},
    {kCmdAbout, OpenAbout},
    {kCmdGoToDate, OpenGoToDate},
    {kCmdFind, OpenFind},
    {kCmdFindNext, FindNext},
    {kCmdFindPrevious, FindPrevious},
};
// clang-format on

}  // namespace

const Opening* OpeningOf(CommandId command) {
  const auto* const found = std::find_if(std::begin(kOpenings), std::end(kOpenings),
                                         [&](const Opening& row) { return row.command == command; });
  return found == std::end(kOpenings) ? nullptr : found;
}

}  // namespace orbisol

// The main window: menu bar, tool bar and status bar around the main dialog, and the functions that run the
// commands. Commands that open a window of their own have their table in openings.h.
//
//   CCalendarFrame frame({store, calendars, publicCalendars, {u"fr", u"FR"}});
//   frame.Open();
//
// The constructor reads the settings and puts them in force. Closing the window stores where it stands.
#pragma once

#include <QMainWindow>

#include <string>

#include "files/calendar_store.h"
#include "files/first_start.h"
#include "resources/command_ids.h"
#include "settings/settings_persistence.h"
#include "settings/settings_store.h"
#include "ui/shell/main_dlg.h"
#include "ui/shell/openings.h"
#include "ui/window/command_table.h"
#include "ui/window/frame_placement.h"

namespace orbisol {

class CElidedLabel;
class CPrintFrame;

struct FrameServices {
  SettingsStore& store;
  CCalendarStore& calendars;
  const CPublicCalendars& publicCalendars;
  UserLocale locale;
};

// Puts a text on the clipboard. Does nothing, and reports nothing, where the clipboard cannot be had.
void CopyTextToClipboard(const QString& text);

class CCalendarFrame : public QMainWindow {
  Q_OBJECT

 public:
  // Reads the settings and builds the window. The objects in `services` outlive the frame.
  explicit CCalendarFrame(const FrameServices& services);
  ~CCalendarFrame() override;

  // Shows the window where it was last closed, or in the middle of the screen at the first start.
  void Open();

  // Brings the window to the front, for a user who started the program again. `token` is what the desktop
  // gave to that start, so that the window may take the focus; empty where it gave none.
  void Raise(const std::string& token = {});

  // Keeps what is not saved in any window, without a question. Returns false where something is safe nowhere.
  bool KeepUnsaved();
  // Does the same, and stores where this window and its print frame stand.
  bool KeepForNextSession();

  void RunCommand(CommandId command);

  // Shows the calendar in use anew, after its name, its look, its rules or its content were changed, and
  // emits calendarShown().
  void CalendarChanged();

  // Selects and shows a day that was named, a leap in the history of dates.
  void GoTo(PackedDate date);

  // Opens the print frame with the selected month, or brings the open one to the front.
  void OpenPrintFrame();
  // Returns the open print frame; null for none.
  CPrintFrame* PrintFrame() const { return m_print; }

  CMainDlg& Dialog() { return *m_dialog; }
  const FrameServices& Services() const { return m_services; }
  CCommandTable& Commands() { return *m_commands; }
  QString StatusText() const;

 signals:
  void calendarShown();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  struct Handler {
    CommandId command;
    void (CCalendarFrame::*run)();
  };
  static const Handler kHandlers[];
  static const Handler* HandlerOf(CommandId command);
  static bool IsReady(CommandId command);
  void OpenWindow(CommandId command, const OpeningRequest& request);  // beeps if no window is made yet

  void OnDateShown(const QString& description);

  void OnCopyDate();
  void OnCopyJulianDate();
  void OnCopyRepublicanDate();
  void OnToggleToolBar();
  void OnToggleStatusBar();
  void OnTogglePane();
  void OnToggleCellTexts();
  void OnGoBack();
  void OnGoForward();
  void OnGoToToday();
  void OnQuit();

  void StoreLayout();
  void PrintFrameClosed();
  void SaveIfChanged();
  void TakeSettings();
  void UpdateTitle();
  void UpdateCommands();

  FrameServices m_services;
  CCommandTable* m_commands;
  CFramePlacement* m_placement;
  QToolBar* m_toolBar;
  CElidedLabel* m_description;
  CMainDlg* m_dialog;
  CPrintFrame* m_print = nullptr;  // the open print frame; null for none
  bool m_isClosed = false;
  bool m_isFirst = false;  // whether no place of the window was ever stored
};

}  // namespace orbisol

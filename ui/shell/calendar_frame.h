// The main window: menu bar, tool bar and status bar around the main dialog, and what every command does.
//
//   CCalendarFrame frame({store, calendars, publicCalendars, {u"fr", u"FR"}});  // reads the settings and
//   puts them in force frame.Open();                                              // where it stood when it
//   was last closed
//
// Closing it stores where it stands.
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

struct FrameDoors {
  SettingsStore& store;
  CCalendarStore& calendars;
  const CPublicCalendars& publicCalendars;
  UserLocale locale;
};

// Puts a text on the clipboard. Where that cannot be had nothing happens, and nothing is said.
void CopyTextToClipboard(const QString& text);

class CCalendarFrame : public QMainWindow {
  Q_OBJECT

 public:
  // The doors outlive the frame.
  explicit CCalendarFrame(const FrameDoors& doors);

  void Open();
  // To the front, for a user who started the program again; the desktop gave that start the token, where it
  // asks for one.
  void Raise(const std::string& token = {});

  // Stores where the window stands now, as closing it does.
  void StoreLayout();

  void RunCommand(CommandId command);

  CMainDlg& Dialog() { return *m_dialog; }
  const FrameDoors& Doors() const { return m_doors; }
  CCommandTable& Commands() { return *m_commands; }
  QString StatusText() const;

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  struct Handler {
    CommandId command;
    void (CCalendarFrame::*run)();
  };
  static const Handler kHandlers[];
  static const Handler* HandlerOf(CommandId command);
  static bool IsReady(CommandId command);
  void OpenWindow(CommandId command, const OpeningRequest& request);  // beeps where there is none

  void OnDateShown(const QString& description);

  void OnCopyDate();
  void OnCopyJulianDate();
  void OnCopyRepublicanDate();
  void OnToggleToolBar();
  void OnToggleStatusBar();
  void OnTogglePane();
  void OnGoBack();
  void OnGoForward();
  void OnGoToToday();
  void OnQuit();

  void TakeSettings();
  void UpdateTitle();
  void UpdateCommands();

  FrameDoors m_doors;
  CCommandTable* m_commands;
  CFramePlacement* m_placement;
  QToolBar* m_toolBar;
  CElidedLabel* m_description;
  CMainDlg* m_dialog;
  bool m_isFirst = false;  // no place of the window was ever stored
};

}  // namespace orbisol

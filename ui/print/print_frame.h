// The print frame: a preview of the pages with menus, tool bar and status bar, from which the months of a
// year are printed or exported.
//
//   auto* const frame = new CPrintFrame(store, Selected().year, Selected().month);
//   frame->Open();
//   connect(frame, &CPrintFrame::closed, …);
//   frame->CalendarChanged();  // events, settings or the calendar changed: the page follows
//
// Year and month stay as they were when it opened, and so do the choices of its menus; nothing of them is
// kept when it closes but where it stood. It deletes itself after that. Closing it while a job runs or one of
// its dialogs is open ends both.
#pragma once

#include <QMainWindow>
#include <QPageLayout>

#include <memory>

#include "resources/command_ids.h"
#include "settings/settings_store.h"
#include "ui/painting/background_picture.h"
#include "ui/print/page_painter.h"
#include "ui/print/print_job.h"
#include "ui/print/print_output.h"
#include "ui/print/prt_view.h"
#include "ui/window/command_table.h"
#include "ui/window/frame_placement.h"

class QLabel;
class QToolBar;

namespace orbisol {

class CElidedLabel;
class CMenuButton;

class CPrintFrame : public QMainWindow {
  Q_OBJECT

 public:
  // `store` outlives the frame.
  CPrintFrame(SettingsStore& store, int year, int month);
  ~CPrintFrame() override;

  // Shows the window where it was last closed.
  void Open();
  // Brings the window to the front.
  void Raise();
  // Stores where the window stands now, like closing it.
  void StoreLayout();

  // Shows the calendar in use anew.
  void CalendarChanged();

  void RunCommand(CommandId command);

  const PrintJob& Job() const { return m_job; }
  const QPageLayout& Paper() const { return m_paper; }
  CPrtView& View() { return *m_view; }
  CCommandTable& Commands() { return *m_commands; }
  CPrintOutput& Output() { return *m_output; }
  QString StatusText() const;

 signals:
  void closed();  // the layout is stored; the frame deletes itself later

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  struct Handler {
    CommandId command;
    void (CPrintFrame::*run)();
  };
  static const Handler kHandlers[];
  bool RunHandler(CommandId command);
  void RunJobCommand(CommandId command);

  void OnPageSetup();
  void OnPrint();
  void OnExport();
  void OnYears();
  void OnClose();
  void OnToggleToolBar();
  void OnToggleStatusBar();
  void OnZoomIn();
  void OnZoomOut();
  void OnFitPage();
  void OnFitWidth();
  void OnActualSize();
  void OnFirstPage();
  void OnPreviousPage();
  void OnNextPage();
  void OnLastPage();
  void OnImage();
  void OnHelp();

  void MakeToolBar();
  CMenuButton* AddMenuButton(CommandId command, const QString& name);
  void MakeStatusBar();
  void TellEnd(const QString& text);
  void TurnPage(int step);
  void ShowJob();
  void ShowPage();
  void ShowZoom();
  void Print(const PrintJob& job);
  void Export(const PrintJob& job);
  void ProposeOrientation();
  CPagePainter Pages(const PrintJob& job) const;
  void UpdateCommands();
  void CloseDialogs();

  SettingsStore& m_store;
  PrintJob m_job;
  QPageLayout m_paper;
  bool m_hasOwnOrientation = false;  // whether the user chose upright or wide
  QImage m_image;                    // the inserted picture; null for none
  CBackgroundPicture m_background;
  std::shared_ptr<const CPagePainter> m_pages;  // what the view shows
  CCommandTable* m_commands;
  CFramePlacement* m_placement;
  CPrintOutput* m_output;
  CPrtView* m_view;
  QToolBar* m_toolBar = nullptr;
  CMenuButton* m_period = nullptr;
  CMenuButton* m_format = nullptr;
  CElidedLabel* m_caption;
  QLabel* m_zoom;
  int m_running = 0;  // commands that run, one inside another
  bool m_isClosed = false;
};

}  // namespace orbisol

#include "ui/shell/calendar_frame.h"

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>
#include <iterator>
#include <utility>

#include "content/selected_date.h"
#include "core/date_text.h"
#include "platform/activation_token.h"
#include "resources/menus.h"
#include "resources/strings.h"
#include "ui/print/print_frame.h"
#include "ui/toolkit/elided_label.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/save_calendar.h"
#include "ui/window/session_end.h"
#include "ui/window/tool_icons.h"

namespace orbisol {
namespace {

constexpr int kToolIconSize = 22;
constexpr int kStatusIndent = 5;  // pixels left of the status text, which aligns it with the month

// Greatest size of the window with its frame at the first start.
constexpr QSize kMostFirstSize(1280, 800);
constexpr int kWidthForPane = 900;  // least width at which the first window shows the pane

// Returns the size of the first window: two thirds of the free area of the screen.
QSize FirstSize() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return kMostFirstSize;
  const QSize free = screen->availableGeometry().size();
  return QSize(free.width() * 2 / 3, free.height() * 2 / 3).boundedTo(kMostFirstSize);
}

}  // namespace

void CopyTextToClipboard(const QString& text) { QGuiApplication::clipboard()->setText(text); }

const CCalendarFrame::Handler CCalendarFrame::kHandlers[] = {
    {kCmdQuit, &CCalendarFrame::OnQuit},
    {kCmdCopyDate, &CCalendarFrame::OnCopyDate},
    {kCmdCopyJulianDate, &CCalendarFrame::OnCopyJulianDate},
    {kCmdCopyRepublicanDate, &CCalendarFrame::OnCopyRepublicanDate},
    {kCmdToggleToolBar, &CCalendarFrame::OnToggleToolBar},
    {kCmdToggleStatusBar, &CCalendarFrame::OnToggleStatusBar},
    {kCmdTogglePane, &CCalendarFrame::OnTogglePane},
    {kCmdToggleCellTexts, &CCalendarFrame::OnToggleCellTexts},
    {kCmdGoBack, &CCalendarFrame::OnGoBack},
    {kCmdGoForward, &CCalendarFrame::OnGoForward},
    {kCmdGoToToday, &CCalendarFrame::OnGoToToday},
};

const CCalendarFrame::Handler* CCalendarFrame::HandlerOf(CommandId command) {
  const auto* const found = std::find_if(std::begin(kHandlers), std::end(kHandlers),
                                         [&](const Handler& row) { return row.command == command; });
  return found == std::end(kHandlers) ? nullptr : found;
}

CCalendarFrame::CCalendarFrame(const FrameServices& services)
    : m_services(services),
      m_commands(new CCommandTable(this, [this](CommandId command) { RunCommand(command); })),
      m_placement(new CFramePlacement(*this)),
      m_toolBar(nullptr),
      m_description(new CElidedLabel),
      m_dialog(nullptr) {
  TakeSettings();
  setContextMenuPolicy(
      Qt::NoContextMenu);  // the toolkit's menu would hide bars without the check marks of ours
  setAttribute(Qt::WA_AlwaysShowToolTips);  // tips appear in an inactive window too

  m_commands->FillMenuBar(*menuBar(), MainMenu());
  m_toolBar = addToolBar(TableText(kTextToolBarName));
  m_toolBar->setMovable(false);
  m_toolBar->setIconSize({kToolIconSize, kToolIconSize});
  m_commands->FillToolBar(*m_toolBar, MainToolBar());
  statusBar()->setContentsMargins(kStatusIndent, 0, 0, 0);
  statusBar()->addWidget(m_description, 1);
  statusBar()->setVisible(Display().mainLayout.statusBarShown);

  m_dialog = new CMainDlg(Display().mainLayout.rightPaneShown);
  setCentralWidget(m_dialog);
  connect(m_dialog, &CMainDlg::dateShown, this, &CCalendarFrame::OnDateShown);
  connect(m_dialog, &CMainDlg::periodChosen, this, [this](const Date& from, const Date& to) {
    OpenWindow(kCmdEditVacations, {*this, from.Packed(), to.Packed()});
  });
  connect(m_dialog, &CMainDlg::dayOpened, this, [this](const Date& date) {
    OpenWindow(kCmdEditEvents, {*this, date.Packed(), date.Packed()});
  });
  for (const Menu& menu : MainMenu())
    for (const MenuItem& item : menu.items) m_commands->SetEnabled(item.command, IsReady(item.command));
  UpdateTitle();
  m_dialog->Measure();
  m_dialog->Refresh();
  m_dialog->FocusMonth();
}

CCalendarFrame::~CCalendarFrame() { delete m_print; }

// Reads the settings and puts them in force. At start-up no other function does.
void CCalendarFrame::TakeSettings() {
  StoredSettings stored = ReadSettings(m_services.store, m_services.calendars, m_services.publicCalendars,
                                       m_services.locale, VirtualScreen());
  m_isFirst = !stored.layoutStored;
  if (m_isFirst) stored.display.mainLayout.rightPaneShown = FirstSize().width() >= kWidthForPane;
  Display() = std::move(stored.display);
  Rules() = stored.rules;
  Content() = std::move(stored.content);
}

void CCalendarFrame::UpdateTitle() {
  const std::u16string_view name = Display().calendarName.View();
  QString title = name == kDefaultCalendarName || name.empty() ? TableText(kTextProgramName)
                                                               : TableText(kTextCalendarTitle, {name});
  // The toolkit replaces "[*]" in a title by its mark of unsaved changes, unless it stands twice.
  setWindowTitle(title.replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

void CCalendarFrame::CalendarChanged() {
  UpdateTitle();
  m_dialog->SettingsChanged();
  emit calendarShown();
}

void CCalendarFrame::Open() {
  WindowLayout& layout = Display().mainLayout;
  const int pane = m_dialog->PaneWidth();
  const int hidden = m_dialog->IsPaneShown() ? 0 : pane;  // the stored rectangle always holds the pane
  layout.rightPaneWidth = pane;
  if (m_isFirst) {
    // All rows of the month are equally high in the first window.
    const int bars = minimumSizeHint().height() - m_dialog->minimumHeight();
    m_placement->OpenCentred(FirstSize(),
                             [this, bars](int height) { return m_dialog->EvenHeight(height - bars) + bars; });
  } else {
    m_placement->Open({layout.rect.left, layout.rect.top, layout.rect.Width() - hidden, layout.rect.Height()},
                      layout.maximized);
  }
}

void CCalendarFrame::StoreLayout() {
  ClosingFrame closing = m_placement->Closing();
  closing.paneShown = m_dialog->IsPaneShown();
  closing.paneWidth = m_dialog->PaneWidth();
  if (m_print != nullptr) m_print->StoreLayout();
  SaveMainWindowLayout(m_services.store, Display().mainLayout, closing, VirtualScreen());
}

bool CCalendarFrame::KeepUnsaved() {
  const bool areOthersSafe = KeepAllUnsaved();
  if (!Display().changed) return areOthersSafe;
  const KeptEnd end = SaveUnasked({m_services.store, m_services.calendars}, Display(), Rules(), Content());
  return areOthersSafe && end != KeptEnd::kNowhere;
}

bool CCalendarFrame::KeepForNextSession() {
  const bool isSafe = KeepUnsaved();
  StoreLayout();
  return isSafe;
}

void CCalendarFrame::closeEvent(QCloseEvent* event) {
  m_isClosed = true;
  if (m_print != nullptr) m_print->close();
  StoreLayout();
  QMainWindow::closeEvent(event);
}

void CCalendarFrame::OpenPrintFrame() {
  if (m_print != nullptr) {
    m_print->Raise();
    return;
  }
  m_print = new CPrintFrame(m_services.store, Selected().year, Selected().month);
  connect(m_print, &CPrintFrame::closed, this, &CCalendarFrame::PrintFrameClosed);
  connect(this, &CCalendarFrame::calendarShown, m_print, &CPrintFrame::CalendarChanged);
  m_print->Open();
}

// Takes the place of the print frame. What was left unsaved is saved when that window is gone.
void CCalendarFrame::PrintFrameClosed() {
  m_print = nullptr;
  if (m_isClosed) return;
  Raise();
  m_dialog->FocusMonth();
  if (Display().changed)
    QMetaObject::invokeMethod(this, &CCalendarFrame::SaveIfChanged, Qt::QueuedConnection);
}

void CCalendarFrame::SaveIfChanged() {
  if (m_isClosed || !Display().changed) return;
  SavedFromWindow saved =
      SaveCalendarFromWindow(this, {m_services.store, m_services.calendars}, Display(), Rules(), Content());
  if (saved.end != SaveEnd::kReloaded) return;
  PutInForce(std::move(*saved.reloaded));
  CalendarChanged();
}

void CCalendarFrame::Raise(const std::string& token) {
  const CScopedActivationToken scope(token);
  setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
  show();
  raise();
  activateWindow();
}

QString CCalendarFrame::StatusText() const { return m_description->text(); }

bool CCalendarFrame::IsReady(CommandId command) {
  const Opening* const opening = OpeningOf(command);
  return HandlerOf(command) != nullptr || (opening != nullptr && opening->open != nullptr);
}

void CCalendarFrame::RunCommand(CommandId command) {
  if (const Handler* const handler = HandlerOf(command)) {
    (this->*handler->run)();
  } else {
    OpenWindow(command, {.frame = *this});
  }
  UpdateCommands();
}

void CCalendarFrame::OpenWindow(CommandId command, const OpeningRequest& request) {
  if (const Opening* const opening = OpeningOf(command); opening != nullptr && opening->open != nullptr) {
    opening->open(request);
  } else {
    Messages().Beep();
  }
}

void CCalendarFrame::UpdateCommands() {
  m_commands->SetChecked(kCmdToggleToolBar, m_toolBar->isVisibleTo(this));
  m_commands->SetChecked(kCmdToggleStatusBar, Display().mainLayout.statusBarShown);
  m_commands->SetChecked(kCmdTogglePane, m_dialog->IsPaneShown());
  m_commands->SetChecked(kCmdToggleCellTexts, Display().cellTexts);
  m_commands->SetEnabled(kCmdCopyRepublicanDate, !m_dialog->RepublicanText().isEmpty());
  m_commands->SetEnabled(kCmdGoBack, m_dialog->History().CanGoBack());
  m_commands->SetEnabled(kCmdGoForward, m_dialog->History().CanGoForward());
}

void CCalendarFrame::OnDateShown(const QString& description) {
  m_description->setText(description);
  UpdateCommands();
}

void CCalendarFrame::OnCopyDate() { CopyTextToClipboard(ToQString(LongDate(Selected(), false))); }

void CCalendarFrame::OnCopyJulianDate() { CopyTextToClipboard(m_dialog->JulianText()); }

void CCalendarFrame::OnCopyRepublicanDate() { CopyTextToClipboard(m_dialog->RepublicanText()); }

void CCalendarFrame::OnToggleToolBar() { m_toolBar->setVisible(!m_toolBar->isVisibleTo(this)); }

void CCalendarFrame::OnToggleStatusBar() {
  bool& isShown = Display().mainLayout.statusBarShown;
  isShown = !isShown;
  statusBar()->setVisible(isShown);
}

// Shows or hides the pane. The window grows or shrinks by its width, so that the month keeps its size.
void CCalendarFrame::OnTogglePane() {
  const bool isShown = !m_dialog->IsPaneShown();
  Display().mainLayout.rightPaneShown = isShown;
  if (isShown) m_placement->Widen(m_dialog->PaneWidth());
  m_dialog->ShowPane(isShown);
  layout()->activate();  // updates the least size
  if (!isShown) m_placement->Widen(-m_dialog->PaneWidth());
}

// Stores this one switch at once. Where that fails it holds for this run.
void CCalendarFrame::OnToggleCellTexts() {
  Display().cellTexts = !Display().cellTexts;
  SaveCellTexts(m_services.store, Display());
  CalendarChanged();
}

void CCalendarFrame::OnGoBack() { m_dialog->GoBack(); }

void CCalendarFrame::OnGoForward() { m_dialog->GoForward(); }

void CCalendarFrame::GoTo(PackedDate date) {
  Selected().SetPacked(date);
  m_dialog->Refresh();
}

void CCalendarFrame::OnGoToToday() { GoTo(Date::Today().Packed()); }

void CCalendarFrame::OnQuit() { close(); }

}  // namespace orbisol

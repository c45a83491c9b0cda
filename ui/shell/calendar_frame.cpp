#include "ui/shell/calendar_frame.h"

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include <algorithm>
#include <iterator>
#include <utility>

#include "content/selected_date.h"
#include "core/date_text.h"
#include "platform/activation_token.h"
#include "resources/menus.h"
#include "resources/strings.h"
#include "settings/window_layout.h"
#include "ui/toolkit/elided_label.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/tool_icons.h"

namespace orbisol {
namespace {

constexpr int kToolIconSize = 22;
constexpr int kStatusIndent = 5;  // so that the description begins below the edge of the month

// When the window manager's margins are looked for after the window was shown, in milliseconds. They come
// some time after it, and on some desktops never.
constexpr int kMarginChecks[] = {0, 50, 200, 600};

// Enough of a title bar to take hold of it, in pixels.
constexpr int kGripWidth = 80;
constexpr int kGripHeight = 24;

// Whether a window there can be seen and moved. Around screens of different sizes there are places on none.
bool IsWithinReach(const QRect& frame) {
  const QRect grip(frame.x(), frame.y(), frame.width(), kGripHeight);
  const QList<QScreen*> screens = QGuiApplication::screens();
  return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
    const QRect seen = grip & screen->availableGeometry();
    return seen.width() >= std::min(kGripWidth, frame.width()) && seen.height() == kGripHeight;
  });
}

}  // namespace

Rect VirtualScreen() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  return ToRect(screen->virtualGeometry());
}

void CopyTextToClipboard(const QString& text) { QGuiApplication::clipboard()->setText(text); }

const CCalendarFrame::Handler CCalendarFrame::kHandlers[] = {
    {kCmdChooseCalendar, &CCalendarFrame::OnNotYet},
    {kCmdPrint, &CCalendarFrame::OnNotYet},
    {kCmdQuit, &CCalendarFrame::OnQuit},
    {kCmdCopyDate, &CCalendarFrame::OnCopyDate},
    {kCmdCopyJulianDate, &CCalendarFrame::OnCopyJulianDate},
    {kCmdCopyRepublicanDate, &CCalendarFrame::OnCopyRepublicanDate},
    {kCmdToggleToolBar, &CCalendarFrame::OnToggleToolBar},
    {kCmdToggleStatusBar, &CCalendarFrame::OnToggleStatusBar},
    {kCmdTogglePane, &CCalendarFrame::OnTogglePane},
    {kCmdGoBack, &CCalendarFrame::OnGoBack},
    {kCmdGoForward, &CCalendarFrame::OnGoForward},
    {kCmdPreferences, &CCalendarFrame::OnNotYet},
    {kCmdEditEvents, &CCalendarFrame::OnNotYet},
    {kCmdEditVacations, &CCalendarFrame::OnNotYet},
    {kCmdHelpContents, &CCalendarFrame::OnNotYet},
    {kCmdHelpIndex, &CCalendarFrame::OnNotYet},
    {kCmdAbout, &CCalendarFrame::OnNotYet},
};

const CCalendarFrame::Handler* CCalendarFrame::HandlerOf(CommandId command) {
  const auto* const found = std::find_if(std::begin(kHandlers), std::end(kHandlers),
                                         [&](const Handler& row) { return row.command == command; });
  return found == std::end(kHandlers) ? nullptr : found;
}

CCalendarFrame::CCalendarFrame(const FrameDoors& doors)
    : m_doors(doors),
      m_commands(new CCommandTable(this, [this](CommandId command) { RunCommand(command); })),
      m_toolBar(nullptr),
      m_description(new CElidedLabel),
      m_dialog(nullptr) {
  TakeSettings();
  setWindowIcon(ProgramIcon());
  setContextMenuPolicy(Qt::NoContextMenu);  // the toolkit's own would hide bars behind the menu's back
  setAttribute(Qt::WA_AlwaysShowToolTips);  // of inactive windows too

  m_commands->FillMenuBar(*menuBar(), MainMenu());
  m_toolBar = addToolBar(TableText(kTextToolBarName));
  m_toolBar->setMovable(false);
  m_toolBar->setIconSize({kToolIconSize, kToolIconSize});
  m_commands->FillToolBar(*m_toolBar, MainToolBar());
  statusBar()->setContentsMargins(kStatusIndent, 0, 0, 0);
  statusBar()->addWidget(m_description, 1);
  statusBar()->setVisible(Display().mainLayout.statusBarShown != 0);

  m_dialog = new CMainDlg(Display().mainLayout.rightPaneShown != 0);
  setCentralWidget(m_dialog);
  connect(m_dialog, &CMainDlg::dateShown, this, &CCalendarFrame::OnDateShown);
  connect(m_dialog, &CMainDlg::periodChosen, this, &CCalendarFrame::OnNotYet);
  connect(m_dialog, &CMainDlg::dayOpened, this, &CCalendarFrame::OnNotYet);
  for (const Handler& row : kHandlers)
    m_commands->SetEnabled(row.command, row.run != &CCalendarFrame::OnNotYet);
  UpdateTitle();
  m_dialog->Refresh(false);
  m_dialog->FocusMonth();
}

// What is stored goes into the live records here, and nowhere else at start-up.
void CCalendarFrame::TakeSettings() {
  StoredSettings stored = ReadSettings(m_doors.store, m_doors.calendars, VirtualScreen(), m_doors.locale);
  Display() = std::move(stored.display);
  Rules() = stored.rules;
  Content() = std::move(stored.content);
}

void CCalendarFrame::UpdateTitle() {
  const std::u16string_view name = Display().calendarName.View();
  QString title = name == kDefaultCalendarName || name.empty() ? TableText(kTextProgramName)
                                                               : TableText(kTextCalendarTitle, {name});
  // The toolkit puts its mark of unsaved changes in the place of this, unless it stands twice.
  setWindowTitle(title.replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

void CCalendarFrame::Open() {
  WindowLayout& layout = Display().mainLayout;
  layout.rightPaneWidth = m_dialog->PaneWidth();
  // The stored rectangle always holds the pane.
  const int hidden = m_dialog->IsPaneShown() ? 0 : m_dialog->PaneWidth();
  m_wanted = QRect(layout.rect.left, layout.rect.top, layout.rect.Width() - hidden, layout.rect.Height());
  if (const QScreen* const screen = QGuiApplication::primaryScreen(); screen && !IsWithinReach(m_wanted)) {
    const Rect fitted = FitRectToScreen(ToRect(m_wanted), ToRect(screen->availableGeometry()));
    m_wanted = ToQRect(fitted);
  }
  move(m_wanted.topLeft());
  resize(m_wanted.size());
  m_openedSize = size();
  if (layout.maximized != 0) {
    showMaximized();
  } else {
    show();
  }
}

bool CCalendarFrame::HasNormalSize() const { return !isMaximized() && !isMinimized() && !isFullScreen(); }

void CCalendarFrame::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!m_isFitted)
    for (const int wait : kMarginChecks) QTimer::singleShot(wait, this, &CCalendarFrame::CorrectFrame);
}

void CCalendarFrame::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  // A slow window manager's margins are known by now.
  if (!m_isFitted && isVisible()) QTimer::singleShot(0, this, &CCalendarFrame::CorrectFrame);
}

// Rectangles are stored with the frame and set without it. Its margins are known only now: they are taken off
// once, unless somebody has resized the window meanwhile.
void CCalendarFrame::CorrectFrame() {
  if (!isVisible() || !HasNormalSize()) return;
  const QRect frame = frameGeometry();
  const QRect inside = geometry();
  const QMargins margins(inside.left() - frame.left(), inside.top() - frame.top(),
                         frame.right() - inside.right(), frame.bottom() - inside.bottom());
  if (margins.isNull()) return;
  m_margins = margins;
  if (std::exchange(m_isFitted, true)) return;
  // Some window managers take the first position for that of the inside.
  if (inside.topLeft() == m_wanted.topLeft()) move(m_wanted.topLeft());
  if (size() == m_openedSize) resize(m_wanted.marginsRemoved(margins).size());
}

void CCalendarFrame::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && m_dialog != nullptr) m_dialog->ThemeChanged();
  if (event->type() != QEvent::WindowStateChange || !HasNormalSize()) return;
  // The size that the window is put back to comes a moment later.
  QTimer::singleShot(kMarginChecks[1], this, &CCalendarFrame::SettleNormalWidth);
}

void CCalendarFrame::SettleNormalWidth() {
  if (!HasNormalSize()) return;
  CorrectFrame();  // as it was opened; what the pane changed since comes on top
  if (const int owed = std::exchange(m_owedWidth, 0); owed != 0) resize(width() + owed, height());
}

ClosingFrame CCalendarFrame::State() const {
  ClosingFrame state;
  state.maximized = isMaximized();
  state.minimized = isMinimized();
  state.paneShown = m_dialog->IsPaneShown();
  state.paneWidth = m_dialog->PaneWidth();
  QRect frame = frameGeometry();
  if (!HasNormalSize()) {
    // A window that was never seen in its normal size keeps the one that is stored.
    if (m_margins.isNull() && !normalGeometry().isValid()) return state;
    frame = normalGeometry().marginsAdded(m_margins);
    frame.setWidth(frame.width() + m_owedWidth);
  }
  state.rect = ToRect(frame);
  return state;
}

void CCalendarFrame::closeEvent(QCloseEvent* event) {
  SaveMainWindowLayout(m_doors.store, Display().mainLayout, State(), VirtualScreen());
  QMainWindow::closeEvent(event);
}

void CCalendarFrame::Raise(const std::string& token) {
  const CScopedActivationToken scope(token);
  setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
  show();
  raise();
  activateWindow();
}

QString CCalendarFrame::StatusText() const { return m_description->text(); }

void CCalendarFrame::RunCommand(CommandId command) {
  const Handler* const handler = HandlerOf(command);
  if (handler == nullptr) return;
  (this->*handler->run)();
  UpdateCommands();
}

void CCalendarFrame::UpdateCommands() {
  m_commands->SetChecked(kCmdToggleToolBar, m_toolBar->isVisibleTo(this));
  m_commands->SetChecked(kCmdToggleStatusBar, Display().mainLayout.statusBarShown != 0);
  m_commands->SetChecked(kCmdTogglePane, m_dialog->IsPaneShown());
  m_commands->SetEnabled(kCmdCopyRepublicanDate, !m_dialog->RepublicanText().isEmpty());
  m_commands->SetEnabled(kCmdGoBack, m_dialog->History().CanGoBack());
  m_commands->SetEnabled(kCmdGoForward, m_dialog->History().CanGoForward());
}

void CCalendarFrame::OnDateShown(const QString& description) {
  m_description->setText(description);
  UpdateCommands();
}

void CCalendarFrame::OnNotYet() { Messages().Beep(); }

void CCalendarFrame::OnCopyDate() { CopyTextToClipboard(ToQString(LongDate(Selected(), false))); }

void CCalendarFrame::OnCopyJulianDate() { CopyTextToClipboard(m_dialog->JulianText()); }

void CCalendarFrame::OnCopyRepublicanDate() { CopyTextToClipboard(m_dialog->RepublicanText()); }

void CCalendarFrame::OnToggleToolBar() { m_toolBar->setVisible(!m_toolBar->isVisibleTo(this)); }

void CCalendarFrame::OnToggleStatusBar() {
  std::uint8_t& isShown = Display().mainLayout.statusBarShown;
  isShown = isShown != 0 ? 0 : 1;
  statusBar()->setVisible(isShown != 0);
}

// The frame takes or gives the room of the pane, so that the month stays as it is.
void CCalendarFrame::OnTogglePane() {
  const bool isShown = !m_dialog->IsPaneShown();
  const int change = isShown ? m_dialog->PaneWidth() : -m_dialog->PaneWidth();
  Display().mainLayout.rightPaneShown = isShown ? 1 : 0;
  if (!HasNormalSize()) {
    m_owedWidth += change;  // for the normal size
    m_dialog->ShowPane(isShown);
    return;
  }
  const int newWidth = width() + change;
  if (isShown) resize(newWidth, height());
  m_dialog->ShowPane(isShown);
  layout()->activate();  // the smallest size follows the pane
  resize(newWidth, height());
}

void CCalendarFrame::OnGoBack() { m_dialog->GoBack(); }

void CCalendarFrame::OnGoForward() { m_dialog->GoForward(); }

void CCalendarFrame::OnQuit() { close(); }

}  // namespace orbisol

#include "ui/print/print_frame.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>
#include <initializer_list>
#include <iterator>

#include "content/calendar_content.h"
#include "resources/help/help_pages.h"
#include "resources/menus.h"
#include "resources/strings.h"
#include "settings/display_settings.h"
#include "settings/settings_persistence.h"
#include "ui/print/menu_button.h"
#include "ui/print/page_spoken.h"
#include "ui/print/print_years_dlg.h"
#include "ui/toolkit/elided_label.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/picture_chooser.h"
#include "ui/toolkit/picture_reader.h"
#include "ui/toolkit/plain_text.h"
#include "ui/toolkit/spoken_notice.h"
#include "ui/window/help.h"

namespace orbisol {
namespace {

constexpr int kToolIconSize = 22;
constexpr int kStatusIndent = 5;     // pixels left of the status text
constexpr int kEndShown = 10000;     // milliseconds for which the end of a job is told
constexpr int kOwnSize = 100;        // percentage at which the page has the size of the paper
constexpr double kMarginWidth = 10;  // at first, in millimetres
constexpr QSize kLargestPicture(4000, 4000);

enum NamesText { kPeriodName, kFormatName };  // indices of its pieces

// Commands of which one at most is checked, each row for itself.
const std::initializer_list<CommandId> kOneOf[] = {
    {kCmdPeriodYear, kCmdPeriodHalf1, kCmdPeriodHalf2, kCmdPeriodQuarter1, kCmdPeriodQuarter2,
     kCmdPeriodQuarter3, kCmdPeriodQuarter4, kCmdPeriodMonth},
    {kCmdFormatYear, kCmdFormatHalf, kCmdFormatQuarter, kCmdFormatMonth, kCmdFormatTable, kCmdFormatScreen},
    {kCmdFitPage, kCmdActualSize, kCmdFitWidth},
};

// Returns whether a format has more to show side by side than one above the other.
bool IsWide(int formatCommand) {
  return formatCommand == kCmdFormatYear || formatCommand == kCmdFormatHalf ||
         formatCommand == kCmdFormatTable || formatCommand == kCmdFormatScreen;
}

bool IsPeriod(CommandId command) { return command >= kCmdPeriodMonth && command <= kCmdPeriodYear; }
bool IsFormat(CommandId command) { return command >= kCmdFormatYear && command <= kCmdFormatTable; }

// Returns the action of the menu bar that opens the menu with a command.
QMenu* MenuWith(const QMenuBar& bar, const QAction* action) {
  for (const QAction* const title : bar.actions())
    if (title->menu()->actions().contains(action)) return title->menu();
  return nullptr;
}

}  // namespace

const CPrintFrame::Handler CPrintFrame::kHandlers[] = {
    {kCmdPageSetup, &CPrintFrame::OnPageSetup},
    {kCmdPrintPages, &CPrintFrame::OnPrint},
    {kCmdExportPdf, &CPrintFrame::OnExport},
    {kCmdPrintYears, &CPrintFrame::OnYears},
    {kCmdClosePrint, &CPrintFrame::OnClose},
    {kCmdToggleToolBar, &CPrintFrame::OnToggleToolBar},
    {kCmdToggleStatusBar, &CPrintFrame::OnToggleStatusBar},
    {kCmdFirstPage, &CPrintFrame::OnFirstPage},
    {kCmdPreviousPage, &CPrintFrame::OnPreviousPage},
    {kCmdNextPage, &CPrintFrame::OnNextPage},
    {kCmdLastPage, &CPrintFrame::OnLastPage},
    {kCmdZoomIn, &CPrintFrame::OnZoomIn},
    {kCmdZoomOut, &CPrintFrame::OnZoomOut},
    {kCmdFitPage, &CPrintFrame::OnFitPage},
    {kCmdActualSize, &CPrintFrame::OnActualSize},
    {kCmdFitWidth, &CPrintFrame::OnFitWidth},
    {kCmdPrintImage, &CPrintFrame::OnImage},
    {kCmdHelpPrinting, &CPrintFrame::OnHelp},
};

CPrintFrame::CPrintFrame(SettingsStore& store, int year, int month)
    : m_store(store),
      m_job(year, month),
      m_paper(QPageSize(QPageSize::A4), QPageLayout::Landscape,
              QMarginsF(kMarginWidth, kMarginWidth, kMarginWidth, kMarginWidth), QPageLayout::Millimeter),
      m_commands(new CCommandTable(this, [this](CommandId command) { RunCommand(command); })),
      m_placement(new CFramePlacement(*this)),
      m_output(new CPrintOutput(*this)),
      m_view(new CPrtView),
      m_caption(new CElidedLabel),
      m_zoom(new QLabel) {
  setWindowTitle(TableText(kTextPrintTitle));
  setContextMenuPolicy(Qt::NoContextMenu);  // the toolkit's menu would hide bars without our check marks
  m_commands->FillMenuBar(*menuBar(), PrintMenu());
  for (const auto& row : kOneOf) {
    auto* const group = new QActionGroup(this);
    for (const CommandId command : row) group->addAction(m_commands->Action(command));
  }
  // Keyboards whose plus sign needs the shift key have it on that of "=".
  QAction& zoomIn = *m_commands->Action(kCmdZoomIn);
  zoomIn.setShortcuts({zoomIn.shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
  MakeToolBar();
  MakeStatusBar();
  setCentralWidget(m_view);
  connect(m_view, &CPrtView::zoomChanged, this, &CPrintFrame::ShowZoom);
  connect(m_view, &CPrtView::pageTurned, this, &CPrintFrame::TurnPage);
  connect(m_output, &CPrintOutput::ended, this, &CPrintFrame::TellEnd);
  connect(&m_background, &CBackgroundPicture::arrived, this, &CPrintFrame::ShowJob);
  m_background.Load(Display());
  ShowJob();
  m_view->setFocus();
}

CPrintFrame::~CPrintFrame() = default;

void CPrintFrame::MakeToolBar() {
  m_toolBar = addToolBar(TableText(kTextToolBarName));
  m_toolBar->setMovable(false);
  m_toolBar->setIconSize({kToolIconSize, kToolIconSize});
  m_commands->FillToolBar(*m_toolBar, PrintToolBar());
  m_toolBar->addSeparator();
  m_period = AddMenuButton(kCmdPeriodMonth, TablePiece(kTextPrintNames, kPeriodName));
  m_format = AddMenuButton(kCmdFormatMonth, TablePiece(kTextPrintNames, kFormatName));
}

// Adds a button that shows what is checked in the menu with `command` and opens that menu.
CMenuButton* CPrintFrame::AddMenuButton(CommandId command, const QString& name) {
  auto* const button = new CMenuButton(MenuWith(*menuBar(), m_commands->Action(command)), name);
  m_toolBar->addWidget(button);
  return button;
}

void CPrintFrame::MakeStatusBar() {
  statusBar()->setContentsMargins(kStatusIndent, 0, 0, 0);
  statusBar()->addWidget(m_caption, 1);
  statusBar()->addPermanentWidget(m_zoom);
  statusBar()->setVisible(Display().printLayout.statusBarShown);
  connect(statusBar(), &QStatusBar::messageChanged, this, [this](const QString& text) {
    if (text.isEmpty()) statusBar()->setVisible(Display().printLayout.statusBarShown);
  });
}

// Tells how a job ended: in the status bar, which appears for that where it is hidden, and aloud.
void CPrintFrame::TellEnd(const QString& text) {
  statusBar()->show();
  statusBar()->showMessage(text, kEndShown);
  SayAloud(*this, text);
}

void CPrintFrame::Open() {
  const WindowLayout& layout = Display().printLayout;
  m_placement->Open(ToQRect(layout.rect), layout.maximized);
  m_background.Read();
  Raise();
}

void CPrintFrame::Raise() {
  setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
  show();
  raise();
  activateWindow();
}

void CPrintFrame::StoreLayout() {
  SavePrintWindowLayout(m_store, Display().printLayout, m_placement->Closing(), VirtualScreen());
}

void CPrintFrame::CalendarChanged() {
  m_background.Load(Display());
  m_background.Read();
  ShowJob();
}

QString CPrintFrame::StatusText() const { return m_caption->text(); }

bool CPrintFrame::RunHandler(CommandId command) {
  const auto* const found = std::find_if(std::begin(kHandlers), std::end(kHandlers),
                                         [&](const Handler& row) { return row.command == command; });
  if (found == std::end(kHandlers)) return false;
  (this->*found->run)();
  return true;
}

void CPrintFrame::RunJobCommand(CommandId command) {
  if (IsPeriod(command)) {
    m_job.ChoosePeriod(command);
  } else if (IsFormat(command)) {
    m_job.ChooseFormat(command);
    ProposeOrientation();
  } else {
    m_job.ToggleOption(command);
  }
  ShowJob();
}

// A command may close the frame, or open a dialog during which it is closed.
void CPrintFrame::RunCommand(CommandId command) {
  if (m_isClosed || m_output->IsRunning()) return;
  ++m_running;
  if (!RunHandler(command)) RunJobCommand(command);
  --m_running;
  if (!m_isClosed)
    UpdateCommands();
  else if (m_running == 0)
    deleteLater();
}

void CPrintFrame::closeEvent(QCloseEvent* event) {
  QMainWindow::closeEvent(event);
  if (m_isClosed) return;
  m_isClosed = true;
  StoreLayout();
  m_output->Abort();
  CloseDialogs();
  emit closed();
  if (m_running == 0) deleteLater();
}

// Cancels the dialogs of this window, the innermost first.
void CPrintFrame::CloseDialogs() {
  const auto isOwn = [&](const QWidget* widget) {
    while (widget != nullptr && widget != this) widget = widget->parentWidget();
    return widget == this;
  };
  while (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
    if (!isOwn(dialog)) return;
    dialog->reject();
    if (dialog->isVisible()) return;  // one that refuses to go keeps those around it
  }
}

void CPrintFrame::ProposeOrientation() {
  if (m_hasOwnOrientation) return;
  m_paper.setOrientation(IsWide(m_job.formatCommand) ? QPageLayout::Landscape : QPageLayout::Portrait);
}

CPagePainter CPrintFrame::Pages(const PrintJob& job) const {
  return {job, {Content(), Display(), Rules(), m_background.Picture(), m_image, font()}};
}

// Shows the pages anew, after anything but the page to show has changed.
void CPrintFrame::ShowJob() {
  m_pages = std::make_shared<const CPagePainter>(Pages(m_job));
  ShowPage();
}

void CPrintFrame::ShowPage() {
  const int page = m_job.currentPage;
  const PageSpace space = SpaceOf(m_paper, kPrintResolution);
  m_view->SetPage({m_paper.fullRectPixels(kPrintResolution).size(), kPrintResolution},
                  [pages = m_pages, page, space](QPainter& painter) { pages->Paint(painter, page, space); });
  m_caption->setText(ToQString(m_job.Caption(page)));
  m_view->setAccessibleName(ToQString(SpokenPageName(m_job)));
  m_view->setAccessibleDescription(ToQString(SpokenPage(m_job, Content())));
  UpdateCommands();
}

void CPrintFrame::ShowZoom() {
  m_zoom->setText(TableText(kTextPrintZoom, {m_view->Percent()}));
  UpdateCommands();
}

void CPrintFrame::UpdateCommands() {
  for (const Menu& menu : PrintMenu()) {
    for (const MenuItem& item : menu.items) {
      m_commands->SetEnabled(item.command, m_job.IsEnabled(item.command));
      m_commands->SetChecked(item.command, m_job.IsChecked(item.command));
    }
  }
  m_commands->SetEnabled(kCmdFirstPage, m_job.IsEnabled(kCmdPreviousPage));
  m_commands->SetEnabled(kCmdLastPage, m_job.IsEnabled(kCmdNextPage));
  m_commands->SetEnabled(kCmdZoomIn, m_view->Percent() < CPrtView::kMostPercent);
  m_commands->SetEnabled(kCmdZoomOut, m_view->Percent() > CPrtView::kLeastPercent);
  m_commands->SetChecked(kCmdFitPage, m_view->Zoom() == CPrtView::kFitPage);
  m_commands->SetChecked(kCmdFitWidth, m_view->Zoom() == CPrtView::kFitWidth);
  m_commands->SetChecked(kCmdActualSize, m_view->Zoom() == kOwnSize);
  m_commands->SetChecked(kCmdToggleToolBar, m_toolBar->isVisibleTo(this));
  m_commands->SetChecked(kCmdToggleStatusBar, Display().printLayout.statusBarShown);
  m_period->Show(m_commands->Action(static_cast<CommandId>(m_job.periodCommand))->text());
  m_format->Show(m_commands->Action(static_cast<CommandId>(m_job.formatCommand))->text());
}

void CPrintFrame::OnPageSetup() {
  const QPageLayout::Orientation before = m_paper.orientation();
  if (!m_output->SetUpPage(m_paper) || m_isClosed) return;
  if (m_paper.orientation() != before) m_hasOwnOrientation = true;
  ShowPage();
}

void CPrintFrame::OnPrint() { Print(m_job); }

void CPrintFrame::Print(const PrintJob& job) {
  const QPageLayout before = m_paper;
  m_output->Print(Pages(job), m_paper, ProposedName(job, Display().calendarName.View()));
  if (m_isClosed || m_paper == before) return;
  if (m_paper.orientation() != before.orientation()) m_hasOwnOrientation = true;
  ShowPage();
}

void CPrintFrame::OnExport() { Export(m_job); }

void CPrintFrame::Export(const PrintJob& job) {
  m_output->Export(Pages(job), m_paper, ProposedName(job, Display().calendarName.View()));
}

void CPrintFrame::OnYears() {
  CPrintYearsDlg dialog(m_job, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const PrintJob job = m_job.WithYears(dialog.FirstYear(), dialog.LastYear());
  if (dialog.IsForPrinter())
    Print(job);
  else
    Export(job);
}

void CPrintFrame::OnClose() { close(); }

void CPrintFrame::OnToggleToolBar() { m_toolBar->setVisible(!m_toolBar->isVisibleTo(this)); }

void CPrintFrame::OnToggleStatusBar() {
  bool& isShown = Display().printLayout.statusBarShown;
  isShown = !isShown;
  statusBar()->setVisible(isShown);
}

void CPrintFrame::OnZoomIn() { m_view->ZoomIn(); }
void CPrintFrame::OnZoomOut() { m_view->ZoomOut(); }
void CPrintFrame::OnFitPage() { m_view->SetZoom(CPrtView::kFitPage); }
void CPrintFrame::OnFitWidth() { m_view->SetZoom(CPrtView::kFitWidth); }
void CPrintFrame::OnActualSize() { m_view->SetZoom(kOwnSize); }

void CPrintFrame::TurnPage(int step) {
  const int page = m_job.currentPage + step;
  if (page < 0 || page >= m_job.PageCount()) return;
  m_job.ShowPage(page);
  ShowPage();
  if (step < 0)
    m_view->ShowBottom();
  else
    m_view->ShowTop();
  SayAloud(*this, m_view->accessibleName() + QStringLiteral(". ") + m_view->accessibleDescription());
}

void CPrintFrame::OnFirstPage() { TurnPage(-m_job.currentPage); }
void CPrintFrame::OnPreviousPage() { TurnPage(-1); }
void CPrintFrame::OnNextPage() { TurnPage(1); }
void CPrintFrame::OnLastPage() { TurnPage(m_job.PageCount() - 1 - m_job.currentPage); }

// Turns the inserted picture off, or asks for its file. A file that is no picture leaves it off.
void CPrintFrame::OnImage() {
  if (!m_job.IsEnabled(kCmdPrintImage)) return;
  if (m_job.Has(kImageOption)) {
    m_image = QImage();
  } else {
    const QString path = AskPicture(this);
    if (path.isEmpty() || m_isClosed) return;
    const PictureFile file = ReadPicture(path, kLargestPicture);
    if (file.fault != PictureFault::kNone) {
      Messages().ShowError(this, PictureFaultText(file.fault));
      return;
    }
    m_image = file.image;
  }
  m_job.ToggleOption(kCmdPrintImage);
  ShowJob();
}

void CPrintFrame::OnHelp() { ShowHelp(kHelpPrinting); }

}  // namespace orbisol

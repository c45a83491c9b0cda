#include "ui/shell/main_dlg.h"

#include <QEvent>
#include <QFontInfo>
#include <QScreen>

#include <algorithm>

#include "content/calendar_content.h"
#include "content/reform_note.h"
#include "content/selected_date.h"
#include "resources/strings.h"
#include "ui/shell/status_text.h"
#include "ui/toolkit/calendar_group.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

// Least sizes at which the month is still easy to read, in units of the font's size (its em).
constexpr double kLeastColumnWidth = 4.7;
constexpr double kLeastHeight = 25;

constexpr int kTitleBar = 36;  // pixels that a window's own title may take from the height of the screen

}  // namespace

CMainDlg::CMainDlg(bool isPaneShown, QWidget* parent)
    : QWidget(parent),
      m_isPaneShown(isPaneShown),
      m_group(new CCalendarGroup(TableText(kTextGregorianGroup), this)),
      m_header(new CHeaderWnd(this)),
      m_month(new CMonthWindow(this)),
      m_separator(new QWidget(this)),
      m_pane(new CConverterPane(this)) {
  m_separator->setAutoFillBackground(true);
  setAutoFillBackground(true);
  m_pane->setVisible(isPaneShown);
  m_separator->setVisible(isPaneShown);
  ApplyColors();
  Measure();

  connect(m_header, &CHeaderWnd::dateChanged, this, &CMainDlg::Refresh);
  // Each move enters the history at once; showing it everywhere waits until pending keys have been handled.
  connect(m_month, &CMonthWindow::dateMoved, this, &CMainDlg::Visit);
  connect(m_month, &CMonthWindow::dateMoved, this, &CMainDlg::Refresh, Qt::QueuedConnection);
  connect(m_month, &CMonthWindow::dateDragged, this, [this] { Refresh(DateMove::kStep); });
  connect(m_month, &CMonthWindow::periodChosen, this, &CMainDlg::periodChosen);
  connect(m_month, &CMonthWindow::dayOpened, this, &CMainDlg::dayOpened);
  connect(m_pane, &CConverterPane::dateChanged, this, [this] { Refresh(); });
  connect(m_pane, &CConverterPane::focusGivenUp, this, &CMainDlg::FocusMonth);
  connect(m_pane, &CConverterPane::listShown, this, [this] { emit dateShown(Description()); });
}

void CMainDlg::Visit(DateMove move) { m_history.Visit(Selected().Packed(), move); }

void CMainDlg::ApplyColors() {
  const QColor ground = ToQColor(Display().ColorAt(kColorBgCal));
  const QColor ink = ToQColor(Display().ColorAt(kColorCalHeader));
  // Fields and buttons are derived from the calendar's ground, so that they suit it under every theme.
  QPalette colors(ground, ground);
  colors.setColor(QPalette::Active, QPalette::WindowText, ink);
  colors.setColor(QPalette::Inactive, QPalette::WindowText, ink);
  colors.setColor(QPalette::Highlight, ToQColor(kHighlightColor));
  colors.setColor(QPalette::HighlightedText, ToQColor(kHighlightTextColor));
  colors.setColor(QPalette::PlaceholderText, NoteColor(colors, QPalette::Base));
  setPalette(colors);
  QPalette line;
  line.setColor(QPalette::Window, LineColor(*this));
  m_separator->setPalette(line);
}

// Returns the size that the dialog can have when its window fills the screen.
QSize CMainDlg::Room() const {
  const int bars = isWindow() ? 0 : window()->minimumSizeHint().height() - minimumHeight();
  return screen()->availableSize() - QSize(0, bars + kTitleBar);
}

void CMainDlg::Measure() {
  const QSize room = Room();
  const int em = QFontInfo(font()).pixelSize();
  const int around = 2 * (kMargin + kGap);
  const int texts = m_header->minimumSizeHint().width() + around;
  const int month = std::max(qRound(kLeastColumnWidth * em) * kDayColumns + around, texts);
  // If the two do not fit side by side, first the month shrinks to its least width, then the pane, which
  // scrolls.
  m_paneWidth = RoundPaneWidthUp(m_pane->sizeHint().width());
  if (texts + m_paneWidth > room.width()) m_paneWidth = RoundPaneWidthDown(room.width() - texts);

  int width = month;
  const int height = std::max(qRound(kLeastHeight * em), kHeaderShare * m_header->minimumSizeHint().height());
  if (m_isPaneShown) width += m_paneWidth;  // it needs no least height, because it scrolls
  const QSize least = QSize(width, height).boundedTo(room);
  setMinimumSize(least.width(), EvenHeight(least.height()));
}

int CMainDlg::HeaderTop() const { return kTopMargin + m_group->ContentTop(); }

int CMainDlg::EvenHeight(int height) const {
  return orbisol::EvenHeight(height, HeaderTop(), m_header->minimumSizeHint().height());
}

void CMainDlg::LayOut() {
  MainMeasures measures;
  measures.width = width();
  measures.height = height();
  measures.headerTop = HeaderTop();
  measures.leastHeader = m_header->minimumSizeHint().height();
  measures.weekNumbers = Display().showWeekNumber;
  measures.paneShown = m_isPaneShown;
  measures.paneWidth = m_paneWidth;
  const MainLayout places = LayOutMain(measures);
  m_group->setGeometry(ToQRect(places.group));
  m_header->setGeometry(ToQRect(places.header));
  m_month->setGeometry(ToQRect(places.grid));
  m_separator->setGeometry(ToQRect(places.separator));
  m_pane->setGeometry(ToQRect(places.pane));
}

void CMainDlg::resizeEvent(QResizeEvent*) { LayOut(); }

void CMainDlg::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    Measure();
    LayOut();
  }
}

void CMainDlg::ShowPane(bool isShown) {
  if (isShown == m_isPaneShown) return;
  m_isPaneShown = isShown;
  // Tab must not reach a pane that is not seen.
  m_pane->setVisible(isShown);
  m_separator->setVisible(isShown);
  Measure();
  LayOut();
  FocusMonth();
  emit dateShown(Description());
}

void CMainDlg::FocusMonth() { m_month->setFocus(Qt::OtherFocusReason); }

QString CMainDlg::Description() {
  StatusFacts facts{.date = Selected(),
                    .range = m_month->RangeText(),
                    .withoutDate = Display().tipsForEventsOnly,
                    .namesNextHoliday = !m_isPaneShown || !m_pane->NamesHolidayFrom(Selected().Packed())};
  if (const int cell = m_month->SelectedCell(); cell != kNoCell)
    facts.day = &m_month->Month().cells[static_cast<std::size_t>(cell)];
  return ToQString(StatusText(facts, Content().dayEvents));
}

void CMainDlg::Refresh(DateMove move) {
  Visit(move);
  m_month->Refresh();
  m_group->SetNote(ToQString(ReformNote(Selected().year, Selected().month)));
  m_header->Refresh();
  m_pane->Refresh();
  m_pane->ShowMonth(m_month->Month());
  emit dateShown(Description());
}

void CMainDlg::SettingsChanged() {
  ApplyColors();
  m_month->SettingsChanged();
  m_pane->SettingsChanged();
  Measure();
  LayOut();
  Refresh();
  update();
}

void CMainDlg::GoBack() {
  if (const PackedDate date = m_history.Back()) {
    Selected().SetPacked(date);
    Refresh();
  }
}

void CMainDlg::GoForward() {
  if (const PackedDate date = m_history.Forward()) {
    Selected().SetPacked(date);
    Refresh();
  }
}

}  // namespace orbisol

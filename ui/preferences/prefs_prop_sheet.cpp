#include "ui/preferences/prefs_prop_sheet.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

#include "content/calendar_content.h"
#include "resources/strings.h"
#include "ui/preferences/pref_cal_win.h"
#include "ui/preferences/prefs_colors_page.h"
#include "ui/preferences/prefs_general_page.h"
#include "ui/preferences/prefs_screen_page.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/help.h"

namespace orbisol {
namespace {

enum SheetText { kSheetTitle, kFirstPageName, kTreeName = 4 };  // pieces of kTextPreferences

constexpr int kTreeChars = 16;

// Returns settings as they are to be in force: edited ones, with windows, name and unsaved lists as they are.
DisplaySettings WithLive(const DisplaySettings& edited, const DisplaySettings& live) {
  DisplaySettings settings = edited;
  settings.mainLayout = live.mainLayout;
  settings.printLayout = live.printLayout;
  settings.calendarName = live.calendarName;
  settings.calendarPath = live.calendarPath;
  return settings;
}

}  // namespace

CPrefsPropSheet::CPrefsPropSheet(const SavePlaces& places, QWidget* parent)
    : QDialog(parent),
      m_places(places),
      m_edited(ReadPreferences(places.store, places.calendars, Display(), Rules())),
      m_colors(new CPrefsColorsPage(m_edited)),
      m_tree(new QTreeWidget),
      m_pages(new QStackedWidget),
      m_preview(new CPrefCalWin(m_edited)) {
  setWindowTitle(TablePiece(kTextPreferences, kSheetTitle));
  m_pages->addWidget(new CPrefsGeneralPage(m_edited));
  m_pages->addWidget(new CPrefsScreenPage(m_edited));
  m_pages->addWidget(m_colors);
  for (int i = 0; i < kPageCount; ++i)
    connect(&Page(i), &CPrefsPage::settingsChanged, this, &CPrefsPropSheet::OnChanged);
  connect(m_preview, &CPrefCalWin::elementClicked, m_colors, &CPrefsColorsPage::EditElement);
  auto* const grid = new QGridLayout(this);
  grid->addWidget(m_tree, 0, 0);
  auto* const area = new QScrollArea;
  area->setWidget(m_pages);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  grid->addWidget(area, 0, 1);
  grid->addWidget(m_preview, 0, 2);
  grid->setColumnStretch(2, 1);
  MakeTree();
  MakeButtons();
  ShowPage(kConfigurationPage);
  FitScreen(*area);
}

// Gives the sheet its first size, in which the pages are seen whole. Where the screen is too small for that
// the preview gives way first, then the pages are scrolled.
void CPrefsPropSheet::FitScreen(QScrollArea& area) {
  constexpr int kLeastPreview = 3;  // it may become so many times smaller than it reads well
  ensurePolished();
  const int bar = area.verticalScrollBar()->sizeHint().width();
  const QSize least = m_pages->minimumSizeHint();
  area.setMinimumSize(least.width() + bar, std::max(least.height(), m_pages->heightForWidth(least.width())));
  const QSize whole = minimumSizeHint();
  const QSize free = screen()->availableSize();
  const QSize room(free.width() * 19 / 20, free.height() * 9 / 10);  // a frame stands around it
  const QSize preview = m_preview->minimumSize();
  const QSize given = preview - preview / kLeastPreview;
  if (whole.width() > room.width() || whole.height() > room.height()) {
    m_preview->setMinimumSize(preview / kLeastPreview);
    const QSize others(whole.width() - area.minimumWidth() - given.width(),
                       whole.height() - area.minimumHeight());
    area.setMinimumSize(area.minimumSize().boundedTo(room - others).expandedTo({bar, bar}));
  }
  resize(sizeHint().boundedTo(room).expandedTo(minimumSizeHint()));
}

CPrefsPage& CPrefsPropSheet::Page(int index) { return *static_cast<CPrefsPage*>(m_pages->widget(index)); }

void CPrefsPropSheet::MakeTree() {
  for (int i = 0; i < kPageCount; ++i)
    new QTreeWidgetItem(m_tree, {TablePiece(kTextPreferences, kFirstPageName + i)});
  m_tree->setHeaderHidden(true);
  m_tree->setRootIsDecorated(false);
  m_tree->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_tree->setFixedWidth(m_tree->fontMetrics().averageCharWidth() * kTreeChars);
  m_tree->setAccessibleName(TablePiece(kTextPreferences, kTreeName));
  connect(m_tree, &QTreeWidget::currentItemChanged, this,
          [this](QTreeWidgetItem* item) { Show(static_cast<PageIndex>(m_tree->indexOfTopLevelItem(item))); });
}

void CPrefsPropSheet::MakeButtons() {
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                             QDialogButtonBox::Apply | QDialogButtonBox::Help);
  static_cast<QGridLayout*>(layout())->addWidget(buttons, 1, 0, 1, 3);
  m_apply = buttons->button(QDialogButtonBox::Apply);
  m_apply->setEnabled(false);
  buttons->button(QDialogButtonBox::Ok)->setDefault(true);
  const auto help = [this] { ShowHelp(static_cast<CPrefsPage*>(m_pages->currentWidget())->Help()); };
  connect(buttons, &QDialogButtonBox::accepted, this, &CPrefsPropSheet::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &CPrefsPropSheet::reject);
  connect(buttons, &QDialogButtonBox::helpRequested, this, help);
  connect(m_apply, &QPushButton::clicked, this, &CPrefsPropSheet::Apply);
  connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this, help);
}

void CPrefsPropSheet::ShowPage(PageIndex page) { m_tree->setCurrentItem(m_tree->topLevelItem(page)); }

void CPrefsPropSheet::Show(PageIndex page) {
  m_pages->setCurrentIndex(page);
  Page(page).Activate();
  m_preview->SetSample(page == kConfigurationPage ? SampleKind::kReform : SampleKind::kElements);
  m_preview->SetClickable(page == kColorsPage);
}

void CPrefsPropSheet::OnChanged() {
  m_apply->setEnabled(true);
  m_preview->SettingsChanged();
}

bool CPrefsPropSheet::Apply() {
  for (int i = 0; i < kPageCount; ++i) {
    QWidget* const faulty = Page(i).FaultyField();
    if (faulty == nullptr) continue;
    ShowPage(static_cast<PageIndex>(i));
    faulty->setFocus(Qt::OtherFocusReason);
    Messages().Beep();
    return false;
  }
  m_applied = m_edited;
  m_applied->display.changed = true;
  m_apply->setEnabled(false);
  return true;
}

void CPrefsPropSheet::accept() {
  if (Apply()) QDialog::accept();
}

void CPrefsPropSheet::done(int result) {
  if (m_applied && !Save()) {
    m_applied.reset();  // a second "Annuler" closes; the pages hold all that was applied
    m_apply->setEnabled(true);
    return;
  }
  QDialog::done(result);
}

bool CPrefsPropSheet::KeepUnsaved() {
  if (!m_applied) return true;
  DisplaySettings settings = WithLive(m_applied->display, Display());
  const KeptEnd end = SaveUnasked(m_places, settings, m_applied->rules, Content());
  if (end == KeptEnd::kSaved) PutAppliedInForce(settings);
  return end != KeptEnd::kNowhere;
}

// Writes what was applied, with the lists in force, and puts it in force. Returns false, with nothing
// changed, if the user was asked about the file and gave no answer.
bool CPrefsPropSheet::Save() {
  DisplaySettings settings = WithLive(m_applied->display, Display());
  SavedFromWindow saved = SaveCalendarFromWindow(this, m_places, settings, m_applied->rules, Content());
  if (saved.end == SaveEnd::kUnsaved) {
    // The key is written although the calendar's file cannot be; what is in force goes back there.
    DisplaySettings live = Display();
    if (saved.keyStored) SwitchCalendar(m_places.store, m_places.calendars, live, live.calendarName.View());
    return false;
  }
  if (saved.end == SaveEnd::kReloaded) {
    // The user wants the calendar that is in the file; the switches of the view belong to none.
    PutInForce(std::move(*saved.reloaded));
    m_applied->rules = Rules();
    settings.Look() = Display().Look();
    settings.changed = false;
    saved.keyStored =
        SwitchCalendar(m_places.store, m_places.calendars, settings, settings.calendarName.View());
  }
  PutAppliedInForce(settings);
  if (!saved.keyStored) Messages().ShowError(this, TableText(kTextSwitchesNotStored));
  return true;
}

// Puts saved settings in force, with the rules that were applied.
void CPrefsPropSheet::PutAppliedInForce(const DisplaySettings& saved) {
  Rules() = m_applied->rules;
  Display() = saved;
  m_applied.reset();
  emit settingsSaved();
}

}  // namespace orbisol

#include "ui/preferences/prefs_screen_page.h"

#include <QFontDialog>
#include <QSignalBlocker>

#include "resources/strings.h"
#include "ui/painting/month_fonts.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"
#include "ui_prefs_screen.h"

namespace orbisol {
namespace {

enum FontText { kFontTitle, kDialogFont, kFontName };  // pieces of kTextCalendarFont

constexpr int kWidthCount = 3;
constexpr int kNormalWeight = 400;

struct Switch {
  QCheckBox* Ui::PrefsScreen::*box;
  bool DisplaySettings::*field;
};
constexpr Switch kSwitches[] = {
    {&Ui::PrefsScreen::grid, &DisplaySettings::grid},
    {&Ui::PrefsScreen::weekNumbers, &DisplaySettings::showWeekNumber},
    {&Ui::PrefsScreen::cellTexts, &DisplaySettings::cellTexts},
    {&Ui::PrefsScreen::circle, &DisplaySettings::circleTheDay},
    {&Ui::PrefsScreen::fullCell, &DisplaySettings::fullCellBackground},
    {&Ui::PrefsScreen::collapse, &DisplaySettings::collapseCells},
    {&Ui::PrefsScreen::tips, &DisplaySettings::tipsForEventsOnly},
    {&Ui::PrefsScreen::magnet, &DisplaySettings::magnetMouse},
    {&Ui::PrefsScreen::picture, &DisplaySettings::backgroundImage},
};

}  // namespace

CPrefsScreenPage::CPrefsScreenPage(Preferences& edited)
    : CPrefsPage(kHelpDisplay), m_edited(edited), m_form(new Ui::PrefsScreen) {
  m_form->setupUi(this);
  for (int width = 0; width < kWidthCount; ++width)
    m_form->circleWidth->addItem(TablePiece(kTextCircleWidths, width));
  m_form->font->setAccessibleName(TablePiece(kTextCalendarFont, kFontName));
  m_form->font->setPlaceholderText(TablePiece(kTextCalendarFont, kDialogFont));
  for (const Switch& row : kSwitches)
    connect((*m_form).*row.box, &QCheckBox::toggled, this, [this, field = row.field](bool isChecked) {
      m_edited.display.*field = isChecked;
      emit settingsChanged();
    });
  // Backgrounds of single bands never touch.
  connect(m_form->fullCell, &QCheckBox::toggled, m_form->collapse, &QWidget::setEnabled);
  connect(m_form->circleWidth, &QComboBox::currentIndexChanged, this, [this](int index) {
    m_edited.display.circleWidth = std::max(index, 0) + 1;
    emit settingsChanged();
  });
  connect(m_form->picturePath, &CPictureChooser::pathChanged, this, &CPrefsScreenPage::TakePath);
  connect(m_form->chooseFont, &QPushButton::clicked, this, &CPrefsScreenPage::ChooseFont);
  connect(m_form->dialogFont, &QPushButton::clicked, this, [this] { SetFont({}, kNormalWeight); });
}

CPrefsScreenPage::~CPrefsScreenPage() = default;

void CPrefsScreenPage::Activate() {
  const DisplaySettings& display = m_edited.display;
  for (const Switch& row : kSwitches) {
    QCheckBox& box = *((*m_form).*row.box);
    const QSignalBlocker blocker(box);
    box.setChecked(display.*row.field);
  }
  m_form->collapse->setEnabled(display.fullCellBackground);
  const QSignalBlocker blocker(m_form->circleWidth);
  m_form->circleWidth->setCurrentIndex(display.CircleWidth() - 1);
  m_form->picturePath->SetPath(ToQString(display.backgroundImagePath.View()));
  ShowFont();
}

void CPrefsScreenPage::ShowFont() { m_form->font->setText(ToQString(m_edited.display.fontName.View())); }

// A path that the calendar's file cannot hold would be cut into another one.
void CPrefsScreenPage::TakePath(const QString& path) {
  FixedText<kMaxPathUnits + 1>& stored = m_edited.display.backgroundImagePath;
  if (path.size() > static_cast<qsizetype>(kMaxPathUnits)) {
    Messages().ShowError(this, TableText(kTextPathTooLong, {static_cast<long long>(kMaxPathUnits)}));
    m_form->picturePath->SetPath(ToQString(stored.View()));
    return;
  }
  stored.Set(Utf16View(path));
  emit settingsChanged();
}

void CPrefsScreenPage::ChooseFont() {
  QFont current = CalendarFont(m_edited.display, font());
  current.setPointSizeF(font().pointSizeF());
  bool isChosen = false;
  const QFont chosen = QFontDialog::getFont(
      &isChosen, current, this, TablePiece(kTextCalendarFont, kFontTitle), QFontDialog::DontUseNativeDialog);
  if (isChosen) SetFont(chosen.family(), chosen.weight());
}

void CPrefsScreenPage::SetFont(const QString& name, int weight) {
  m_edited.display.fontName.Set(Utf16View(name));
  m_edited.display.fontWeight = weight;
  ShowFont();
  emit settingsChanged();
}

}  // namespace orbisol

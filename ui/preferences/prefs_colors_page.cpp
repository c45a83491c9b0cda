#include "ui/preferences/prefs_colors_page.h"

#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>

#include "resources/strings.h"
#include "ui/preferences/caption_color_dlg.h"
#include "ui/preferences/sample_title.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/plain_text.h"
#include "ui_prefs_colors.h"

namespace orbisol {
namespace {

constexpr int kLeastAlpha = 16;  // the background never becomes invisible
constexpr int kMostAlpha = 255;
constexpr int kAlphaStep = 16;

enum ColorColumn { kForeground, kBackground, kAlphaName };  // pieces of kTextColorColumns

QString CaptionOf(ColorIndex index) { return ToQString(ColorTable()[static_cast<std::size_t>(index)].text); }

// Returns whether the background of an element has a button in its row: one that several share has it once.
bool OwnsBackground(PreviewElement element) {
  return element == kElementNormalDay || ColorsOf(element).background != kStandardBgColor;
}

QIcon Swatch(Color color, const QSize& size, qreal ratio) {
  QPixmap pixmap(size * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(ToQColor(color));
  QPainter painter(&pixmap);
  painter.setPen(ToQColor(kGreyTextColor));
  painter.drawRect(QRectF(QPointF(0, 0), size).adjusted(0.5, 0.5, -0.5, -0.5));
  return QIcon(pixmap);
}

}  // namespace

CPrefsColorsPage::CPrefsColorsPage(Preferences& edited)
    : CPrefsPage(kHelpColors), m_edited(edited), m_form(new Ui::PrefsColors) {
  m_form->setupUi(this);
  MakeButtons();
  MakePresets();
  QSlider& alpha = *m_form->alpha;
  // The keyboard goes through the page as it is read: the colors, the slider, the sets of colors.
  setTabOrder(m_form->elements->itemAt(m_form->elements->count() - 1)->widget(), &alpha);
  setTabOrder(&alpha, m_form->presets);
  alpha.setRange(kLeastAlpha, kMostAlpha);
  alpha.setTickInterval(kAlphaStep);
  alpha.setPageStep(kAlphaStep);
  alpha.setSingleStep(1);
  alpha.setAccessibleName(TablePiece(kTextColorColumns, kAlphaName));
  connect(&alpha, &QSlider::valueChanged, this, [this](int value) {
    m_edited.display.backgroundAlpha = value;
    emit settingsChanged();
  });
  connect(m_form->title, &CSampleTitle::clicked, this,
          [this](Qt::MouseButton button) { EditElement(kElementTitle, button); });
  Activate();
}

CPrefsColorsPage::~CPrefsColorsPage() = default;

// Makes a row for each element, so that every color can be reached with the keyboard.
void CPrefsColorsPage::MakeButtons() {
  for (const ColorColumn column : {kForeground, kBackground})
    m_form->elements->addWidget(new QLabel(TablePiece(kTextColorColumns, column)), 0, column + 1);
  for (int row = 0; row < kElementCount; ++row) {
    const auto element = static_cast<PreviewElement>(row);
    m_form->elements->addWidget(new QLabel(ElementName(element)), row + 1, 0);
    AddButton(row + 1, 1, ColorsOf(element).foreground);
    if (OwnsBackground(element)) AddButton(row + 1, 2, ColorsOf(element).background);
  }
}

void CPrefsColorsPage::AddButton(int row, int column, ColorIndex index) {
  auto* const button = new QPushButton;
  const QString caption = CaptionOf(index);
  button->setAccessibleName(caption);
  button->setToolTip(caption);
  const int line = fontMetrics().height();
  button->setIconSize({line * 3, line});
  connect(button, &QPushButton::clicked, this, [this, index] { Choose(index); });
  m_form->elements->addWidget(button, row, column);
  m_buttons[static_cast<std::size_t>(index)] = button;
}

void CPrefsColorsPage::MakePresets() {
  auto* const menu = new QMenu(m_form->presets);
  for (int i = 0; i < kColorPresetCount; ++i)
    connect(menu->addAction(TablePiece(kTextColorPresets, i)), &QAction::triggered, this,
            [this, preset = static_cast<ColorPreset>(i)] { TakePreset(preset); });
  m_form->presets->setMenu(menu);
}

void CPrefsColorsPage::Activate() {
  const QSignalBlocker blocker(m_form->alpha);
  m_form->alpha->setValue(m_edited.display.BackgroundAlpha());
  ShowNote();
  ShowColors();
}

void CPrefsColorsPage::ShowColors() {
  m_form->title->SetLook(m_edited.display);
  for (std::size_t i = 0; i < m_buttons.size(); ++i) {
    const Color color = m_edited.display.colors[i];
    m_buttons[i]->setIcon(Swatch(color, m_buttons[i]->iconSize(), devicePixelRatioF()));
    m_buttons[i]->setAccessibleDescription(ToQColor(color).name().toUpper());
  }
}

void CPrefsColorsPage::EditElement(PreviewElement element, Qt::MouseButton button) {
  const ElementColors colors = ColorsOf(element);
  Choose(button == Qt::LeftButton ? colors.foreground : colors.background);
}

void CPrefsColorsPage::Choose(ColorIndex index) {
  Color& color = m_edited.display.colors[static_cast<std::size_t>(index)];
  CCaptionColorDlg dialog(CaptionOf(index), color, this);
  if (dialog.exec() != QDialog::Accepted) return;
  color = dialog.Chosen();
  ShowColors();
  emit settingsChanged();
}

void CPrefsColorsPage::TakePreset(ColorPreset preset) {
  DisplaySettings& display = m_edited.display;
  display.colors = PresetColors(preset);
  if (SuitsPicture(preset)) {
    display.backgroundImage = display.backgroundImage || m_hidesPicture;
    m_hidesPicture = false;
  } else if (display.backgroundImage) {
    display.backgroundImage = false;
    m_hidesPicture = true;
  }
  ShowNote();
  ShowColors();
  emit settingsChanged();
}

// Says where the picture is, unless the user has shown it again.
void CPrefsColorsPage::ShowNote() {
  const bool isHidden = m_hidesPicture && !m_edited.display.backgroundImage;
  m_form->presetNote->setText(isHidden ? TableText(kTextPictureHidden) : QString());
}

}  // namespace orbisol

// "Couleurs": the colors of the calendar, changed by a click on an element of the preview or with the buttons
// of the page, three sets of colors, and how much of the picture the backgrounds of the days let through.
#pragma once

#include <array>
#include <memory>

#include "settings/settings_persistence.h"
#include "ui/preferences/color_presets.h"
#include "ui/preferences/prefs_page.h"
#include "ui/preferences/preview_elements.h"

class QPushButton;

namespace Ui {  // NOLINT(readability-identifier-naming): as the forms are generated
class PrefsColors;
}

namespace orbisol {

class CPrefsColorsPage : public CPrefsPage {
  Q_OBJECT

 public:
  // `edited` outlives the page.
  explicit CPrefsColorsPage(Preferences& edited);
  ~CPrefsColorsPage() override;

  void Activate() override;

  // Lets the user choose the color of an element: that of its text for the left button, else its
  // background's.
  void EditElement(PreviewElement element, Qt::MouseButton button);

 private:
  void MakeButtons();
  void MakePresets();
  void AddButton(int row, int column, ColorIndex index);
  void Choose(ColorIndex index);
  void TakePreset(ColorPreset preset);
  void ShowColors();
  void ShowNote();

  Preferences& m_edited;
  std::unique_ptr<Ui::PrefsColors> m_form;
  std::array<QPushButton*, kColorCount> m_buttons{};
  bool m_hidesPicture = false;  // whether a set took the picture away, which the light one brings back
};

}  // namespace orbisol

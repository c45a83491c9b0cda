// "Affichage": the switches of the view, its font and its picture.
#pragma once

#include <memory>

#include "settings/settings_persistence.h"
#include "ui/preferences/prefs_page.h"

namespace Ui {  // NOLINT(readability-identifier-naming): as the forms are generated
class PrefsScreen;
}

namespace orbisol {

class CPrefsScreenPage : public CPrefsPage {
  Q_OBJECT

 public:
  // `edited` outlives the page.
  explicit CPrefsScreenPage(Preferences& edited);
  ~CPrefsScreenPage() override;

  void Activate() override;

 private:
  void ChooseFont();
  void SetFont(const QString& name, int weight);
  void TakePath(const QString& path);
  void ShowFont();

  Preferences& m_edited;
  std::unique_ptr<Ui::PrefsScreen> m_form;
};

}  // namespace orbisol

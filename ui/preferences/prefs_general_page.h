// "Configuration": the rules of the calendar, with values that countries and times used to fill the fields.
#pragma once

#include <array>
#include <memory>

#include "settings/settings_persistence.h"
#include "ui/preferences/prefs_page.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace Ui {  // NOLINT(readability-identifier-naming): as the forms are generated
class PrefsGeneral;
}

namespace orbisol {

class CDateEdit;
struct CivilYearStyle;

class CPrefsGeneralPage : public CPrefsPage {
  Q_OBJECT

 public:
  // `edited` outlives the page.
  explicit CPrefsGeneralPage(Preferences& edited);
  ~CPrefsGeneralPage() override;

  // Returns a field that holds no date, or the row of the civil years that is out of order.
  QWidget* FaultyField() override;

 private:
  struct Row {
    QLabel* label;
    CDateEdit* from;
    QCheckBox* plusOne;
  };

  void Fill();
  void Connect();
  void MakeReformPresets(QPushButton& button);
  void MakeYearPresets(QPushButton& button);
  void Take();
  void FillRows(const CivilYearStyle& style);
  void Say(const QString& note, const CDateEdit* field = nullptr);

  Preferences& m_edited;
  std::unique_ptr<Ui::PrefsGeneral> m_form;
  std::array<Row, kCivilYearRows> m_rows{};
  bool m_isFilling = false;  // while fields are set by a preset, one after the other
};

}  // namespace orbisol

// "Préférences": the pages of the preferences, chosen from a tree, beside a preview of what they edit.
//
//   CPrefsPropSheet sheet({store, calendars}, frame);
//   connect(&sheet, &CPrefsPropSheet::settingsSaved, frame, &CCalendarFrame::CalendarChanged);
//   sheet.exec();
//
// The pages edit a copy of the stored look, switches and rules; lists of events and periods are not part of
// it. "Appliquer" freezes that copy, and closing saves the one frozen last, whichever button closes: OK
// applies first, "Annuler" does not. What was never applied changes nothing, neither on the disk nor on the
// screen. After a save the frozen copy is in force.
#pragma once

#include <QDialog>

#include <array>
#include <optional>

#include "ui/preferences/prefs_page.h"
#include "ui/window/save_calendar.h"

class QPushButton;
class QStackedWidget;
class QTreeWidget;

namespace orbisol {

class CPrefCalWin;
class CPrefsColorsPage;

class CPrefsPropSheet : public QDialog {
  Q_OBJECT

 public:
  enum PageIndex { kConfigurationPage, kDisplayPage, kColorsPage, kPageCount };

  explicit CPrefsPropSheet(const SavePlaces& places, QWidget* parent = nullptr);

  void ShowPage(PageIndex page);

  // Freezes what the pages hold. Returns false where a field holds what cannot be: nothing is frozen then,
  // and the field has the focus.
  bool Apply();

  CPrefCalWin& Preview() { return *m_preview; }

  void accept() override;
  // Saves what was applied, then closes. Where it could not be saved "OK" leaves the sheet open.
  void done(int result) override;

 signals:
  void settingsSaved();  // look, switches or rules in force are now others

 private:
  void MakeTree();
  void Show(PageIndex page);
  void MakeButtons();
  CPrefsPage& Page(int index);
  void OnChanged();
  bool Save();

  SavePlaces m_places;
  Preferences m_edited;
  std::optional<Preferences> m_applied;
  CPrefsColorsPage* m_colors;
  QTreeWidget* m_tree;
  QStackedWidget* m_pages;
  CPrefCalWin* m_preview;
  QPushButton* m_apply = nullptr;
};

}  // namespace orbisol

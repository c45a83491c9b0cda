// "Préférences": the pages of the preferences, chosen from a tree, beside a preview of what they edit.
//
//   CPrefsPropSheet sheet({store, calendars}, frame);
//   connect(&sheet, &CPrefsPropSheet::settingsSaved, frame, &CCalendarFrame::CalendarChanged);
//   sheet.exec();
//
// The pages edit a copy of the stored look, switches and rules; lists of events and periods are not part of
// it. "Appliquer" freezes that copy, and closing saves the one frozen last, whichever button closes: OK
// applies first, "Annuler" does not. What was never applied changes nothing, neither on the disk nor on the
// screen. After a save the frozen copy is in force. Where it cannot be saved, and the user answers no
// question about that, the sheet stays open and "Appliquer" can be pressed again.
#pragma once

#include <QDialog>

#include <array>
#include <optional>

#include "ui/preferences/prefs_page.h"
#include "ui/window/save_calendar.h"
#include "ui/window/session_end.h"

class QPushButton;
class QStackedWidget;
class QScrollArea;
class QTreeWidget;

namespace orbisol {

class CPrefCalWin;
class CPrefsColorsPage;

class CPrefsPropSheet : public QDialog, public SessionWindow {
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
  // Saves what was applied, then closes. Stays open where it could not be saved.
  void done(int result) override;
  // Saves what was applied when the session ends.
  bool KeepUnsaved() override;

 signals:
  void settingsSaved();  // look, switches or rules in force are now others

 private:
  void MakeTree();
  void Show(PageIndex page);
  void MakeButtons();
  void FitScreen(QScrollArea& area);
  CPrefsPage& Page(int index);
  void OnChanged();
  bool Save();
  void PutAppliedInForce(const DisplaySettings& saved);

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

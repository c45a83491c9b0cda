// A page of the preferences. It edits a record that all pages share, and tells the sheet of every change.
#pragma once

#include <QWidget>

#include "resources/help/help_pages.h"

namespace orbisol {

class CPrefsPage : public QWidget {
  Q_OBJECT

 public:
  explicit CPrefsPage(HelpTopic help) : m_help(help) {}

  HelpTopic Help() const { return m_help; }

  // Shows the record when the page comes to the front: another page may have changed it.
  virtual void Activate() {}

  // Returns the field that keeps the record from being applied, and says why beside it; null for none.
  virtual QWidget* FaultyField() { return nullptr; }

 signals:
  void settingsChanged();  // a control changed the record

 private:
  HelpTopic m_help;
};

}  // namespace orbisol

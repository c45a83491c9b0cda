// Fills the main window: the month under its header at the left, the converter pane at the right. Every
// change of the selected date, whoever made it, ends in its Refresh().
//
//   CMainDlg dialog(isPaneShown, parent);
//   Selected() = …;
//   dialog.Refresh();
#pragma once

#include <QWidget>

#include "content/date_history.h"
#include "ui/converter/converter_pane.h"
#include "ui/header/header_wnd.h"
#include "ui/month/month_window.h"
#include "ui/shell/main_layout.h"

namespace orbisol {

class CCalendarGroup;

class CMainDlg : public QWidget {
  Q_OBJECT

 public:
  explicit CMainDlg(bool isPaneShown, QWidget* parent = nullptr);

  // Shows the selected date everywhere. `move` says how it was changed; an unchanged date leaves the history
  // alone.
  void Refresh(DateMove move = DateMove::kLeap);
  // Takes over colors, fonts, switches, calendar rules and content that were changed.
  void SettingsChanged();

  bool IsPaneShown() const { return m_isPaneShown; }
  void ShowPane(bool isShown);
  // Returns by how many pixels the window grows with the pane; it follows the font and the screen.
  int PaneWidth() const { return m_paneWidth; }

  // Computes the least size of the dialog: its texts stay whole, yet the window fits on its screen. Call it
  // when the dialog has its place in the window, and when bars appear or the screen changes.
  void Measure();
  // Returns the largest height, at most `height`, at which all weeks of the month are equally high.
  int EvenHeight(int height) const;

  QString JulianText() const { return m_pane->JulianText(); }
  QString RepublicanText() const { return m_pane->RepublicanText(); }

  // Gives the keyboard to the month.
  void FocusMonth();

  // Go through the dates visited; do nothing where there is none on that side.
  void GoBack();
  void GoForward();
  const CDateHistory& History() const { return m_history; }

  CMonthWindow& Month() { return *m_month; }
  CHeaderWnd& Header() { return *m_header; }
  CConverterPane& Pane() { return *m_pane; }

 signals:
  // Tells that the selected date may have changed, and with it the commands that can be given. `description`
  // is the line of the status bar (status_text.h).
  void dateShown(const QString& description);
  void periodChosen(const Date& from, const Date& to);  // the user selected days to edit; from <= to
  void dayOpened(const Date& date);                     // the user opened the selected day to edit it

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Visit(DateMove move);
  void LayOut();
  QSize Room() const;
  int HeaderTop() const;
  void ApplyColors();
  QString Description();

  bool m_isPaneShown;
  CCalendarGroup* m_group;
  CHeaderWnd* m_header;
  CMonthWindow* m_month;
  QWidget* m_separator;
  CConverterPane* m_pane;
  int m_paneWidth = 0;
  CDateHistory m_history;
};

}  // namespace orbisol

// The help: one window for the whole program, with contents and index at the left and a page at the right.
//
//   ShowHelp(kHelpMainWindow);      // F1 in the main window; a topic without a page shows the first one
//   ShowHelpContents();             // "Sommaire..."
//   ShowHelpIndex();                // "Index..."
//   AddHelpKey(*dialog, kHelpPrinting);  // F1 in a dialog
//
// Everything shown lies inside the program: a page can load nothing else, neither from a disk nor from a
// network. The program ends without asking this window. While a modal dialog is open the window belongs to
// that dialog, so that it can be read beside it.
#pragma once

#include <QTextBrowser>
#include <QWidget>

#include "resources/help/help_pages.h"

class QListWidget;
class QTabWidget;
class QTreeWidget;

namespace orbisol {

void ShowHelp(int topic);
void ShowHelpContents();
void ShowHelpIndex();

// Lets F1 in `window` and its children show a topic.
void AddHelpKey(QWidget& window, int topic);

// Shows the pages of the help and refuses every other address.
class CHelpBrowser : public QTextBrowser {
 public:
  explicit CHelpBrowser(QWidget* parent = nullptr);

  // Shows "keys.html#touches"; an address outside the help is passed over.
  void ShowPage(const QString& link);

  QVariant loadResource(int type, const QUrl& name) override;
};

class CHelpWindow : public QWidget {
 public:
  explicit CHelpWindow(QWidget* parent = nullptr);

  void ShowTopic(int topic);
  void ShowContents();
  void ShowIndex();

  CHelpBrowser& Browser() { return *m_browser; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* MakeContents();
  QWidget* MakeIndex();
  void MarkHeading(const QUrl& source);

  CHelpBrowser* m_browser;
  QTabWidget* m_tabs;
  QTreeWidget* m_contents = nullptr;
  QListWidget* m_index = nullptr;
  QWidget* m_indexFilter = nullptr;
};

}  // namespace orbisol

// The commands of a window: one action each, made from the tables of the menus and the texts of the string
// table, and shared by menu bar, tool bar and keys.
//
//   CCommandTable commands(window, [this](CommandId command) { Run(command); });
//   commands.FillMenuBar(*menuBar(), MainMenu());
//   commands.FillToolBar(*bar, MainToolBar());
//   commands.SetEnabled(kCmdGoBack, false);
#pragma once

#include <QObject>

#include <functional>
#include <map>
#include <span>

#include "resources/menus.h"

class QAction;
class QMenuBar;
class QToolBar;

namespace orbisol {

class CCommandTable : public QObject {
 public:
  // Makes an empty table that lives as long as `owner`. `run` is called for each command that the user
  // chooses; it sets the check marks anew, because the toolkit has flipped them.
  CCommandTable(QObject* owner, std::function<void(CommandId)> run);

  // Makes an action for each item, with its key, its status text and its tool tip.
  void FillMenuBar(QMenuBar& bar, std::span<const Menu> menus);
  // Adds buttons for commands that FillMenuBar() was given before, and leaves out all others.
  void FillToolBar(QToolBar& bar, std::span<const ToolItem> items);

  // Returns the action of a command; null for one that is in no menu.
  QAction* Action(CommandId command) const;

  // Set the state of a command; one that is in no menu is passed over.
  void SetEnabled(CommandId command, bool isEnabled);
  void SetChecked(CommandId command, bool isChecked);

 private:
  QAction* Make(const MenuItem& item);

  std::function<void(CommandId)> m_run;
  std::map<CommandId, QAction*> m_actions;
};

}  // namespace orbisol

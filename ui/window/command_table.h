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
  // `run` is called for a command that the user chose; it sets the check marks anew.
  CCommandTable(QObject* owner, std::function<void(CommandId)> run);

  void FillMenuBar(QMenuBar& bar, std::span<const Menu> menus);
  // Every command must have been in a menu; others are left out.
  void FillToolBar(QToolBar& bar, std::span<const ToolItem> items);

  // Null for a command that is in no menu.
  QAction* Action(CommandId command) const;

  // A command that is in no menu is passed over.
  void SetEnabled(CommandId command, bool isEnabled);
  void SetChecked(CommandId command, bool isChecked);

 private:
  QAction* Make(const MenuItem& item);

  std::function<void(CommandId)> m_run;
  std::map<CommandId, QAction*> m_actions;
};

}  // namespace orbisol

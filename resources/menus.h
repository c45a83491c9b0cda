// What the menus, the tool bar and the keys of the main window hold, in their order. What a command does is
// said by the window's own table.
//
//   for (const Menu& menu : MainMenu())
//     for (const MenuItem& item : menu.items) …
#pragma once

#include <span>
#include <string_view>

#include "resources/command_ids.h"

namespace orbisol {

struct MenuItem {
  CommandId command;             // kNoCommand: a separator
  std::u16string_view text;      // "&" stands before the letter that chooses it
  std::u16string_view shortcut;  // in the portable notation ("Ctrl+C"); empty for none
  bool isChecked = false;        // carries a check mark
};

struct Menu {
  std::u16string_view title;
  std::span<const MenuItem> items;
};

std::span<const Menu> MainMenu();

struct ToolItem {
  CommandId command;      // kNoCommand: a separator
  std::string_view icon;  // name of its picture
};

std::span<const ToolItem> MainToolBar();

}  // namespace orbisol

// The menus, the tool bars and the keys of the main window and of the print frame, in their order. Each
// window has a table of its own from each command to the function that runs it.
//
//   for (const Menu& menu : MainMenu())
//     for (const MenuItem& item : menu.items) …
#pragma once

#include <span>
#include <string_view>

#include "resources/command_ids.h"

namespace orbisol {

struct MenuItem {
  CommandId command;             // kNoCommand is a separator
  std::u16string_view text;      // title with "&" before the letter that chooses it
  std::u16string_view shortcut;  // keys in the portable notation ("Ctrl+C"); empty is "none"
  bool isChecked = false;        // true where a check mark says whether something is shown
};

struct Menu {
  std::u16string_view title;
  std::span<const MenuItem> items;
};

std::span<const Menu> MainMenu();

struct ToolItem {
  CommandId command;      // kNoCommand is a separator
  std::string_view icon;  // name of a drawing in resources/pictures/icons
};

std::span<const ToolItem> MainToolBar();

std::span<const Menu> PrintMenu();
std::span<const ToolItem> PrintToolBar();

}  // namespace orbisol

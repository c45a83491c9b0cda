// The folders of the program on a Linux desktop.
//
//   const Folders folders = DesktopFolders();
//   folders.calendars;  // "/home/eva/.local/share/Corvalen/orbisol"
#pragma once

#include <string>
#include <vector>

#include "files/file_system.h"
#include "platform/environment.h"

namespace orbisol {

// Absolute paths, in the bytes of the machine (path_text.h).
struct Folders {
  std::string calendars;            // folder of the user's calendars
  std::string userLegals;           // folder of public calendars that the user added
  std::string shippedLegals;        // folder of public calendars that came with the program
  std::string versions;             // folder of earlier versions of the user's calendars
  std::vector<std::string> stores;  // files that may hold the settings: the user's, then those only read
  std::string trash;                // user's trash, by the rules of freedesktop.org
  // Folders for calendars that `calendars` has no room for: one below the same home, then some on file
  // systems of their own as often as not, those that outlive the session first. Each belongs to this home
  // alone.
  std::vector<std::string> asides;
};

// Returns the folders that these variables name. `home` is the folder of the user where HOME names none.
// `executable` is the program's own file, in <prefix>/bin. A relative path in a variable counts as none, as
// the base-directory rules of freedesktop.org ask.
Folders FindFolders(const VariableReader& variable, const std::string& home, const std::string& executable);

// Returns the folders of this process, without those that somebody else could reach into.
Folders DesktopFolders();

// Returns those of them that hold calendars, as texts.
CalendarFolders CalendarFoldersOf(const Folders& folders);

}  // namespace orbisol

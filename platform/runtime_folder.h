// The folder and the name by which the processes of one user on one display find one another.
#pragma once

#include <string>

#include "platform/environment.h"

namespace orbisol {

// Returns $XDG_RUNTIME_DIR, else a folder of the user's own below the temporary one, which it makes. Empty
// when there is neither, or when somebody else could reach into it.
std::string RuntimeFolder();
// Returns the same for other variables and another user's number.
std::string FindRuntimeFolder(const VariableReader& variable, unsigned user);

// Returns whether `path` is a folder of that user, and no link, into which nobody else can look.
bool IsOwnFolder(const std::string& path, unsigned user);

// Returns the display of this process in a form for a file's name; empty without a display.
std::string DisplayName();
std::string FindDisplayName(const VariableReader& variable);

}  // namespace orbisol

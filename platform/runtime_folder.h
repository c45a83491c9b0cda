// Where the processes of one user on one display meet.
#pragma once

#include <string>

#include "platform/environment.h"

namespace orbisol {

// Returns $XDG_RUNTIME_DIR, else a folder of the user's own below the temporary one, which it makes. Empty
// when there is neither, or when somebody else could reach into it.
std::string RuntimeFolder();
// The same for other variables and for the user of this number.
std::string FindRuntimeFolder(const VariableReader& variable, unsigned user);

// Returns where the windows of this process appear, as part of a file's name; empty without a display.
std::string DisplayName();
std::string FindDisplayName(const VariableReader& variable);

}  // namespace orbisol

// The environment variables of the process, which the desktop sets.
#pragma once

#include <functional>
#include <string>

namespace orbisol {

// Returns the value of a variable; empty for one that is not set. Tests give other values through a function
// of this type.
using VariableReader = std::function<std::string(const char* name)>;

std::string Variable(const char* name);

}  // namespace orbisol

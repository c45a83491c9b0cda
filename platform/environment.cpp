#include "platform/environment.h"

#include <cstdlib>

namespace orbisol {

std::string Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string() : value;
}

}  // namespace orbisol

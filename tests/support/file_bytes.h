// Files of the disk, as a test compares them.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

namespace orbisol {

// "(none)" where there is no file.
inline std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return "(none)";
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace orbisol

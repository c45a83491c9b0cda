// Bytes of files on the disk, for comparisons.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

namespace orbisol {

// Returns the bytes of a file; "(none)" if there is no file.
inline std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return "(none)";
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace orbisol

// Tables of tests/data/: words separated by blanks; a line that begins with '#' is a remark.
#pragma once

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace orbisol {

// The words of each line; empty when the file is missing, which the caller's count of rows finds.
inline std::vector<std::vector<std::string>> DataRows(const std::string& fileName) {
  std::vector<std::vector<std::string>> rows;
  std::ifstream file(std::string(ORBISOL_TEST_DATA) + "/" + fileName);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream words(line);
    rows.emplace_back();
    for (std::string word; words >> word;) rows.back().push_back(word);
  }
  return rows;
}

}  // namespace orbisol

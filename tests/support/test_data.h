// Tables of tests/data/: words separated by blanks; a line that begins with '#' is a comment.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace orbisol {

// Returns the words of each line. A missing file fails the test.
inline std::vector<std::vector<std::string>> DataRows(const std::string& fileName) {
  std::vector<std::vector<std::string>> rows;
  std::ifstream file(std::string(ORBISOL_TEST_DATA) + "/" + fileName);
  EXPECT_TRUE(file.is_open()) << fileName;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream words(line);
    rows.emplace_back();
    for (std::string word; words >> word;) rows.back().push_back(word);
  }
  return rows;
}

}  // namespace orbisol

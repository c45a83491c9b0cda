// Files for tests on a real disk: a folder of one's own, and the folders of the program below it.
#pragma once

#include <sys/stat.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/folders.h"

namespace orbisol {

inline Folders TestFolders(const std::string& root) {
  const auto variable = [&](const std::string& name) -> std::string {
    if (name == "XDG_DATA_HOME") return root + "/data";
    if (name == "XDG_CONFIG_HOME") return root + "/config";
    if (name == "XDG_CONFIG_DIRS") return root + "/etc";
    return "";
  };
  return FindFolders(variable, root + "/home", root + "/prefix/bin/orbisol");
}

// Removed with all it holds at the end.
class CTestFolder {
 public:
  CTestFolder() {
    static std::atomic<int> count = 0;
    m_path = (std::filesystem::temp_directory_path() / ("folder" + std::to_string(++count))).string();
    std::filesystem::create_directories(m_path);
  }
  ~CTestFolder() {
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
  }
  CTestFolder(const CTestFolder&) = delete;
  CTestFolder& operator=(const CTestFolder&) = delete;

  const std::string& Path() const { return m_path; }
  std::string operator/(const std::string& name) const { return m_path + "/" + name; }

 private:
  std::string m_path;
};

inline void PutFile(const std::string& path, std::string_view bytes) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

// "(none)" where there is no file.
inline std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return "(none)";
  return {std::istreambuf_iterator<char>(file), {}};
}

inline std::size_t FileCount(const std::string& folder) {
  std::error_code error;
  const std::filesystem::directory_iterator entries(folder, error);
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

// The rights alone, as in 0640.
inline unsigned RightsOf(const std::string& path) {
  struct stat status;
  return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777u : 0;
}

}  // namespace orbisol

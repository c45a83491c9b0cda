// Files for tests on a real disk, in a folder of their own.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "files/calendar_store.h"
#include "platform/desktop_files.h"
#include "platform/folders.h"
#include "tests/support/file_bytes.h"

namespace orbisol {

// A folder in memory, where the machine has a place for that: files are replaced in it thousands of times,
// and a busy disk would be slow. It is removed with its content at the end.
class CTestFolder {
 public:
  CTestFolder() : CTestFolder(access("/dev/shm", W_OK) == 0 ? "/dev/shm" : std::getenv("TMPDIR")) {}
  explicit CTestFolder(const char* place) : m_path(place) {
    m_path += "/orbisol-test-XXXXXX";
    EXPECT_NE(mkdtemp(m_path.data()), nullptr);
  }
  ~CTestFolder() {
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
  }
  CTestFolder(const CTestFolder&) = delete;
  CTestFolder& operator=(const CTestFolder&) = delete;

  std::string operator/(const std::string& name) const { return m_path + "/" + name; }

  Folders ProgramFolders() const {
    return FindFolders([&](const std::string& name) { return *this / name; }, "/home",
                       *this / "prefix/bin/orbisol");
  }

 private:
  std::string m_path;
};

inline void PutFile(const std::string& path, std::string_view bytes) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

inline std::size_t FileCount(const std::string& folder) {
  return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

// Loads the usual calendar and saves another content in its place. Returns whether the save was confirmed.
inline bool SaveCalendar(const Folders& folders, const CalendarFile& calendar) {
  CDesktopFiles files(folders.trash);
  CCalendarStore calendars(files, CalendarFoldersOf(folders));
  CalendarFile before;
  return calendars.Load(kDefaultCalendarName, before) == LoadResult::kLoaded &&
         calendars.Save(kDefaultCalendarName, calendar, IfChanged::kRefuse).result == WriteResult::kWritten;
}

// Returns the text of a settings key.
inline std::string KeyText(const std::string& lines) {
  return "[HKEY_CURRENT_USER\\SOFTWARE\\Corvalen\\Calendar]\n" + lines;
}

}  // namespace orbisol

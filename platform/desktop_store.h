// The settings of a Linux desktop: a text file of the user's (settings/registry_text.h), which is replaced
// whole and under a lock, so that two processes that write at once lose nothing of each other's.
//
//   CDesktopStore store(files, DesktopFolders().stores);
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "files/file_system.h"
#include "settings/settings_store.h"

namespace orbisol {

class CDesktopStore : public SettingsStore {
 public:
  // The first file that exists is the key, whole; one that exists and cannot be read is a key that cannot be
  // read or written, and is left alone. Writing goes to the first of the list alone, which begins as a copy
  // of the key. Where it replaces malformed characters there, the file is first copied to "<file>.bak";
  // `files` does that.
  CDesktopStore(FileSystem& files, std::vector<std::string> stores,
                std::chrono::milliseconds patience = std::chrono::milliseconds(500));

  std::optional<StoredValues> Read() const override;
  // Waits at most the patience for a process that writes at the same moment, then writes all the same: what
  // another one has written meanwhile is read again and kept.
  bool Write(const std::vector<StoreChange>& changes) override;

 private:
  FileSystem& m_files;
  std::vector<std::string> m_stores;
  std::chrono::milliseconds m_patience;
};

}  // namespace orbisol

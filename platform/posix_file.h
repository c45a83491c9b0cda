// Files read and replaced whole, on the calls of the system itself, whose every answer is checked. Paths are
// in the bytes of the machine. Interrupted calls are repeated.
//
//   std::optional<FileBytes> file = ReadWholeFile("/home/eva/calendar.xml");
//   FileStamp now;
//   if (ReplaceFile("/home/eva/calendar.xml", text, &file->stamp, &now) == WriteResult::kChanged) …
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "files/file_system.h"
#include "platform/descriptor.h"

namespace orbisol {

// Room for a quarter of a million events. Whatever else is taken for a calendar is held in memory several
// times over while it is read, in UTF-8, in UTF-16 and in pieces.
constexpr std::size_t kMaxFileBytes = std::size_t{1} << 26;

// Nothing when the file is missing, is no ordinary file, has more than kMaxFileBytes or fails to be read.
std::optional<FileBytes> ReadWholeFile(const std::string& path);

// Whether anything stands there. A link counts for what it points to.
bool FileExists(const std::string& path);

// Afterwards the file holds the old bytes or the new ones, whatever happens. The bytes go to a temporary file
// in the same folder, which is synced and renamed; then the folder is synced. Missing folders are made, for
// the user alone. A symbolic link stays and what it points to is replaced; another name of the same file (a
// hard link) keeps the old bytes. Permissions, owner and group are kept; where the group cannot be, its
// rights fall to those of everybody.
//
// kChanged: `expected` is given and the file there has other bytes than the expected ones, cannot be read, or
// was expected to be missing and is not. A file that already holds `bytes` is never called changed.
// kNotSynced: the sync of the folder failed. Nobody is kept from writing between the last look at the file
// and the rename but those who hold the lock of its folder too.
//
// `expected` and `stamp` may be null and may be the same object.
WriteResult ReplaceFile(const std::string& path, std::string_view bytes, const FileStamp* expected,
                        FileStamp* stamp);

// Locks a folder, which is made if it is missing, against all who lock it: FileSystem::LockFolderOf.
std::unique_ptr<FileLock> LockFolder(const std::string& folder);

// Makes a folder and those above it, for the user alone. True when it stands there afterwards.
bool MakeFolders(const std::string& folder);

// Holds a lock file until it is destroyed or the process ends, however it ends.
class CFileLock {
 public:
  // Makes the file, which stays there empty. Waits for another holder at most so long.
  CFileLock(const std::string& path, std::chrono::milliseconds patience);

  bool IsHeld() const { return m_held; }

 private:
  CDescriptor m_descriptor;
  bool m_held = false;
};

}  // namespace orbisol

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

// Greatest size that is read, with room for a quarter of a million events. A file is held in memory several
// times while it is read, in UTF-8, in UTF-16 and in pieces.
constexpr std::size_t kMaxFileBytes = std::size_t{1} << 26;

// Returns the bytes of a file; nothing if it is missing, is no regular file, has more than kMaxFileBytes or
// fails to be read.
std::optional<FileBytes> ReadWholeFile(const std::string& path);

// Returns whether a path exists. A link counts for what it points to. If that cannot be found out, as in a
// folder that is closed to the user, the answer is true.
bool FileExists(const std::string& path);

// Replaces a file in one step: whatever happens, it holds the old bytes or the new ones afterwards. The bytes
// go to a temporary file in the same folder, which is synced and takes the place of the file; then the folder
// is synced. Missing folders are made, for the user alone. A symbolic link stays and what it points to is
// replaced; another name of the same file (a hard link) keeps the old bytes.
//
// The new bytes have the rights (file_rights.h) of the file that they replace, or those of the file `model`
// where that is given; when that is missing they are for the user alone.
//
// kChanged: `expected` is given and the file there has other bytes than the expected ones, cannot be read, or
// was expected to be missing and is not. A file that already holds `bytes` is never called changed. What
// another program writes at the last moment is found too, except on the few file systems that cannot exchange
// two names. kNotSynced: the sync of the folder failed.
//
// `expected` and `stamp` may be null and may be the same object.
WriteResult ReplaceFile(const std::string& path, std::string_view bytes, const FileStamp* expected,
                        FileStamp* stamp, const std::string& model = {});

// Returns whether ReplaceFile() would be allowed to put other bytes at `path`: the file is an ordinary one
// that the user may write, or missing, and its folder takes new files.
bool MayReplaceFile(const std::string& path);

// Makes a file with its folder, in one step as ReplaceFile() does. The file is for the user alone (0600), its
// folder too (0700), whatever the mask for new files is; a folder that stands there already is closed to all
// others. A folder that another user may have put among those of all users, as in "/tmp", is not written
// into. Returns true when the bytes and the name are on the disk.
bool MakePrivateFile(const std::string& path, std::string_view bytes);

// Locks a folder, which is made if it is missing, against all who lock it. When another process holds the
// lock for longer than the patience, or there are no locks, the caller goes on without one.
std::unique_ptr<FileLock> LockFolder(const std::string& folder, std::chrono::milliseconds patience);

// Makes a folder and those above it, for the user alone. Returns true when it stands there afterwards.
bool MakeFolders(const std::string& folder);

// Returns whether the names in a folder are on the disk. True where the file system knows no such thing.
bool SyncFolder(const std::string& folder);

}  // namespace orbisol

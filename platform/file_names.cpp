#include "platform/file_names.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "platform/descriptor.h"
#include "platform/path_text.h"
#include "platform/posix_file.h"

namespace orbisol {
namespace {

bool IsFree(const std::string& path) {
  struct stat status;
  return Repeat([&] { return lstat(path.c_str(), &status); }) != 0 && errno == ENOENT;
}

bool CopyToNewName(const std::string& path, const std::string& newPath) {
  const std::optional<FileBytes> file = ReadWholeFile(path);
  const FileStamp missing;
  if (!file) return false;
  const WriteResult result = ReplaceFile(newPath, file->bytes, &missing, nullptr, path);
  if (result == WriteResult::kNotSynced) unlink(newPath.c_str());
  return result == WriteResult::kWritten;
}

}  // namespace

std::optional<std::vector<std::string>> NamesIn(const std::string& folder) {
  using std::filesystem::directory_iterator;
  std::vector<std::string> names;
  std::error_code error;
  // A range-based loop would throw where the folder cannot be read on.
  for (directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    names.push_back(entry->path().filename().native());
  if (error) return {};
  return names;
}

std::optional<std::uint64_t> FileSize(const std::string& path) {
  struct stat status;
  if (Repeat([&] { return stat(path.c_str(), &status); }) != 0) return {};
  return static_cast<std::uint64_t>(status.st_size);
}

bool AddFileName(const std::string& path, const std::string& newPath) {
  if (Repeat([&] { return linkat(AT_FDCWD, path.c_str(), AT_FDCWD, newPath.c_str(), 0); }) == 0) {
    if (SyncFolder(FolderOf(newPath))) return true;
    unlink(newPath.c_str());
    return false;
  }
  if (errno == EEXIST || errno == ENOENT) return false;
  return CopyToNewName(path, newPath);
}

bool RemoveFile(const std::string& path) {
  return Repeat([&] { return unlink(path.c_str()); }) == 0 || errno == ENOENT;
}

bool MoveWholeFolder(const std::string& folder, const std::string& newFolder) {
  const auto move = [&](unsigned flags) {
    return Repeat([&] {
      return flags == 0 ? rename(folder.c_str(), newFolder.c_str())
                        : renameat2(AT_FDCWD, folder.c_str(), AT_FDCWD, newFolder.c_str(), flags);
    });
  };
  if (move(RENAME_NOREPLACE) == 0) return true;
  const bool isUnknown = errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
  return isUnknown && IsFree(newFolder) && move(0) == 0;
}

}  // namespace orbisol

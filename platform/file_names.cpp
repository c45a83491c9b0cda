#include "platform/file_names.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

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
  return file && ReplaceFile(newPath, file->bytes, &missing, nullptr, path) == WriteResult::kWritten;
}

}  // namespace

std::optional<std::uint64_t> FileSize(const std::string& path) {
  struct stat status;
  if (Repeat([&] { return stat(path.c_str(), &status); }) != 0) return {};
  return static_cast<std::uint64_t>(status.st_size);
}

bool AddFileName(const std::string& path, const std::string& newPath) {
  if (Repeat([&] { return linkat(AT_FDCWD, path.c_str(), AT_FDCWD, newPath.c_str(), 0); }) == 0)
    return SyncFolder(FolderOf(newPath));
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

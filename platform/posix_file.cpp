#include "platform/posix_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <ctime>

#include "platform/path_text.h"

namespace orbisol {
namespace {

using std::chrono::milliseconds;

constexpr char kTemporaryPrefix[] = ".orbisol-";
constexpr char kTemporarySuffix[] = ".tmp";
constexpr std::time_t kStaleSeconds = 24 * 60 * 60;  // a save takes far less, on any clock
constexpr int kMaxLinks = 40;                        // as the system follows them
constexpr milliseconds kFolderPatience{2000};

// FNV-1a, 64 bits.
std::uint64_t Hash(std::string_view bytes) {
  std::uint64_t hash = 0xCBF29CE484222325;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  return hash;
}

FileStamp StampOf(std::string_view bytes) {
  FileStamp stamp;
  stamp.exists = true;
  stamp.size = bytes.size();
  stamp.hash = Hash(bytes);
  return stamp;
}

// The path at the end of a chain of links; the last may point to nothing yet. Empty when there is no end.
std::string FollowLinks(std::string path) {
  for (int i = 0; i < kMaxLinks; ++i) {
    std::string target(4096, '\0');
    const ssize_t length = Repeat([&] { return readlink(path.c_str(), target.data(), target.size()); });
    if (length < 0) return errno == EINVAL || errno == ENOENT || errno == ENOTDIR ? path : "";
    if (static_cast<std::size_t>(length) == target.size()) return "";
    target.resize(static_cast<std::size_t>(length));
    path = !target.empty() && target[0] == '/' ? target : FolderOf(path) + "/" + target;
  }
  return "";
}

// Some file systems cannot sync a folder, and say so; there is nothing to wait for then.
bool SyncFolder(int descriptor) {
  return Repeat([&] { return fsync(descriptor); }) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool SyncFolder(const std::string& folder) {
  const CDescriptor descriptor = Open(folder, O_RDONLY | O_DIRECTORY);
  return descriptor.IsOpen() && SyncFolder(descriptor.Get());
}

// Who may do what with the new file, as with the old one.
bool CopyRights(int descriptor, const struct stat& old) {
  struct stat status;
  if (Repeat([&] { return fstat(descriptor, &status); }) != 0) return false;
  mode_t mode = old.st_mode & 07777;
  if (status.st_uid != old.st_uid || status.st_gid != old.st_gid) {
    if (Repeat([&] { return fchown(descriptor, old.st_uid, old.st_gid); }) != 0) {
      if (errno != EPERM) return false;
      // Only the superuser gives files away; the group is often possible.
      if (Repeat([&] { return fchown(descriptor, static_cast<uid_t>(-1), old.st_gid); }) != 0) {
        if (errno != EPERM) return false;
        mode = (mode & ~static_cast<mode_t>(070)) | ((mode & 07) << 3 & mode);
      }
    }
    // A change of owner takes some rights away.
    if (Repeat([&] { return fstat(descriptor, &status); }) != 0) return false;
  }
  // Some file systems have rights of their own for all files and refuse every change, even one to the same.
  return (status.st_mode & 07777) == mode || Repeat([&] { return fchmod(descriptor, mode); }) == 0;
}

// The temporary file of one save; removed unless it took its place.
class CTemporary {
 public:
  CTemporary(const std::string& folder, mode_t mode)
      : m_path(folder + "/" + UniqueName()),
        m_descriptor(Open(m_path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode)),
        m_remove(m_descriptor.IsOpen()) {}
  ~CTemporary() {
    m_descriptor.Close();
    if (m_remove) unlink(m_path.c_str());
  }
  CTemporary(const CTemporary&) = delete;
  CTemporary& operator=(const CTemporary&) = delete;

  bool IsOpen() const { return m_descriptor.IsOpen(); }
  int Get() const { return m_descriptor.Get(); }
  bool Close() { return m_descriptor.Close(); }

  bool MoveTo(const std::string& target) {
    if (Repeat([&] { return rename(m_path.c_str(), target.c_str()); }) != 0) return false;
    m_remove = false;
    return true;
  }

 private:
  static std::string UniqueName() {
    static unsigned count = 0;
    const auto now = std::chrono::system_clock::now().time_since_epoch().count();
    return kTemporaryPrefix + std::to_string(getpid()) + "-" + std::to_string(now) + "-" +
           std::to_string(++count) + kTemporarySuffix;
  }

  std::string m_path;
  CDescriptor m_descriptor;
  bool m_remove;
};

// What killed runs left behind. Nothing depends on it.
void RemoveStaleTemporaries(const std::string& folder) {
  DIR* const entries = opendir(folder.c_str());
  if (entries == nullptr) return;
  const std::time_t now = std::time(nullptr);
  while (const dirent* const entry = readdir(entries)) {
    const std::string_view name = entry->d_name;
    if (!name.starts_with(kTemporaryPrefix) || !name.ends_with(kTemporarySuffix)) continue;
    const std::string path = folder + "/" + entry->d_name;
    struct stat status;
    if (lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && now - status.st_mtime > kStaleSeconds)
      unlink(path.c_str());
  }
  closedir(entries);
}

// A lock that some other program holds on the folder for long is not worth failing for.
class CFolderLock : public FileLock {
 public:
  explicit CFolderLock(const std::string& folder) : m_descriptor(Open(folder, O_RDONLY | O_DIRECTORY)) {
    if (m_descriptor.IsOpen()) LockWithin(m_descriptor.Get(), kFolderPatience);
  }

 private:
  CDescriptor m_descriptor;
};

bool IsAsExpected(const std::string& target, const FileStamp& expected, const FileStamp& wanted) {
  struct stat status;
  if (Repeat([&] { return stat(target.c_str(), &status); }) != 0) return errno == ENOENT && !expected.exists;
  const std::optional<FileBytes> found = ReadWholeFile(target);
  return found && (found->stamp == expected || found->stamp == wanted);
}

}  // namespace

std::optional<FileBytes> ReadWholeFile(const std::string& path) {
  // Without O_NONBLOCK a pipe that stands in the file's place would be waited for.
  const CDescriptor descriptor = Open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
  struct stat status;
  if (!descriptor.IsOpen() || Repeat([&] { return fstat(descriptor.Get(), &status); }) != 0) return {};
  if (!S_ISREG(status.st_mode) || static_cast<std::uint64_t>(status.st_size) > kMaxFileBytes) return {};

  FileBytes file;
  std::size_t length = 0;
  for (;;) {
    // One byte more than the size tells the end in the second read.
    if (length == file.bytes.size())
      file.bytes.resize(std::max(length + length / 2, static_cast<std::size_t>(status.st_size) + 1));
    const ssize_t count = Repeat(
        [&] { return read(descriptor.Get(), file.bytes.data() + length, file.bytes.size() - length); });
    if (count < 0) return {};
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
    if (length > kMaxFileBytes) return {};
  }
  file.bytes.resize(length);
  file.stamp = StampOf(file.bytes);
  return file;
}

bool FileExists(const std::string& path) {
  struct stat status;
  return Repeat([&] { return stat(path.c_str(), &status); }) == 0;
}

WriteResult ReplaceFile(const std::string& path, std::string_view bytes, const FileStamp* expected,
                        FileStamp* stamp) {
  const std::string target = FollowLinks(path);
  if (target.empty()) return WriteResult::kFailed;
  const std::string folder = FolderOf(target);
  if (!MakeFolders(folder)) return WriteResult::kFailed;

  struct stat old;
  const bool exists = Repeat([&] { return stat(target.c_str(), &old); }) == 0;
  if (!exists && errno != ENOENT) return WriteResult::kFailed;
  // Who write-protects a file means it, although a rename would not ask.
  if (exists && (!S_ISREG(old.st_mode) || Repeat([&] { return access(target.c_str(), W_OK); }) != 0))
    return WriteResult::kFailed;

  CTemporary temporary(folder, exists ? 0600 : 0666);
  if (!temporary.IsOpen() || !WriteAll(temporary.Get(), bytes)) return WriteResult::kFailed;
  if (exists && !CopyRights(temporary.Get(), old)) return WriteResult::kFailed;
  // A full disk may show only here, or when the file is closed.
  if (Repeat([&] { return fsync(temporary.Get()); }) != 0) return WriteResult::kFailed;
  if (!temporary.Close()) return WriteResult::kFailed;
  const FileStamp wanted = StampOf(bytes);

  const CDescriptor folderDescriptor = Open(folder, O_RDONLY | O_DIRECTORY);
  if (!folderDescriptor.IsOpen()) return WriteResult::kFailed;
  if (expected != nullptr && !IsAsExpected(target, *expected, wanted)) return WriteResult::kChanged;
  if (!temporary.MoveTo(target)) return WriteResult::kFailed;

  if (stamp != nullptr) *stamp = wanted;
  const bool synced = SyncFolder(folderDescriptor.Get());
  RemoveStaleTemporaries(folder);
  return synced ? WriteResult::kWritten : WriteResult::kNotSynced;
}

std::unique_ptr<FileLock> LockFolder(const std::string& folder) {
  return MakeFolders(folder) ? std::make_unique<CFolderLock>(folder) : nullptr;
}

bool MakeFolders(const std::string& folder) {
  struct stat status;
  if (Repeat([&] { return stat(folder.c_str(), &status); }) == 0) return S_ISDIR(status.st_mode);
  const std::string parent = FolderOf(folder);
  if (errno != ENOENT || parent == folder || !MakeFolders(parent)) return false;
  // Another process may have been faster.
  if (Repeat([&] { return mkdir(folder.c_str(), 0700); }) != 0 && errno != EEXIST) return false;
  return SyncFolder(parent);
}

CFileLock::CFileLock(const std::string& path, milliseconds patience) {
  if (!MakeFolders(FolderOf(path))) return;
  m_descriptor = Open(path, O_RDWR | O_CREAT, 0600);
  m_held = m_descriptor.IsOpen() && LockWithin(m_descriptor.Get(), patience) != LockResult::kHeld;
}

}  // namespace orbisol

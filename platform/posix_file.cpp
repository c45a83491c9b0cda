#include "platform/posix_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "files/byte_hash.h"
#include "platform/file_names.h"
#include "platform/file_rights.h"
#include "platform/path_text.h"

namespace orbisol {
namespace {

using std::chrono::milliseconds;

constexpr char kTemporaryPrefix[] = ".orbisol-";
constexpr char kTemporarySuffix[] = ".tmp";
constexpr mode_t kPrivateFolder = 0700;
constexpr mode_t kPrivateFile = 0600;
constexpr std::chrono::hours kStaleAge{24};  // far longer than a save, even if the clock is changed
constexpr int kMaxLinks = 40;                // limit of the system for links in a path

FileStamp StampOf(std::string_view bytes) {
  FileStamp stamp;
  stamp.exists = true;
  stamp.size = bytes.size();
  stamp.hash = ByteHash(bytes);
  return stamp;
}

// Returns the path at the end of a chain of links, which may not exist yet; empty if the chain has no end.
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

// Syncs a folder. File systems that cannot sync folders say so, and that counts as success.
bool SyncFolder(int descriptor) {
  return Repeat([&] { return fsync(descriptor); }) == 0 || errno == EINVAL || errno == ENOTSUP;
}

std::chrono::nanoseconds Now() { return std::chrono::system_clock::now().time_since_epoch(); }

// Temporary file of one save; removed unless it took the place of its target.
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

  const std::string& Path() const { return m_path; }

  // Takes the place of `target`. `flags` are those of renameat2(2); 0 works on every file system.
  bool MoveTo(const std::string& target, unsigned flags) {
    if (Repeat([&] { return Rename(target, flags); }) != 0) return false;
    m_remove = flags == RENAME_EXCHANGE;  // the old file now has this name
    return true;
  }

  // Leaves the file that was exchanged on the disk, for those who may look for it.
  void Keep() { m_remove = false; }

 private:
  int Rename(const std::string& target, unsigned flags) const {
    return flags == 0 ? rename(m_path.c_str(), target.c_str())
                      : renameat2(AT_FDCWD, m_path.c_str(), AT_FDCWD, target.c_str(), flags);
  }

  static std::string UniqueName() {
    static unsigned count = 0;
    return kTemporaryPrefix + std::to_string(getpid()) + "-" + std::to_string(Now().count()) + "-" +
           std::to_string(++count) + kTemporarySuffix;
  }

  std::string m_path;
  CDescriptor m_descriptor;
  bool m_remove;
};

// Returns whether a name is that of a temporary file made long ago. The name holds the time, because after an
// exchange the file itself is as old as the one that was replaced.
bool IsStale(const std::string& name) {
  long long pid = 0, made = 0, count = 0;
  return std::sscanf(name.c_str(), ".orbisol-%lld-%lld-%lld", &pid, &made, &count) == 3 &&
         name.ends_with(kTemporarySuffix) && Now() - std::chrono::nanoseconds(made) > kStaleAge;
}

// Removes temporary files that killed processes left behind. Nothing depends on its success.
void RemoveStaleTemporaries(const std::string& folder) {
  for (const std::string& name : NamesIn(folder).value_or(std::vector<std::string>())) {
    const std::string path = folder + "/" + name;
    std::error_code error;
    if (IsStale(name) && std::filesystem::is_regular_file(path, error)) unlink(path.c_str());
  }
}

// Lock of a folder. If another program holds it for too long, the save goes on without it.
class CFolderLock : public FileLock {
 public:
  CFolderLock(const std::string& folder, milliseconds patience)
      : m_descriptor(Open(folder, O_RDONLY | O_DIRECTORY)) {
    if (m_descriptor.IsOpen()) LockWithin(m_descriptor.Get(), patience);
  }

 private:
  CDescriptor m_descriptor;
};

// Returns whether a file holds the expected bytes, or already those that are to be written.
bool IsAsExpected(const std::string& path, const FileStamp& expected, const FileStamp& wanted) {
  struct stat status;
  if (Repeat([&] { return lstat(path.c_str(), &status); }) != 0) return errno == ENOENT && !expected.exists;
  const std::optional<FileBytes> found = S_ISREG(status.st_mode) ? ReadWholeFile(path) : std::nullopt;
  return found && (found->stamp == expected || found->stamp == wanted);
}

bool IsUnknownToFileSystem(int error) { return error == EINVAL || error == ENOSYS || error == ENOTSUP; }

// Puts the temporary file in the place of a file with the expected bytes. The two are exchanged, then the old
// one is compared, so that no write of another program in between goes unnoticed.
WriteResult Exchange(CTemporary& temporary, const std::string& target, const FileStamp& expected,
                     const FileStamp& wanted) {
  if (!temporary.MoveTo(target, RENAME_EXCHANGE)) {
    if (errno == ENOENT) return WriteResult::kChanged;
    if (!IsUnknownToFileSystem(errno)) return WriteResult::kFailed;
    return temporary.MoveTo(target, 0) ? WriteResult::kWritten : WriteResult::kFailed;
  }
  if (IsAsExpected(temporary.Path(), expected, wanted)) return WriteResult::kWritten;
  if (temporary.MoveTo(target, RENAME_EXCHANGE) || temporary.MoveTo(target, 0)) return WriteResult::kChanged;
  temporary.Keep();
  return WriteResult::kFailed;
}

// Puts the temporary file where there is no file yet.
WriteResult Create(CTemporary& temporary, const std::string& target, bool isExpected) {
  if (temporary.MoveTo(target, RENAME_NOREPLACE)) return WriteResult::kWritten;
  if (errno == EEXIST && isExpected) return WriteResult::kChanged;
  if (errno != EEXIST && !IsUnknownToFileSystem(errno)) return WriteResult::kFailed;
  return temporary.MoveTo(target, 0) ? WriteResult::kWritten : WriteResult::kFailed;
}

// Returns whether somebody else may have put the folder there: it lies where all users make theirs, as in
// "/tmp", and is a link or belongs to another.
bool IsPerhapsOthers(const std::string& folder) {
  struct stat parent;
  struct stat status;
  if (Repeat([&] { return stat(FolderOf(folder).c_str(), &parent); }) != 0) return true;
  if ((parent.st_mode & S_ISVTX) == 0) return false;
  return Repeat([&] { return lstat(folder.c_str(), &status); }) != 0 || !S_ISDIR(status.st_mode) ||
         status.st_uid != geteuid();
}

}  // namespace

std::optional<FileBytes> ReadWholeFile(const std::string& path) {
  // Without O_NONBLOCK opening a pipe in the file's place would wait for its writer.
  const CDescriptor descriptor = Open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
  struct stat status;
  if (!descriptor.IsOpen() || Repeat([&] { return fstat(descriptor.Get(), &status); }) != 0) return {};
  if (!S_ISREG(status.st_mode) || static_cast<std::uint64_t>(status.st_size) > kMaxFileBytes) return {};

  FileBytes file;
  std::size_t length = 0;
  for (;;) {
    // Room for one byte more than the size lets the second read find the end.
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
  return Repeat([&] { return stat(path.c_str(), &status); }) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

WriteResult ReplaceFile(const std::string& path, std::string_view bytes, const FileStamp* expected,
                        FileStamp* stamp, const std::string& model) {
  const std::string target = FollowLinks(path);
  if (target.empty()) return WriteResult::kFailed;
  const std::string folder = FolderOf(target);
  if (!MakeFolders(folder)) return WriteResult::kFailed;

  struct stat old;
  // lstat() reports a link that has appeared at the end of the chain meanwhile: it is no regular file.
  const bool exists = Repeat([&] { return lstat(target.c_str(), &old); }) == 0;
  if (!exists && errno != ENOENT) return WriteResult::kFailed;
  // rename() ignores write protection; the user set it deliberately, so respect it.
  if (exists && (!S_ISREG(old.st_mode) || Repeat([&] { return access(target.c_str(), W_OK); }) != 0))
    return WriteResult::kFailed;
  const std::string& source = model.empty() ? target : model;
  const bool hasRights = model.empty() ? exists : Repeat([&] { return stat(model.c_str(), &old); }) == 0;

  CTemporary temporary(folder, exists || !model.empty() ? 0600 : 0666);
  if (!temporary.IsOpen() || !WriteAll(temporary.Get(), bytes)) return WriteResult::kFailed;
  if (hasRights && !CopyRights(temporary.Get(), source, old)) return WriteResult::kFailed;
  // A full disk may be reported only here, or when the file is closed.
  if (Repeat([&] { return fsync(temporary.Get()); }) != 0) return WriteResult::kFailed;
  if (!temporary.Close()) return WriteResult::kFailed;
  const FileStamp wanted = StampOf(bytes);

  const CDescriptor folderDescriptor = Open(folder, O_RDONLY | O_DIRECTORY);
  if (!folderDescriptor.IsOpen()) return WriteResult::kFailed;
  if (expected != nullptr && !IsAsExpected(target, *expected, wanted)) return WriteResult::kChanged;
  WriteResult result = WriteResult::kFailed;
  if (!exists)
    result = Create(temporary, target, expected != nullptr);
  else if (expected != nullptr)
    result = Exchange(temporary, target, *expected, wanted);
  else if (temporary.MoveTo(target, 0))
    result = WriteResult::kWritten;
  if (result != WriteResult::kWritten) return result;

  if (stamp != nullptr) *stamp = wanted;
  const bool synced = SyncFolder(folderDescriptor.Get());
  RemoveStaleTemporaries(folder);
  return synced ? WriteResult::kWritten : WriteResult::kNotSynced;
}

std::unique_ptr<FileLock> LockFolder(const std::string& folder, milliseconds patience) {
  return MakeFolders(folder) ? std::make_unique<CFolderLock>(folder, patience) : nullptr;
}

bool SyncFolder(const std::string& folder) {
  const CDescriptor descriptor = Open(folder, O_RDONLY | O_DIRECTORY);
  return descriptor.IsOpen() && SyncFolder(descriptor.Get());
}

bool MayReplaceFile(const std::string& path) {
  const std::string target = FollowLinks(path);
  struct stat status;
  if (target.empty()) return false;
  if (Repeat([&] { return lstat(target.c_str(), &status); }) == 0) {
    if (!S_ISREG(status.st_mode) || Repeat([&] { return access(target.c_str(), W_OK); }) != 0) return false;
  } else if (errno != ENOENT) {
    return false;
  }
  std::string folder = FolderOf(target);
  const auto isMissing = [&] {
    return Repeat([&] { return stat(folder.c_str(), &status); }) != 0 && errno == ENOENT;
  };
  while (isMissing() && folder != FolderOf(folder)) folder = FolderOf(folder);
  return Repeat([&] { return access(folder.c_str(), W_OK | X_OK); }) == 0;
}

bool MakePrivateFile(const std::string& path, std::string_view bytes) {
  const std::string folder = FolderOf(path);
  if (!MakeFolders(folder) || IsPerhapsOthers(folder)) return false;
  // Some file systems have rights of their own for all files and refuse every change.
  struct stat status;
  if (Repeat([&] { return stat(folder.c_str(), &status); }) != 0) return false;
  if ((status.st_mode & 07777) != kPrivateFolder)
    Repeat([&] { return chmod(folder.c_str(), kPrivateFolder); });
  CTemporary temporary(folder, kPrivateFile);
  if (!temporary.IsOpen() || Repeat([&] { return fstat(temporary.Get(), &status); }) != 0) return false;
  if ((status.st_mode & 07777) != kPrivateFile) Repeat([&] { return fchmod(temporary.Get(), kPrivateFile); });
  if (!WriteAll(temporary.Get(), bytes) || Repeat([&] { return fsync(temporary.Get()); }) != 0) return false;
  if (!temporary.Close() || !temporary.MoveTo(path, 0)) return false;
  RemoveStaleTemporaries(folder);
  return SyncFolder(folder);
}

bool MakeFolders(const std::string& folder) {
  struct stat status;
  if (Repeat([&] { return stat(folder.c_str(), &status); }) == 0) return S_ISDIR(status.st_mode);
  const std::string parent = FolderOf(folder);
  if (errno != ENOENT || parent == folder || !MakeFolders(parent)) return false;
  if (Repeat([&] { return mkdir(folder.c_str(), kPrivateFolder); }) == 0) {
    // The mask for new files may keep even the user out.
    if (Repeat([&] { return stat(folder.c_str(), &status); }) != 0 || (status.st_mode & 0700) != 0700)
      Repeat([&] { return chmod(folder.c_str(), kPrivateFolder); });
  } else if (errno != EEXIST) {  // another process may have made it meanwhile
    return false;
  }
  return SyncFolder(parent);
}

}  // namespace orbisol

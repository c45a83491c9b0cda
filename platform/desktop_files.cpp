#include "platform/desktop_files.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/file_names.h"
#include "platform/path_text.h"
#include "platform/posix_file.h"
#include "platform/trash.h"

namespace orbisol {

std::vector<std::u16string> CDesktopFiles::List(std::u16string_view folder,
                                                std::u16string_view ending) const {
  std::vector<std::u16string> names;
  const std::filesystem::path path = PathBytes(folder);
  for (const std::string& bytes : NamesIn(path.native()).value_or(std::vector<std::string>())) {
    std::u16string name = PathText(bytes);
    std::error_code error;
    if (name.ends_with(ending) && std::filesystem::is_regular_file(path / bytes, error))
      names.push_back(std::move(name));
  }
  return names;
}

bool CDesktopFiles::Exists(std::u16string_view path) const { return FileExists(PathBytes(path)); }

std::optional<FileBytes> CDesktopFiles::Read(std::u16string_view path) const {
  return ReadWholeFile(PathBytes(path));
}

std::optional<std::uint64_t> CDesktopFiles::SizeOf(std::u16string_view path) const {
  return FileSize(PathBytes(path));
}

bool CDesktopFiles::MayReplace(std::u16string_view path) const { return MayReplaceFile(PathBytes(path)); }

std::unique_ptr<FileLock> CDesktopFiles::LockFolderOf(std::u16string_view path) {
  constexpr std::chrono::seconds kPatience{2};
  return LockFolder(FolderOf(PathBytes(path)), kPatience);
}

WriteResult CDesktopFiles::Replace(std::u16string_view path, std::string_view bytes,
                                   const FileStamp* expected, FileStamp* stamp, std::u16string_view model) {
  return ReplaceFile(PathBytes(path), bytes, expected, stamp, PathBytes(model));
}

bool CDesktopFiles::MakePrivate(std::u16string_view path, std::string_view bytes) {
  return MakePrivateFile(PathBytes(path), bytes);
}

bool CDesktopFiles::AddName(std::u16string_view path, std::u16string_view newPath) {
  return AddFileName(PathBytes(path), PathBytes(newPath));
}

bool CDesktopFiles::Remove(std::u16string_view path) { return RemoveFile(PathBytes(path)); }

bool CDesktopFiles::MoveFolder(std::u16string_view folder, std::u16string_view newFolder) {
  return MoveWholeFolder(PathBytes(folder), PathBytes(newFolder));
}

bool CDesktopFiles::MoveToTrash(std::u16string_view path) {
  return MoveToTrashFolder(PathBytes(path), m_trash, LocalNow());
}

}  // namespace orbisol

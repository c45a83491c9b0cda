#include "platform/desktop_files.h"

#include <dirent.h>
#include <sys/stat.h>

#include <utility>

#include "platform/path_text.h"
#include "platform/posix_file.h"
#include "platform/trash.h"

namespace orbisol {

std::vector<std::u16string> CDesktopFiles::List(std::u16string_view folder,
                                                std::u16string_view ending) const {
  const std::string folderPath = PathBytes(folder);
  DIR* const entries = opendir(folderPath.c_str());
  if (entries == nullptr) return {};
  std::vector<std::u16string> names;
  while (const dirent* const entry = readdir(entries)) {
    std::u16string name = PathText(entry->d_name);
    struct stat status;
    if (name.ends_with(ending) && stat((folderPath + "/" + entry->d_name).c_str(), &status) == 0 &&
        S_ISREG(status.st_mode))
      names.push_back(std::move(name));
  }
  closedir(entries);
  return names;
}

bool CDesktopFiles::Exists(std::u16string_view path) const { return FileExists(PathBytes(path)); }

std::optional<FileBytes> CDesktopFiles::Read(std::u16string_view path) const {
  return ReadWholeFile(PathBytes(path));
}

std::unique_ptr<FileLock> CDesktopFiles::LockFolderOf(std::u16string_view path) {
  return LockFolder(FolderOf(PathBytes(path)));
}

WriteResult CDesktopFiles::Replace(std::u16string_view path, std::string_view bytes,
                                   const FileStamp* expected, FileStamp* stamp) {
  return ReplaceFile(PathBytes(path), bytes, expected, stamp);
}

bool CDesktopFiles::MoveToTrash(std::u16string_view path) {
  return MoveToTrashFolder(PathBytes(path), m_trash, TrashTimeNow());
}

}  // namespace orbisol

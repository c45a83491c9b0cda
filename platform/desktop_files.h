// The files of a Linux desktop, whose texts of paths are those of path_text.h.
//
//   const Folders folders = DesktopFolders();
//   CDesktopFiles files(folders.trash);
//   files.Read(CalendarFoldersOf(folders).shippedLegals + u"/France.xml");
#pragma once

#include <string>
#include <utility>

#include "files/file_system.h"

namespace orbisol {

class CDesktopFiles : public FileSystem {
 public:
  // `trash` is the user's trash folder (platform/trash.h).
  explicit CDesktopFiles(std::string trash) : m_trash(std::move(trash)) {}

  std::vector<std::u16string> List(std::u16string_view folder, std::u16string_view ending) const override;
  bool Exists(std::u16string_view path) const override;
  std::optional<FileBytes> Read(std::u16string_view path) const override;
  std::optional<std::uint64_t> SizeOf(std::u16string_view path) const override;
  bool MayReplace(std::u16string_view path) const override;
  std::unique_ptr<FileLock> LockFolderOf(std::u16string_view path) override;
  WriteResult Replace(std::u16string_view path, std::string_view bytes, const FileStamp* expected,
                      FileStamp* stamp, std::u16string_view model) override;
  bool MakePrivate(std::u16string_view path, std::string_view bytes) override;
  bool AddName(std::u16string_view path, std::u16string_view newPath) override;
  bool Remove(std::u16string_view path) override;
  bool MoveFolder(std::u16string_view folder, std::u16string_view newFolder) override;
  bool MoveToTrash(std::u16string_view path) override;

 private:
  std::string m_trash;
};

}  // namespace orbisol

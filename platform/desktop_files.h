// The calendar files of a Linux desktop.
//
//   CDesktopFiles files(DesktopFolders());
//   files.Read(files.ShippedLegalsFolder() + u"/France.xml");
#pragma once

#include <utility>

#include "files/file_system.h"
#include "platform/folders.h"

namespace orbisol {

class CDesktopFiles : public Files {
 public:
  explicit CDesktopFiles(Folders folders) : m_folders(std::move(folders)) {}

  std::u16string CalendarFolder() const override;
  std::u16string UserLegalsFolder() const override;
  std::u16string ShippedLegalsFolder() const override;
  std::vector<std::u16string> List(std::u16string_view folder, std::u16string_view ending) const override;
  bool Exists(std::u16string_view path) const override;
  std::optional<FileBytes> Read(std::u16string_view path) const override;
  WriteResult Replace(std::u16string_view path, std::string_view bytes, const FileStamp* expected,
                      FileStamp* stamp) override;
  bool MoveToTrash(std::u16string_view path) override;

 private:
  Folders m_folders;
};

}  // namespace orbisol

#include "files/backup.h"

#include "core/text.h"

namespace orbisol {

bool BackUp(FileSystem& files, std::u16string_view path, std::string_view bytes) {
  const std::u16string backup = std::u16string(path) + u".bak";
  const std::optional<FileBytes> older = files.Read(backup);
  if (!older && files.Exists(backup)) return false;
  if (older && older->bytes == bytes) return true;
  const FileStamp missing;
  if (older) {
    int number = 1;
    const auto numbered = [&] { return backup + u"." + DecimalText(number); };
    while (files.Exists(numbered())) ++number;
    if (files.Replace(numbered(), older->bytes, &missing, nullptr, path) != WriteResult::kWritten)
      return false;
  }
  return files.Replace(backup, bytes, older ? &older->stamp : &missing, nullptr, path) ==
         WriteResult::kWritten;
}

}  // namespace orbisol

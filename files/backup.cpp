#include "files/backup.h"

#include "core/text.h"

namespace orbisol {

namespace {

// Returns the name of a backup: the newest is 0.
std::u16string BackupPath(std::u16string_view path, int number) {
  const std::u16string newest = std::u16string(path) + u".bak";
  return number == 0 ? newest : newest + u"." + DecimalText(number);
}

}  // namespace

bool BackUp(FileSystem& files, std::u16string_view path, std::string_view bytes) {
  const std::u16string backup = BackupPath(path, 0);
  const std::optional<FileBytes> older = files.Read(backup);
  if (!older && files.Exists(backup)) return false;
  if (older && older->bytes == bytes) return true;
  const FileStamp missing;
  if (older) {
    int number = 1;
    while (files.Exists(BackupPath(path, number))) ++number;
    if (files.Replace(BackupPath(path, number), older->bytes, &missing, nullptr, path) !=
        WriteResult::kWritten)
      return false;
  }
  return files.Replace(backup, bytes, older ? &older->stamp : &missing, nullptr, path) ==
         WriteResult::kWritten;
}

void RenameBackups(FileSystem& files, std::u16string_view path, std::u16string_view newPath) {
  for (int number = 0; files.SizeOf(BackupPath(path, number)); ++number)
    if (files.AddName(BackupPath(path, number), BackupPath(newPath, number)))
      files.Remove(BackupPath(path, number));
}

void TrashBackups(FileSystem& files, std::u16string_view path) {
  for (int number = 0; files.SizeOf(BackupPath(path, number)); ++number)
    files.MoveToTrash(BackupPath(path, number));
}

}  // namespace orbisol

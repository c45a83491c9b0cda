#include "files/backup.h"

#include "core/text.h"

namespace orbisol {

bool KeepCopy(Files& files, std::u16string_view path, std::string_view bytes) {
  const std::u16string copy = std::u16string(path) + u".bak";
  const std::optional<FileBytes> older = files.Read(copy);
  if (!older && files.Exists(copy)) return false;
  if (older && older->bytes == bytes) return true;
  const FileStamp missing;
  if (older) {
    long long number = 1;
    const auto numbered = [&] { return copy + u"." + DecimalText(number); };
    while (files.Exists(numbered())) ++number;
    if (files.Replace(numbered(), older->bytes, &missing, nullptr) != WriteResult::kWritten) return false;
  }
  return files.Replace(copy, bytes, older ? &older->stamp : &missing, nullptr) == WriteResult::kWritten;
}

}  // namespace orbisol

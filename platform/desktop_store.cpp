#include "platform/desktop_store.h"

#include <utility>

#include "files/backup.h"
#include "files/calendar_name.h"
#include "platform/path_text.h"
#include "platform/posix_file.h"
#include "settings/registry_text.h"

namespace orbisol {
namespace {

constexpr int kAttempts = 10;  // number of tries while another program keeps saving

// Returns the first of the files that exists; empty when there is no key.
std::string KeyFile(const std::vector<std::string>& files) {
  for (const std::string& file : files)
    if (FileExists(file)) return file;
  return {};
}

// Returns the bytes of a key; nothing if the file cannot be read or is too long to be a key.
std::optional<FileBytes> ReadKey(const std::string& path) {
  std::optional<FileBytes> file = ReadWholeFile(path);
  if (file && file->bytes.size() > kMaxKeyBytes) file.reset();
  return file;
}

}  // namespace

CDesktopStore::CDesktopStore(FileSystem& files, std::vector<std::string> stores,
                             std::chrono::milliseconds patience)
    : m_files(files), m_stores(std::move(stores)), m_patience(patience) {}

std::optional<StoredValues> CDesktopStore::Read() const {
  const std::string key = KeyFile(m_stores);
  if (key.empty()) return {};
  const std::optional<FileBytes> file = ReadKey(key);
  if (!file) return StoredValues{{kCalendarNameValue, TextValue(kDefaultCalendarName)}};
  return CRegistryText(file->bytes).Values();
}

bool CDesktopStore::Write(const std::vector<StoreChange>& changes) {
  if (KeyFile(m_stores).empty()) return false;
  const std::string& own = m_stores.front();
  const auto lock = LockFolder(FolderOf(own), m_patience);

  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    const std::string key = KeyFile(m_stores);
    const std::optional<FileBytes> file = ReadKey(key);
    if (!file) return false;
    CRegistryText text(file->bytes);
    for (const StoreChange& change : changes) {
      if (!change.value)
        text.Delete(change.name);
      else if (!text.Set(change.name, *change.value))
        return false;
    }
    const FileStamp expected = key == own ? file->stamp : FileStamp{};
    // Without changes the bytes stay as they are, the encoding included.
    const std::string bytes = changes.empty() ? file->bytes : text.Bytes();
    if (key == own && bytes != file->bytes && !text.IsLossless() &&
        !BackUp(m_files, PathText(own), file->bytes))
      return false;
    const WriteResult result = ReplaceFile(own, bytes, &expected, nullptr);
    if (result != WriteResult::kChanged) return result == WriteResult::kWritten;
  }
  return false;
}

}  // namespace orbisol

#include "files/calendar_store.h"

#include <algorithm>

#include "core/platform.h"
#include "files/backup.h"

namespace orbisol {

std::vector<std::u16string> CCalendarStore::Names() const {
  std::vector<std::u16string> names = CalendarNamesIn(m_files, m_folder);
  std::sort(names.begin(), names.end(), AlphabeticallyBefore);
  return names;
}

std::u16string CCalendarStore::PathOf(std::u16string_view name) const {
  return IsCalendarName(name) ? CalendarPath(m_folder, name) : std::u16string();
}

bool CCalendarStore::Exists(std::u16string_view name) const {
  const std::u16string path = PathOf(name);
  return !path.empty() && m_files.Exists(path);
}

std::u16string CCalendarStore::FreeName(std::u16string_view name) const {
  constexpr int kMostNumbers = 10000;  // in a folder that is closed to the user every name may exist
  const std::u16string known = CalendarNameOrDefault(name);
  int number = 2;
  while (number < kMostNumbers && Exists(NumberedName(known, number))) ++number;
  return NumberedName(known, number);
}

std::optional<std::string> CCalendarStore::BytesOf(std::u16string_view name) const {
  std::optional<FileBytes> file = IsCalendarName(name) ? m_files.Read(PathOf(name)) : std::nullopt;
  if (!file) return std::nullopt;
  return std::move(file->bytes);
}

LoadResult CCalendarStore::Load(std::u16string_view name, CalendarFile& calendar) {
  const std::u16string path = PathOf(name);
  const std::optional<FileBytes> file = path.empty() ? std::nullopt : m_files.Read(path);
  calendar = ReadCalendar(file ? std::string_view(file->bytes) : std::string_view());
  if (path.empty()) return LoadResult::kMissing;
  m_stamps[path] = file ? file->stamp : FileStamp();
  if (file) return LoadResult::kLoaded;
  return m_files.Exists(path) ? LoadResult::kUnreadable : LoadResult::kMissing;
}

namespace {

std::string BytesWithInfo(const CalendarFile& calendar, std::string_view disk) {
  if (!calendar.info.empty() || disk.empty()) return WriteCalendar(calendar, CalendarForm::kUser);
  CalendarFile withInfo = calendar;
  withInfo.info = ReadCalendar(disk).info;
  return WriteCalendar(withInfo, CalendarForm::kUser);
}

}  // namespace

SavedCalendar CCalendarStore::Save(std::u16string_view name, const CalendarFile& calendar,
                                   IfChanged ifChanged) {
  return Write(
      name, [&](std::string_view disk) { return BytesWithInfo(calendar, disk); }, ifChanged);
}

SavedCalendar CCalendarStore::Restore(std::u16string_view name, std::string_view bytes, IfChanged ifChanged) {
  return Write(
      name, [&](std::string_view) { return std::string(bytes); }, ifChanged);
}

bool CCalendarStore::KeepVersion(std::u16string_view name, const CalendarFile& calendar) {
  const std::string disk = BytesOf(name).value_or("");
  return m_versions.Keep(name, BytesWithInfo(calendar, disk), CurrentPlatform().clock->Now());
}

SavedCalendar CCalendarStore::Write(std::u16string_view name, const BytesMaker& make, IfChanged ifChanged) {
  SavedCalendar saved{WriteResult::kFailed, std::u16string(name)};
  if (!IsCalendarName(name)) return saved;
  const auto lock = m_files.LockFolderOf(PathOf(name));
  saved.result = Replace(name, make, ifChanged == IfChanged::kOverwrite);
  if (!IsInPlace(saved.result) && ifChanged == IfChanged::kKeepBoth) {
    saved.name = FreeName(name);
    m_stamps.erase(PathOf(saved.name));
    saved.result = Create(saved.name, make(BytesOf(name).value_or("")), PathOf(name));
  }
  return saved;
}

// Nothing is backed up or kept before it is known that the file is the expected one and may be written.
WriteResult CCalendarStore::Replace(std::u16string_view name, const BytesMaker& make, bool overwrites) {
  const std::u16string path = PathOf(name);
  const std::optional<FileBytes> disk = m_files.Read(path);
  if (!disk && m_files.Exists(path)) return WriteResult::kFailed;  // its bytes cannot be backed up
  if (!disk) return Create(name, make({}), {});

  const auto known = m_stamps.find(path);
  const bool isOthers = known == m_stamps.end() || disk->stamp != known->second;
  if (isOthers && !overwrites) return WriteResult::kChanged;
  if (!m_files.MayReplace(path)) return WriteResult::kFailed;
  const std::string bytes = make(disk->bytes);
  if (bytes != disk->bytes) {
    const bool needsBackup = isOthers || WouldLoseData(disk->bytes, CalendarForm::kUser);
    if (needsBackup && !BackUp(m_files, path, disk->bytes)) return WriteResult::kFailed;
    m_versions.Keep(name, disk->bytes, CurrentPlatform().clock->Now());
  }
  // Replace() compares again, because other programs do not take the lock.
  FileStamp written;
  const WriteResult result = m_files.Replace(path, bytes, &disk->stamp, &written);
  if (IsInPlace(result)) m_stamps[path] = written;
  return result;
}

// A file that was known here and is missing was deleted by somebody else: its versions are still its own.
WriteResult CCalendarStore::Create(std::u16string_view name, std::string_view bytes,
                                   std::u16string_view model) {
  const std::u16string path = PathOf(name);
  const FileStamp missing;
  FileStamp written;
  const WriteResult result = m_files.Replace(path, bytes, &missing, &written, model);
  if (!IsInPlace(result)) return result;
  if (m_stamps.count(path) == 0) m_versions.MoveToTrash(name);
  m_stamps[path] = written;
  return result;
}

bool CCalendarStore::PutAside(std::u16string_view name, const CalendarFile& calendar) {
  if (!IsCalendarName(name)) return false;
  const std::string bytes = BytesWithInfo(calendar, BytesOf(name).value_or(""));
  for (const std::u16string& folder : m_asides) {
    std::u16string path = CalendarPath(folder, name);
    for (int number = 2; m_files.SizeOf(path); ++number) {
      const std::optional<FileBytes> older = m_files.Read(path);
      if (older && older->bytes == bytes) return true;
      path = CalendarPath(folder, NumberedName(name, number));
    }
    if (m_files.MakePrivate(path, bytes)) return true;
  }
  return false;
}

bool CCalendarStore::HasBytes(std::string_view bytes) const {
  const std::vector<std::u16string> names = Names();
  return std::any_of(names.begin(), names.end(),
                     [&](const std::u16string& name) { return BytesOf(name) == bytes; });
}

// A calendar leaves its place aside only when the disk has confirmed the new one.
std::vector<TakenBack> CCalendarStore::TakeBack() {
  std::vector<TakenBack> all;
  for (const std::u16string& folder : m_asides) {
    for (const std::u16string& name : CalendarNamesIn(m_files, folder)) {
      const std::u16string path = CalendarPath(folder, name);
      const std::optional<FileBytes> aside = m_files.Read(path);
      if (!aside) continue;
      if (HasBytes(aside->bytes)) {
        m_files.Remove(path);
        continue;
      }
      const auto lock = m_files.LockFolderOf(PathOf(name));
      const std::u16string newName = Exists(name) ? FreeName(name) : name;
      const WriteResult result = Create(newName, aside->bytes, {});
      if (result == WriteResult::kWritten) m_files.Remove(path);
      all.push_back({name, IsInPlace(result) ? newName : std::u16string(), path});
    }
  }
  return all;
}

bool CCalendarStore::AddName(std::u16string_view name, std::u16string_view newName) {
  const std::u16string path = PathOf(name);
  const std::u16string newPath = PathOf(newName);
  if (path.empty() || newPath.empty() || !m_files.AddName(path, newPath)) return false;
  m_stamps.erase(newPath);
  if (const auto known = m_stamps.find(path); known != m_stamps.end()) m_stamps[newPath] = known->second;
  return true;
}

bool CCalendarStore::DropName(std::u16string_view name, std::u16string_view otherName) {
  const auto lock = m_files.LockFolderOf(PathOf(name));
  const std::optional<FileBytes> file = m_files.Read(PathOf(name));
  const std::optional<FileBytes> other = m_files.Read(PathOf(otherName));
  const bool isOther = file ? other && file->stamp != other->stamp : m_files.Exists(PathOf(name));
  if (!other || isOther || !m_files.Remove(PathOf(name))) return false;
  m_stamps.erase(PathOf(name));
  return true;
}

void CCalendarStore::MoveVersions(std::u16string_view name, std::u16string_view newName) {
  RenameBackups(m_files, PathOf(name), PathOf(newName));
  m_versions.Rename(name, newName);
}

bool CCalendarStore::Export(std::u16string_view path, std::string_view bytes) {
  return IsInPlace(m_files.Replace(path, bytes, nullptr, nullptr));
}

bool CCalendarStore::Delete(std::u16string_view name) {
  const std::u16string path = PathOf(name);
  if (path.empty() || !m_files.Exists(path) || !m_files.MoveToTrash(path)) return false;
  m_stamps.erase(path);
  TrashBackups(m_files, path);
  m_versions.MoveToTrash(name);
  return true;
}

}  // namespace orbisol

#include "files/calendar_store.h"

#include <algorithm>

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
  const std::u16string known = CalendarNameOrDefault(name);
  for (int number = 2;; ++number)
    if (const std::u16string free = NumberedName(known, number); !Exists(free)) return free;
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

SavedCalendar CCalendarStore::Save(std::u16string_view name, const CalendarFile& calendar,
                                   IfChanged ifChanged) {
  SavedCalendar saved{WriteResult::kFailed, std::u16string(name)};
  if (!IsCalendarName(name)) return saved;
  const auto lock = m_files.LockFolderOf(PathOf(name));
  saved.result = Replace(name, calendar, ifChanged == IfChanged::kOverwrite);
  if (!IsInPlace(saved.result) && ifChanged == IfChanged::kKeepBoth) {
    CalendarFile copy = calendar;
    if (copy.info.empty()) copy.info = ReadCalendar(BytesOf(name).value_or("")).info;
    saved.name = FreeName(name);
    m_stamps.erase(PathOf(saved.name));
    saved.result = Replace(saved.name, copy, false, PathOf(name));
  }
  return saved;
}

WriteResult CCalendarStore::Replace(std::u16string_view name, const CalendarFile& calendar, bool overwrites,
                                    std::u16string_view model) {
  const std::u16string path = PathOf(name);
  const std::optional<FileBytes> disk = m_files.Read(path);
  if (!disk && m_files.Exists(path)) return WriteResult::kFailed;  // its bytes cannot be backed up
  const bool isOthers = disk && disk->stamp != m_stamps[path];
  if (isOthers && !overwrites) return WriteResult::kChanged;

  if (disk && (isOthers || WouldLoseData(disk->bytes, CalendarForm::kUser)) &&
      !BackUp(m_files, path, disk->bytes))
    return WriteResult::kFailed;
  std::string bytes;
  if (disk && calendar.info.empty()) {
    CalendarFile withInfo = calendar;
    withInfo.info = ReadCalendar(disk->bytes).info;
    bytes = WriteCalendar(withInfo, CalendarForm::kUser);
  } else {
    bytes = WriteCalendar(calendar, CalendarForm::kUser);
  }

  // Replace() compares again, because other programs do not take the lock.
  const FileStamp expected = disk ? disk->stamp : FileStamp();
  FileStamp written;
  const WriteResult result = m_files.Replace(path, bytes, &expected, &written, model);
  if (IsInPlace(result)) m_stamps[path] = written;
  return result;
}

bool CCalendarStore::Delete(std::u16string_view name) {
  const std::u16string path = PathOf(name);
  if (path.empty() || !m_files.Exists(path) || !m_files.MoveToTrash(path)) return false;
  m_stamps.erase(path);
  return true;
}

}  // namespace orbisol

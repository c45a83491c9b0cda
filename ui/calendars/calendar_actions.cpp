#include "ui/calendars/calendar_actions.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

#include "resources/strings.h"
#include "settings/settings_store.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

QString FolderOfFile(std::u16string_view path) {
  const QFileInfo file(ToQString(path));
  const QString canonical = QFileInfo(file.absolutePath()).canonicalFilePath();
  return canonical.isEmpty() ? file.absolutePath() : canonical;
}

// Returns whether the key may name a calendar, also where it cannot be read.
bool MayBeStored(const SettingsStore& store, std::u16string_view name) {
  const std::optional<StoredValues> values = store.Read();
  return !values || TextOf(*values, kCalendarNameValue, kMaxPathUnits) == name;
}

}  // namespace

std::vector<std::u16string> CCalendarActions::Names() const {
  std::vector<std::u16string> names = m_places.calendars.Names();
  if (std::find(names.begin(), names.end(), CurrentName()) == names.end()) names.push_back(CurrentName());
  return names;
}

std::u16string CCalendarActions::CurrentName() const {
  return CalendarNameOrDefault(m_live.display.calendarName.View());
}

CalendarFile CCalendarActions::InForce() const {
  return {m_live.display.Look(), m_live.rules, m_live.content, {}};
}

// Returns whether the file holds what is in force, so that nothing would be gained by writing it again.
bool CCalendarActions::IsSaved() const {
  const std::optional<std::string> bytes = m_places.calendars.BytesOf(CurrentName());
  if (m_live.display.changed || !bytes) return false;
  CalendarFile file = ReadCalendar(*bytes);
  file.info.clear();
  return file == InForce();
}

void CCalendarActions::PutInForce(CalendarFile calendar) {
  m_live.display.Look() = calendar.look;
  m_live.display.changed = false;
  m_live.rules = calendar.rules;
  m_live.content = std::move(calendar.content);
  m_hasChangedLive = true;
}

bool CCalendarActions::HasChangedLive() { return std::exchange(m_hasChangedLive, false); }

void CCalendarActions::Say(int text, std::u16string_view name) const {
  Messages().ShowError(m_parent, TableText(text, {name, m_places.calendars.PathOf(name)}));
}

bool CCalendarActions::SaveCurrent() {
  if (IsSaved()) return true;
  SavedFromWindow saved =
      SaveCalendarFromWindow(m_parent, m_places, m_live.display, m_live.rules, m_live.content);
  if (saved.end == SaveEnd::kReloaded) PutInForce(std::move(*saved.reloaded));
  return saved.end == SaveEnd::kSaved;
}

bool CCalendarActions::Open(std::u16string_view name) {
  if (IsCurrent(name)) return true;
  CalendarFile calendar;
  const LoadResult loaded = m_places.calendars.Load(name, calendar);
  if (loaded != LoadResult::kLoaded) {
    Say(loaded == LoadResult::kMissing ? kTextCalendarGone : kTextCalendarUnreadable, name);
    return false;
  }
  if (!SaveCurrent()) return false;
  if (!SwitchCalendar(m_places.store, m_places.calendars, m_live.display, name))
    Say(kTextChoiceNotStored, name);
  PutInForce(std::move(calendar));
  return true;
}

bool CCalendarActions::Create(std::u16string_view name, bool keepsEvents) {
  if (m_places.calendars.Exists(name)) {
    Say(kTextCalendarExists, name);
    return false;
  }
  if (!SaveCurrent()) return false;
  const std::u16string before = CurrentName();
  const CalendarFile old = InForce();
  SwitchCalendar(m_places.store, m_places.calendars, m_live.display, name);
  if (!keepsEvents) PutInForce({CalendarLook(), DefaultCalendarRules(), {}, {}});
  m_hasChangedLive = true;
  SavedFromWindow saved =
      SaveCalendarFromWindow(m_parent, m_places, m_live.display, m_live.rules, m_live.content);
  if (saved.end == SaveEnd::kUnsaved) {
    PutInForce(old);
    SwitchCalendar(m_places.store, m_places.calendars, m_live.display, before);
    return false;
  }
  if (saved.end == SaveEnd::kReloaded) PutInForce(std::move(*saved.reloaded));
  if (saved.end == SaveEnd::kSaved && !saved.keyStored) Say(kTextChoiceNotStored, CurrentName());
  return true;
}

bool CCalendarActions::Rename(std::u16string_view name, std::u16string_view newName) {
  const bool isCurrent = IsCurrent(name);
  CCalendarStore& calendars = m_places.calendars;
  if (isCurrent && !calendars.Exists(name) && !SaveCurrent()) return false;
  if (!calendars.AddName(name, newName)) {
    Say(kTextCalendarNotRenamed, name);
    return false;
  }
  if (isCurrent && !SwitchCalendar(m_places.store, calendars, m_live.display, newName)) {
    // A write that was not confirmed may have been made: as long as the key may hold the new name, both names
    // keep their file.
    const bool isUnsure = MayBeStored(m_places.store, newName);
    const bool isBack = SwitchCalendar(m_places.store, calendars, m_live.display, name);
    if (isBack || !isUnsure) calendars.DropName(newName, name);
    Say(kTextCalendarNotRenamed, name);
    return false;
  }
  m_hasChangedLive = m_hasChangedLive || isCurrent;
  if (calendars.DropName(name, newName)) {
    calendars.MoveVersions(name, newName);
  } else {
    Say(kTextOldNameStays, name);
  }
  return true;
}

bool CCalendarActions::Delete(std::u16string_view name) {
  if (IsCurrent(name)) {
    Messages().Beep();
    return false;
  }
  const int text = Versions().List(name).empty() ? kTextDeleteCalendar : kTextDeleteCalendarAndVersions;
  if (Messages().Choose(m_parent, TableText(text, {name}), {TablePiece(kTextDeleteCalendarButton, 0)}) != 0)
    return false;
  if (m_places.calendars.Delete(name)) return true;
  Say(m_places.calendars.Exists(name) ? kTextCalendarNotDeleted : kTextCalendarGone, name);
  return !m_places.calendars.Exists(name);
}

bool CCalendarActions::Export(std::u16string_view name, std::u16string_view path) {
  if (FolderOfFile(path) == FolderOfFile(m_places.calendars.PathOf(name))) {
    Messages().ShowError(m_parent, TableText(kTextCopyAmongCalendars, {path}));
    return false;
  }
  std::optional<std::string> bytes = m_places.calendars.BytesOf(name);
  if (IsCurrent(name) && !IsSaved()) {
    CalendarFile calendar = InForce();
    if (bytes) calendar.info = ReadCalendar(*bytes).info;
    bytes = WriteCalendar(calendar, CalendarForm::kUser);
  }
  if (!bytes) {
    Say(kTextCalendarUnreadable, name);
    return false;
  }
  if (m_places.calendars.Export(path, *bytes)) return true;
  Messages().ShowError(m_parent, TableText(kTextCopyNotWritten, {path}));
  return false;
}

CalendarFile CCalendarActions::StateOf(std::u16string_view name) {
  CalendarFile calendar;
  if (IsCurrent(name)) {
    calendar = InForce();
    calendar.info = ReadCalendar(m_places.calendars.BytesOf(name).value_or("")).info;
  } else {
    m_places.calendars.Load(name, calendar);
  }
  return calendar;
}

bool CCalendarActions::Restore(std::u16string_view name, const CalendarVersion& version) {
  const std::optional<std::string> bytes = Versions().Read(name, version);
  if (!bytes) {
    Say(kTextVersionGone, name);
    return false;
  }
  return IsCurrent(name) ? RestoreCurrent(*bytes) : RestoreOther(name, *bytes);
}

bool CCalendarActions::RestoreCurrent(std::string_view bytes) {
  const std::u16string name = CurrentName();
  if (!IsSaved() && !m_places.calendars.KeepVersion(name, InForce()) &&
      Messages().Choose(m_parent, TableText(kTextNotKeptBeforeRestore, {name}),
                        {TablePiece(kTextRestoreAllTheSame, 0)}) != 0)
    return false;
  SavedFromWindow saved = RestoreCalendarFromWindow(m_parent, m_places, m_live.display, InForce(), bytes);
  if (saved.end == SaveEnd::kReloaded) PutInForce(std::move(*saved.reloaded));
  if (saved.end != SaveEnd::kSaved) return false;
  const bool isUnsynced = m_live.display.changed;
  PutInForce(ReadCalendar(bytes));
  m_live.display.changed = isUnsynced;
  return true;
}

bool CCalendarActions::RestoreOther(std::u16string_view name, std::string_view bytes) {
  const WriteResult result = m_places.calendars.Restore(name, bytes, IfChanged::kRefuse).result;
  if (IsInPlace(result)) return true;
  Say(result == WriteResult::kChanged ? kTextChangedMeanwhile : kTextVersionNotRestored, name);
  return false;
}

}  // namespace orbisol

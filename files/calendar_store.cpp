#include "files/calendar_store.h"

#include <algorithm>

#include "core/text.h"
#include "files/backup.h"

namespace orbisol {

namespace {

constexpr std::u16string_view kEnding = u".xml";
constexpr std::size_t kNotFound = std::u16string_view::npos;

std::u16string Joined(std::u16string_view folder, std::u16string_view name) {
  std::u16string path(folder);
  path += u'/';
  path += name;
  path += kEnding;
  return path;
}

std::vector<std::u16string> NamesIn(const Files& files, std::u16string_view folder) {
  std::vector<std::u16string> names = files.List(folder, kEnding);
  for (std::u16string& name : names) name.resize(name.size() - kEnding.size());
  std::erase_if(names, [](const std::u16string& name) { return !IsCalendarName(name); });
  return names;
}

bool IsControl(char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit < 0xA0); }

// The letters under which U+00C0 to U+017F stand in an alphabet.
constexpr std::u16string_view kBaseLetters =
    u"aaaaaaaceeeeiiiidnooooo*ouuuuyts"
    u"aaaaaaaceeeeiiiidnooooo/ouuuuyty"
    u"aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiiijjkkklllllll"
    u"lllnnnnnnnnnoooooooorrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
static_assert(kBaseLetters.size() == 0x180 - 0xC0);

// By the alphabet: lower case, without accents, so that "États-Unis" stands under E.
std::u16string AlphabetKey(std::u16string_view name) {
  std::u16string key(name);
  for (char16_t& unit : key) {
    if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit + (u'a' - u'A'));
    if (unit >= 0xC0 && unit < 0x180) unit = kBaseLetters[unit - 0xC0u];
  }
  return key;
}

bool ComesFirst(std::u16string_view a, std::u16string_view b) {
  const std::u16string keyA = AlphabetKey(a);
  const std::u16string keyB = AlphabetKey(b);
  return keyA != keyB ? keyA < keyB : a < b;
}

// "Famille" of "Famille (3)".
std::u16string_view WithoutNumber(std::u16string_view name) {
  if (!name.ends_with(u')')) return name;
  const std::size_t open = name.rfind(u" (");
  if (open == kNotFound || open == 0) return name;
  const std::u16string_view number = name.substr(open + 2, name.size() - open - 3);
  const bool isNumber = !number.empty() && number.find_first_not_of(u"0123456789") == kNotFound;
  return isNumber ? name.substr(0, open) : name;
}

}  // namespace

bool IsCalendarName(std::u16string_view name) {
  if (name.empty() || name == u"." || name == u"..") return false;
  for (const char16_t unit : name)
    if (unit == u'/' || unit == u'\\' || IsControl(unit)) return false;
  const std::string bytes = ToUtf8(name);
  return bytes.size() <= kMaxCalendarNameBytes && FromUtf8(bytes) == name;  // half a pair names no file
}

std::u16string CalendarNameOrDefault(std::u16string_view name) {
  return std::u16string(IsCalendarName(name) ? name : kDefaultCalendarName);
}

bool IsFirstStartName(std::u16string_view name) {
  constexpr std::u16string_view kEndingOfName = u"_public";
  return name.size() == 2 + kEndingOfName.size() && name.ends_with(kEndingOfName);
}

std::vector<std::u16string> CCalendarStore::Names() const {
  std::vector<std::u16string> names = NamesIn(m_files, m_files.CalendarFolder());
  std::sort(names.begin(), names.end(), ComesFirst);
  return names;
}

std::u16string CCalendarStore::PathOf(std::u16string_view name) const {
  return IsCalendarName(name) ? Joined(m_files.CalendarFolder(), name) : std::u16string();
}

bool CCalendarStore::Exists(std::u16string_view name) const {
  const std::u16string path = PathOf(name);
  return !path.empty() && m_files.Exists(path);
}

std::u16string CCalendarStore::FreeName(std::u16string_view name) const {
  const std::u16string known = CalendarNameOrDefault(name);
  for (long long number = 2;; ++number) {
    const std::u16string suffix = u" (" + DecimalText(number) + u")";
    std::u16string_view base = WithoutNumber(known);
    while (!IsCalendarName(std::u16string(base) + suffix)) base = CutText(base, base.size() - 1);
    const std::u16string free = std::u16string(base) + suffix;
    if (!Exists(free)) return free;
  }
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

WriteResult CCalendarStore::Save(std::u16string_view name, const CalendarFile& calendar,
                                 IfChanged ifChanged) {
  const std::u16string path = PathOf(name);
  if (path.empty()) return WriteResult::kFailed;
  const std::optional<FileBytes> disk = m_files.Read(path);
  if (!disk && m_files.Exists(path)) return WriteResult::kFailed;  // nobody knows what would be lost
  const bool isOthers = disk && disk->stamp != m_stamps[path];
  if (isOthers && ifChanged == IfChanged::kRefuse) return WriteResult::kChanged;

  if (disk && (isOthers || HoldsMore(disk->bytes, CalendarForm::kUser)) &&
      !KeepCopy(m_files, path, disk->bytes))
    return WriteResult::kFailed;
  std::string bytes;
  if (disk && calendar.info.empty()) {
    CalendarFile withInfo = calendar;
    withInfo.info = ReadCalendar(disk->bytes).info;
    bytes = WriteCalendar(withInfo, CalendarForm::kUser);
  } else {
    bytes = WriteCalendar(calendar, CalendarForm::kUser);
  }

  // Whoever writes in this moment is still found: the file must be the one just judged.
  const FileStamp judged = disk ? disk->stamp : FileStamp();
  FileStamp written;
  const WriteResult result = m_files.Replace(path, bytes, &judged, &written);
  // Where only the last sync failed the new bytes are in place, and nobody else's.
  if (result == WriteResult::kWritten || written.exists) m_stamps[path] = written;
  return result;
}

WriteResult CCalendarStore::SaveBeside(std::u16string_view name, const CalendarFile& calendar,
                                       std::u16string& newName) {
  const std::u16string free = FreeName(name);
  CalendarFile copy = calendar;
  if (copy.info.empty()) copy.info = Description(PathOf(name));
  m_stamps.erase(PathOf(free));
  const WriteResult result = Save(free, copy, IfChanged::kRefuse);
  if (result == WriteResult::kWritten) newName = free;
  return result;
}

bool CCalendarStore::Delete(std::u16string_view name) {
  const std::u16string path = PathOf(name);
  if (path.empty() || !m_files.Exists(path) || !m_files.MoveToTrash(path)) return false;
  m_stamps.erase(path);
  return true;
}

std::vector<PublicCalendar> CCalendarStore::PublicCalendars() const {
  std::vector<PublicCalendar> calendars;
  const auto add = [&](const std::u16string& folder, bool ofFirstStarts) {
    for (const std::u16string& name : NamesIn(m_files, folder)) {
      const auto hasName = [&](const PublicCalendar& other) { return other.name == name; };
      if (!ofFirstStarts && IsFirstStartName(name)) continue;
      if (std::none_of(calendars.begin(), calendars.end(), hasName))
        calendars.push_back({name, Joined(folder, name)});
    }
  };
  add(m_files.UserLegalsFolder(), true);
  add(m_files.ShippedLegalsFolder(), false);
  std::sort(calendars.begin(), calendars.end(),
            [](const PublicCalendar& a, const PublicCalendar& b) { return ComesFirst(a.name, b.name); });
  return calendars;
}

std::u16string CCalendarStore::PublicPathOf(std::u16string_view name) const {
  if (!IsCalendarName(name)) return {};
  for (const std::u16string& folder : {m_files.UserLegalsFolder(), m_files.ShippedLegalsFolder()}) {
    const std::u16string path = Joined(folder, name);
    if (m_files.Exists(path)) return path;
  }
  return {};
}

std::optional<CalendarFile> CCalendarStore::LoadPublic(std::u16string_view path) const {
  const std::optional<FileBytes> file = m_files.Read(path);
  if (!file) return std::nullopt;
  return ReadCalendar(file->bytes);
}

std::u16string CCalendarStore::Description(std::u16string_view path) const {
  const std::optional<CalendarFile> calendar = LoadPublic(path);
  return calendar ? calendar->info : std::u16string();
}

}  // namespace orbisol

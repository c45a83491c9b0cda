#include "files/versions.h"

#include <algorithm>

#include "core/text.h"
#include "files/byte_hash.h"
#include "files/calendar_name.h"

namespace orbisol {
namespace {

constexpr std::u16string_view kEnding = u".xml";
constexpr int kMostCount = 999'999;
constexpr std::size_t kHashDigits = 16;

std::u16string Padded(int number, std::size_t width) {
  const std::u16string digits = DecimalText(number);
  return std::u16string(width - std::min(width, digits.size()), u'0') + digits;
}

std::u16string HashText(std::uint64_t hash) {
  std::u16string text(kHashDigits, u'0');
  for (std::size_t i = kHashDigits; i-- > 0; hash >>= 4) text[i] = u"0123456789abcdef"[hash & 15];
  return text;
}

// The parts of a file's name, "2026-05-13 14.05.09 000017 85944171f73967e8.xml".
constexpr std::u16string_view kPattern = u"####-##-## ##.##.## ###### hhhhhhhhhhhhhhhh.xml";

bool FitsPattern(std::u16string_view name) {
  if (name.size() != kPattern.size()) return false;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const bool isDigit = name[i] >= u'0' && name[i] <= u'9';
    const bool isLetter = name[i] >= u'a' && name[i] <= u'f';
    const bool fits = kPattern[i] == u'#'   ? isDigit
                      : kPattern[i] == u'h' ? isDigit || isLetter
                                            : name[i] == kPattern[i];
    if (!fits) return false;
  }
  return true;
}

std::u16string FileName(const CalendarVersion& version) {
  const LocalMoment& kept = version.kept;
  return Padded(std::clamp(kept.day.year, 0, 9999), 4) + u"-" + Padded(kept.day.month, 2) + u"-" +
         Padded(kept.day.day, 2) + u" " + Padded(kept.hour, 2) + u"." + Padded(kept.minute, 2) + u"." +
         Padded(kept.second, 2) + u" " + Padded(version.count, 6) + u" " + HashText(version.hash) +
         std::u16string(kEnding);
}

std::optional<CalendarVersion> VersionOf(std::u16string_view fileName) {
  if (!FitsPattern(fileName)) return {};
  const auto number = [&](std::size_t from, std::size_t length) {
    return ParseDecimal(fileName.substr(from, length));
  };
  CalendarVersion version;
  version.kept = {{number(0, 4), number(5, 2), number(8, 2)}, number(11, 2), number(14, 2), number(17, 2)};
  version.count = number(20, 6);
  for (const char16_t digit : fileName.substr(27, kHashDigits))
    version.hash = version.hash << 4 | static_cast<unsigned>(HexDigit(digit));
  return version;
}

bool IsNewer(const CalendarVersion& a, const CalendarVersion& b) {
  if (a.count != b.count) return a.count > b.count;
  return FileName(a) > FileName(b);  // two programs counted alike
}

template <typename Value>
bool AddIfNew(std::vector<Value>& values, const Value& value) {
  if (std::find(values.begin(), values.end(), value) != values.end()) return false;
  values.push_back(value);
  return true;
}

}  // namespace

std::vector<CalendarVersion> SurplusVersions(std::span<const CalendarVersion> versions) {
  std::vector<CalendarVersion> surplus;
  std::vector<std::uint64_t> newest;
  std::vector<YearMonthDay> days;
  std::uint64_t bytes = 0;
  for (const CalendarVersion& version : versions) {
    const bool isAmongNewest = newest.size() < kNewestVersions && AddIfNew(newest, version.hash);
    const bool isEarlierDay = version.kept.day != versions.front().kept.day;
    const bool isLastOfDay = isEarlierDay && days.size() < kVersionDays && AddIfNew(days, version.kept.day);
    const bool isWanted = isAmongNewest || isLastOfDay;
    if (isWanted) bytes += version.size;
    if (!isWanted || bytes > kMostVersionBytes) surplus.push_back(version);
  }
  return surplus;
}

std::u16string CVersions::FolderOf(std::u16string_view name) const {
  return m_folder.empty() || !IsCalendarName(name) ? std::u16string()
                                                   : std::u16string(m_folder).append(u"/").append(name);
}

std::u16string CVersions::PathOf(std::u16string_view name, const CalendarVersion& version) const {
  return FolderOf(name) + u"/" + FileName(version);
}

bool CVersions::Keep(std::u16string_view name, std::string_view bytes, const LocalMoment& now) {
  if (FolderOf(name).empty() || bytes.size() > kMostVersionBytes) return false;
  const std::vector<CalendarVersion> older = List(name);
  CalendarVersion version{now, 1, ByteHash(bytes), bytes.size()};
  if (!older.empty()) version.count = std::min(older.front().count + 1, kMostCount);
  if (!m_files.MakePrivate(PathOf(name, version), bytes)) return false;
  for (const CalendarVersion& surplus : SurplusVersions(List(name))) m_files.Remove(PathOf(name, surplus));
  return true;
}

std::vector<CalendarVersion> CVersions::List(std::u16string_view name) const {
  std::vector<CalendarVersion> versions;
  if (FolderOf(name).empty()) return versions;
  for (const std::u16string& fileName : m_files.List(FolderOf(name), kEnding)) {
    std::optional<CalendarVersion> version = VersionOf(fileName);
    if (!version) continue;
    const std::optional<std::uint64_t> size = m_files.SizeOf(PathOf(name, *version));
    if (!size) continue;  // another program has just removed it
    version->size = *size;
    versions.push_back(*version);
  }
  std::sort(versions.begin(), versions.end(), IsNewer);
  return versions;
}

std::optional<std::string> CVersions::Read(std::u16string_view name, const CalendarVersion& version) const {
  std::optional<FileBytes> file = m_files.Read(PathOf(name, version));
  if (!file) return std::nullopt;
  return std::move(file->bytes);
}

void CVersions::Rename(std::u16string_view name, std::u16string_view newName) {
  if (FolderOf(name).empty() || FolderOf(newName).empty()) return;
  MoveToTrash(newName);
  m_files.MoveFolder(FolderOf(name), FolderOf(newName));
}

void CVersions::MoveToTrash(std::u16string_view name) {
  if (const std::u16string folder = FolderOf(name); !folder.empty() && m_files.Exists(folder))
    m_files.MoveToTrash(folder);
}

}  // namespace orbisol

#include "files/calendar_name.h"

#include <algorithm>

#include "core/text.h"

namespace orbisol {

namespace {

constexpr std::u16string_view kEnding = u".xml";
constexpr std::u16string_view kFirstStartEnding = u"_public";
constexpr std::size_t kNotFound = std::u16string_view::npos;

// Characters that look like a blank.
constexpr std::u16string_view kBlanks =
    u" \u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007"
    u"\u2008\u2009\u200A\u202F\u205F\u2800\u3000\u3164\uFFA0";

// Ranges of invisible characters: joiners, marks of direction, variation selectors, the byte-order mark.
constexpr struct {
  char16_t first, last;
} kInvisible[] = {{0x00AD, 0x00AD}, {0x034F, 0x034F}, {0x061C, 0x061C}, {0x115F, 0x1160},
                  {0x17B4, 0x17B5}, {0x180B, 0x180F}, {0x200B, 0x200F}, {0x2028, 0x202E},
                  {0x2060, 0x206F}, {0xFE00, 0xFE0F}, {0xFEFF, 0xFEFF}, {0xFFF0, 0xFFFB}};

bool IsInvisible(char16_t unit) {
  return std::any_of(std::begin(kInvisible), std::end(kInvisible),
                     [&](const auto& range) { return range.first <= unit && unit <= range.last; });
}

bool AreSameWithoutCase(std::u16string_view a, std::u16string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (UpperFirst(a.substr(i, 1)) != UpperFirst(b.substr(i, 1))) return false;
  return true;
}

bool IsControl(char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit < 0xA0); }

// Returns "Famille" for "Famille (3)".
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
  return bytes.size() <= kMaxCalendarNameBytes &&
         FromUtf8(bytes) == name;  // a lone surrogate cannot be in a file's name
}

NameFault FaultOfNewName(std::u16string_view name, std::span<const std::u16string> names) {
  if (name.find_first_not_of(kBlanks) == kNotFound) return NameFault::kBlank;
  if (std::any_of(name.begin(), name.end(), IsInvisible)) return NameFault::kInvisible;
  if (!IsCalendarName(name)) return NameFault::kNoFileName;
  if (name.ends_with(kFirstStartEnding)) return NameFault::kReserved;
  const auto isSame = [&](const std::u16string& other) { return AreSameWithoutCase(name, other); };
  return std::any_of(names.begin(), names.end(), isSame) ? NameFault::kTaken : NameFault::kNone;
}

std::u16string CalendarNameOrDefault(std::u16string_view name) {
  return std::u16string(IsCalendarName(name) ? name : kDefaultCalendarName);
}

std::u16string FirstStartName(std::u16string_view language) {
  return std::u16string(language).append(kFirstStartEnding);
}

bool IsFirstStartName(std::u16string_view name) {
  if (!name.ends_with(kFirstStartEnding)) return false;
  name.remove_suffix(kFirstStartEnding.size());
  return std::count_if(name.begin(), name.end(), [](char16_t unit) { return !IsLowSurrogate(unit); }) == 2;
}

std::u16string NumberedName(std::u16string_view name, int number) {
  const std::u16string suffix = u" (" + DecimalText(number) + u")";
  std::u16string_view base = WithoutNumber(name);
  while (!IsCalendarName(std::u16string(base) + suffix)) base = CutText(base, base.size() - 1);
  return std::u16string(base) + suffix;
}

bool AlphabeticallyBefore(std::u16string_view a, std::u16string_view b) {
  const std::u16string keyA = Folded(a);
  const std::u16string keyB = Folded(b);
  return keyA != keyB ? keyA < keyB : a < b;
}

std::u16string CalendarPath(std::u16string_view folder, std::u16string_view name) {
  return std::u16string(folder).append(u"/").append(name).append(kEnding);
}

std::vector<std::u16string> CalendarNamesIn(const FileSystem& files, std::u16string_view folder) {
  std::vector<std::u16string> names = files.List(folder, kEnding);
  for (std::u16string& name : names) name.resize(name.size() - kEnding.size());
  std::erase_if(names, [](const std::u16string& name) { return !IsCalendarName(name); });
  return names;
}

}  // namespace orbisol

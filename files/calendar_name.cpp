#include "files/calendar_name.h"

#include <algorithm>

#include "core/text.h"

namespace orbisol {

namespace {

constexpr std::u16string_view kEnding = u".xml";
constexpr std::u16string_view kFirstStartEnding = u"_public";
constexpr std::size_t kNotFound = std::u16string_view::npos;

bool IsControl(char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit < 0xA0); }

// The letters under which U+00C0 to U+017F stand in an alphabet.
constexpr std::u16string_view kBaseLetters =
    u"aaaaaaaceeeeiiiidnooooo*ouuuuyts"
    u"aaaaaaaceeeeiiiidnooooo/ouuuuyty"
    u"aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiiijjkkklllllll"
    u"lllnnnnnnnnnoooooooorrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
static_assert(kBaseLetters.size() == 0x180 - 0xC0);

std::u16string AlphabetKey(std::u16string_view name) {
  std::u16string key(name);
  for (char16_t& unit : key) {
    if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit + (u'a' - u'A'));
    if (unit >= 0xC0 && unit < 0x180) unit = kBaseLetters[unit - 0xC0u];
  }
  return key;
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

std::u16string FirstStartName(std::u16string_view language) {
  return std::u16string(language).append(kFirstStartEnding);
}

bool IsFirstStartName(std::u16string_view name) {
  return name.size() == 2 + kFirstStartEnding.size() && name.ends_with(kFirstStartEnding);
}

std::u16string NumberedName(std::u16string_view name, int number) {
  const std::u16string suffix = u" (" + DecimalText(number) + u")";
  std::u16string_view base = WithoutNumber(name);
  while (!IsCalendarName(std::u16string(base) + suffix)) base = CutText(base, base.size() - 1);
  return std::u16string(base) + suffix;
}

bool AlphabeticallyBefore(std::u16string_view a, std::u16string_view b) {
  const std::u16string keyA = AlphabetKey(a);
  const std::u16string keyB = AlphabetKey(b);
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

#include "platform/desktop_files.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <utility>

#include "platform/path_text.h"
#include "platform/posix_file.h"
#include "platform/trash.h"

namespace orbisol {
namespace {

// The letter under which U+00C0 … U+017F are looked up in an alphabet.
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

}  // namespace

std::u16string CDesktopFiles::CalendarFolder() const { return PathText(m_folders.calendars); }
std::u16string CDesktopFiles::UserLegalsFolder() const { return PathText(m_folders.userLegals); }
std::u16string CDesktopFiles::ShippedLegalsFolder() const { return PathText(m_folders.shippedLegals); }

std::vector<std::u16string> CDesktopFiles::List(std::u16string_view folder,
                                                std::u16string_view ending) const {
  const std::string folderPath = PathBytes(folder);
  DIR* const entries = opendir(folderPath.c_str());
  if (entries == nullptr) return {};
  std::vector<std::pair<std::u16string, std::u16string>> found;  // by key
  while (const dirent* const entry = readdir(entries)) {
    const std::u16string name = PathText(entry->d_name);
    struct stat status;
    if (name.ends_with(ending) && stat((folderPath + "/" + entry->d_name).c_str(), &status) == 0 &&
        S_ISREG(status.st_mode))
      found.emplace_back(AlphabetKey(std::u16string_view(name).substr(0, name.size() - ending.size())), name);
  }
  closedir(entries);
  std::sort(found.begin(), found.end());

  std::vector<std::u16string> names;
  for (auto& [key, name] : found) names.push_back(std::move(name));
  return names;
}

bool CDesktopFiles::Exists(std::u16string_view path) const { return FileExists(PathBytes(path)); }

std::optional<FileBytes> CDesktopFiles::Read(std::u16string_view path) const {
  return ReadWholeFile(PathBytes(path));
}

WriteResult CDesktopFiles::Replace(std::u16string_view path, std::string_view bytes,
                                   const FileStamp* expected, FileStamp* stamp) {
  return ReplaceFile(PathBytes(path), bytes, expected, stamp);
}

bool CDesktopFiles::MoveToTrash(std::u16string_view path) {
  return MoveToTrashFolder(PathBytes(path), m_folders.trash, TrashTimeNow());
}

}  // namespace orbisol

#include "platform/folders.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <sstream>
#include <utility>

#include "files/byte_hash.h"
#include "platform/path_text.h"
#include "platform/posix_file.h"
#include "platform/runtime_folder.h"

namespace orbisol {
namespace {

bool IsAbsolute(const std::string& path) { return !path.empty() && path[0] == '/'; }

std::string HomeOfAccount() {
  const passwd* const account = getpwuid(getuid());
  return account == nullptr || account->pw_dir == nullptr ? "" : account->pw_dir;
}

// Returns the file of this program, links followed; empty if the system does not tell.
std::string Executable() {
  std::string path(4096, '\0');
  const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
  if (length <= 0 || static_cast<std::size_t>(length) == path.size()) return "";
  path.resize(static_cast<std::size_t>(length));
  return path;
}

}  // namespace

Folders FindFolders(const VariableReader& variable, const std::string& home, const std::string& executable) {
  const std::string ownHome = variable("HOME");
  const std::string user = IsAbsolute(ownHome) ? ownHome : home;
  const auto base = [&](const char* name, const char* fallBack) {
    const std::string value = variable(name);
    return IsAbsolute(value) ? value : user + fallBack;
  };
  const std::string data = base("XDG_DATA_HOME", "/.local/share");
  std::string shipped = IsAbsolute(executable) ? FolderOf(FolderOf(executable)) : "/";
  shipped += shipped.ends_with('/') ? "share/orbisol" : "/share/orbisol";

  Folders folders;
  folders.calendars = data + "/Corvalen/orbisol";
  folders.userLegals = folders.calendars + "/Legals";
  folders.shippedLegals = shipped + "/Legals";
  const std::string state = base("XDG_STATE_HOME", "/.local/state") + "/Corvalen/orbisol";
  folders.versions = state + "/versions";
  folders.asides.push_back(state + "/aside");
  const std::string shared = "/orbisol-" + std::to_string(ByteHash(folders.calendars));
  for (const char* const place : {"/var/tmp", "/tmp", "/dev/shm"}) folders.asides.push_back(place + shared);
  if (const std::string runtime = variable("XDG_RUNTIME_DIR"); IsAbsolute(runtime))
    folders.asides.push_back(runtime + shared);
  folders.trash = data + "/Trash";

  folders.stores.push_back(base("XDG_CONFIG_HOME", "/.config") + "/Corvalen/Calendar.reg");
  std::string list = variable("XDG_CONFIG_DIRS");
  if (list.empty()) list = "/etc/xdg";
  std::istringstream entries(list);
  for (std::string entry; std::getline(entries, entry, ':');)
    if (IsAbsolute(entry)) folders.stores.push_back(entry + "/Corvalen/Calendar.reg");
  folders.stores.push_back(shipped + "/Calendar.reg");
  return folders;
}

Folders DesktopFolders() {
  Folders folders = FindFolders(Variable, HomeOfAccount(), Executable());
  const auto isOthers = [](const std::string& folder) {
    return FileExists(folder) && !IsOwnFolder(folder, getuid());
  };
  folders.asides.erase(std::remove_if(folders.asides.begin() + 1, folders.asides.end(), isOthers),
                       folders.asides.end());
  return folders;
}

CalendarFolders CalendarFoldersOf(const Folders& folders) {
  std::vector<std::u16string> asides;
  for (const std::string& folder : folders.asides) asides.push_back(PathText(folder));
  return {PathText(folders.calendars), PathText(folders.userLegals), PathText(folders.shippedLegals),
          PathText(folders.versions), std::move(asides)};
}

}  // namespace orbisol

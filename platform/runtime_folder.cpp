#include "platform/runtime_folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cctype>

namespace orbisol {

bool IsOwnFolder(const std::string& path, unsigned user) {
  struct stat status;
  return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == user &&
         (status.st_mode & 077) == 0;
}

std::string RuntimeFolder() { return FindRuntimeFolder(Variable, getuid()); }

std::string FindRuntimeFolder(const VariableReader& variable, unsigned user) {
  const std::string given = variable("XDG_RUNTIME_DIR");
  if (given.starts_with('/') && IsOwnFolder(given, user)) return given;
  const std::string temporary = variable("TMPDIR");
  const std::string folder =
      (temporary.starts_with('/') ? temporary : "/tmp") + "/orbisol-" + std::to_string(user);
  mkdir(folder.c_str(), 0700);
  return IsOwnFolder(folder, user) ? folder : std::string();
}

std::string DisplayName() { return FindDisplayName(Variable); }

std::string FindDisplayName(const VariableReader& variable) {
  std::string name = variable("WAYLAND_DISPLAY");
  if (name.empty()) {
    name = variable("DISPLAY");
    // ":0.1" is another screen of display ":0".
    if (const auto screen = name.find('.', name.rfind(':') + 1); screen != std::string::npos)
      name.erase(screen);
  }
  for (char& c : name)
    if (std::isalnum(static_cast<unsigned char>(c)) == 0 && c != '-') c = '_';
  return name;
}

}  // namespace orbisol

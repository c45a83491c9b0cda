#include "platform/file_rights.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <string_view>

#include "platform/descriptor.h"

namespace orbisol {
namespace {

constexpr char kAccessList[] = "system.posix_acl_access";
constexpr mode_t kGroupRights = 070;

// Returns the answer of a call of the system for the names or the value of attributes; nothing if the call
// fails, as for an attribute that does not exist or an answer that is too long.
template <typename Call>
std::optional<std::string> AnswerOf(Call call) {
  constexpr std::size_t kLongest = 65536;  // limit of the system for a value or all names, in bytes
  std::string answer(kLongest, '\0');
  const ssize_t length = Repeat([&] { return call(answer.data(), answer.size()); });
  if (length < 0) return {};
  answer.resize(static_cast<std::size_t>(length));
  return answer;
}

std::optional<std::string> AttributeOf(const std::string& path, const char* name) {
  return AnswerOf([&](char* value, std::size_t size) { return getxattr(path.c_str(), name, value, size); });
}

bool SetAttribute(int descriptor, const char* name, std::string_view value) {
  return Repeat([&] { return fsetxattr(descriptor, name, value.data(), value.size(), 0); }) == 0;
}

// Copies the attributes user.* of a file. Attributes that the file system refuses are left out.
bool CopyAttributes(int descriptor, const std::string& path) {
  const auto names =
      AnswerOf([&](char* list, std::size_t size) { return listxattr(path.c_str(), list, size); });
  if (!names) return true;
  for (std::size_t i = 0; i < names->size(); i = names->find('\0', i) + 1) {
    const char* const name = names->c_str() + i;
    if (!std::string_view(name).starts_with("user.")) continue;
    const auto value = AttributeOf(path, name);
    if (value && !SetAttribute(descriptor, name, *value) && errno != ENOTSUP && errno != EPERM) return false;
  }
  return true;
}

mode_t WithoutOwnGroup(mode_t mode) { return (mode & ~kGroupRights) | ((mode & 07) << 3 & mode); }

}  // namespace

bool CopyRights(int descriptor, const std::string& path, const struct stat& old) {
  struct stat status;
  if (Repeat([&] { return fstat(descriptor, &status); }) != 0) return false;
  mode_t mode = old.st_mode & 07777;
  bool isGroupKept = true;
  if (status.st_uid != old.st_uid || status.st_gid != old.st_gid) {
    if (Repeat([&] { return fchown(descriptor, old.st_uid, old.st_gid); }) != 0) {
      if (errno != EPERM) return false;
      // Only the superuser may change the owner; changing the group alone often succeeds.
      if (Repeat([&] { return fchown(descriptor, static_cast<uid_t>(-1), old.st_gid); }) != 0) {
        if (errno != EPERM) return false;
        isGroupKept = false;
      }
    }
    // A change of owner can clear permission bits.
    if (Repeat([&] { return fstat(descriptor, &status); }) != 0) return false;
  }
  if (!CopyAttributes(descriptor, path)) return false;

  // With an access list the group's permissions are the upper bound for all named users. Without the list
  // they would become the group's own.
  const auto list = AttributeOf(path, kAccessList);
  if (!isGroupKept || (list && !SetAttribute(descriptor, kAccessList, *list))) mode = WithoutOwnGroup(mode);
  // The folder may have given its default list to the new file.
  if (!list) Repeat([&] { return fremovexattr(descriptor, kAccessList); });
  if (Repeat([&] { return fstat(descriptor, &status); }) != 0) return false;
  // Some file systems have one mode for all files and refuse every change, even to the same mode.
  return (status.st_mode & 07777) == mode || Repeat([&] { return fchmod(descriptor, mode); }) == 0;
}

}  // namespace orbisol

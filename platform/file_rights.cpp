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

// Returns what an attribute holds; nothing when the file has none of this name, or `size` bytes are too few
// for the answer of the system. Text lists of names and values of attributes are asked for in the same way.
template <typename Call>
std::optional<std::string> AnswerOf(Call call) {
  constexpr std::size_t kLongest = 65536;  // of a value and of all names, in bytes
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

// Where the file system refuses such attributes for this user, they are left behind.
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
      // Only the superuser gives files away; the group is often possible.
      if (Repeat([&] { return fchown(descriptor, static_cast<uid_t>(-1), old.st_gid); }) != 0) {
        if (errno != EPERM) return false;
        isGroupKept = false;
      }
    }
    // A change of owner takes some rights away.
    if (Repeat([&] { return fstat(descriptor, &status); }) != 0) return false;
  }
  if (!CopyAttributes(descriptor, path)) return false;

  // The permissions of the group are the upper bound of all named users where there is an access list:
  // without that list they would be the group's own.
  const auto list = AttributeOf(path, kAccessList);
  if (!isGroupKept || (list && !SetAttribute(descriptor, kAccessList, *list))) mode = WithoutOwnGroup(mode);
  // A list that the folder gives to its new files.
  if (!list) Repeat([&] { return fremovexattr(descriptor, kAccessList); });
  if (Repeat([&] { return fstat(descriptor, &status); }) != 0) return false;
  // Some file systems have rights of their own for all files and refuse every change, even one to the same.
  return (status.st_mode & 07777) == mode || Repeat([&] { return fchmod(descriptor, mode); }) == 0;
}

}  // namespace orbisol

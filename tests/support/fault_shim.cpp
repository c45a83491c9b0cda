#include "tests/support/fault_shim.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <utility>

namespace {

orbisol::FaultReport* current = nullptr;  // null while no call is counted
int chosen = 0;
int chosenFault = 0;
void (*chosenMeddle)() = nullptr;

// Counts this call and returns its fault; 0 for none.
int Next(const char* name) {
  if (current == nullptr || ++current->calls != chosen) return 0;
  current->failed = name;
  if (chosenFault == orbisol::kKillFault) raise(SIGKILL);
  if (chosenFault == orbisol::kMeddleFault) {
    orbisol::FaultReport* const counted = std::exchange(current, nullptr);
    chosenMeddle();
    current = counted;
  }
  return chosenFault;
}

// Returns whether a call that either succeeds or fails is to fail, and sets errno.
bool Fails(const char* name) {
  const int fault = Next(name);
  if (fault > 0) errno = fault;
  return fault > 0;
}

template <typename Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

template <typename Buffer>
ssize_t Transfer(const char* name, ssize_t (*real)(int, Buffer, size_t), int descriptor, Buffer buffer,
                 size_t size) {
  const int fault = Next(name);
  if (fault > 0) {
    errno = fault;
    return -1;
  }
  return real(descriptor, buffer, fault == orbisol::kShortFault && size > 1 ? size / 2 : size);
}

}  // namespace

void orbisol::FaultShimBegin(int call, int fault, FaultReport& report, void (*meddle)()) {
  chosen = call;
  chosenFault = fault;
  chosenMeddle = meddle;
  current = &report;
}

void orbisol::FaultShimEnd() { current = nullptr; }

#define REAL(name) static const auto real = Real<decltype(name)>(#name)
#define FORWARD(name, ...) \
  REAL(name);              \
  return Fails(#name) ? -1 : real(__VA_ARGS__)

// The system's headers give the parameters of these calls other names.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  FORWARD(open, path, flags, mode);
}

// Closes a descriptor. As on Linux, a close that fails has closed it.
int close(int descriptor) {
  REAL(close);
  const bool fails = Fails("close");
  const int error = errno;
  const int result = real(descriptor);
  if (!fails) return result;
  errno = error;
  return -1;
}

ssize_t read(int descriptor, void* buffer, size_t size) {
  REAL(read);
  return Transfer("read", real, descriptor, buffer, size);
}
ssize_t write(int descriptor, const void* buffer, size_t size) {
  REAL(write);
  return Transfer("write", real, descriptor, buffer, size);
}

// Between FaultShimBegin and FaultShimEnd nothing is really synced: no test cuts the power, and thousands of
// syncs would be slow.
int fsync(int descriptor) {
  if (current != nullptr) {
    ++current->syncs;
    return Fails("fsync") ? -1 : 0;
  }
  FORWARD(fsync, descriptor);
}
// The toolkit's own sync, whose failure it does not tell. It is no call to fail.
int fdatasync(int descriptor) {
  REAL(fdatasync);
  return current != nullptr ? 0 : real(descriptor);
}
int rename(const char* from, const char* to) { FORWARD(rename, from, to); }
int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
  FORWARD(renameat2, fromFolder, from, toFolder, to, flags);
}
int fsetxattr(int descriptor, const char* name, const void* value, size_t size, int flags) {
  FORWARD(fsetxattr, descriptor, name, value, size, flags);
}
ssize_t getxattr(const char* path, const char* name, void* value, size_t size) {
  FORWARD(getxattr, path, name, value, size);
}
ssize_t listxattr(const char* path, char* list, size_t size) { FORWARD(listxattr, path, list, size); }
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
  FORWARD(linkat, fromFolder, from, toFolder, to, flags);
}
int unlink(const char* path) { FORWARD(unlink, path); }
int mkdir(const char* path, mode_t mode) { FORWARD(mkdir, path, mode); }
int access(const char* path, int mode) { FORWARD(access, path, mode); }
int chmod(const char* path, mode_t mode) { FORWARD(chmod, path, mode); }
int fchmod(int descriptor, mode_t mode) { FORWARD(fchmod, descriptor, mode); }
int fchown(int descriptor, uid_t user, gid_t group) { FORWARD(fchown, descriptor, user, group); }
int flock(int descriptor, int operation) { FORWARD(flock, descriptor, operation); }
int fstat(int descriptor, struct stat* status) { FORWARD(fstat, descriptor, status); }
int stat(const char* path, struct stat* status) { FORWARD(stat, path, status); }
int lstat(const char* path, struct stat* status) { FORWARD(lstat, path, status); }
ssize_t readlink(const char* path, char* target, size_t size) { FORWARD(readlink, path, target, size); }
DIR* opendir(const char* path) {
  REAL(opendir);
  return Fails("opendir") ? nullptr : real(path);
}
struct dirent* readdir(DIR* folder) {
  REAL(readdir);
  return Fails("readdir") ? nullptr : real(folder);
}

}  // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)

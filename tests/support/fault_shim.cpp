// A library put before the system's (LD_PRELOAD) that counts the calls a program makes on files and lets one
// of them fail. It acts between FaultShimBegin and FaultShimEnd alone, which the program finds by dlsym.
//
//   ORBISOL_FAULT="7 ENOSPC"   the seventh call fails so; "short" writes or reads less; "kill" ends the
//   process
//
// A close that fails has closed, as on Linux.

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int kNone = 0;
constexpr int kShort = -1;
constexpr int kKill = -2;

bool active = false;
int count = 0;
int chosen = 0;     // the number of the call that fails, from 1; 0 for none
int fault = kNone;  // an errno, or one of the above
const char* failed = "-";

constexpr struct {
  const char* name;
  int value;
} kFaults[] = {{"short", kShort}, {"kill", kKill},  {"EACCES", EACCES}, {"EDQUOT", EDQUOT},
               {"EINTR", EINTR},  {"EIO", EIO},     {"ENOSPC", ENOSPC}, {"EPERM", EPERM},
               {"EROFS", EROFS},  {"EXDEV", EXDEV}, {"EMFILE", EMFILE}};

// The fault of this call, which it counts.
int Next(const char* name) {
  if (!active || ++count != chosen) return kNone;
  failed = name;
  if (fault == kKill) raise(SIGKILL);
  return fault;
}

// Whether a call that knows no half measures fails here; sets errno.
bool Fails(const char* name) {
  const int error = Next(name);
  if (error <= 0) return false;
  errno = error;
  return true;
}

template <typename Function>
Function Real(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

#define FORWARD(name, type, ...)              \
  static const auto real = Real<type>(#name); \
  return Fails(#name) ? -1 : real(__VA_ARGS__)

// The system's headers name the parameters of these calls otherwise.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

void FaultShimBegin() {
  char word[32] = "";
  const char* const wanted = std::getenv("ORBISOL_FAULT");
  if (wanted != nullptr && std::sscanf(wanted, "%d %31s", &chosen, word) == 2)
    for (const auto& row : kFaults)
      if (std::strcmp(row.name, word) == 0) fault = row.value;
  count = 0;
  active = true;
}

// The number of calls since the beginning; `name` is set to the one that failed, or "-".
int FaultShimEnd(const char** name) {
  active = false;
  *name = failed;
  return count;
}

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  FORWARD(open, int (*)(const char*, int, ...), path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  FORWARD(open64, int (*)(const char*, int, ...), path, flags, mode);
}

int close(int descriptor) {
  static const auto real = Real<int (*)(int)>("close");
  const int error = Next("close");
  const int result = real(descriptor);
  if (error <= 0) return result;
  errno = error;
  return -1;
}

ssize_t read(int descriptor, void* buffer, size_t size) {
  static const auto real = Real<ssize_t (*)(int, void*, size_t)>("read");
  const int error = Next("read");
  if (error == kShort && size > 1) return real(descriptor, buffer, size / 2);
  if (error <= 0) return real(descriptor, buffer, size);
  errno = error;
  return -1;
}

ssize_t write(int descriptor, const void* buffer, size_t size) {
  static const auto real = Real<ssize_t (*)(int, const void*, size_t)>("write");
  const int error = Next("write");
  if (error == kShort && size > 1) return real(descriptor, buffer, size / 2);
  if (error <= 0) return real(descriptor, buffer, size);
  errno = error;
  return -1;
}

// Between the two marks nothing is really synced: no test cuts the power, and the disk would be waited for
// thousands of times.
int fsync(int descriptor) {
  if (active) return Fails("fsync") ? -1 : 0;
  FORWARD(fsync, int (*)(int), descriptor);
}
int rename(const char* from, const char* to) { FORWARD(rename, int (*)(const char*, const char*), from, to); }
int unlink(const char* path) { FORWARD(unlink, int (*)(const char*), path); }
int mkdir(const char* path, mode_t mode) { FORWARD(mkdir, int (*)(const char*, mode_t), path, mode); }
int access(const char* path, int mode) { FORWARD(access, int (*)(const char*, int), path, mode); }
int fchmod(int descriptor, mode_t mode) { FORWARD(fchmod, int (*)(int, mode_t), descriptor, mode); }
int fchown(int descriptor, uid_t user, gid_t group) {
  FORWARD(fchown, int (*)(int, uid_t, gid_t), descriptor, user, group);
}
int flock(int descriptor, int operation) { FORWARD(flock, int (*)(int, int), descriptor, operation); }
int fstat(int descriptor, struct stat* status) {
  FORWARD(fstat, int (*)(int, struct stat*), descriptor, status);
}
int stat(const char* path, struct stat* status) {
  FORWARD(stat, int (*)(const char*, struct stat*), path, status);
}
int lstat(const char* path, struct stat* status) {
  FORWARD(lstat, int (*)(const char*, struct stat*), path, status);
}
ssize_t readlink(const char* path, char* target, size_t size) {
  FORWARD(readlink, ssize_t(*)(const char*, char*, size_t), path, target, size);
}

DIR* opendir(const char* path) {
  static const auto real = Real<DIR* (*)(const char*)>("opendir");
  return Fails("opendir") ? nullptr : real(path);
}

}  // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)

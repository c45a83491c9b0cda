#include "platform/single_instance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <thread>

namespace orbisol {
namespace {

constexpr int kAttempts = 40;  // the first may hold the lock and not listen yet
constexpr std::chrono::milliseconds kPause(25);

bool IsOwnFolder(const std::string& path) {
  struct stat status;
  return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == getuid() &&
         (status.st_mode & 077) == 0;
}

// Nothing when the path does not fit.
std::optional<sockaddr_un> AddressOf(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) return {};
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  return address;
}

int NewSocket() { return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0); }

// Whether somebody listens there. The call itself is the message.
bool Call(const std::string& path) {
  const auto address = AddressOf(path);
  if (!address) return false;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    const int descriptor = NewSocket();
    if (descriptor < 0) return false;
    const bool isHeard =
        connect(descriptor, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0;
    // A full queue is full of calls: the first program knows already.
    const bool isQueueFull = !isHeard && errno == EAGAIN;
    close(descriptor);
    if (isHeard || isQueueFull) return true;
    std::this_thread::sleep_for(kPause);
  }
  return false;
}

}  // namespace

std::string RuntimeFolder() {
  const char* const given = std::getenv("XDG_RUNTIME_DIR");
  if (given != nullptr && given[0] == '/' && IsOwnFolder(given)) return given;
  const char* const temporary = std::getenv("TMPDIR");
  const std::string folder = std::string(temporary != nullptr && temporary[0] == '/' ? temporary : "/tmp") +
                             "/orbisol-" + std::to_string(getuid());
  mkdir(folder.c_str(), 0700);
  return IsOwnFolder(folder) ? folder : std::string();
}

CSingleInstance::CSingleInstance(const std::string& folder) {
  if (folder.empty()) return;
  m_lock = open((folder + "/orbisol.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (m_lock < 0) return;
  const std::string path = folder + "/orbisol.socket";
  if (flock(m_lock, LOCK_EX | LOCK_NB) == 0) {
    if (Listen(path)) m_path = path;
  } else {
    const bool isHeld = errno == EWOULDBLOCK;
    close(m_lock);
    m_lock = -1;
    m_isSecond = isHeld && Call(path);
  }
}

CSingleInstance::~CSingleInstance() {
  // The socket goes while the lock still keeps others from making theirs.
  if (!m_path.empty()) unlink(m_path.c_str());
  if (m_socket >= 0) close(m_socket);
  if (m_lock >= 0) close(m_lock);
}

bool CSingleInstance::Listen(const std::string& path) {
  const auto address = AddressOf(path);
  if (!address) return false;
  m_socket = NewSocket();
  if (m_socket < 0) return false;
  unlink(path.c_str());  // left by a process that was killed: the lock is ours
  constexpr int kWaitingCalls = 16;
  if (bind(m_socket, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0 &&
      listen(m_socket, kWaitingCalls) == 0)
    return true;
  close(m_socket);
  m_socket = -1;
  return false;
}

bool CSingleInstance::TakeCalls() {
  bool wasCalled = false;
  while (m_socket >= 0) {
    const int caller = accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
    if (caller < 0) {
      if (errno == EINTR || errno == ECONNABORTED) continue;
      break;
    }
    close(caller);
    wasCalled = true;
  }
  return wasCalled;
}

}  // namespace orbisol

#include "platform/single_instance.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace orbisol {
namespace {

constexpr int kAttempts = 40;  // the first may hold the lock and not listen yet
constexpr std::chrono::milliseconds kPause(25);

constexpr std::size_t kLongestToken = 4096;
constexpr std::chrono::milliseconds kLongestHearing(100);

// What is cleared out of runtime folders spares files with this bit.
constexpr mode_t kLockMode = 01600;

std::string Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string() : value;
}

bool IsOwnFolder(const std::string& path, unsigned user) {
  struct stat status;
  return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == user &&
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

// Whether somebody listens there. The call itself is the message; the token comes with it where it can.
bool Call(const std::string& path, const std::string& token) {
  const auto address = AddressOf(path);
  if (!address) return false;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    const int descriptor = NewSocket();
    if (descriptor < 0) return false;
    const bool isHeard =
        connect(descriptor, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0;
    // A full queue is full of calls: the first program knows already.
    const bool isQueueFull = !isHeard && errno == EAGAIN;
    if (isHeard) send(descriptor, token.data(), token.size(), MSG_NOSIGNAL);
    close(descriptor);
    if (isHeard || isQueueFull) return true;
    std::this_thread::sleep_for(kPause);
  }
  return false;
}

using Moment = std::chrono::steady_clock::time_point;

// What a caller says before it hangs up, or until then.
std::string Hear(int caller, Moment end) {
  std::string text;
  std::array<char, 512> piece{};
  pollfd waiting{caller, POLLIN, 0};
  const auto left = [&] {
    const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(end - Moment::clock::now());
    return std::max(static_cast<int>(rest.count()), 0);
  };
  while (text.size() < kLongestToken && poll(&waiting, 1, left()) > 0) {
    const ssize_t length = recv(caller, piece.data(), piece.size(), MSG_DONTWAIT);
    if (length <= 0) break;
    text.append(piece.data(), static_cast<std::size_t>(length));
  }
  return text;
}

}  // namespace

std::string FindRuntimeFolder(const std::function<std::string(const char* name)>& variable, unsigned user) {
  const std::string given = variable("XDG_RUNTIME_DIR");
  if (given.starts_with('/') && IsOwnFolder(given, user)) return given;
  const std::string temporary = variable("TMPDIR");
  const std::string folder =
      (temporary.starts_with('/') ? temporary : "/tmp") + "/orbisol-" + std::to_string(user);
  mkdir(folder.c_str(), 0700);
  return IsOwnFolder(folder, user) ? folder : std::string();
}

std::string RuntimeFolder() { return FindRuntimeFolder(Variable, getuid()); }

std::string DisplayName() {
  std::string name = Variable("WAYLAND_DISPLAY");
  if (name.empty()) {
    name = Variable("DISPLAY");
    // ":0.1" is another screen of display ":0".
    if (const auto screen = name.find('.', name.rfind(':') + 1); screen != std::string::npos)
      name.erase(screen);
  }
  for (char& c : name)
    if (std::isalnum(static_cast<unsigned char>(c)) == 0 && c != '-') c = '_';
  return name;
}

std::string ActivationToken() { return Variable("XDG_ACTIVATION_TOKEN"); }

CSingleInstance::CSingleInstance(const InstancePlace& place) {
  if (place.folder.empty()) return;
  const std::string base = place.folder + "/orbisol" + (place.display.empty() ? "" : "-" + place.display);
  m_lock = open((base + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (m_lock < 0) return;
  const std::string path = base + ".socket";
  if (flock(m_lock, LOCK_EX | LOCK_NB) == 0) {
    fchmod(m_lock, kLockMode);
    if (Listen(path)) m_path = path;
  } else {
    const bool isHeld = errno == EWOULDBLOCK;
    close(m_lock);
    m_lock = -1;
    m_isSecond = isHeld && Call(path, place.token);
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

std::optional<std::string> CSingleInstance::TakeCall() {
  std::optional<std::string> token;
  const Moment end = Moment::clock::now() + kLongestHearing;
  while (m_socket >= 0) {
    const int caller = accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
    if (caller < 0) {
      if (errno == EINTR || errno == ECONNABORTED) continue;
      break;
    }
    token = Hear(caller, end);
    close(caller);
  }
  return token;
}

}  // namespace orbisol

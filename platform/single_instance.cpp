#include "platform/single_instance.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <thread>

namespace orbisol {
namespace {

using std::chrono::milliseconds;
using Moment = std::chrono::steady_clock::time_point;

constexpr milliseconds kPause(25);  // pause between two calls: the first may hold the lock and not listen yet

constexpr std::size_t kLongestToken = 4096;
constexpr milliseconds kLongestHearing(100);
constexpr char kAnswer = '.';

// Mode of the lock file. Services that clean runtime folders spare files with the sticky bit.
constexpr mode_t kLockMode = 01600;

// Returns the address of a path; nothing if the path is too long for one.
std::optional<sockaddr_un> AddressOf(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) return {};
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  return address;
}

CDescriptor NewSocket() {
  return CDescriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

// Waits until a descriptor can be read, be it the end of the connection. Returns false if `end` came first.
bool IsReadableBefore(Moment end, int descriptor) {
  pollfd waiting{descriptor, POLLIN, 0};
  return Repeat([&] {
           const auto left = std::chrono::ceil<milliseconds>(end - Moment::clock::now());
           return poll(&waiting, 1, std::max(static_cast<int>(left.count()), 0));
         }) > 0;
}

// Sends the token to the process that listens at a path. Returns whether it answered.
bool Call(const std::string& path, const std::string& token, Moment end) {
  const auto address = AddressOf(path);
  const CDescriptor caller = NewSocket();
  if (!address || !caller.IsOpen() ||
      connect(caller.Get(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address) != 0)
    return false;
  send(caller.Get(), token.data(), token.size(), MSG_NOSIGNAL);
  shutdown(caller.Get(), SHUT_WR);
  char answer = 0;
  return IsReadableBefore(end, caller.Get()) && recv(caller.Get(), &answer, 1, MSG_DONTWAIT) == 1;
}

// Reads until the caller closes its side or `end` is reached.
std::string Hear(int caller, Moment end) {
  std::string text;
  std::array<char, 512> piece{};
  while (text.size() < kLongestToken && IsReadableBefore(end, caller)) {
    const ssize_t length = recv(caller, piece.data(), piece.size(), MSG_DONTWAIT);
    if (length <= 0) break;
    text.append(piece.data(), static_cast<std::size_t>(length));
  }
  return text;
}

}  // namespace

CSingleInstance::CSingleInstance(const InstancePlace& place) {
  if (place.folder.empty()) return;
  const std::string base = place.folder + "/orbisol" + (place.display.empty() ? "" : "-" + place.display);
  const std::string path = base + ".socket";
  const Moment end = Moment::clock::now() + place.patience;
  // If the first ends without an answer its lock is free, and the next turn of the loop takes it.
  do {
    m_lock = Open(base + ".lock", O_RDWR | O_CREAT | O_NOFOLLOW, 0600);
    const LockResult result =
        m_lock.IsOpen() ? LockWithin(m_lock.Get(), milliseconds(0)) : LockResult::kUnknown;
    if (result == LockResult::kLocked && Listen(path)) {
      fchmod(m_lock.Get(), kLockMode);
      m_path = path;
      return;
    }
    m_lock.Close();
    if (result != LockResult::kHeld) return;
    if (Call(path, place.token, end)) {
      m_role = InstanceRole::kRaised;
      return;
    }
    std::this_thread::sleep_for(kPause);
  } while (Moment::clock::now() < end);
  m_role = InstanceRole::kSilent;
}

CSingleInstance::~CSingleInstance() {
  // The socket is removed while the lock still keeps others from making theirs.
  if (!m_path.empty()) unlink(m_path.c_str());
}

bool CSingleInstance::Listen(const std::string& path) {
  const auto address = AddressOf(path);
  if (!address) return false;
  m_socket = NewSocket();
  unlink(path.c_str());  // it can only be left over from a killed process, because the lock is ours
  constexpr int kWaitingCalls = 16;
  if (m_socket.IsOpen() &&
      bind(m_socket.Get(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0 &&
      listen(m_socket.Get(), kWaitingCalls) == 0)
    return true;
  m_socket.Close();
  return false;
}

std::optional<std::string> CSingleInstance::TakeCall() {
  std::optional<std::string> token;
  const Moment end = Moment::clock::now() + kLongestHearing;
  while (m_socket.IsOpen()) {
    const CDescriptor caller(accept4(m_socket.Get(), nullptr, nullptr, SOCK_CLOEXEC));
    if (!caller.IsOpen()) {
      if (errno == EINTR || errno == ECONNABORTED) continue;
      break;
    }
    std::string said = Hear(caller.Get(), end);
    // The token of a caller that has given up is ignored: its user has decided otherwise meanwhile.
    if (send(caller.Get(), &kAnswer, 1, MSG_NOSIGNAL) == 1) token = std::move(said);
  }
  return token;
}

}  // namespace orbisol

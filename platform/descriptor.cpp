#include "platform/descriptor.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <thread>

namespace orbisol {
namespace {

constexpr std::chrono::milliseconds kPollPause{5};

}  // namespace

CDescriptor& CDescriptor::operator=(CDescriptor&& other) noexcept {
  if (this != &other) {
    Close();
    m_descriptor = std::exchange(other.m_descriptor, -1);
  }
  return *this;
}

bool CDescriptor::Close() {
  if (m_descriptor < 0) return true;
  const int result = close(std::exchange(m_descriptor, -1));
  // An interrupted close has closed the descriptor and must not be repeated.
  return result == 0 || errno == EINTR;
}

CDescriptor Open(const std::string& path, int flags, mode_t mode) {
  return CDescriptor(Repeat([&] { return open(path.c_str(), flags | O_CLOEXEC, mode); }));
}

bool WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = Repeat([&] { return write(descriptor, bytes.data(), bytes.size()); });
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

LockResult LockWithin(int descriptor, std::chrono::milliseconds patience) {
  const auto end = std::chrono::steady_clock::now() + patience;
  while (Repeat([&] { return flock(descriptor, LOCK_EX | LOCK_NB); }) != 0) {
    if (errno != EWOULDBLOCK) return LockResult::kUnknown;
    if (std::chrono::steady_clock::now() >= end) return LockResult::kHeld;
    std::this_thread::sleep_for(kPollPause);
  }
  return LockResult::kLocked;
}

}  // namespace orbisol

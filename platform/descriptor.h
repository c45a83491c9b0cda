// File descriptors with an owner, and the calls on them that are repeated when a signal interrupts them.
//
//   CDescriptor file = Open("/home/eva/calendar.xml", O_WRONLY | O_CREAT, 0600);
//   const bool isWritten = file.IsOpen() && WriteAll(file.Get(), bytes) && file.Close();
#pragma once

#include <sys/types.h>

#include <cerrno>
#include <chrono>
#include <string>
#include <string_view>
#include <utility>

namespace orbisol {

// Returns what a call of the system returns, calling again as long as it fails with EINTR.
template <typename Call>
auto Repeat(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

// Closes its descriptor at the end. -1 stands for none.
class CDescriptor {
 public:
  explicit CDescriptor(int descriptor = -1) : m_descriptor(descriptor) {}
  ~CDescriptor() { Close(); }
  CDescriptor(CDescriptor&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
  CDescriptor& operator=(CDescriptor&& other) noexcept;

  bool IsOpen() const { return m_descriptor >= 0; }
  int Get() const { return m_descriptor; }

  // Returns false when the system reports that something written before did not arrive. Closing none
  // succeeds.
  bool Close();

 private:
  int m_descriptor;
};

// Opens a file, never for programs that this one starts; `flags` and `mode` are those of open(2). errno says
// why it failed.
CDescriptor Open(const std::string& path, int flags, mode_t mode = 0);

bool WriteAll(int descriptor, std::string_view bytes);

enum class LockResult {
  kLocked,
  kHeld,     // by another process, for longer than the patience
  kUnknown,  // the file system knows no locks, or the call failed
};

// Takes the exclusive lock of an open file, which ends when the descriptor is closed.
LockResult LockWithin(int descriptor, std::chrono::milliseconds patience);

}  // namespace orbisol

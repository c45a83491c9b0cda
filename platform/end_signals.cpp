#include "platform/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace orbisol {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

volatile std::sig_atomic_t g_descriptor = -1;  // descriptor that the handler writes to

// Writes one byte and leaves errno as it was; a signal handler may do little more.
void Tell(int) {
  const int saved = errno;
  const char byte = 0;
  [[maybe_unused]] const ssize_t written = write(g_descriptor, &byte, 1);
  errno = saved;
}

void Handle(int number, void (*handler)(int), int flags) {
  struct sigaction old {};
  // A signal that is ignored stays ignored, as the hang-up under nohup.
  if (sigaction(number, nullptr, &old) != 0 || old.sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = flags;
  sigaction(number, &action, nullptr);
}

}  // namespace

CEndSignals::CEndSignals() {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
  m_read = CDescriptor(ends[0]);
  m_write = CDescriptor(ends[1]);
  g_descriptor = m_write.Get();
  for (const int number : kSignals) Handle(number, &Tell, SA_RESTART | static_cast<int>(SA_RESETHAND));
}

CEndSignals::~CEndSignals() {
  if (Descriptor() < 0) return;
  for (const int number : kSignals) Handle(number, SIG_DFL, 0);
  g_descriptor = -1;
}

}  // namespace orbisol

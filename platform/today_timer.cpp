#include "platform/today_timer.h"

#include <QDateTime>
#include <QSocketNotifier>

#include <algorithm>
#include <utility>

#ifdef __linux__
#include <sys/timerfd.h>
#include <unistd.h>
#endif

namespace orbisol {
namespace {

std::int64_t NextLocalMidnight() {
  return QDateTime::currentDateTime().date().addDays(1).startOfDay().toSecsSinceEpoch();
}

}  // namespace

CTodayTimer::CTodayTimer(std::function<void()> newDay, std::function<std::int64_t()> nextDay)
    : m_newDay(std::move(newDay)), m_nextDay(nextDay ? std::move(nextDay) : NextLocalMidnight) {
#ifdef __linux__
  m_descriptor = timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC);
  if (m_descriptor >= 0) {
    m_notifier = new QSocketNotifier(m_descriptor, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] { Woken(); });
  }
#endif
  m_fallback.setSingleShot(true);
  m_fallback.setTimerType(Qt::PreciseTimer);
  m_fallback.callOnTimeout(this, [this] { Woken(); });
  Restart();
}

CTodayTimer::~CTodayTimer() {
  delete m_notifier;
#ifdef __linux__
  if (m_descriptor >= 0) close(m_descriptor);
#endif
}

void CTodayTimer::Restart() {
  const std::int64_t next = m_nextDay();
#ifdef __linux__
  if (m_descriptor >= 0) {
    itimerspec when{};
    when.it_value.tv_sec = std::max<std::int64_t>(next, 1);  // 0 would stop it
    timerfd_settime(m_descriptor, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &when, nullptr);
    return;
  }
#endif
  constexpr std::int64_t kSecond = 1000;
  constexpr std::int64_t kLongestDay = 25 * 3600;
  const std::int64_t wait = next - QDateTime::currentSecsSinceEpoch();
  m_fallback.start(static_cast<int>(std::clamp<std::int64_t>(wait, 1, kLongestDay) * kSecond));
}

void CTodayTimer::Woken() {
#ifdef __linux__
  if (m_descriptor >= 0) {
    // It fails when the clock was set: that too may have changed the day.
    std::uint64_t times = 0;
    [[maybe_unused]] const auto taken = read(m_descriptor, &times, sizeof times);
  }
#endif
  Restart();
  m_newDay();
}

}  // namespace orbisol

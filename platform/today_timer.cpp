#include "platform/today_timer.h"

#include <QDateTime>
#include <QTimer>

#include <algorithm>
#include <utility>

#ifdef __linux__
#include <QSocketNotifier>

#include <sys/timerfd.h>
#include <unistd.h>

#include "platform/descriptor.h"
#endif

namespace orbisol {
namespace {

using Alarm = CTodayTimer::Alarm;

std::int64_t NextLocalMidnight() {
  return QDateTime::currentDateTime().date().addDays(1).startOfDay().toSecsSinceEpoch();
}

// Alarm that counts milliseconds. It works everywhere, but is late by the time for which the machine slept.
class CCountingAlarm : public Alarm {
 public:
  explicit CCountingAlarm(const std::function<void()>& ring) {
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout(ring);
  }

  void Set(std::int64_t moment) override {
    constexpr std::int64_t kSecond = 1000;
    constexpr std::int64_t kLongestDay = 25 * 3600;
    const std::int64_t wait = moment - QDateTime::currentSecsSinceEpoch();
    m_timer.start(static_cast<int>(std::clamp<std::int64_t>(wait, 1, kLongestDay) * kSecond));
  }

 private:
  QTimer m_timer;
};

#ifdef __linux__

// Alarm that follows the wall clock, and rings too when that is set.
class CClockAlarm : public Alarm {
 public:
  CClockAlarm(CDescriptor timer, const std::function<void()>& ring)
      : m_timer(std::move(timer)), m_notifier(m_timer.Get(), QSocketNotifier::Read) {
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this, ring] {
      // Reading fails if the clock was set, which may have changed the day too.
      std::uint64_t times = 0;
      [[maybe_unused]] const auto taken = read(m_timer.Get(), &times, sizeof times);
      ring();
    });
  }

  void Set(std::int64_t moment) override {
    itimerspec when{};
    when.it_value.tv_sec = std::max<std::int64_t>(moment, 1);  // 0 would stop the timer
    timerfd_settime(m_timer.Get(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &when, nullptr);
  }

 private:
  CDescriptor m_timer;
  QSocketNotifier m_notifier;
};

std::unique_ptr<Alarm> MakeAlarm(const std::function<void()>& ring) {
  CDescriptor timer(timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC));
  if (!timer.IsOpen()) return std::make_unique<CCountingAlarm>(ring);
  return std::make_unique<CClockAlarm>(std::move(timer), ring);
}

#else

std::unique_ptr<Alarm> MakeAlarm(const std::function<void()>& ring) {
  return std::make_unique<CCountingAlarm>(ring);
}

#endif

}  // namespace

CTodayTimer::CTodayTimer(std::function<void()> newDay, std::function<std::int64_t()> nextDay)
    : m_newDay(std::move(newDay)),
      m_nextDay(nextDay ? std::move(nextDay) : NextLocalMidnight),
      m_alarm(MakeAlarm([this] {
        Restart();
        m_newDay();
      })) {
  Restart();
}

CTodayTimer::~CTodayTimer() = default;

void CTodayTimer::Restart() { m_alarm->Set(m_nextDay()); }

}  // namespace orbisol

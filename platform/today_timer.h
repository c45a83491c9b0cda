// Tells when another day has begun: at midnight, also when the machine slept over it, and when the clock was
// set.
//
//   CTodayTimer timer([this] { CheckToday(); });
//   timer.Restart();  // the user is back at the window
//
// It waits by the wall clock, in one piece: between two midnights nothing wakes up. The system reports no
// change of the time zone: until Restart() the timer waits for the midnight of the former one.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace orbisol {

class CTodayTimer {
 public:
  // Calls `newDay` from the event loop, perhaps once too often, never once too seldom. `nextDay` gives the
  // beginning of the next day, in seconds since 1970; without it that is the next midnight of the local
  // calendar.
  explicit CTodayTimer(std::function<void()> newDay, std::function<std::int64_t()> nextDay = {});
  ~CTodayTimer();
  CTodayTimer(const CTodayTimer&) = delete;
  CTodayTimer& operator=(const CTodayTimer&) = delete;

  // Computes anew when the next day begins.
  void Restart();

  // Rings once at a moment of the wall clock. Each system has its own (today_timer.cpp).
  struct Alarm {
    virtual ~Alarm() = default;
    // `moment` in seconds since 1970. One that has passed rings at once.
    virtual void Set(std::int64_t moment) = 0;
  };

 private:
  std::function<void()> m_newDay;
  std::function<std::int64_t()> m_nextDay;
  std::unique_ptr<Alarm> m_alarm;
};

}  // namespace orbisol

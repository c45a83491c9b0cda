// Tells when another day has begun: at midnight, also when the machine slept over it, and when the clock was
// set.
//
//   CTodayTimer timer([this] { CheckToday(); });
//   timer.Restart();  // somebody is looking again
//
// It waits by the wall clock, in one piece: between two midnights nothing wakes up. Of another time zone the
// system says nothing; until Restart() the timer waits for the midnight of the former one.
#pragma once

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <functional>

class QSocketNotifier;

namespace orbisol {

class CTodayTimer : public QObject {
 public:
  // `newDay` may be called once too often, never once too seldom. `nextDay` gives the beginning of the next
  // day, in seconds since 1970; without it that of the local calendar.
  explicit CTodayTimer(std::function<void()> newDay, std::function<std::int64_t()> nextDay = {});
  ~CTodayTimer() override;

  // Reckons anew when the next day begins.
  void Restart();

 private:
  void Woken();

  std::function<void()> m_newDay;
  std::function<std::int64_t()> m_nextDay;
  int m_descriptor = -1;  // of the system's timer, where there is one that follows the wall clock
  QSocketNotifier* m_notifier = nullptr;
  QTimer m_fallback;  // elsewhere: late by the time that the machine slept
};

}  // namespace orbisol

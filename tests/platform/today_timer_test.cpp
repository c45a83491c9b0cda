#include "platform/today_timer.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QTest>

namespace orbisol {
namespace {

TEST(TodayTimerTest, CallsWhenADayHasBegunAlsoForOneThatARestartFinds) {
  int calls = 0;
  // The midnights found: past, as after a sleep; far away; past, as in another time zone; far away.
  std::vector<int> hours = {1, -1, 1, -1};
  const auto next = [&] {
    const int hour = hours.back();
    hours.pop_back();
    return QDateTime::currentSecsSinceEpoch() + hour * 3600;
  };
  CTodayTimer timer([&] { ++calls; }, next);
  while (calls < 1) QTest::qWait(1);
  QTest::qWait(20);
  EXPECT_EQ(calls, 1);
  timer.Restart();
  while (calls < 2) QTest::qWait(1);
}

}  // namespace
}  // namespace orbisol

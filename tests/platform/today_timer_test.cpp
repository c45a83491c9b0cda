#include "platform/today_timer.h"

#include <QDateTime>
#include <QTest>

#include <gtest/gtest.h>

namespace orbisol {
namespace {

TEST(TodayTimerTest, CallsOnceForEachDayThatHasBegunAlsoForOneThatARestartFinds) {
  int calls = 0;
  // Next midnights in turn: past, as after a sleep; far away; past, as in another time zone; far away.
  std::vector<int> hours = {1, -1, 1, -1};
  const auto next = [&] {
    const int hour = hours.back();
    hours.pop_back();
    return QDateTime::currentSecsSinceEpoch() + hour * 3600;
  };
  CTodayTimer timer([&] { ++calls; }, next);
  for (const int days : {1, 2}) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return calls >= days; }, 60'000));
    for (int turn = 0; turn < 10; ++turn) QCoreApplication::processEvents();
    EXPECT_EQ(calls, days) << "a day that has been told is told again";
    if (days == 1) timer.Restart();
  }
  EXPECT_TRUE(hours.empty());
}

}  // namespace
}  // namespace orbisol

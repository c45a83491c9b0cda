#include "ui/month/today_timer.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QTest>

namespace orbisol {
namespace {

TEST(TodayTimerTest, CallsWhenTheDayHasBegunAndWaitsForTheNext) {
  int calls = 0;
  int asked = 0;
  // A midnight that is past, as after a sleep, then one that is far away.
  const CTodayTimer timer([&] { ++calls; },
                          [&] { return QDateTime::currentSecsSinceEpoch() + (asked++ == 0 ? -3600 : 3600); });
  while (calls == 0) QTest::qWait(1);
  QTest::qWait(20);
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(asked, 2);
}

}  // namespace
}  // namespace orbisol

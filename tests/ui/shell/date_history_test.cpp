#include "ui/shell/date_history.h"

#include <gtest/gtest.h>

namespace orbisol {
namespace {

TEST(DateHistoryTest, LeapsAreTakenBackAndForthAgain) {
  CDateHistory history;
  history.Visit(20240501);
  EXPECT_FALSE(history.CanGoBack());
  EXPECT_EQ(history.Back(), 0);
  history.Visit(39991231);
  history.Visit(39991231);
  history.Visit(-39990101);
  EXPECT_EQ(history.Back(), 39991231);
  history.Visit(39991231);  // the view shows what it was told to
  EXPECT_EQ(history.Back(), 20240501);
  EXPECT_EQ(history.Forward(), 39991231);
  history.Visit(10101);
  EXPECT_EQ(history.Forward(), 0);
  EXPECT_EQ(history.Back(), 39991231);
}

TEST(DateHistoryTest, AWalkCountsOnceWithItsBeginningAndItsEnd) {
  CDateHistory history;
  history.Visit(20240501);
  for (const PackedDate date : {20240502, 20240503, 20240603, 20250603, 20260603}) history.Visit(date);
  history.Visit(15821015);
  EXPECT_EQ(history.Back(), 20260603);
  EXPECT_EQ(history.Back(), 20240501);
  EXPECT_FALSE(history.CanGoBack());

  // A year that is typed passes through others.
  for (const PackedDate date : {10501, 150501, 1580501, 15820501}) history.Visit(date, VisitBy::kWalk);
  EXPECT_EQ(history.Back(), 20240501);
}

TEST(DateHistoryTest, TheOldestDatesAreForgottenFirst) {
  CDateHistory history;
  const int visits = static_cast<int>(CDateHistory::kMostDates) + 10;
  for (int i = 0; i < visits; ++i) history.Visit((i % 2 == 0 ? 10000000 : 20000000) + 10101 + i / 31 * 100);
  int steps = 0;
  while (history.Back() != 0) ++steps;
  EXPECT_EQ(steps, static_cast<int>(CDateHistory::kMostDates) - 1);
}

}  // namespace
}  // namespace orbisol

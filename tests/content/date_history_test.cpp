#include "content/date_history.h"

#include <gtest/gtest.h>

namespace orbisol {
namespace {

TEST(DateHistoryTest, LeapsAreTakenBackAndForthAgain) {
  CDateHistory history;
  const auto leap = [&](PackedDate date) { history.Visit(date, DateMove::kLeap); };
  leap(20240501);
  EXPECT_EQ(history.Back(), 0);
  leap(20240510);
  leap(20240510);
  leap(-39990101);
  EXPECT_EQ(history.Back(), 20240510);
  leap(20240510);  // the view reports the date that it was told to show
  EXPECT_EQ(history.Back(), 20240501);
  EXPECT_EQ(history.Forward(), 20240510);
  leap(10101);
  EXPECT_EQ(history.Forward(), 0);
  EXPECT_EQ(history.Back(), 20240510);
}

TEST(DateHistoryTest, AWalkCountsOnceWithItsBeginningAndItsEnd) {
  CDateHistory history;
  history.Visit(20240501, DateMove::kLeap);
  for (const PackedDate date : {20240502, 20240503, 20240603, 20250603}) history.Visit(date, DateMove::kStep);
  history.Visit(10603, DateMove::kTypingBegins);
  for (const PackedDate date : {150603, 1580603, 15820603}) history.Visit(date, DateMove::kTyping);
  history.Visit(10603, DateMove::kTypingBegins);  // another year is typed
  history.Visit(190603, DateMove::kTyping);
  history.Visit(19140603, DateMove::kTyping);
  history.Visit(20240515, DateMove::kLeap);
  for (const PackedDate date : {19140603, 15820603, 20250603, 20240501, 0}) EXPECT_EQ(history.Back(), date);

  history.Visit(20240502, DateMove::kStep);
  history.Visit(20240501, DateMove::kStep);  // a walk that ends where it began leaves no trace
  EXPECT_FALSE(history.CanGoBack());
  EXPECT_FALSE(history.CanGoForward());
}

TEST(DateHistoryTest, TheOldestDatesAreForgottenFirst) {
  CDateHistory history;
  const int visits = static_cast<int>(CDateHistory::kMostDates) + 10;
  for (int year = 1; year <= visits; ++year) history.Visit(year * 10000 + 101, DateMove::kLeap);
  PackedDate oldest = 0;
  while (const PackedDate date = history.Back()) oldest = date;
  EXPECT_EQ(oldest, 110101);
}

}  // namespace
}  // namespace orbisol

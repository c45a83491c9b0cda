#include "content/selected_date.h"

#include <gtest/gtest.h>

#include <climits>

#include "content/date_history.h"
#include "tests/support/fakes.h"

namespace orbisol {
namespace {

TEST(SelectedDateTest, IsTodayAtFirstAndKeepsWhatIsSelected) {
  const ScopedPlatform inForce(FakeLocale(), FakeClock({4711, 5, 1}));
  EXPECT_EQ(Selected().Packed(), kLastDateShown) << "a clock beyond the range shown is clamped";
  EXPECT_FALSE(IsWithinBounds(Date(47110501)));
  SelectDate(Selected(), 2024, 5, 1);
  EXPECT_EQ(Selected().Packed(), 20240501);
}

TEST(SelectedDateTest, StepsOfDaysMonthsAndYears) {
  const std::tuple<const char*, void (*)(Date&, int), PackedDate, int, PackedDate> kRows[] = {
      {"up over the reform", StepDays, 15821015, -7, 15820928},
      {"left to 29 February -8", StepDays, -80301, -1, -80229},
      {"right from it", StepDays, -80229, 1, -80302},
      {"up from it", StepDays, -80229, -7, -80223},
      {"left from a day that does not exist", StepDays, 20250229, -1, 20250228},
      {"page down into a shorter month", StepMonths, 20230131, 1, 20230228},
      {"page up at the beginning", StepMonths, -39990115, -1, -39990101},
      {"page down at the end", StepMonths, 39991215, 1, 39991231},
      {"on purpose: a year from 29 February", StepYears, 20240229, 1, 20250229},
      {"any number of months", StepMonths, 20240501, INT_MAX, 39991231},
      {"any number of years", StepYears, -20240501, INT_MIN, -39990101},
      {"from the day before the first", StepYears, -39990100, 0, -39990101},
      {"from the month after the last", StepYears, 39991301, 0, 39991231},
  };
  for (const auto& [what, step, from, by, to] : kRows) {
    Date date(from);
    step(date, by);
    EXPECT_EQ(date.Packed(), to) << what;
  }
}

// A key that is held down always moves on. After the earliest reforms some dates come twice.
TEST(SelectedDateTest, OneDayBackIsAlwaysEarlierAndOneDayOnLater) {
  for (const PackedDate reform : {15821015, 10101, -39990101, -39000101}) {
    const ScopedRules inForce(RulesWith(reform));
    const PackedDate turn = reform == kRomanReform ? kLastDateShown : reform + 4000000;
    Date date(turn);
    for (const int step : {-1, 1}) {
      while (date.Packed() != (step < 0 ? kFirstDateShown : turn)) {
        const Date before = date;
        StepDays(date, step);
        ASSERT_TRUE(step < 0 ? date.IsBefore(before.Packed()) : before.IsBefore(date.Packed()))
            << before.Packed();
      }
    }
  }
}

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

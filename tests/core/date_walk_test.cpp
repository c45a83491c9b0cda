// Laws of Date on every day from 1 January -3999 to 31 December 3999, under many reforms.

#include <gtest/gtest.h>

#include "core/date.h"
#include "tests/support/plain_calendar.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

std::string At(const char* law, int dayNumber, const Date& date) {
  return law + (" at day number " + std::to_string(dayNumber)) + ", " + std::to_string(date.Packed());
}

// The walk under the rules in force, until the first fault, which it returns; empty when there is none.
// A reform in the first centuries or before goes back to labels that the Julian calendar has already used: so
// many days are `repeated`, and their label is read as a later, Gregorian day.
std::string FaultOnTheWalk(int repeated) {
  const CalendarRules& rules = Rules();
  const plain::Reform reform{rules.startGregorian, rules.proleptic};
  const int reformYear = rules.startGregorian / 10000;
  const bool dropsDays = rules.startGregorian > 3000000;
  const int first = Date(-39990101).DayNumber();
  const int last = Date(39991231).DayNumber();

  // On purpose: month lengths do not ask whether an early reform has already made -44 to 7 Gregorian, and
  // February of the reform year is Julian. Labels are repeated in the year of an early reform alone.
  const auto hasLengthOfItsOwn = [&](const Date& month) {
    if (month.month == 2 && reformYear <= 7 && !rules.proleptic && month.year >= -44 && month.year <= 7)
      return true;
    if (month.month == 2 && month.year == 1900 && reformYear == 1900) return true;
    return !dropsDays && month.year == reformYear;
  };

  Date before = DateOfDayNumber(first - 1);
  if (before.Packed() != -40001231) return At("beginning", first - 1, before);
  Date date = before;
  int daysOfMonth = 31;
  for (int n = first; n <= last; ++n) {
    date.SetDayNumber(n);
    if (const int number = date.DayNumber(); number != n) {
      const bool isLabelOfTwoDays =
          n == 1718198 && date.Packed() == -80229 && number == n + 1 && !rules.proleptic;
      const bool isRepeated = n < rules.firstGregorianDayNumber && !date.IsBefore(rules.startGregorian) &&
                              number == plain::DayNumber({date.year, date.month, date.day}, reform);
      if (!isLabelOfTwoDays && !isRepeated) return At("there and back", n, date);
      if (isRepeated) --repeated;
    }

    // Days follow each other inside a month, and months begin on the 1st, except where the reform cuts.
    const bool sameMonth = date.month == before.month && date.year == before.year;
    if (n != rules.firstGregorianDayNumber) {
      if (date.day != (sameMonth ? before.day + 1 : 1)) return At("rising by one", n, date);
      if (!sameMonth && date.year * 12 + date.month != before.year * 12 + before.month + 1)
        return At("months rising by one", n, date);
    }
    if (!sameMonth && !hasLengthOfItsOwn(before)) {
      int expected = before.DaysInMonth();
      for (int day = 1; dropsDays && day <= before.DaysInMonth(); ++day)
        expected -= rules.IsDropped(Pack(before.year, before.month, day)) ? 1 : 0;
      if (daysOfMonth != expected) return At("length of the month that ends", n, date);
    }
    daysOfMonth = sameMonth ? daysOfMonth + 1 : 1;
    before = date;
  }
  return repeated == 0 ? "" : "repeated labels: off by " + std::to_string(repeated);
}

struct Walk {
  const char* what;
  PackedDate reform;
  bool proleptic;
  int repeated = 0;
};

class DateWalkTest : public testing::TestWithParam<Walk> {};

TEST_P(DateWalkTest, EveryDayKeepsTheLaws) {
  const Walk& walk = GetParam();
  const ScopedRules inForce(RulesWith(walk.reform, {.proleptic = walk.proleptic}));
  EXPECT_EQ(FaultOnTheWalk(walk.repeated), "");
}

std::vector<Walk> NationalWalks() {
  std::vector<Walk> walks;
  for (const NationalReform& reform : kNationalReforms)
    walks.push_back({"national reform", reform.firstGregorian, walks.size() % 2 == 1});
  return walks;
}
INSTANTIATE_TEST_SUITE_P(National, DateWalkTest, testing::ValuesIn(NationalWalks()),
                         [](const auto& test) { return std::to_string(test.param.reform); });

constexpr Walk kOtherWalks[] = {
    {"RomanProleptic", kRomanReform, true},
    {"NeverGregorian", kNeverGregorian, false},
    {"NeverGregorianProleptic", kNeverGregorian, true},
    {"FirstOfJanuaryOfACommonCentury", 19000101, false},
    {"AcrossAYearEnd", 19000105, false},
    {"LeapDayDroppedByTheReform", 17000305, true},
    {"FirstOfAMonth", 17520901, false},
    {"LastDayShown", 39991231, false},
    {"BeforeTheStandInReform", 15001015, false},
    {"BeforeTheStandInReformAcrossAMonth", 14000305, true},
    {"FirstDropOfOneDay", 3010601, false},
    {"NoDifference", 2500101, false},
    {"OneLabelRepeated", 1500101, false, 1},
    {"InTheYear4", 40227, false, 1},
    {"WithoutLeapYears", 20101, false, 1},
    {"InTheEarlyLeapYears", -440315, false, 2},
    {"BeforeTheEraProleptic", -70701, true, 2},
    {"LongBeforeTheEra", -20000701, false, 17},
    {"AlwaysGregorian", kAlwaysGregorian, false},
};
INSTANTIATE_TEST_SUITE_P(Other, DateWalkTest, testing::ValuesIn(kOtherWalks),
                         [](const auto& test) { return std::string(test.param.what); });

constexpr Walk kJudged[] = {
    {"", kRomanReform, false}, {"", 19180214, true}, {"", 40227, false}, {"", -20000701, false}};

TEST(DateWalkLawsTest, EveryDayIsThatOfTheJudgeAndWeekdaysFollow) {
  for (const Walk& walk : kJudged) {
    const ScopedRules inForce(RulesWith(walk.reform, {.proleptic = walk.proleptic}));
    const plain::Reform reform{walk.reform, walk.proleptic};
    const int last = Date(39991231).DayNumber();
    for (int n = Date(-39990101).DayNumber(); n <= last; ++n) {
      const Date date = DateOfDayNumber(n);
      ASSERT_TRUE((plain::DateOfDayNumber(n, reform) == plain::CivilDate{date.year, date.month, date.day}))
          << n << " under " << walk.reform;
      ASSERT_TRUE(date.Weekday(true) == (date.DayNumber() + 1) % 7) << n << " under " << walk.reform;
    }
  }
}

// Also for labels that no day has: 30 February, dropped days, 29 February of years without one.
TEST(DateWalkLawsTest, EveryLabelHasTheDayNumberOfTheJudge) {
  for (const Walk& walk : kJudged) {
    const ScopedRules inForce(RulesWith(walk.reform, {.proleptic = walk.proleptic}));
    const plain::Reform reform{walk.reform, walk.proleptic};
    for (int year = -4799; year <= 4000; ++year)
      for (int month = 1; month <= 12; ++month)
        for (int day = 1; day <= 31; ++day)
          ASSERT_TRUE(Date(year, month, day).DayNumber() == plain::DayNumber({year, month, day}, reform))
              << Pack(year, month, day) << " under " << walk.reform;
  }
}

// The Julian calendar has no early leap-year errors in it, and takes no note of the reform.
TEST(DateWalkLawsTest, JulianFormIsTheSameDayForEveryGregorianDay) {
  const ScopedRules inForce{CalendarRules()};
  const plain::Reform julian{kNeverGregorian, true};
  for (int n = Rules().firstGregorianDayNumber; n <= Date(39991231).DayNumber(); ++n) {
    const YearMonthDay date = Unpack(DateOfDayNumber(n).JulianForm());
    ASSERT_TRUE(plain::DayNumber({date.year, date.month, date.day}, julian) == n) << "day number " << n;
  }
}

}  // namespace
}  // namespace orbisol

#include "core/civil_year.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "tests/support/rules.h"

namespace orbisol {
namespace {

const std::vector<CivilYearStart> kFlorence = {{15000325, false}};
const std::vector<CivilYearStart> kPisa = {{15000325, true}};
const std::vector<CivilYearStart> kFrance = {{15640101, false}, {10000325, false}};
const std::vector<CivilYearStart> kEngland = {
    {17520101, false}, {11550325, false}, {10660101, false}, {8001225, false}};
const std::vector<CivilYearStart> kAheadAndRome = {{12000901, true}, {-7520421, false}};
const std::vector<CivilYearStart> kCaesar = {{-440315, false}};

TEST(CivilYearTest, KnownDays) {
  const struct {
    const std::vector<CivilYearStart>& rows;
    PackedDate date;
    int rowIndex, startDay, year, day, left;
  } kRows[] = {
      {{}, 15820101, -1, 101, 1582, 1, 354},  // ten days of 1582 were dropped
      {{}, 15821231, -1, 101, 1582, 355, 0},
      {{}, 20240229, -1, 101, 2024, 60, 306},
      {kFlorence, 16000324, 0, 325, 1599, 366, 0},
      {kFlorence, 16000325, 0, 325, 1600, 1, 364},
      {kFlorence, 16000101, 0, 325, 1599, 283, 83},
      {kFlorence, 15000325, 0, 325, 1500, 1, 364},
      {kFlorence, 14991231, 1, 101, 1499, 365, 0},
      {kPisa, 16000324, 0, 325, 1600, 366, 0},
      {kPisa, 16000325, 0, 325, 1601, 1, 364},
      {{{15000101, true}}, 16000601, 0, 101, 1600, 153, 213},  // a year from 1 January is never ahead
      {kFrance, 15640101, 0, 101, 1564, 1, 365},
      {kFrance, 15631231, 1, 325, 1563, 282, 84},  // 1564 begins sooner than its row says here
      {kFrance, 15630324, 1, 325, 1562, 365, 0},
      {kFrance, 10000325, 1, 325, 1000, 1, 364},
      {kFrance, 10000324, 2, 101, 1000, 84, 0},  // the year before the first row is cut short
      {kFrance, 9991231, 2, 101, 999, 365, 0},
      // On purpose: dates before the era are compared as integers, which run backwards in a year.
      {kCaesar, -440101, 0, 315, -44, 293, 73},
      {kCaesar, -440316, 1, 101, -44, 76, 363},
      {kCaesar, -430314, 0, 315, -44, 365, 0},
      {kCaesar, -430315, 0, 315, -43, 1, 364},
      {kCaesar, -39990601, 1, 101, -3999, 152, 213},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.date);
    const ScopedRules inForce(RulesWith(kRomanReform, {.rows = row.rows}));
    const Date date(row.date);
    EXPECT_EQ(CivilRowIndex(date), row.rowIndex);
    EXPECT_EQ(CivilYearStartDay(date), row.startDay);
    EXPECT_EQ(CivilYear(row.date), row.year);
    EXPECT_EQ(CivilYearOf(date), row.year);
    EXPECT_EQ(DayOfCivilYear(date), row.day);
    EXPECT_EQ(DaysLeftInCivilYear(date), row.left);
  }
}

// The start is read as the Julian day it would have been, which lies after the reform.
TEST(CivilYearTest, AYearWhoseFirstDayWasDroppedCountsFromBelow1) {
  const ScopedRules inForce(RulesWith(17520914, {.rows = {{15000910, false}}}));
  EXPECT_EQ(DayOfCivilYear(Date(17520902)), 359);
  EXPECT_EQ(DayOfCivilYear(Date(17520914)), -6);
  EXPECT_EQ(DayOfCivilYear(Date(17530909)), 354);
  EXPECT_EQ(DayOfCivilYear(Date(17530910)), 1);
}

struct WalkedTable {
  const char* what;
  PackedDate reform;
  bool proleptic;
  PackedDate first, last;  // of the walk
  std::vector<CivilYearStart> rows;
};

// Days of the civil year rise by one and begin again with the year; days left fall by one to 0. Not asked for
// within a year of where a row takes over.
TEST(CivilYearTest, YearsAndTheirDaysFollowEachOther) {
  const WalkedTable kTables[] = {
      {"empty", kRomanReform, false, -39990101, 39991231, {}},
      {"ahead, and beyond the reform", kRomanReform, true, -8000101, 20001231, kAheadAndRome},
      {"England", 17520914, false, 7000101, 19001231, kEngland},
      {"the last of December", 17001128, false, 10000101, 18001231, {{10001231, true}}},
  };
  for (const WalkedTable& table : kTables) {
    SCOPED_TRACE(table.what);
    const ScopedRules inForce(RulesWith(table.reform, {.proleptic = table.proleptic, .rows = table.rows}));
    const auto isNearARow = [&](int n) {
      return std::any_of(table.rows.begin(), table.rows.end(), [n](const CivilYearStart& row) {
        return std::abs(n - Date(row.from).DayNumber()) <= 370;
      });
    };
    const int last = Date(table.last).DayNumber();
    int year = 0, day = 0, left = 0;
    for (int n = Date(table.first).DayNumber(); n <= last; ++n) {
      const Date date = DateOfDayNumber(n);
      const int nextYear = CivilYearOf(date);
      const int nextDay = DayOfCivilYear(date);
      const int nextLeft = DaysLeftInCivilYear(date);
      const bool begins = date.month * 100 + date.day == CivilYearStartDay(date);
      const bool sharesItsNumber = !table.proleptic && (n == 1718198 || n == 1718199);
      if (day != 0 && !sharesItsNumber && !isNearARow(n)) {
        ASSERT_TRUE(nextYear == (begins ? year + 1 : year)) << "year at " << date.Packed();
        ASSERT_TRUE(nextDay == (begins ? 1 : day + 1)) << "day at " << date.Packed();
        ASSERT_TRUE(begins ? left == 0 : nextLeft == left - 1) << "days left at " << date.Packed();
      }
      year = nextYear;
      day = nextDay;
      left = nextLeft;
    }
  }
}

TEST(CivilYearTest, SetCivilYearFindsTheHistoricalYear) {
  constexpr struct {
    const char* what;
    bool plusOne;
    PackedDate date;
    int target;
    PackedDate expected;
    int reached;
  } kRows[] = {
      {"after the start", false, 16000401, 1650, 16500401, 1650},
      {"before the start", false, 16000301, 1650, 16510301, 1650},
      {"ahead", true, 16000401, 1650, 16490401, 1650},
      {"ahead, before the start", true, 16000301, 1650, 16500301, 1650},
      // On purpose: the civil year reached is compared with the historical year before the call.
      {"to the year after", false, 16000301, 1601, 16010301, 1600},
      {"to the year before", true, 16000401, 1599, 15990401, 1600},
      {"to the year it has", false, 16000301, 1599, 16000301, 1599},
      {"beyond the table", false, 16000301, 1400, 14000301, 1400},
      {"no year fits", true, 16000401, 1500, 15010401, 1502},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    const ScopedRules inForce(RulesWith(17520914, {.rows = {{15000325, row.plusOne}}}));
    Date date(row.date);
    EXPECT_EQ(SetCivilYear(date, row.target), row.reached);
    EXPECT_EQ(date.Packed(), row.expected);
  }
}

TEST(CivilYearTest, SetCivilYearMissesOnlyWhereItMay) {
  std::mt19937 random(1);
  const auto upTo = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  const ScopedRules inForce(RulesWith(
      17520914, {.rows = {{17520101, false}, {15000325, true}, {12000301, false}, {-440401, true}}}));
  for (int i = 0; i < 100'000; ++i) {
    Date date(upTo(7998) - 3999, 1 + upTo(12), 1 + upTo(28));
    const int before = date.year;
    const int target = upTo(10) == 0 ? upTo(7998) - 3999 : before + upTo(7) - 3;
    const PackedDate monthDay = date.month * 100 + date.day;
    const auto civil = [&](int year) { return CivilYear(Pack(year, monthDay / 100, monthDay % 100)); };

    const int reached = SetCivilYear(date, target);
    ASSERT_EQ(reached, CivilYearOf(date));
    ASSERT_EQ(date.month * 100 + date.day, monthDay);
    if (civil(target) == before) {
      ASSERT_EQ(date.year, target);
    } else if (reached != target) {
      ASSERT_EQ(date.year, target + 1);
      for (const int year : {target - 1, target, target + 1}) ASSERT_NE(civil(year), target);
    }
  }
}

TEST(CivilYearTest, LabelsOfYearsBeforeTheEra) {
  EXPECT_EQ(YearBeforeEra(0), 1);
  EXPECT_EQ(YearOfRome(0), 753);
  EXPECT_EQ(YearBeforeEra(-43), 44);
  EXPECT_EQ(YearOfRome(-43), 710);
}

}  // namespace
}  // namespace orbisol

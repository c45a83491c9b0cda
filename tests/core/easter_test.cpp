#include "core/easter.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/support/plain_calendar.h"
#include "tests/support/rules.h"
#include "tests/support/test_data.h"

namespace orbisol {
namespace {

constexpr CalendarRules kRoman;

// Month * 100 + day by year, from a table of twenty years a line.
std::map<int, int> EasterTable(const char* fileName) {
  std::map<int, int> table;
  for (const std::vector<std::string>& row : DataRows(fileName))
    for (std::size_t i = 1; i < row.size(); ++i)
      table[std::stoi(row[0]) + static_cast<int>(i) - 1] = std::stoi(row[i]);
  return table;
}

int RomanMonthDay(int year) {
  Date date(year, 1, 1);
  RomanEaster(date);
  EXPECT_EQ(date.year, year);
  return date.month * 100 + date.day;
}

TEST(EasterTest, RomanEasterIsThatOfTheTablesUnderThreeReforms) {
  const std::map<int, int> julian = EasterTable("easter_julian.txt");
  const std::map<int, int> gregorian = EasterTable("easter_gregorian.txt");
  ASSERT_EQ(julian.size(), 3674U);
  ASSERT_EQ(gregorian.size(), 2417U);
  for (const PackedDate reform : {15821015, 17520914, 19240323}) {
    SCOPED_TRACE(reform);
    const ScopedRules inForce(RulesWith(reform));
    for (int year = kFirstEasterYear; year <= 3999; ++year) {
      EXPECT_EQ(RomanMonthDay(year), year > reform / 10000 ? gregorian.at(year) : julian.at(year)) << year;
    }
  }
}

TEST(EasterTest, OrthodoxEasterIsTheJulianDayInTheCalendarInForceShiftedAfterTheReform) {
  const std::map<int, int> julian = EasterTable("easter_julian.txt");
  const plain::Reform julianForEver{kNeverGregorian, true};
  for (const PackedDate reform : {15821015, 19240323}) {
    const ScopedRules inForce(RulesWith(reform));
    for (const auto& [year, monthDay] : julian) {
      const std::int64_t n = plain::DayNumber({year, monthDay / 100, monthDay % 100}, julianForEver);
      for (const int offset : {0, 1, -48, 50}) {
        // On purpose: up to and in the year of the reform the offset is not applied.
        const PackedDate expected = year > reform / 10000
                                        ? DateOfDayNumber(static_cast<int>(n) + offset).Packed()
                                        : Pack(year, monthDay / 100, monthDay % 100);
        EXPECT_EQ(OrthodoxEaster(year, offset), expected) << year;
      }
    }
  }
}

TEST(EasterTest, KnownYears) {
  const ScopedRules inForce(kRoman);
  constexpr int kSundays[][2] = {{326, 403}, {1582, 415}, {1583, 410}, {1818, 322}, {2024, 331}, {2038, 425}};
  for (const auto& [year, monthDay] : kSundays) EXPECT_EQ(RomanMonthDay(year), monthDay) << year;
  EXPECT_EQ(OrthodoxEaster(1582, 1), 15820415);
  EXPECT_EQ(OrthodoxEaster(1583, 1), 15830411);
  EXPECT_EQ(OrthodoxEaster(2024, 0), 20240505);
}

TEST(EasterTest, ThereIsNoneBefore326) {
  const ScopedRules inForce(kRoman);
  Date date(325, 7, 9);
  RomanEaster(date);
  EXPECT_EQ(date.Packed(), 3250709);
  EXPECT_EQ(OrthodoxEaster(325, 7), 0);
  EXPECT_EQ(OrthodoxEaster(-1000, 0), 0);
}

// On purpose: the date is the Julian one, though the day is Gregorian by then.
TEST(EasterTest, EasterOfAReformYearIsJulianAlsoAfterAReformInWinter) {
  const ScopedRules inForce(RulesWith(16550101));
  EXPECT_EQ(RomanMonthDay(1655), 415);
  EXPECT_EQ(Date(16550415).Weekday(true), 4);
  EXPECT_EQ(OrthodoxEaster(1655, 0), 16550415);
}

}  // namespace
}  // namespace orbisol

#include "core/easter.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/support/plain_calendar.h"
#include "tests/support/rules.h"
#include "tests/support/test_data.h"

namespace orbisol {
namespace {

// Easter by year, as month * 100 + day, from a table of twenty years a line.
std::map<int, int> EasterTable(const char* fileName) {
  std::map<int, int> table;
  for (const std::vector<std::string>& row : DataRows(fileName))
    for (std::size_t i = 1; i < row.size(); ++i)
      table[std::stoi(row[0]) + static_cast<int>(i) - 1] = std::stoi(row[i]);
  return table;
}

TEST(EasterTest, EveryYearFrom326OnHasTheEastersOfTheTables) {
  const std::map<int, int> julian = EasterTable("easter_julian.txt");
  const std::map<int, int> gregorian = EasterTable("easter_gregorian.txt");
  ASSERT_EQ(julian.size(), 3674U);
  Date none(3250709);
  RomanEaster(none);
  EXPECT_EQ(none.Packed(), 3250709);
  EXPECT_EQ(OrthodoxEaster(325, 7), 0);

  const plain::Reform julianForEver{kNeverGregorian, true};
  // On purpose: Easter of the year of the reform is the Julian one, also where the reform came in winter, and
  // up to then the Orthodox one takes no offset.
  for (const PackedDate reform : {15821015, 16550101, 19240323}) {
    SCOPED_TRACE(reform);
    const ScopedRules inForce(RulesWith(reform));
    for (const auto& [year, monthDay] : julian) {
      const bool after = year > reform / 10000;
      Date roman(year, 1, 1);
      RomanEaster(roman);
      EXPECT_EQ(roman.Packed(), year * 10000 + (after ? gregorian.at(year) : monthDay));

      const std::int64_t n = plain::DayNumber({year, monthDay / 100, monthDay % 100}, julianForEver);
      for (const int offset : {0, -48, 50}) {
        const Date shifted = DateOfDayNumber(static_cast<int>(n) + offset);
        EXPECT_EQ(OrthodoxEaster(year, offset), after ? shifted.Packed() : year * 10000 + monthDay);
      }
    }
  }
}

}  // namespace
}  // namespace orbisol

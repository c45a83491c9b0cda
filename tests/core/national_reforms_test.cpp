#include "core/national_reforms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "core/civil_year.h"
#include "core/text.h"
#include "tests/support/fakes.h"
#include "tests/support/test_data.h"

namespace orbisol {
namespace {

// As `ncal -p` prints them, country by country.
TEST(NationalReformsTest, EachCountryHasItsDays) {
  std::map<std::string, std::pair<PackedDate, PackedDate>> known;
  for (const std::vector<std::string>& row : DataRows("national_reforms.txt"))
    for (std::size_t i = 2; i < row.size(); ++i) known[row[i]] = {std::stoi(row[0]), std::stoi(row[1])};
  const auto rows = NationalReforms();
  EXPECT_EQ(rows.size(), known.size() - 3) << "without Japan, China and Turkey";
  EXPECT_EQ(rows[0].country, u"Rome");
  EXPECT_TRUE(std::is_sorted(rows.begin() + 1, rows.end(), [](const auto& a, const auto& b) {
    return Folded(a.country) < Folded(b.country);
  }));
  for (const NationalReform& row : rows)
    EXPECT_EQ(std::pair(row.lastJulian, row.firstGregorian), known[ToUtf8(row.country)])
        << ToUtf8(row.country);
}

// Our own years keep their numbers under every style, and a style rules its own time.
TEST(NationalReformsTest, StylesNumberTheirTimeAndNotOurs) {
  const ScopedPlatform platform(FakeLocale(), FakeClock({2026, 1, 1}));
  for (const PackedDate reform : {kRomanReform, 17520914, 19180214}) {
    for (const CivilYearStyle& style : CivilYearStyles()) {
      SCOPED_TRACE(ToUtf8(style.name) + " under " + std::to_string(reform));
      const auto table = CivilYearRowsOf(style, reform);
      EXPECT_EQ(FirstBadRow(table, reform), -1);
      const ScopedRules inForce(RulesWith(reform, {.rows = {table.begin(), table.end()}}));
      EXPECT_EQ(CivilYearOf(Date::Today()), 2026);
      EXPECT_EQ(CivilYear(Pack(Unpack(table[0].from).year, 1, 1)), Unpack(table[0].from).year);
      EXPECT_EQ(table[0].from, std::min(style.closing, Pack(reform / 10000, 1, 1)));
    }
  }
}

TEST(NationalReformsTest, StylesCountAsTheirTimeDid) {
  constexpr std::tuple<StyleIndex, PackedDate, int> kKnown[] = {
      {kAnnunciationStyle, 15000324, 1499}, {kAnnunciationStyle, 15000325, 1500},
      {kPisanStyle, 15000324, 1500},        {kPisanStyle, 15000325, 1501},
      {kVenetianStyle, 15000228, 1499},     {kVenetianStyle, 15000301, 1500},
      {kByzantineStyle, 15000831, 1500},    {kByzantineStyle, 15000901, 1501},
      {kEnglishStyle, 16490130, 1648},      {kEnglishStyle, 16490325, 1649},  // the execution of Charles I
      {kEnglishStyle, 17511231, 1751},      {kByzantineStyle, 16991231, 1700},
      {kByzantineStyle, 17000901, 1700},
  };
  for (const auto& [index, date, civilYear] : kKnown) {
    SCOPED_TRACE(date);
    const CivilYearStyle& style = CivilYearStyles()[static_cast<std::size_t>(index)];
    const PackedDate reform = style.reform != 0 ? style.reform : 19180214;
    const auto table = CivilYearRowsOf(style, reform);
    const ScopedRules inForce(RulesWith(reform, {.rows = {table.begin(), table.end()}}));
    EXPECT_EQ(CivilYear(date), civilYear);
  }
  EXPECT_EQ(CivilYearStyles()[kEnglishStyle].reform, 17520914);
  EXPECT_TRUE(IsClosedEarly(CivilYearStyles()[kEnglishStyle], kRomanReform));
  EXPECT_FALSE(IsClosedEarly(CivilYearStyles()[kEnglishStyle], 17520914));
}

}  // namespace
}  // namespace orbisol

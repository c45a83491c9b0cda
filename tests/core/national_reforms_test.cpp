#include "core/national_reforms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "core/civil_year.h"
#include "core/text.h"
#include "tests/support/fakes.h"

namespace orbisol {
namespace {

// The last Julian days as `ncal -p` prints them, country by country, without Japan, China and Turkey.
constexpr struct {
  std::u16string_view country;
  PackedDate lastJulian;
} kLastJulianDays[] = {
    {u"Albanie", 19121130},     {u"Autriche", 15831005},    {u"Australie", 17520902},
    {u"Belgique", 15821214},    {u"Bulgarie", 19160331},    {u"Canada", 17520902},
    {u"Suisse", 16550228},      {u"Tchéquie", 15840106},    {u"Allemagne", 17000218},
    {u"Danemark", 17000218},    {u"Espagne", 15821004},     {u"Finlande", 17530217},
    {u"France", 15821209},      {u"Royaume-Uni", 17520902}, {u"Grèce", 19240309},
    {u"Hongrie", 15871021},     {u"Islande", 17001116},     {u"Italie", 15821004},
    {u"Lituanie", 19180201},    {u"Luxembourg", 15821214},  {u"Lettonie", 19180201},
    {u"Pays-Bas", 15821214},    {u"Norvège", 17000218},     {u"Pologne", 15821004},
    {u"Portugal", 15821004},    {u"Roumanie", 19190331},    {u"Russie", 19180131},
    {u"Slovénie", 19190304},    {u"Suède", 17530217},       {u"États-Unis", 17520902},
    {u"Yougoslavie", 19190304}, {u"Rome", 15821004},
};

TEST(NationalReformsTest, EachCountryHasItsDaysAndTheDayAfterIsTheFirstGregorianOne) {
  const auto rows = NationalReforms();
  ASSERT_EQ(rows.size(), std::size(kLastJulianDays));
  EXPECT_EQ(rows[0].country, u"Rome");
  EXPECT_TRUE(std::is_sorted(rows.begin() + 1, rows.end(), [](const auto& a, const auto& b) {
    return Folded(a.country) < Folded(b.country);
  }));
  for (const auto& known : kLastJulianDays) {
    SCOPED_TRACE(ToUtf8(known.country));
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const NationalReform& r) { return r.country == known.country; });
    ASSERT_NE(row, rows.end());
    EXPECT_EQ(row->lastJulian, known.lastJulian);
    const ScopedRules inForce(RulesWith(row->firstGregorian));
    Date next(row->lastJulian);
    next.AddDays(1);
    EXPECT_EQ(next.Packed(), row->firstGregorian);
  }
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
      {kEnglishStyle, 17511231, 1751},      {kEnglishStyle, 17520101, 1752},
      {kByzantineStyle, 16991231, 1700},    {kByzantineStyle, 17000901, 1700},
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

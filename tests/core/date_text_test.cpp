#include "core/date_text.h"

#include <gtest/gtest.h>

#include "tests/support/fakes.h"

namespace orbisol {
namespace {

TEST(DateTextTest, LongDatesFollowTheOrder) {
  constexpr const char16_t* kTexts[] = {u"Mardi, juillet 14, 1789", u"Mardi 14 juillet 1789",
                                        u"Mardi, 1789 juillet 14", u""};
  Date date(17890714);
  EXPECT_EQ(LongDate(date, true), u"14 juillet 1789");
  for (date.dateOrder = 0; date.dateOrder <= 3; ++date.dateOrder)
    EXPECT_EQ(LongDate(date, false), kTexts[date.dateOrder]);
  EXPECT_EQ(JulianLongDate(date, true), u"Mardi, 1789 juillet 3") << "year first for any other order";
}

TEST(DateTextTest, TheYearShownIsTheCivilOne) {
  const ScopedRules inForce(RulesWith(17520914, {.rows = {{11550325, false}}}));
  const Date date(16490130);  // Charles I was executed in 1648 by English reckoning
  EXPECT_EQ(LongDate(date, true), u"30 janvier 1648");
  EXPECT_EQ(JulianLongDate(date, true), u"Mardi 30 janvier 1649");
  EXPECT_EQ(JulianLongDate(Date(18000330), false), u"Dimanche 18 mars 1799") << "that of the Julian date";
}

TEST(DateTextTest, TheProlepticDateCountsAsIfTheReformHadAlwaysBeenInForce) {
  constexpr std::pair<PackedDate, const char16_t*> kDates[] = {
      {15821004, u"14 octobre 1582"}, {3250525, u"26 mai 325"}, {10101, u"31 décembre 0"}};
  for (const auto& [date, text] : kDates) EXPECT_EQ(ProlepticGregorianText(Date(date)), text) << date;
}

TEST(DateTextTest, NamesAreThoseOfTheLocaleAndSundayHasOneWhateverItsNumber) {
  EXPECT_EQ(MonthName(2) + MonthAbbrev(2) + WeekdayName(3) + WeekdayAbbrev(3), u"févrierfévr.mercredimer.");
  EXPECT_EQ(MonthName(0) + MonthName(13) + WeekdayName(8) + WeekdayName(-1), u"");
  FakeLocale greek;
  greek.months = {u"ιανουάριος"};
  greek.weekdays = {u"δευτέρα", u"", u"", u"", u"", u"", u"κυριακή"};
  const ScopedPlatform platform(greek);
  for (const bool iso : {true, false}) {
    const ScopedRules inForce(RulesWith(kRomanReform, {.iso8601 = iso}));
    EXPECT_EQ(LongDate(Date(20240107), false), u"Κυριακή 7 ιανουάριος 2024");
  }
}

TEST(DateTextTest, PatternsFollowTheOrder) {
  EXPECT_EQ(WithDatePattern(u"Au format %date%, oui %date%.", 1), u"Au format JJ/MM/AAAA, oui JJ/MM/AAAA.");
  EXPECT_EQ(DatePattern(0) + DatePattern(2) + DatePattern(3), u"MM/JJ/AAAAAAAA/MM/JJ");
}

TEST(DateTextTest, CenturiesHaveAHundredYearsOnBothSidesOfTheEra) {
  constexpr std::pair<int, const char16_t*> kYears[] = {
      {1, u"Premier siècle"},
      {2000, u"Vingtième siècle"},
      {2001, u"Vingt-et-unième siècle"},
      {4901, u""},
      {0, u"Premier siècle avant notre ère"},
      {-99, u"Premier siècle avant notre ère"},
      {-100, u"Deuxième siècle avant notre ère"},
  };
  for (const auto& [year, text] : kYears) EXPECT_EQ(CenturyText(year), text) << year;
}

}  // namespace
}  // namespace orbisol

#include "core/date_text.h"

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

constexpr CalendarRules kRoman;

TEST(DateTextTest, LongDatesInTheThreeOrders) {
  const ScopedRules inForce(kRoman);
  constexpr struct {
    int order;
    const char16_t *with, *without, *julian;
  } kOrders[] = {
      {0, u"Mardi, juillet 14, 1789", u"juillet 14, 1789", u"Mardi, juillet 3, 1789"},
      {1, u"Mardi 14 juillet 1789", u"14 juillet 1789", u"Mardi 3 juillet 1789"},
      {2, u"Mardi, 1789 juillet 14", u"1789 juillet 14", u"Mardi, 1789 juillet 3"},
  };
  for (const auto& order : kOrders) {
    Date date(17890714);
    date.dateOrder = order.order;
    EXPECT_EQ(LongDate(date, false), order.with);
    EXPECT_EQ(LongDate(date, true), order.without);
    EXPECT_EQ(JulianLongDate(date, true), order.julian);
  }
  Date unknown(17890714);
  for (const int order : {-1, 3}) {
    unknown.dateOrder = order;
    EXPECT_EQ(LongDate(unknown, false), u"");
    EXPECT_EQ(LongDate(unknown, true), u"");
    EXPECT_EQ(JulianLongDate(unknown, true), u"Mardi, 1789 juillet 3");
  }
}

TEST(DateTextTest, KnownDays) {
  constexpr struct {
    PackedDate date;
    const char16_t *text, *julian;
  } kRows[] = {
      {15821015, u"Vendredi 15 octobre 1582", u"Vendredi 5 octobre 1582"},
      {15821004, u"Jeudi 4 octobre 1582", u"Jeudi 4 octobre 1582"},
      {20240107, u"Dimanche 7 janvier 2024", u"Dimanche 25 décembre 2023"},
      {-430315, u"Mercredi 15 mars -43", u"Mercredi 15 mars -43"},
      {20250229, u"Samedi 29 février 2025", u"Samedi 16 février 2025"},  // kept though it does not exist
  };
  for (const bool iso : {true, false}) {  // Sunday is 7 or 0, and its name the same
    const ScopedRules inForce(RulesWith(kRomanReform, {.iso8601 = iso}));
    for (const auto& row : kRows) {
      EXPECT_EQ(LongDate(Date(row.date), false), row.text);
      EXPECT_EQ(JulianLongDate(Date(row.date), true), row.julian);
    }
  }
}

TEST(DateTextTest, TheYearShownIsTheCivilOne) {
  const ScopedRules inForce(RulesWith(17520914, {.rows = {{11550325, false}}}));
  EXPECT_EQ(LongDate(Date(16490130), true),
            u"30 janvier 1648");  // Charles I, executed in 1648 by English reckoning
  EXPECT_EQ(JulianLongDate(Date(16490130), false), u"Mardi 30 janvier 1648");
  EXPECT_EQ(JulianLongDate(Date(16490130), true), u"Mardi 30 janvier 1649");
  EXPECT_EQ(JulianLongDate(Date(18000313), false), u"Jeudi 1 mars 1799");
}

TEST(DateTextTest, NamesAreThoseOfTheLocale) {
  FakeLocale greek;
  greek.dateOrder = 2;
  greek.months = {u"ιανουάριος"};
  greek.monthAbbrevs = {u"ιαν"};
  greek.weekdays = {u"δευτέρα", u"", u"", u"", u"", u"", u"κυριακή"};
  greek.weekdayAbbrevs = {u"δε", u"", u"", u"", u"", u"", u"κυ"};
  const ScopedPlatform platform(greek);
  const ScopedRules inForce(kRoman);
  EXPECT_EQ(LongDate(Date(20240101), false), u"Δευτέρα, 2024 ιανουάριος 1");
  EXPECT_EQ(LongDate(Date(20240107), false), u"Κυριακή, 2024 ιανουάριος 7");
  EXPECT_EQ(MonthAbbrev(1), u"ιαν");
  EXPECT_EQ(WeekdayAbbrev(0), u"κυ");
  EXPECT_EQ(WeekdayAbbrev(7), u"κυ");
  EXPECT_EQ(WeekdayName(1), u"δευτέρα");
}

TEST(DateTextTest, FrenchNamesAreEmptyOutsideTheirRange) {
  EXPECT_EQ(MonthName(2) + MonthAbbrev(2) + WeekdayName(3) + WeekdayAbbrev(3), u"févrierfévr.mercredimer.");
  EXPECT_EQ(MonthName(12) + WeekdayName(7), u"décembredimanche");
  EXPECT_EQ(MonthName(0) + MonthName(13) + MonthAbbrev(-1) + WeekdayName(8) + WeekdayName(-1), u"");
}

TEST(DateTextTest, PatternsFollowTheOrder) {
  EXPECT_EQ(WithDatePattern(u"Au format %date%, oui %date%.", 1), u"Au format JJ/MM/AAAA, oui JJ/MM/AAAA.");
  EXPECT_EQ(DatePattern(0), u"MM/JJ/AAAA");
  EXPECT_EQ(DatePattern(2), u"AAAA/MM/JJ");
  EXPECT_EQ(DatePattern(3) + DatePattern(-1), u"");
}

TEST(DateTextTest, Centuries) {
  constexpr struct {
    int year;
    const char16_t* text;
  } kRows[] = {
      {1, u"Premier siècle"},
      {101, u"Deuxième siècle"},
      {1901, u"Vingtième siècle"},
      {2000, u"Vingtième siècle"},
      {2024, u"Vingt-et-unième siècle"},
      {3101, u"Trente-deuxième siècle"},
      {3901, u"Quarantième siècle"},
      {3999, u"Quarantième siècle"},
      {4900, u"Quarante-neuvième siècle"},
      {4901, u""},
      {0, u"Premier siècle avant notre ère"},
      {-43, u"Premier siècle avant notre ère"},
      {-100, u"Deuxième siècle avant notre ère"},
      {-3999, u"Quarantième siècle avant notre ère"},
      {-4900, u""},
  };
  for (const auto& row : kRows) EXPECT_EQ(CenturyText(row.year), row.text) << row.year;
}

}  // namespace
}  // namespace orbisol

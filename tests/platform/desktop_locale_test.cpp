#include "platform/desktop_locale.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace orbisol {
namespace {

TEST(DesktopLocaleTest, WithoutALocaleAllIsFrench) {
  const FrenchLocale french;
  for (const char* name : {"", "C", "C.UTF-8", "xx_YY", "not a locale"}) {
    SCOPED_TRACE(name);
    const CDesktopLocale locale(name);
    for (int i = 0; i <= 13; ++i) {
      EXPECT_EQ(locale.MonthName(i), french.MonthName(i));
      EXPECT_EQ(locale.MonthAbbrev(i), french.MonthAbbrev(i));
      EXPECT_EQ(locale.WeekdayName(i), french.WeekdayName(i));
      EXPECT_EQ(locale.WeekdayAbbrev(i), french.WeekdayAbbrev(i));
    }
  }
}

TEST(DesktopLocaleTest, CountriesHaveTheirOwnAnswers) {
  // Date order, first weekday, and the names of March, Sunday, the language and the country.
  constexpr std::tuple<const char*, int, int, const char16_t*> kRows[] = {
      {"C", 1, 0, u"mars dimanche fr FR"},         {"en_US.UTF-8", 0, 6, u"March Sunday en US"},
      {"de_CH@euro", 1, 0, u"März Sonntag de CH"}, {"sv_SE", 2, 0, u"mars söndag sv SE"},
      {"it", 1, 0, u"marzo domenica it "},         {"zh-Hant-TW", 2, 6, u"3月 星期日 zh TW"},
      {"cs_CZ", 1, 0, u"březen neděle cs CZ"},
  };
  for (const auto& [name, dateOrder, firstDay, names] : kRows) {
    SCOPED_TRACE(name);
    const CDesktopLocale locale(name);
    EXPECT_EQ(locale.ShortDateOrder(), dateOrder);
    EXPECT_EQ(locale.FirstDayOfWeek(), firstDay);
    EXPECT_EQ(locale.MonthName(3) + u" " + locale.WeekdayName(7) + u" " + locale.Language() + u" " +
                  locale.Country(),
              names);
  }
}

TEST(DesktopLocaleTest, TheSessionSaysHowDatesAreWritten) {
  for (const char* name : {"LC_ALL", "LC_TIME"}) unsetenv(name);
  setenv("LANG", "de_DE.UTF-8", 1);
  EXPECT_EQ(CDesktopLocale().MonthName(1), u"Januar");
  setenv("LC_TIME", "en_US.UTF-8", 1);
  EXPECT_EQ(CDesktopLocale().MonthName(1), u"January");
  setenv("LC_ALL", "C", 1);
  EXPECT_EQ(CDesktopLocale().MonthName(1), u"janvier");
}

}  // namespace
}  // namespace orbisol

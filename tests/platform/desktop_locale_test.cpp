#include "platform/desktop_locale.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace orbisol {
namespace {

void SetLocale(const char* all, const char* time, const char* lang) {
  setenv("LC_ALL", all, 1);
  setenv("LC_TIME", time, 1);
  setenv("LANG", lang, 1);
}

// The other tests run under LC_ALL=C.
class DesktopLocaleTest : public testing::Test {
 protected:
  ~DesktopLocaleTest() override { SetLocale("C", "", ""); }
};

TEST_F(DesktopLocaleTest, WithoutALocaleAllIsFrench) {
  const FrenchLocale french;
  for (const char* name : {"", "C", "POSIX", "C.UTF-8", "xx_YY", "not a locale"}) {
    SCOPED_TRACE(name);
    const CDesktopLocale locale(name);
    EXPECT_EQ(locale.ShortDateOrder(), 1);
    EXPECT_EQ(locale.FirstDayOfWeek(), 0);
    EXPECT_EQ(locale.Language(), u"fr");
    EXPECT_EQ(locale.Country(), u"FR");
    for (int i = 0; i <= 13; ++i) {
      EXPECT_EQ(locale.MonthName(i), french.MonthName(i));
      EXPECT_EQ(locale.MonthAbbrev(i), french.MonthAbbrev(i));
      EXPECT_EQ(locale.WeekdayName(i), french.WeekdayName(i));
      EXPECT_EQ(locale.WeekdayAbbrev(i), french.WeekdayAbbrev(i));
    }
  }
}

TEST_F(DesktopLocaleTest, CountriesHaveTheirOwnAnswers) {
  const struct {
    const char* name;
    int dateOrder, firstDay;
    const char16_t *march, *sunday, *language, *country;
  } kRows[] = {
      {"en_US.UTF-8", 0, 6, u"March", u"Sunday", u"en", u"US"},
      {"de_CH@euro", 1, 0, u"März", u"Sonntag", u"de", u"CH"},
      {"sv_SE", 2, 0, u"mars", u"söndag", u"sv", u"SE"},
      {"it", 1, 0, u"marzo", u"domenica", u"it", u""},
      {"ru_RU.KOI8-R", 1, 0, u"март", u"воскресенье", u"ru", u"RU"},
      {"zh-Hant-TW", 2, 6, u"3月", u"星期日", u"zh", u"TW"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.name);
    const CDesktopLocale locale(row.name);
    EXPECT_EQ(locale.ShortDateOrder(), row.dateOrder);
    EXPECT_EQ(locale.FirstDayOfWeek(), row.firstDay);
    EXPECT_EQ(locale.MonthName(3), row.march);
    EXPECT_EQ(locale.WeekdayName(7), row.sunday);
    EXPECT_EQ(locale.Language(), row.language);
    EXPECT_EQ(locale.Country(), row.country);
  }
}

TEST_F(DesktopLocaleTest, TheSessionSaysHowDatesAreWritten) {
  SetLocale("", "en_US.UTF-8", "C.UTF-8");
  EXPECT_EQ(CDesktopLocale().MonthName(1), u"January");
  SetLocale("", "", "de_DE.UTF-8");
  EXPECT_EQ(CDesktopLocale().MonthName(1), u"Januar");
  SetLocale("C", "en_US.UTF-8", "de_DE.UTF-8");
  EXPECT_EQ(CDesktopLocale().MonthName(1), u"janvier");
}

}  // namespace
}  // namespace orbisol

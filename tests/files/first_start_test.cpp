// The calendar that a first start shows, by the user's language and country.

#include "files/first_start.h"

#include <gtest/gtest.h>

#include <set>

#include "core/date.h"
#include "resources/country_calendars.h"
#include "tests/files/shipped_calendars.h"

namespace orbisol {
namespace {

std::u16string Utf16(const std::string& text) { return FromUtf8(text); }

// Returns the name of the first calendar for a locale that ships; empty for none.
std::string FirstShipped(const std::string& language, const std::string& country) {
  for (const std::u16string& name : FirstStartCalendars({Utf16(language), Utf16(country)}))
    if (BytesOfCalendar(ToUtf8(name)) != "(none)") return ToUtf8(name);
  return {};
}

TEST(FirstStartTest, EachCountryOfTheListHasItsCalendar) {
  std::set<std::string> names, countries;
  for (const HolidaySource& source : HolidaySources()) {
    names.insert(source.name);
    for (const std::string& code : source.countries) countries.insert(code.substr(0, 2));
    for (const std::string& locale : source.firstStart) {
      EXPECT_EQ(ToUtf8(CountryCalendar(Utf16(locale))), source.name) << locale;
      const std::string country = locale.substr(locale.size() - 2);
      EXPECT_TRUE(std::any_of(source.countries.begin(), source.countries.end(),
                              [&](const std::string& code) { return code.starts_with(country); }))
          << source.name << " answers " << locale;
    }
  }
  EXPECT_GE(countries.size(), 70U);
  for (const std::string& country : countries)
    EXPECT_EQ(names.count(FirstShipped("xx", country)), 1U) << country << " in a language of no calendar";
}

TEST(FirstStartTest, TheLanguageDecidesWhereACountryHasSeveralAndWhereNoneIsKnown) {
  constexpr struct {
    const char* language;
    const char* country;
    const char* calendar;
  } kFirst[] = {
      {"fr", "CH", "Suisse (Genève)"},
      {"de", "CH", "Suisse (Zurich)"},
      {"it", "CH", "Suisse (Tessin)"},
      {"rm", "CH", "Suisse (Zurich)"},
      {"fr", "CA", "Canada (Québec)"},
      {"en", "CA", "Canada (jours fériés fédéraux)"},
      {"en", "GB", "Royaume-Uni (Angleterre et pays de Galles)"},
      {"en", "AU", "Australie (Nouvelle-Galles du Sud)"},
      {"de", "DE", "Allemagne (jours fériés fédéraux)"},
      {"ca", "ES", "Espagne"},
      {"de", "IT", "Italie"},
      {"es", "US", "États-Unis (jours fériés fédéraux)"},
      {"fr", "FR", "France"},
      {"fr", "", "fr_public"},
      {"fr", "SN", "fr_public"},
      {"en", "IN", "en_public"},
      {"hi", "IN", ""},
      {"", "", ""},
  };
  for (const auto& row : kFirst)
    EXPECT_EQ(FirstShipped(row.language, row.country), row.calendar) << row.language << "_" << row.country;
  EXPECT_TRUE(FirstStartCalendars({u"../x", u""}).empty()) << "a language has two letters";
}

// Returns the public days from Monday to Friday: on weekends a country may keep another day instead.
std::set<PackedDate> PublicWorkdays(const std::string& name) {
  const CalendarContent content = ContentOfCalendar(name);
  std::set<PackedDate> workdays;
  for (const auto& [ymd, rules] : MarkedDays(content, true, 2000, 2040))
    if (const int weekday = WeekdayOfDayNumber(Date(ymd).DayNumber()); weekday != 0 && weekday != 6)
      workdays.insert(ymd);
  return workdays;
}

TEST(FirstStartTest, ALanguageHasTheDaysThatAllItsCountriesKeep) {
  const std::map<std::string, std::vector<std::string>> members = {
      {"fr",
       {"FR", "BE", "LU", "MC", "CH-GE", "CH-VD", "CH-VS", "CH-FR", "CH-NE", "CH-JU", "CA-QC", "HT", "CD",
        "CG", "MG", "VU"}},
      {"en", {"GB-ENG", "GB-SCT", "GB-NIR", "IE", "CA", "US", "AU-NSW", "NZ", "ZA", "MT", "SC"}},
      {"de", {"DE", "AT", "LI", "CH-ZH", "CH-BE", "CH-BS"}},
      {"it", {"IT", "SM", "CH-TI"}},
      {"es", {"ES", "MX", "UY", "PY", "PE", "CO", "CR", "PA", "CU"}},
      {"pt", {"PT", "BR", "AO", "CV"}},
      {"nl", {"NL", "BE"}},
      {"el", {"GR", "CY"}},
      {"sv", {"SE", "FI"}},
      {"ro", {"RO", "MD"}},
      {"ru", {"RU", "BY"}},
  };
  std::map<std::string, std::string> names;
  for (const HolidaySource& source : HolidaySources())
    for (const std::string& code : source.countries) names[code] = source.name;
  for (const auto& [language, codes] : members) {
    std::set<PackedDate> common = PublicWorkdays(names.at(codes[0]));
    for (const std::string& code : codes)
      std::erase_if(common,
                    [kept = PublicWorkdays(names.at(code))](PackedDate ymd) { return !kept.contains(ymd); });
    EXPECT_EQ(PublicWorkdays(language + "_public"), common) << language;
  }
}

}  // namespace
}  // namespace orbisol

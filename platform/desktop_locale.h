// The user's locale as the desktop states it: names, short-date order, first day of the week.
//
//   const CDesktopLocale locale;         // what the session says
//   const CDesktopLocale german("de_CH.UTF-8");
//   german.MonthName(3);                 // u"März"
//   german.Country();                    // u"CH"
//
// Without a locale, or with C or POSIX, everything is French and of France. Nothing here fails: a name that
// is no locale counts as none. The object keeps the answers of the moment in which it was made.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/platform.h"

namespace orbisol {

class CDesktopLocale : public Locale {
 public:
  // Asks for the locale in which the session writes dates.
  CDesktopLocale();
  // Asks for a named locale: "fr_FR.UTF-8", "de", "sr_RS@latin" …
  explicit CDesktopLocale(std::string_view name);

  int ShortDateOrder() const override { return m_dateOrder; }
  int FirstDayOfWeek() const override { return m_firstDay; }
  // Returns 2, the first week of four days, as in ISO 8601: no desktop says which week is the first.
  int FirstWeekOfYear() const override { return 2; }
  // Return names as they stand alone ("mai", not "de mai"); empty outside their range.
  std::u16string MonthName(int month) const override { return Item(m_months, month); }
  std::u16string MonthAbbrev(int month) const override { return Item(m_monthAbbrevs, month); }
  std::u16string WeekdayName(int weekday) const override { return Item(m_weekdays, weekday); }
  std::u16string WeekdayAbbrev(int weekday) const override { return Item(m_weekdayAbbrevs, weekday); }

  // Returns two or three small letters, as in "fr".
  const std::u16string& Language() const { return m_language; }
  // Returns two capital letters, as in "FR"; empty if the locale names a language alone.
  const std::u16string& Country() const { return m_country; }

 private:
  template <std::size_t N>
  static std::u16string Item(const std::array<std::u16string, N>& names, int fromOne) {
    return fromOne < 1 || fromOne > static_cast<int>(N) ? u"" : names[static_cast<std::size_t>(fromOne - 1)];
  }

  int m_dateOrder = 1;  // as in Date::dateOrder
  int m_firstDay = 0;   // 0 Monday .. 6 Sunday
  std::array<std::u16string, 12> m_months, m_monthAbbrevs;
  std::array<std::u16string, 7> m_weekdays, m_weekdayAbbrevs;  // from Monday
  std::u16string m_language, m_country;
};

}  // namespace orbisol

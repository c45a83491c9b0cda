#include "platform/desktop_locale.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include "platform/environment.h"

namespace orbisol {
namespace {

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
// Returns the locale in which dates are written: the first of these variables that is set and not empty.
std::string SessionLocaleName() {
  for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
    const std::string value = Variable(variable);
    if (!value.empty()) return value;
  }
  return {};
}
#else
std::string SessionLocaleName() { return QLocale::system().name().toStdString(); }
#endif

// Returns "fr_FR" for "fr_FR.UTF-8@euro".
QString WithoutCodeSet(std::string_view name) {
  return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()))
      .section(u'.', 0, 0)
      .section(u'@', 0, 0);
}

// Returns the order of a pattern such as "dd/MM/y" as in Date::dateOrder, by the positions of its letters.
// All known locales have one of the three orders.
int DateOrder(const QString& pattern) {
  const qsizetype day = pattern.indexOf(u'd');
  const qsizetype month = pattern.indexOf(u'M');
  const qsizetype year = pattern.indexOf(u'y');
  if (year < day && year < month) return 2;
  return month < day ? 0 : 1;
}

// Returns the country in "zh_Hant_TW" or "de-CH": the first part after the language that is two letters long.
QString CountryOf(const QString& name) {
  QString tag = name;
  const QStringList parts = tag.replace(u'-', u'_').split(u'_');
  for (qsizetype i = 1; i < parts.size(); ++i)
    if (parts[i].size() == 2) return parts[i].toUpper();
  return {};
}

}  // namespace

CDesktopLocale::CDesktopLocale() : CDesktopLocale(SessionLocaleName()) {}

CDesktopLocale::CDesktopLocale(std::string_view name) {
  QString tag = WithoutCodeSet(name);
  QLocale locale(tag);
  if (locale.language() == QLocale::C) {
    tag = QStringLiteral("fr_FR");
    locale = QLocale(QLocale::French, QLocale::France);
  }

  m_dateOrder = DateOrder(locale.dateFormat(QLocale::ShortFormat));
  m_firstDay = static_cast<int>(locale.firstDayOfWeek()) - 1;
  for (int month = 1; month <= 12; ++month) {
    const auto i = static_cast<std::size_t>(month - 1);
    m_months[i] = locale.standaloneMonthName(month, QLocale::LongFormat).toStdU16String();
    m_monthAbbrevs[i] = locale.standaloneMonthName(month, QLocale::ShortFormat).toStdU16String();
  }
  for (int weekday = 1; weekday <= 7; ++weekday) {
    const auto i = static_cast<std::size_t>(weekday - 1);
    m_weekdays[i] = locale.standaloneDayName(weekday, QLocale::LongFormat).toStdU16String();
    m_weekdayAbbrevs[i] = locale.standaloneDayName(weekday, QLocale::ShortFormat).toStdU16String();
  }
  m_language = locale.name().section(u'_', 0, 0).toStdU16String();
  m_country = CountryOf(tag).toStdU16String();
}

}  // namespace orbisol

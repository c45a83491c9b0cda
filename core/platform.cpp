#include "core/platform.h"

#include <ctime>

#include "core/text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

std::u16string Item(int textId, int fromOne) {
  if (fromOne < 1) return {};
  return std::u16string(Piece(StringText(textId), u'|', fromOne - 1));
}

const FrenchLocale kFrenchLocale;
const LocalClock kLocalClock;
constexpr int kFrenchDateOrder = 1;

}  // namespace

namespace detail {
constinit Platform currentPlatform{&kFrenchLocale, &kLocalClock, kFrenchDateOrder};
}

void SetPlatform(const Locale& locale, const Clock& clock) {
  detail::currentPlatform = {&locale, &clock, locale.ShortDateOrder()};
}

int FrenchLocale::ShortDateOrder() const { return kFrenchDateOrder; }

std::u16string FrenchLocale::MonthName(int month) const { return Item(kTextFrenchMonths, month); }
std::u16string FrenchLocale::MonthAbbrev(int month) const { return Item(kTextFrenchMonthAbbrevs, month); }
std::u16string FrenchLocale::WeekdayName(int weekday) const { return Item(kTextFrenchWeekdays, weekday); }
std::u16string FrenchLocale::WeekdayAbbrev(int weekday) const {
  return Item(kTextFrenchWeekdayAbbrevs, weekday);
}

LocalMoment LocalNow() {
  const std::time_t now = std::time(nullptr);
  const std::tm* const local = std::localtime(&now);
  if (local == nullptr) return {{1970, 1, 1}, 0, 0, 0};
  return {{local->tm_year + 1900, local->tm_mon + 1, local->tm_mday},
          local->tm_hour,
          local->tm_min,
          local->tm_sec};
}

}  // namespace orbisol

// Any bytes are a typed date: the first chooses the rules, the order of dates and the selected date, the
// others are the text in UTF-8. Readings exist, lie within the bounds and are never given twice; what a
// reading says is read as its day; a refusal has a reason, and its offers are days too.

#include <cstdint>
#include <cstdlib>
#include <set>
#include <string_view>

#include "core/date.h"
#include "core/date_reader.h"
#include "core/text.h"
#include "tests/support/fakes.h"
#include "tests/support/rules.h"

namespace {

using namespace orbisol;

constexpr PackedDate kToday = 20240515;

void Check(bool holds) {
  if (!holds) std::abort();
}

CalendarRules RulesOf(unsigned choice) {
  switch (choice % 6u) {
    case 0:
      return RulesWith(17520914, {.rows = {{17520101, false}, {11550325, false}}});
    case 1:
      return RulesWith(kRomanReform, {.rows = {{15000325, true}}});
    case 2:
      return RulesWith(19180214, {.proleptic = true});
    case 3:
      return RulesWith(kNeverGregorian);
    case 4:
      return RulesWith(kAlwaysGregorian);
    default:
      return RulesWith(kRomanReform);
  }
}

PackedDate SelectedOf(unsigned choice) {
  constexpr PackedDate kSelected[] = {kToday, kFirstDateShown, kLastDateShown, 15821010, 20240229, 315};
  return kSelected[choice % std::size(kSelected)];
}

void CheckReadings(const std::vector<DateReading>& readings, PackedDate selected) {
  Check(readings.size() <= kMostReadings);
  std::set<PackedDate> days;
  for (const DateReading& reading : readings) {
    const Date date(reading.date);
    Check(IsWithinBounds(date) && DoesDateExist({date.year, date.month, date.day}));
    Check(days.insert(reading.date).second);
    Check(ReadingNote(reading).find(u'%') == std::u16string::npos);
    const DateReadings again = ReadDates(ReadingText(reading), selected);
    Check(!again.readings.empty() && again.readings[0].date == reading.date);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const unsigned choice = data[0];
  const ScopedRules rules(RulesOf(choice));
  FakeLocale locale;
  locale.dateOrder = static_cast<int>(choice / 6u % 3u);
  const ScopedPlatform platform(locale, FakeClock(Unpack(kToday)));
  const PackedDate selected = SelectedOf(choice / 18u);
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const DateReadings read = ReadDates(FromUtf8(bytes.substr(1)), selected);
  Check(read.readings.empty() == (read.refusal != DateRefusal::kNone));
  Check(read.readings.empty() != read.reason.empty());
  CheckReadings(read.readings, selected);
  CheckReadings(read.offers, selected);
  return 0;
}

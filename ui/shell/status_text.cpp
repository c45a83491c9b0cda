#include "ui/shell/status_text.h"

#include <utility>

#include "content/month_highlights.h"
#include "content/spoken_text.h"
#include "content/tip_text.h"
#include "core/date_text.h"
#include "core/text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

constexpr std::u16string_view kSeparator = u" | ";

std::u16string OneLine(std::u16string text) {
  for (std::size_t at = 0; (at = text.find(u'\n', at)) != std::u16string::npos; at += kSeparator.size())
    text.replace(at, 1, kSeparator);
  return text;
}

// Takes the brackets off a text that stands in brackets as a whole: the moon's phase, where nothing stands
// before it.
std::u16string WithoutBrackets(const std::u16string& text) {
  const bool isWhole = text.size() > 2 && text.front() == u'(' && text.find(u')') == text.size() - 1;
  return isWhole ? text.substr(1, text.size() - 2) : text;
}

std::u16string NextHolidayText(const Date& date, std::span<const DayEvent> rules) {
  const auto next = NextPublicHoliday(rules, date);
  if (!next) return {};
  return FormatText(StringText(kTextNextHoliday), {LongDate(Date(next->date), true), next->text});
}

}  // namespace

std::u16string StatusText(const StatusFacts& facts, std::span<const DayEvent> rules) {
  if (!facts.range.empty()) return UpperFirst(facts.range);
  if (facts.day == nullptr) return MissingDateText(facts.date);
  std::u16string text = WithoutBrackets(TipText(*facts.day, facts.withoutDate));
  if (facts.namesNextHoliday && TipText(*facts.day, true).empty()) {
    const std::u16string next = NextHolidayText(facts.date, rules);
    if (!text.empty() && !next.empty()) text += u'\n';
    text += next;
  }
  return OneLine(std::move(text));
}

}  // namespace orbisol

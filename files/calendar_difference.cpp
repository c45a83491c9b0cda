#include "files/calendar_difference.h"

#include <functional>
#include <unordered_map>

#include "content/record_hash.h"
#include "content/rule_text.h"
#include "core/text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

// Pieces of kTextDifference.
enum DifferenceText {
  kComing,
  kGoing,
  kHolidayNamed,
  kEventNamed,
  kPeriodNamed,
  kPeriodWithoutTitle,
  kReordered,
  kLook,
  kRules,
  kInfo,
  kNoDifference
};

std::u16string_view Words(DifferenceText text) { return Piece(StringText(kTextDifference), u'|', text); }

// Returns the records of a list that another one lacks, in their order.
template <typename Record>
std::vector<Record> Without(const std::vector<Record>& list, const std::vector<Record>& other) {
  using Held = std::reference_wrapper<const Record>;
  std::unordered_map<Held, int, RecordHash, std::equal_to<Record>> counts;
  for (const Record& record : other) ++counts[record];
  std::vector<Record> rest;
  for (const Record& record : list)
    if (const auto held = counts.find(record); held == counts.end() || --held->second < 0)
      rest.push_back(record);
  return rest;
}

std::u16string InWords(const DayEvent& rule) {
  return FormatText(Words(rule.isPublic ? kHolidayNamed : kEventNamed), {rule.name.View(), RuleText(rule)});
}

std::u16string InWords(const HolidayPeriod& period) {
  const std::u16string days = PeriodText(period);
  return period.title.IsEmpty() ? FormatText(Words(kPeriodWithoutTitle), {days})
                                : FormatText(Words(kPeriodNamed), {period.title.View(), days});
}

template <typename Record>
void AppendLines(std::vector<std::u16string>& lines, DifferenceText text,
                 const std::vector<Record>& records) {
  for (const Record& record : records) lines.push_back(FormatText(Words(text), {InWords(record)}));
}

}  // namespace

CalendarDifference DifferenceOf(const CalendarFile& from, const CalendarFile& to) {
  CalendarDifference difference;
  difference.comingRules = Without(to.content.dayEvents, from.content.dayEvents);
  difference.goingRules = Without(from.content.dayEvents, to.content.dayEvents);
  difference.comingPeriods = Without(to.content.vacations, from.content.vacations);
  difference.goingPeriods = Without(from.content.vacations, to.content.vacations);
  const bool holdsTheSame = difference == CalendarDifference();
  difference.isReordered = holdsTheSame && from.content != to.content;
  difference.isLookChanged = from.look != to.look;
  difference.areRulesChanged = from.rules != to.rules;
  difference.isInfoChanged = from.info != to.info;
  return difference;
}

std::vector<std::u16string> DifferenceLines(const CalendarDifference& difference) {
  std::vector<std::u16string> lines;
  AppendLines(lines, kComing, difference.comingRules);
  AppendLines(lines, kComing, difference.comingPeriods);
  AppendLines(lines, kGoing, difference.goingRules);
  AppendLines(lines, kGoing, difference.goingPeriods);
  if (difference.isReordered) lines.emplace_back(Words(kReordered));
  if (difference.isLookChanged) lines.emplace_back(Words(kLook));
  if (difference.areRulesChanged) lines.emplace_back(Words(kRules));
  if (difference.isInfoChanged) lines.emplace_back(Words(kInfo));
  if (lines.empty()) lines.emplace_back(Words(kNoDifference));
  return lines;
}

}  // namespace orbisol

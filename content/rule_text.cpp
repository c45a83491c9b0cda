#include "content/rule_text.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "content/rule_dates.h"
#include "core/date.h"
#include "core/date_text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

constexpr int kSmallYear = 100;  // first year that is not called "l'an …"
constexpr int kLastOrdinal = 5;

std::u16string_view TextPiece(int id, int n) { return Piece(StringText(id), u'|', n); }

bool IsMonth(int month) { return month >= 1 && month <= 12; }

// Returns "14 juillet", "1er mars" and the like; only the number for a month outside 1..12.
std::u16string DayAndMonth(int month, int day) {
  const std::u16string name = IsMonth(month) ? MonthName(month) : DecimalText(month);
  if (day == 1) return FormatText(TextPiece(kTextDayOfMonth, 1), {name});
  return FormatText(TextPiece(kTextDayOfMonth, 0), {day, name});
}

std::u16string YearText(int year) {
  return FormatText(TextPiece(kTextYear, year < kSmallYear ? 1 : 0), {year});
}

bool BeginsWithVowel(std::u16string_view word) {
  const std::u16string folded = Folded(word.substr(0, 1));
  return !folded.empty() && std::u16string_view(u"aeiouy").find(folded[0]) != std::u16string_view::npos;
}

std::u16string EasterText(int texts, int days) {
  enum { kThatDay, kDayAfter, kDayBefore, kDaysAfter, kDaysBefore };
  if (days == 0) return std::u16string(TextPiece(texts, kThatDay));
  if (days == 1) return std::u16string(TextPiece(texts, kDayAfter));
  if (days == -1) return std::u16string(TextPiece(texts, kDayBefore));
  return FormatText(TextPiece(texts, days > 0 ? kDaysAfter : kDaysBefore), {std::abs(std::int64_t{days})});
}

std::u16string NthWeekdayText(const DayEvent& rule) {
  const bool isLast = rule.weeknum == kLastOrdinal;
  const std::u16string_view ordinal =
      TextPiece(isLast ? kTextLongOrdinals : kTextShortOrdinals, rule.weeknum - 1);
  const std::u16string month = MonthName(rule.month);
  return FormatText(TextPiece(kTextNthWeekday, BeginsWithVowel(month) ? 1 : 0),
                    {ordinal, WeekdayName(rule.weekday), month});
}

// Returns whether the fields of a rule can be told; those of an accepted rule can, but for its month.
bool IsTellable(const DayEvent& rule) {
  const bool hasWeekday = rule.weekday >= 1 && rule.weekday <= 7;
  switch (rule.type) {
    case DayEventType::kRomanEaster:
    case DayEventType::kOrthodoxEaster:
      return true;
    case DayEventType::kFixedDate:
    case DayEventType::kBankHoliday:
    case DayEventType::kExceptSunday:
      return IsMonth(rule.month);
    case DayEventType::kNthWeekday:
      return IsMonth(rule.month) && hasWeekday && rule.weeknum >= 1 && rule.weeknum <= kLastOrdinal;
    case DayEventType::kWeekdayBefore:
    case DayEventType::kWeekdayAfter:
      return hasWeekday;
  }
  return false;
}

// Indices of the pieces of the texts of a validity.
enum { kSince, kUntil, kFromTo, kWithinOne };

std::u16string BothEnds(int texts, const DayRange& range, const std::u16string& first,
                        const std::u16string& last) {
  if (range.first == kAlways.first) return FormatText(TextPiece(texts, kUntil), {last});
  if (range.last == kAlways.last) return FormatText(TextPiece(texts, kSince), {first});
  return FormatText(TextPiece(texts, first == last ? kWithinOne : kFromTo), {first, last});
}

// Appends the items of a list, the last two with the word that joins them.
std::u16string Listed(const std::vector<std::u16string>& items) {
  enum { kComma, kAnd };
  std::u16string text;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i > 0) text += TextPiece(kTextList, i + 1 == items.size() ? kAnd : kComma);
    text += items[i];
  }
  return text;
}

// Returns the days of a year as they are told, "le 14 juillet"; empty for none.
std::u16string DaysOfYear(std::span<const DayEvent> records, int year) {
  std::vector<PackedDate> days;
  for (const DayEvent& record : records) AppendRuleDates(record, year, days);
  std::vector<std::u16string> items;
  for (const PackedDate day : days) {
    const YearMonthDay date = Unpack(day);
    items.push_back(FormatText(TextPiece(kTextRuleDays, 0), {DayAndMonth(date.month, date.day)}));
  }
  return Listed(items);
}

}  // namespace

std::u16string PlainDayText(PackedDate ymd) {
  const YearMonthDay date = Unpack(ymd);
  return DayAndMonth(date.month, date.day);
}

std::u16string PlainDateText(PackedDate ymd) {
  const YearMonthDay date = Unpack(ymd);
  return DayAndMonth(date.month, date.day) + u' ' + DecimalText(date.year);
}

std::u16string RuleDayText(const DayEvent& rule) {
  if (!IsTellable(rule)) return std::u16string(StringText(kTextNoRuleDay));
  enum { kItself, kNotWeekend, kNotSunday };
  enum { kBefore, kAfter };
  const auto withDate = [&](int form) {
    return FormatText(TextPiece(kTextRuleDays, form), {DayAndMonth(rule.month, rule.day)});
  };
  const auto besideDate = [&](int form) {
    return FormatText(TextPiece(kTextWeekdayBesideDate, form),
                      {WeekdayName(rule.weekday), DayAndMonth(rule.month, rule.day)});
  };
  switch (rule.type) {
    case DayEventType::kFixedDate:
      return withDate(kItself);
    case DayEventType::kRomanEaster:
      return EasterText(kTextRomanEasterDays, rule.day);
    case DayEventType::kOrthodoxEaster:
      return EasterText(kTextOrthodoxEasterDays, rule.day);
    case DayEventType::kNthWeekday:
      return NthWeekdayText(rule);
    case DayEventType::kWeekdayBefore:
      return besideDate(kBefore);
    case DayEventType::kWeekdayAfter:
      return besideDate(kAfter);
    case DayEventType::kBankHoliday:
      return withDate(kNotWeekend);
    case DayEventType::kExceptSunday:
      return withDate(kNotSunday);
  }
  return {};
}

std::u16string ValidityText(const DayRange& range) {
  if (range == kAlways) return {};
  const YearMonthDay first = Unpack(range.first);
  const YearMonthDay last = Unpack(range.last);
  const bool isWholeYears = MonthDay(first.month, first.day) == kFirstOfJanuary &&
                            MonthDay(last.month, last.day) == kLastOfDecember;
  return isWholeYears
             ? BothEnds(kTextValidityYears, range, YearText(first.year), YearText(last.year))
             : BothEnds(kTextValidityDates, range, PlainDateText(range.first), PlainDateText(range.last));
}

std::u16string ValidityText(const RecordBounds& bounds) {
  if (const std::optional<DayRange> range = RangeOf(bounds)) return ValidityText(*range);
  if (bounds.from > bounds.to || bounds == RecordBounds{0, 0})
    return std::u16string(StringText(kTextNeverValid));
  return FormatText(StringText(kTextOddValidity), {PlainDateText(bounds.from), PlainDateText(bounds.to)});
}

std::u16string RuleText(const DayEvent& rule, const DayRange& range) {
  const std::u16string validity = ValidityText(range);
  return validity.empty() ? RuleDayText(rule) : RuleDayText(rule) + u", " + validity;
}

std::u16string RuleText(const DayEvent& rule) {
  const std::u16string validity = ValidityText(RecordBounds{rule.ymdFrom, rule.ymdTo});
  return validity.empty() ? RuleDayText(rule) : RuleDayText(rule) + u", " + validity;
}

std::u16string PeriodText(const DayRange& range) {
  enum { kBothDates, kFirstOfMonth };
  const YearMonthDay first = Unpack(range.first);
  const YearMonthDay last = Unpack(range.last);
  const std::u16string end = PlainDateText(range.last);
  std::u16string begin = PlainDateText(range.first);
  if (first.year == last.year) {
    begin = DayAndMonth(first.month, first.day);
    if (first.month == last.month)
      begin =
          first.day == 1 ? std::u16string(TextPiece(kTextPeriodDays, kFirstOfMonth)) : DecimalText(first.day);
  }
  return FormatText(TextPiece(kTextPeriodDays, kBothDates), {begin, end});
}

std::u16string PeriodText(const HolidayPeriod& period) {
  const RecordBounds bounds{period.ymdFrom, period.ymdTo};
  if (const std::optional<DayRange> range = RangeOf(bounds)) return PeriodText(*range);
  return ValidityText(bounds);
}

std::u16string FallsOnText(std::span<const DayEvent> records, int firstYear, int years) {
  enum { kSentence, kDaysAndYears, kNoDayIn, kNever };
  struct Group {
    std::u16string days;
    std::vector<std::u16string> years;
  };
  std::vector<Group> groups;
  for (int year = firstYear; year < firstYear + years && year <= kLastYearShown; ++year) {
    const std::u16string days = DaysOfYear(records, year);
    if (groups.empty() || groups.back().days != days) groups.push_back({days, {}});
    groups.back().years.push_back(DecimalText(year));
  }
  if (groups.size() == 1 && groups[0].days.empty())
    return FormatText(TextPiece(kTextFallsOn, kNever), {Listed(groups[0].years)});
  std::u16string text;
  for (const Group& group : groups) {
    if (!text.empty()) text += u", ";
    text += group.days.empty()
                ? FormatText(TextPiece(kTextFallsOn, kNoDayIn), {Listed(group.years)})
                : FormatText(TextPiece(kTextFallsOn, kDaysAndYears), {group.days, Listed(group.years)});
  }
  return FormatText(TextPiece(kTextFallsOn, kSentence), {text});
}

}  // namespace orbisol

#include "content/month_highlights.h"

#include <gtest/gtest.h>

#include "content/day_names.h"
#include "core/text.h"
#include "tests/content/rule_builder.h"

namespace orbisol {
namespace {

const CalendarContent kContent{
    {EveryYear(5, 1, u"Fête du Travail"), EveryYear(5, 1, u"muguet", false), EveryYear(5, 7, u"Léa", false),
     Rule(kFixedDate, {.month = 6, .day = 1, .to = 20240601, .name = u"juin"})},
    {Period(20240427, 20240502, u"Pâques"), Period(20240507, 20240508, u"pont"), Period(20240509, 20240510),
     Period(20240511, 20240512, u"pont")}};

TEST(MonthHighlightsTest, TextsStandByDateAndKindAndTheMoonLast) {
  std::string list;
  for (const Highlight& highlight : HighlightsOf(BuiltMonth(2024, 5, kContent, MonthModel::kWithMoon)))
    list += std::to_string(highlight.date % 100) + "-" + std::to_string(highlight.lastDate % 100) + " " +
            std::to_string(static_cast<int>(highlight.kind)) + " " + ToUtf8(highlight.text) + "\n";
  EXPECT_EQ(list,
            "1-1 0 Fête du Travail\n1-2 2 Pâques\n7-7 1 Léa\n7-8 2 pont\n11-12 2 pont\n"
            "1-1 3 Dernier quartier de lune\n8-8 3 Nouvelle lune\n15-15 3 Premier quartier de lune\n"
            "23-23 3 Pleine lune\n30-30 3 Dernier quartier de lune\n");
}

TEST(MonthHighlightsTest, TheNextPublicHolidayLiesAtMost400DaysAhead) {
  constexpr std::pair<PackedDate, PackedDate> kRows[] = {
      {20240430, 20240501}, {20240501, 20240601}, {20240601, 20250501}, {20230502, 20230601},
      {39990501, 39990601}, {39990602, 0},        {15821004, 15830501},
  };
  std::vector<DayEvent> rules = kContent.dayEvents;
  rules[3].ymdTo = kAlwaysTo;
  for (const auto& [after, next] : kRows) {
    const std::optional<Highlight> found =
        NextPublicHoliday(after == 20240601 ? kContent.dayEvents : rules, Date(after));
    EXPECT_EQ(found ? found->date : 0, next) << after;
    EXPECT_TRUE(!found || found->text == (next % 10000 == 501 ? u"Fête du Travail" : u"juin")) << after;
  }
  rules = {EveryYear(2, 29, u"bissextile")};
  EXPECT_FALSE(NextPublicHoliday(rules, Date(20230124)).has_value()) << "401 days ahead";
  EXPECT_TRUE(NextPublicHoliday(rules, Date(20230125)).has_value());
}

std::string NamesOf(const MonthModel& month, const MonthNames& names, int day, int ofMonth = 5) {
  const DayNames& found = names[static_cast<std::size_t>(month.CellOf(ofMonth, day))];
  std::u16string all;
  for (const std::u16string& name : found.names) all += name + u";";
  return ToUtf8(all + (found.vacation.empty() ? u"" : u"V:" + found.vacation));
}

TEST(DayNamesTest, AreThoseThatTheCellsMayShowOneByOne) {
  const CalendarContent content = {
      {EveryYear(5, 1, u"Travail"), EveryYear(5, 1, u"Caché", false), EveryYear(5, 1, u"Muguet"),
       EveryYear(5, 14, u"A + B", false), EveryYear(5, 14, u"", false), EveryYear(5, 14, u"C", false),
       EveryYear(4, 30, u"Avril")},
      {Period(20240501, 20240508, u"Pont"), Period(20240516, 20240520, u"")}};
  const MonthModel month = BuiltMonth(2024, 5, content);
  const MonthNames names = NamesOfMonth(month, content);
  EXPECT_EQ(NamesOf(month, names, 1), "Travail;Muguet;V:Pont");
  EXPECT_EQ(NamesOf(month, names, 6), "V:Pont");  // Monday
  EXPECT_EQ(NamesOf(month, names, 14), "A + B;C;");
  for (const int day : {2, 7, 16}) EXPECT_EQ(NamesOf(month, names, day), "") << day;
  EXPECT_EQ(NamesOf(month, names, 30, 4), "");
}

}  // namespace
}  // namespace orbisol

#include "content/content_search.h"

#include <gtest/gtest.h>

#include "content/month_model.h"
#include "tests/content/rule_builder.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

// Rules and periods that hold the word, that hide others, and that others hide.
CalendarContent ContentWithWord() {
  CalendarContent content;
  content.dayEvents = {
      Rule(kFixedDate, {.month = 5, .day = 1, .name = u"FÊTE du Travail"}),
      Rule(kFixedDate, {.isPublic = false, .month = 5, .day = 1, .name = u"Fête d'Anne, cachée"}),
      Rule(kFixedDate, {.month = 7, .day = 14, .name = u"14 Juillet"}),
      Rule(kFixedDate, {.isPublic = false, .month = 7, .day = 14, .name = u"fête cachée"}),
      Rule(kFixedDate, {.isPublic = false, .month = 7, .day = 15, .name = u"La fete de Paul"}),
      Rule(kFixedDate, {.isPublic = false, .month = 7, .day = 15, .name = u"Autre chose"}),
      Rule(kRomanEaster, {.day = 60, .name = u"Fête-Dieu"}),
      Rule(kFixedDate, {.isPublic = false, .month = 2, .day = 29, .name = u"Fête rare"}),
      Rule(kFixedDate, {.isPublic = false, .month = 10, .day = 10, .name = u"Fête perdue"}),
      Rule(kBankHoliday, {.month = 8, .day = 31, .from = 18000101, .to = 19001231, .name = u"Fête mobile"}),
      Rule(kFixedDate, {.month = 1, .day = 1, .name = u"Jour de l'an"}),
  };
  content.vacations = {Period(20240706, 20240720, u"Camp"), Period(20240710, 20240731, u"Fêtes d'été"),
                       Period(20231225, 20240102, u"Fêtes"), Period(-441225, -441205, u"Fêtes")};
  return content;
}

bool HoldsWord(const std::u16string& text) { return Folded(text).find(u"fete") != std::u16string::npos; }

// The days of a year that show the word, as the pages of its months show them.
std::vector<std::pair<PackedDate, std::u16string>> ShownInYear(const CalendarContent& content, int year) {
  std::vector<std::pair<PackedDate, std::u16string>> shown;
  for (int month = 1; month <= 12; ++month) {
    MonthModel model;
    model.year = year;
    model.month = month;
    model.Build(content, CalendarLook().colors, MonthModel::kWithoutMoon);
    for (const DayCell& cell : model.cells) {
      if (cell.day == 0 || cell.month != month) continue;
      for (const std::u16string* text : {&cell.holidayText, &cell.eventText, &cell.vacationTitle})
        if (HoldsWord(*text)) shown.emplace_back(cell.ymd, *text);
    }
  }
  return shown;
}

// The days of hits, one by one.
std::vector<std::pair<PackedDate, std::u16string>> DaysOf(const std::vector<SearchHit>& hits) {
  std::vector<std::pair<PackedDate, std::u16string>> days;
  for (const SearchHit& hit : hits)
    for (int n = Date(hit.date).DayNumber(); n <= Date(hit.lastDate).DayNumber(); ++n)
      days.emplace_back(DateOfDayNumber(n).Packed(), hit.text);
  std::stable_sort(days.begin(), days.end(),
                   [](const auto& a, const auto& b) { return DayOrder(a.first) < DayOrder(b.first); });
  return days;
}

TEST(ContentSearchTest, HitsAreTheDaysWhoseCellsShowTheWord) {
  const CalendarContent content = ContentWithWord();
  for (const PackedDate reform : {kRomanReform, 17520914, 16550311}) {
    const ScopedRules rules(RulesWith(reform));
    const CContentSearch search(content, u"  fÊte ");
    EXPECT_EQ(search.FirstYear(), kFirstYearShown);
    EXPECT_EQ(search.LastYear(), kLastYearShown);
    for (const int year : {-3999, -45,  -44,  -43,  0,    1,    325,  326,  1500, 1582,
                           1583,  1655, 1752, 1800, 1835, 1900, 2023, 2024, 2025, 3999})
      EXPECT_EQ(DaysOf(search.HitsInYear(year)), ShownInYear(content, year)) << year;
  }
  CalendarContent twins;
  twins.vacations = {{20240701, 20240710, NameText()}, {20240711, 20240720, NameText()}};
  for (HolidayPeriod& period : twins.vacations) period.title.Set(u"Fête");
  EXPECT_EQ(CContentSearch(twins, u"fête").HitsInYear(2024).size(), 2u) << "one behind the other";
}

// Return the nearest hit of all years.
std::optional<SearchHit> Next(const CContentSearch& search, PackedDate after) {
  for (int year = Unpack(after).year; year <= search.LastYear(); ++year)
    if (auto hit = search.NextInYear(year, after)) return hit;
  return {};
}
std::optional<SearchHit> Previous(const CContentSearch& search, PackedDate before) {
  for (int year = Unpack(before).year; year >= search.FirstYear(); --year)
    if (auto hit = search.PreviousInYear(year, before)) return hit;
  return {};
}

TEST(ContentSearchTest, NextAndPreviousGoFromDayToDay) {
  const ScopedRules rules(RulesWith(kRomanReform));
  const CalendarContent content = ContentWithWord();
  const CContentSearch search(content, u"fete");
  std::vector<PackedDate> days;
  for (const int year : {2023, 2024, 2025})
    for (const auto& [day, text] : ShownInYear(content, year))
      if (days.empty() || days.back() != day) days.push_back(day);
  for (std::size_t i = 0; i + 1 < days.size(); ++i) {
    EXPECT_EQ(Next(search, days[i])->date, days[i + 1]);
    EXPECT_EQ(Previous(search, days[i + 1])->date, days[i]);
  }
  EXPECT_EQ(Next(search, 20240502)->text, u"Fête-Dieu");
  EXPECT_FALSE(Next(search, 39991231).has_value());
  EXPECT_FALSE(Previous(search, -39990101).has_value());
}

TEST(ContentSearchTest, NothingIsFoundWhereNoNameHoldsTheWord) {
  const ScopedRules rules(RulesWith(kRomanReform));
  for (const std::u16string_view word : {u"pleine lune", u"", u"  ", u"Vierge"}) {
    const CContentSearch search(ContentWithWord(), word);
    EXPECT_LT(search.LastYear(), search.FirstYear());
    EXPECT_FALSE(Next(search, 20240101).has_value());
    EXPECT_TRUE(search.HitsInYear(2024).empty());
  }
  const CContentSearch bounded(ContentWithWord(), u"mobile");
  EXPECT_EQ(bounded.FirstYear(), 1800);
  EXPECT_EQ(bounded.LastYear(), 1900);
}

}  // namespace
}  // namespace orbisol

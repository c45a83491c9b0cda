#include "content/content_search.h"

#include <gtest/gtest.h>

#include "tests/content/rule_builder.h"

namespace orbisol {
namespace {

// Rules and periods that hold the word, that hide others, and that others hide.
CalendarContent ContentWithWord() {
  return {
      {EveryYear(5, 1, u"FÊTE du Travail"), EveryYear(5, 1, u"Fête d'Anne, cachée", false),
       EveryYear(7, 14, u"14 Juillet"), EveryYear(7, 14, u"fête cachée", false),
       EveryYear(7, 15, u"La fete de Paul", false), EveryYear(7, 15, u"Autre chose", false),
       EveryYear(2, 29, u"Fête rare", false), EveryYear(10, 10, u"Fête perdue", false),
       Rule(kBankHoliday, {.month = 8, .day = 31, .from = 18000101, .to = 19001231, .name = u"Fête mobile"}),
       Rule(kRomanEaster, {.day = 60, .name = u"Fête-Dieu"}), EveryYear(1, 1, u"Jour de l'an")},
      {Period(20240706, 20240720, u"Camp"), Period(20240710, 20240731, u"Fêtes d'été"),
       Period(20231225, 20240102, u"Fêtes"), Period(-441225, -441205, u"Fêtes")}};
}

bool HoldsWord(const std::u16string& text) { return Folded(text).find(u"fete") != std::u16string::npos; }

using NamedDays = std::vector<std::pair<PackedDate, std::u16string>>;

// The days of a year that show the word, as the pages of its months show them.
NamedDays ShownInYear(const CalendarContent& content, int year) {
  NamedDays shown;
  for (int month = 1; month <= 12; ++month)
    for (const DayCell& cell : BuiltMonth(year, month, content).cells) {
      if (cell.day == 0 || cell.month != month) continue;
      for (const std::u16string* text : {&cell.holidayText, &cell.eventText, &cell.vacationTitle})
        if (HoldsWord(*text)) shown.emplace_back(cell.ymd, *text);
    }
  return shown;
}

// The days of hits, one by one.
NamedDays DaysOf(const std::vector<SearchHit>& hits) {
  NamedDays days;
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
  const CalendarContent twins{{}, {Period(20240701, 20240710, u"Fête"), Period(20240711, 20240720, u"Fête")}};
  EXPECT_EQ(CContentSearch(twins, u"fête").HitsInYear(2024).size(), 2u) << "one behind the other";
}

// Return the date of the nearest hit of all years; 0 for none.
PackedDate Next(const CContentSearch& search, PackedDate after) {
  for (int year = Unpack(after).year; year <= search.LastYear(); ++year)
    if (const auto hit = search.NextInYear(year, after)) return hit->date;
  return 0;
}
PackedDate Previous(const CContentSearch& search, PackedDate before) {
  for (int year = Unpack(before).year; year >= search.FirstYear(); --year)
    if (const auto hit = search.PreviousInYear(year, before)) return hit->date;
  return 0;
}

TEST(ContentSearchTest, NextAndPreviousGoFromDayToDay) {
  const CalendarContent content = ContentWithWord();
  const CContentSearch search(content, u"fete");
  std::vector<PackedDate> days;
  for (const int year : {2023, 2024, 2025})
    for (const auto& [day, text] : ShownInYear(content, year))
      if (days.empty() || days.back() != day) days.push_back(day);
  for (std::size_t i = 0; i + 1 < days.size(); ++i) {
    EXPECT_EQ(Next(search, days[i]), days[i + 1]);
    EXPECT_EQ(Previous(search, days[i + 1]), days[i]);
  }
  EXPECT_EQ(search.NextInYear(2024, 20240502)->text, u"Fête-Dieu");
  EXPECT_EQ(Next(search, 39991231) + Previous(search, -39990101), 0);
}

TEST(ContentSearchTest, NothingIsFoundWhereNoNameHoldsTheWord) {
  for (const std::u16string_view word : {u"pleine lune", u"", u"  ", u"Vierge"}) {
    const CContentSearch search(ContentWithWord(), word);
    EXPECT_LT(search.LastYear(), search.FirstYear());
    EXPECT_TRUE(search.HitsInYear(2024).empty());
  }
  const CContentSearch bounded(ContentWithWord(), u"mobile");
  EXPECT_EQ(bounded.FirstYear(), 1800);
  EXPECT_EQ(bounded.LastYear(), 1900);
}

TEST(ContentSearchTest, NoDayIsSkippedOrHeldWhereTwoDatesHaveOneNumber) {
  CalendarContent content;
  content.vacations = {Period(-80320, -80201, u"Fête")};  // of one year before the era, in packed order
  const CContentSearch search(content, u"fête");
  constexpr PackedDate kDays[] = {-80228, -80229, -80301, -80302};  // the second counts as the third
  for (std::size_t i = 0; i + 1 < std::size(kDays); ++i) {
    EXPECT_EQ(search.NextInYear(-8, kDays[i])->date, kDays[i + 1]);
    EXPECT_EQ(search.PreviousInYear(-8, kDays[i + 1])->date, kDays[i]);
  }
}

}  // namespace
}  // namespace orbisol

// The days that a rule gives are those that its matcher marks on the pages of the months.

#include "content/rule_dates.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "content/day_rules.h"
#include "tests/content/rule_builder.h"

namespace orbisol {
namespace {

using Days = std::vector<PackedDate>;

// The days of all pages of a year, month by month.
std::vector<std::vector<RuleDay>> PagesOf(int year) {
  std::vector<std::vector<RuleDay>> pages;
  for (int month = 1; month <= 12; ++month) {
    const MonthModel model = BuiltMonth(year, month);
    pages.emplace_back();
    if (model.month != month) continue;  // the reform removed it whole
    for (const DayCell& cell : model.cells)
      if (cell.day != 0 && cell.month == month) pages.back().push_back(RuleDayOf(Date(cell.ymd)));
  }
  return pages;
}

Days MarkedDays(const DayEvent& rule, const std::vector<std::vector<RuleDay>>& pages) {
  Days days;
  std::vector<DayMatch> matches(31);
  for (const std::vector<RuleDay>& page : pages) {
    const std::span<DayMatch> found(matches.data(), page.size());
    MatchDaysOfMonth({&rule, 1}, page, found);
    for (std::size_t i = 0; i < page.size(); ++i)
      if (found[i].bits != 0) days.push_back(page[i].ymd);
  }
  return days;
}

// One rule of every kind and shape that an editor makes, and as many that only a file can hold.
std::vector<DayEvent> RulesOfAllKinds(std::mt19937& random, int reformYear) {
  const auto from = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
  std::vector<DayEvent> rules = {Rule(kFixedDate, {.month = 2, .day = 29}),
                                 Rule(kExceptSunday, {.month = 2, .day = 28}),
                                 Rule(kBankHoliday, {.month = 10, .day = 31})};
  for (int weekday = 1; weekday <= 7; ++weekday) {  // around a leap day, and with a range that holds one
    rules.push_back(Rule(kWeekdayAfter, {.month = 2, .day = 26, .weekday = weekday, .weeknum = 1}));
    rules.push_back(Rule(kWeekdayBefore, {.month = 3, .day = 1, .weekday = weekday, .weeknum = 1}));
  }
  for (int kind = 0; kind <= 7; ++kind) {
    for (int i = 0; i < 6; ++i) {
      DayEvent rule = Rule(DayEventType{kind}, {.month = from(1, 12),
                                                .day = i % 2 == 0 ? from(1, 31) : from(-99, 99),
                                                .weekday = from(1, 7),
                                                .weeknum = i < 3 ? 1 : from(1, 5)});
      if (i == 4) rule.ymdFrom = Pack(from(0, 1) == 0 ? reformYear : from(-50, 10), from(1, 12), from(1, 28));
      int* const fields[] = {&rule.month, &rule.day, &rule.weekday, &rule.weeknum, &rule.ymdTo};
      if (i == 5) *fields[from(0, 4)] = static_cast<int>(random());
      rules.push_back(rule);
    }
  }
  return rules;
}

TEST(RuleDatesTest, AreTheMarkedDaysOfEveryPage) {
  std::mt19937 random(20240501);
  for (const PackedDate reform :
       {15821015, 17000101, 17000301, 17530301, 19120101, 19160414, 39010301, 10103, -440315}) {
    for (const bool proleptic : {false, true}) {
      const ScopedRules inForce(RulesWith(reform, {.proleptic = proleptic, .rows = {{5000325, false}}}));
      std::set<int> years = {-3999, -9, -8, -7, 0, 4, 8, 325, 326, 500, 1300, 1500, 2000, 2024, 3999};
      for (int year = -3990; year < 4000; year += 331) years.insert(year);
      for (const int year : {-1, 0, 1}) years.insert(reform / 10000 + year);
      const std::vector<DayEvent> rules = RulesOfAllKinds(random, reform / 10000);
      for (const int year : years) {
        const auto pages = PagesOf(year);
        for (const DayEvent& rule : rules)
          ASSERT_EQ(RuleDatesInYear(rule, year), MarkedDays(rule, pages))
              << "year " << year << " under " << reform << ", kind " << static_cast<int>(rule.type) << ", "
              << rule.month << '/' << rule.day << ", weekday " << rule.weekday << '*' << rule.weeknum;
      }
    }
  }
}

}  // namespace
}  // namespace orbisol

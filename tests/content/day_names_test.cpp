#include "content/day_names.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/content/rule_builder.h"

namespace orbisol {
namespace {

std::string NamesOf(const MonthModel& month, const MonthNames& names, int day, int ofMonth = 5) {
  const DayNames& found = names[static_cast<std::size_t>(month.CellOf(ofMonth, day))];
  std::u16string all;
  for (const std::u16string& name : found.names) all += name + u";";
  return ToUtf8(all + (found.vacation.empty() ? u"" : u"V:" + found.vacation));
}

TEST(DayNamesTest, AreThoseThatTheCellsMayShowOneByOne) {
  const ScopedRules inForce(RulesWith(kRomanReform));
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

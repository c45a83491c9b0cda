#include "content/day_names.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/content/rule_builder.h"
#include "tests/support/rules.h"

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
  CalendarContent content;
  const auto add = [&](int month, int day, std::u16string_view name, bool isPublic) {
    content.dayEvents.push_back(
        Rule(kFixedDate, {.isPublic = isPublic, .month = month, .day = day, .name = name}));
  };
  add(5, 1, u"Travail", true);
  add(5, 1, u"Caché", false);
  add(5, 1, u"Muguet", true);
  add(5, 14, u"A + B", false);
  add(5, 14, u"", false);
  add(5, 14, u"C", false);
  add(4, 30, u"Avril", true);
  content.vacations = {Period(20240501, 20240508, u"Pont"), Period(20240516, 20240520, u"")};
  MonthModel month;
  month.year = 2024;
  month.month = 5;
  month.Build(content, CalendarLook().colors, MonthModel::kWithoutMoon);
  const MonthNames names = NamesOfMonth(month, content);
  EXPECT_EQ(NamesOf(month, names, 1), "Travail;Muguet;V:Pont");
  EXPECT_EQ(NamesOf(month, names, 2), "");
  EXPECT_EQ(NamesOf(month, names, 6), "V:Pont");  // Monday
  EXPECT_EQ(NamesOf(month, names, 7), "");
  EXPECT_EQ(NamesOf(month, names, 14), "A + B;C;");
  EXPECT_EQ(NamesOf(month, names, 16), "");
  EXPECT_EQ(NamesOf(month, names, 30, 4), "");
}

}  // namespace
}  // namespace orbisol

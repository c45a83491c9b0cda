#include "content/import_holidays.h"

#include <gtest/gtest.h>

#include "tests/content/rule_builder.h"

namespace orbisol {
namespace {

TEST(ImportHolidaysTest, PublicRulesAreAddedOrReplacedAndPersonalOnesStay) {
  const auto rule = [](std::u16string_view name, bool isPublic) { return EveryYear(1, 1, name, isPublic); };
  const HolidayPeriod winter = Period(20240101, 20240107, u"winter");
  const HolidayPeriod summer = Period(20240701, 20240831, u"summer");
  const CalendarContent mine{{rule(u"old", true), rule(u"me", false), rule(u"both", true)}, {winter}};
  const CalendarContent theirs{
      {rule(u"new", true), rule(u"both", true), rule(u"both", false), rule(u"feast", false)},
      {winter, summer}};
  const auto imported = [](CalendarContent content, const CalendarContent& holidays, bool replace) {
    ImportHolidays(content, holidays, replace);
    std::u16string names;
    for (const DayEvent& event : content.dayEvents) names.append(event.name.View()).append(u" ");
    for (const HolidayPeriod& period : content.vacations) names.append(period.title.View()).append(u" ");
    return names;
  };
  EXPECT_EQ(imported(mine, theirs, false), u"old me both new both feast winter summer ");
  EXPECT_EQ(imported(mine, theirs, true), u"me new both both feast winter summer ");
  EXPECT_EQ(imported(theirs, theirs, false), u"new both both feast winter summer ");
  EXPECT_EQ(imported(mine, {}, true), u"old me both winter ") << "an empty calendar takes nothing away";
}

}  // namespace
}  // namespace orbisol

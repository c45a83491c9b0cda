// The names of the days of a month one by one, as its cells write them. Tips and models join them instead.
//
//   month.Build(content, colors, MonthModel::kWithMoon);
//   const MonthNames names = NamesOfMonth(month, content);
//   names[cell].names;  // u"Noël", u"Anniversaire de Paul"
#pragma once

#include <array>
#include <string>
#include <vector>

#include "content/month_model.h"

namespace orbisol {

struct DayNames {
  // Public holidays or, on a day without any, events; in list order, without empty ones.
  std::vector<std::u16string> names;
  // Title of the vacation period, on the first day of the month, of a row or of the period; empty elsewhere.
  std::u16string vacation;
};
using MonthNames = std::array<DayNames, kCellCount>;  // by cell; empty for days of the neighboring months

// Returns the names of a month that was built with `content` under the rules in force.
MonthNames NamesOfMonth(const MonthModel& month, const CalendarContent& content);

}  // namespace orbisol

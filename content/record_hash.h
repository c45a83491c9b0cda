// The hash of rules and periods, for sets of them. It takes in the fields in which the records of one list
// differ most; equality looks at all of them.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "content/day_event.h"
#include "content/vacation.h"

namespace orbisol {

struct RecordHash {
  std::size_t operator()(const DayEvent& event) const {
    const std::size_t hash = std::hash<std::u16string_view>()(event.name.View());
    return Mixed(Mixed(Mixed(Mixed(hash, event.month), event.day), event.ymdFrom), event.ymdTo);
  }
  std::size_t operator()(const HolidayPeriod& period) const {
    const std::size_t hash = std::hash<std::u16string_view>()(period.title.View());
    return Mixed(Mixed(hash, period.ymdFrom), period.ymdTo);
  }

 private:
  static std::size_t Mixed(std::size_t hash, int number) {
    return hash * 1000003 + static_cast<unsigned>(number);
  }
};

}  // namespace orbisol

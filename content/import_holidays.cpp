#include "content/import_holidays.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <unordered_set>

namespace orbisol {
namespace {

// Return hashes of the fields in which the records of one list differ most; equality compares all fields.
std::size_t Mixed(std::size_t hash, int number) { return hash * 1000003 + static_cast<unsigned>(number); }

struct RecordHash {
  std::size_t operator()(const DayEvent& event) const {
    const std::size_t hash = std::hash<std::u16string_view>()(event.name.View());
    return Mixed(Mixed(Mixed(Mixed(hash, event.month), event.day), event.ymdFrom), event.ymdTo);
  }
  std::size_t operator()(const HolidayPeriod& period) const {
    const std::size_t hash = std::hash<std::u16string_view>()(period.title.View());
    return Mixed(Mixed(hash, period.ymdFrom), period.ymdTo);
  }
};

template <typename Record>
void AddMissing(std::vector<Record>& list, const std::vector<Record>& added) {
  std::vector<Record> missing;
  {
    using Held = std::reference_wrapper<const Record>;
    std::unordered_set<Held, RecordHash, std::equal_to<Record>> held(list.begin(), list.end());
    for (const Record& record : added)
      if (!held.contains(record)) missing.push_back(record);
  }
  list.insert(list.end(), missing.begin(), missing.end());
}

}  // namespace

void ImportHolidays(CalendarContent& content, const CalendarContent& holidays, bool replace) {
  const auto isPublic = [](const DayEvent& event) { return event.isPublic; };
  if (replace && std::any_of(holidays.dayEvents.begin(), holidays.dayEvents.end(), isPublic))
    std::erase_if(content.dayEvents, isPublic);
  AddMissing(content.dayEvents, holidays.dayEvents);
  AddMissing(content.vacations, holidays.vacations);
}

}  // namespace orbisol

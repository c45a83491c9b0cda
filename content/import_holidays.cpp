#include "content/import_holidays.h"

#include <algorithm>
#include <functional>
#include <unordered_set>

#include "content/record_hash.h"

namespace orbisol {
namespace {

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

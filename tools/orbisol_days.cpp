// Prints the days that a calendar file marks, so that anybody can compare them with another source.
//
//   orbisol-days France.xml 1789 2040         the public holidays, one "yyyymmdd name" a line
//   orbisol-days --all Famille.xml 2024 2024  personal events and vacation periods too
//
// Days are counted under the file's own calendar rules. The exit code is 1 if the file cannot be read, and 2
// for other arguments.

#include <charconv>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include "content/day_rules.h"
#include "content/selected_date.h"
#include "core/date.h"
#include "files/calendar_file.h"

namespace orbisol {
namespace {

enum class Marks { kPublic, kAll };

std::optional<int> Year(std::string_view text) {
  int year = 0;
  const std::from_chars_result end = std::from_chars(text.data(), text.data() + text.size(), year);
  const bool isShown = IsYearShown(year);
  if (end.ec != std::errc() || end.ptr != text.data() + text.size() || !isShown) return std::nullopt;
  return year;
}

std::optional<std::string> FileBytes(const char* path) {
  std::ifstream file(path, std::ios::binary);
  file.peek();  // a folder opens like a file and fails only here
  if (!file.is_open() || file.bad()) return std::nullopt;
  std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  return bytes;
}

// Prints one line, whatever characters the name has.
void PrintDay(PackedDate ymd, std::u16string_view name) {
  std::string line = ToUtf8(name);
  for (char& c : line)
    if (c == '\r' || c == '\n') c = ' ';
  std::printf("%s%08d %s\n", ymd < 0 ? "-" : "", ymd < 0 ? -ymd : ymd, line.c_str());
}

void PrintDays(const CalendarContent& content, int firstYear, int lastYear, Marks marks) {
  const int last = Date(lastYear, 12, 31).DayNumber();
  for (int n = Date(firstYear, 1, 1).DayNumber(); n <= last; ++n) {
    const PackedDate ymd = DateOfDayNumber(n).Packed();
    const DayMatch match = MatchDay(content.dayEvents, ymd);
    if ((match.bits & kHolidayMark) != 0) PrintDay(ymd, match.publicNames);
    if (marks == Marks::kPublic) continue;
    if ((match.bits & kEventMark) != 0) PrintDay(ymd, match.eventNames);
    if (const HolidayPeriod* period = PeriodOfDay(content.vacations, ymd))
      PrintDay(ymd, period->title.View());
  }
}

int Run(int count, const char* const* arguments) {
  const bool all = count > 1 && std::string_view(arguments[1]) == "--all";
  const int first = all ? 2 : 1;
  const std::optional<int> from = count == first + 3 ? Year(arguments[first + 1]) : std::nullopt;
  const std::optional<int> to = from ? Year(arguments[first + 2]) : std::nullopt;
  if (!to) {
    std::fputs("usage: orbisol-days [--all] FILE FIRST_YEAR LAST_YEAR\n", stderr);
    return 2;
  }
  const std::optional<std::string> bytes = FileBytes(arguments[first]);
  if (!bytes) {
    std::fprintf(stderr, "orbisol-days: %s cannot be read\n", arguments[first]);
    return 1;
  }
  const CalendarFile calendar = ReadCalendar(*bytes);
  Rules() = calendar.rules;
  PrintDays(calendar.content, *from, *to, all ? Marks::kAll : Marks::kPublic);
  return 0;
}

}  // namespace
}  // namespace orbisol

int main(int count, char** arguments) { return orbisol::Run(count, arguments); }

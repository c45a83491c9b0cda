// The public calendars that come with the program.

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>

#include "content/day_rules.h"
#include "core/date.h"
#include "files/calendar_file.h"
#include "tests/support/file_bytes.h"
#include "tests/support/test_data.h"

namespace orbisol {
namespace {

// Returns the names of the days with a mark.
std::map<PackedDate, std::string> MarkedDays(const std::string& file, unsigned mark, int firstYear,
                                             int lastYear) {
  const CalendarContent content = ReadCalendar(BytesOf(ORBISOL_LEGALS "/" + file)).content;
  std::map<PackedDate, std::string> days;
  for (int n = Date(firstYear, 1, 1).DayNumber(); n <= Date(lastYear, 12, 31).DayNumber(); ++n) {
    const PackedDate ymd = DateOfDayNumber(n).Packed();
    std::u16string names;
    if (MatchDayEvents(content.dayEvents, ymd, &names, mark) & mark) days[ymd] = ToUtf8(names);
  }
  return days;
}

TEST(PublicCalendarsTest, EveryShippedCalendarIsWhatTheWriterWrites) {
  for (const auto& entry : std::filesystem::directory_iterator(ORBISOL_LEGALS)) {
    SCOPED_TRACE(entry.path().string());
    const std::string bytes = BytesOf(entry.path());
    EXPECT_EQ(WriteCalendar(ReadCalendar(bytes), CalendarForm::kPublic), bytes);
    EXPECT_FALSE(ReadCalendar(bytes).info.empty());
  }
}

TEST(PublicCalendarsTest, PublicDaysAgreeWithAnIndependentList) {
  const std::map<std::string, std::string> lists = {
      {"France.xml", "FR"}, {"fr_public.xml", "FR"}, {"France (Alsace-Moselle).xml", "FR-67"}};
  for (const auto& [file, list] : lists) {
    SCOPED_TRACE(file);
    std::vector<std::string> expected;
    for (const std::vector<std::string>& row : DataRows("files/public_days.txt"))
      if (row[0] == list) expected.assign(row.begin() + 1, row.end());
    ASSERT_GT(expected.size(), 400u);
    std::vector<std::string> marked;
    for (const auto& [ymd, name] : MarkedDays(file, kHolidayMark, 2000, 2040))
      marked.push_back(std::to_string(ymd));
    EXPECT_EQ(marked, expected);
  }
}

TEST(PublicCalendarsTest, NoHolidayIsOlderThanItsLaw) {
  const std::map<int, std::size_t> counts = {{1801, 0},  {1803, 4},  {1811, 5},  {1881, 6},  {1887, 8},
                                             {1923, 9},  {1948, 10}, {1953, 11}, {1958, 11}, {1959, 10},
                                             {1965, 11}, {1966, 10}, {1981, 10}, {1982, 11}};
  for (const auto& [year, days] : counts)
    EXPECT_EQ(MarkedDays("France.xml", kHolidayMark, year, year).size(), days) << year;
}

// The feast of mothers gives way to Whit Sunday, which with Easter is the only event of the years before the
// laws.
TEST(PublicCalendarsTest, TheFeastOfMothersMovesToJuneBeforeWhitSunday) {
  std::set<PackedDate> days;
  for (const auto& [ymd, names] : MarkedDays("France.xml", kEventMark, 1951, 2050))
    if (names.find("Fête des mères") != std::string::npos) days.insert(ymd);
  EXPECT_EQ(days.size(), 100u);
  for (const char* const file : {"France.xml", "France (Alsace-Moselle).xml", "fr_public.xml"})
    EXPECT_EQ(MarkedDays(file, kEventMark, 1581, 1581),
              (std::map<PackedDate, std::string>{{15810326, "Pâques"}, {15810514, "Pentecôte"}}));
  for (const PackedDate known : {20120603, 20190526, 20200607, 20210530, 20230604, 20240526, 20500605})
    EXPECT_EQ(days.count(known), 1u) << known;
}

}  // namespace
}  // namespace orbisol

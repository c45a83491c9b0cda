// The public calendars that are shipped.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include "content/day_rules.h"
#include "core/date.h"
#include "files/calendar_file.h"
#include "tests/support/test_data.h"

namespace orbisol {
namespace {

const std::filesystem::path kLegals = std::filesystem::path(ORBISOL_SOURCE_DIR) / "resources" / "legals";

std::string Bytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << path;
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

CalendarContent Shipped(const char* name) { return ReadCalendar(Bytes(kLegals / name)).content; }

std::map<PackedDate, std::string> PublicDays(const CalendarContent& content, int firstYear, int lastYear) {
  std::map<PackedDate, std::string> days;
  for (int n = Date(firstYear, 1, 1).DayNumber(); n <= Date(lastYear, 12, 31).DayNumber(); ++n) {
    const PackedDate ymd = DateOfDayNumber(n).Packed();
    std::u16string names;
    if (MatchDayEvents(content.dayEvents, ymd, &names, kPublicMark) & kPublicMark) days[ymd] = ToUtf8(names);
  }
  return days;
}

TEST(LegalsTest, EveryShippedCalendarIsWhatTheWriterWrites) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(kLegals)) {
    SCOPED_TRACE(entry.path().string());
    const std::string bytes = Bytes(entry.path());
    const CalendarFile calendar = ReadCalendar(bytes);
    EXPECT_EQ(WriteCalendar(calendar, CalendarForm::kPublic), bytes);
    EXPECT_FALSE(HoldsMore(bytes, CalendarForm::kPublic));
    EXPECT_FALSE(calendar.info.empty());
    EXPECT_FALSE(calendar.content.dayEvents.empty());
    ++count;
  }
  EXPECT_GE(count, 3);
}

TEST(LegalsTest, PublicDaysAgreeWithAnIndependentList) {
  constexpr struct {
    const char* list;
    const char* file;
  } kCalendars[] = {{"FR", "France.xml"}, {"FR", "fr_public.xml"}, {"FR-67", "France (Alsace-Moselle).xml"}};
  const std::vector<std::vector<std::string>> rows = DataRows("files/public_days.txt");
  for (const auto& calendar : kCalendars) {
    SCOPED_TRACE(calendar.file);
    std::vector<std::string> expected;
    for (const std::vector<std::string>& row : rows)
      if (row[0] == calendar.list) expected.assign(row.begin() + 1, row.end());
    ASSERT_GT(expected.size(), 400u);
    std::vector<std::string> marked;
    for (const auto& [ymd, name] : PublicDays(Shipped(calendar.file), 2000, 2040))
      marked.push_back(std::to_string(ymd));
    EXPECT_EQ(marked, expected);
  }
}

TEST(LegalsTest, TheDaysOfMay2024BearTheirNames) {
  const auto days = PublicDays(Shipped("France.xml"), 2024, 2024);
  EXPECT_EQ(days.at(20240501), "Fête du Travail");
  EXPECT_EQ(days.at(20240508), "Victoire 1945");
  EXPECT_EQ(days.at(20240509), "Ascension");
  EXPECT_EQ(days.at(20240520), "Lundi de Pentecôte");
}

TEST(LegalsTest, NoHolidayIsOlderThanItsLaw) {
  const auto days = PublicDays(Shipped("France.xml"), 1780, 2000);
  std::map<std::string, std::vector<int>> years;
  for (const auto& [ymd, name] : days) years[name].push_back(ymd / 10000);
  constexpr struct {
    const char* name;
    int first;
  } kFirsts[] = {
      {"Jour de l'an", 1811},       {"Lundi de Pâques", 1886}, {"Fête du Travail", 1947}, {"Ascension", 1802},
      {"Assomption", 1802},         {"Toussaint", 1802},       {"Armistice 1918", 1922},  {"Noël", 1802},
      {"Lundi de Pentecôte", 1886}, {"Fête nationale", 1880}};
  for (const auto& first : kFirsts) EXPECT_EQ(years[first.name].front(), first.first) << first.name;
  EXPECT_EQ(days.begin()->first, 18020527) << "Ascension, the first of all";

  std::vector<int> victory = {1953, 1954, 1955, 1956, 1957, 1958, 1965};
  for (int year = 1982; year <= 2000; ++year) victory.push_back(year);
  std::vector<int> marked;
  for (int year = 1945; year <= 2000; ++year)
    if (const auto day = days.find(year * 10000 + 508);
        day != days.end() && day->second.find("Victoire 1945") != std::string::npos)
      marked.push_back(year);
  EXPECT_EQ(marked, victory);
}

// It gives way to Whit Sunday, and falls once in every year.
TEST(LegalsTest, TheFeastOfMothersMovesToJuneBeforeWhitSunday) {
  const CalendarContent france = Shipped("France.xml");
  std::map<int, std::vector<PackedDate>> days;
  for (int n = Date(19490101).DayNumber(); n <= Date(20511231).DayNumber(); ++n) {
    const PackedDate ymd = DateOfDayNumber(n).Packed();
    std::u16string names;
    MatchDayEvents(france.dayEvents, ymd, &names, kEventMark);
    if (names.find(u"Fête des mères") != std::u16string::npos) days[ymd / 10000].push_back(ymd);
  }
  EXPECT_EQ(days.size(), 101u);
  for (const auto& [year, dates] : days) EXPECT_EQ(dates.size(), 1u) << year;
  constexpr PackedDate kKnown[] = {19500604, 20120603, 20190526, 20200607, 20210530,
                                   20220529, 20230604, 20240526, 20250525, 20500605};
  for (const PackedDate known : kKnown)
    EXPECT_EQ(days[known / 10000], std::vector<PackedDate>{known}) << known;
}

}  // namespace
}  // namespace orbisol

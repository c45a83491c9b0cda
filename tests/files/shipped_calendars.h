// The public calendars that ship, and the sources that they are made from.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "content/rule_dates.h"
#include "files/calendar_file.h"
#include "tests/support/file_bytes.h"

namespace orbisol {

struct HolidaySource {
  std::string name;                    // "Suisse (Vaud)"
  std::vector<std::string> countries;  // "CH-VD"
  std::vector<std::string> firstStart;
  std::string text;
};

// Returns the texts in quotes of a line such as `countries = ["FR-GP", "GP"]`.
inline std::vector<std::string> Quoted(const std::string& line) {
  std::vector<std::string> texts;
  for (std::size_t begin = line.find('"'); begin != std::string::npos; begin = line.find('"', begin + 1)) {
    const std::size_t end = line.find('"', begin + 1);
    texts.push_back(line.substr(begin + 1, end - begin - 1));
    begin = end;
  }
  return texts;
}

inline std::vector<HolidaySource> HolidaySources() {
  std::vector<HolidaySource> sources;
  for (const auto& entry : std::filesystem::directory_iterator(ORBISOL_SOURCE_DIR "/resources/holidays")) {
    if (entry.path().extension() != ".toml") continue;
    HolidaySource source;
    source.text = BytesOf(entry.path().string());
    std::istringstream lines(source.text);
    for (std::string line; std::getline(lines, line) && line != "[[rule]]";) {
      if (line.starts_with("name =")) source.name = Quoted(line).at(0);
      if (line.starts_with("countries =")) source.countries = Quoted(line);
      if (line.starts_with("first_start =")) source.firstStart = Quoted(line);
    }
    sources.push_back(source);
  }
  std::sort(sources.begin(), sources.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
  return sources;
}

inline std::string BytesOfCalendar(const std::string& name) {
  return BytesOf(ORBISOL_LEGALS "/" + name + ".xml");
}
inline CalendarContent ContentOfCalendar(const std::string& name) {
  return ReadCalendar(BytesOfCalendar(name)).content;
}

// The rules that mark a day.
using RulesByDay = std::map<PackedDate, std::vector<const DayEvent*>>;
inline RulesByDay MarkedDays(const CalendarContent& content, bool arePublic, int firstYear, int lastYear) {
  RulesByDay days;
  for (const DayEvent& rule : content.dayEvents)
    for (int year = firstYear; rule.isPublic == arePublic && year <= lastYear; ++year)
      for (const PackedDate ymd : RuleDatesInYear(rule, year)) days[ymd].push_back(&rule);
  return days;
}

}  // namespace orbisol

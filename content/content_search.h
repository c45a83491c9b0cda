// Finds the days whose cells show a word: names of rules and titles of vacation periods. Accents and case do
// not matter; a public holiday hides the personal events of its day, and those are not found there.
//
//   const CContentSearch search(Content(), u"fete");
//   search.HitsInYear(2024);      // {{20240501, 20240501, u"Fête du Travail"}, …}
//   search.NextInYear(2024, 20240501);  // the next day of that year: 14 July, "Fête nationale"
//   for (int year = search.FirstYear(); year <= search.LastYear(); ++year) …  // all of them, year by year
//
// Names are compared once, when the search is made; only the rules and periods that hold the word are dated.
// The search keeps its own copy of the content, and reads the calendar rules in force. The phases of the moon
// are not searched.
//
// A year takes some microseconds, all years of a calendar with holidays some tens of milliseconds. With
// thousands of matching rules a year may take a millisecond. Every function therefore looks at one year
// alone: who searches all years lets others work in between.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "content/calendar_content.h"

namespace orbisol {

struct SearchHit {
  PackedDate date = 0;      // day of a rule; first day of a period in the year
  PackedDate lastDate = 0;  // last day of a period in the year without a gap; else `date`
  std::u16string text;      // names or title, as the cell shows them

  bool operator==(const SearchHit&) const = default;
};

class CContentSearch {
 public:
  // Searches for a text as it stands, without the blanks at its ends. An empty one is found nowhere.
  CContentSearch(CalendarContent content, std::u16string_view word);
  CContentSearch(const CContentSearch&) = delete;
  CContentSearch& operator=(const CContentSearch&) = delete;

  // Returns the years in which anything can be found, within those shown; the last is less than the first
  // where no name holds the word.
  int FirstYear() const { return m_firstYear; }
  int LastYear() const { return m_lastYear; }

  // Returns the hits of a year by their first days; on one day that of the rules comes first.
  std::vector<SearchHit> HitsInYear(int year) const;

  // Return the day of a year that shows the word and is nearest after or before a date, with what it shows;
  // empty where there is none. Of a period every day counts, and the hit is that day alone.
  std::optional<SearchHit> NextInYear(int year, PackedDate after) const;
  std::optional<SearchHit> PreviousInYear(int year, PackedDate before) const;

 private:
  bool Holds(std::u16string_view text) const;
  void Narrow();
  void AddRuleDays(int year, std::vector<SearchHit>& hits) const;
  void AddPeriods(int year, std::vector<SearchHit>& hits) const;
  std::u16string ShownNames(PackedDate date) const;

  CalendarContent m_content;
  std::u16string m_word;                 // folded
  std::vector<const DayEvent*> m_rules;  // those that hold the word
  std::vector<const HolidayPeriod*> m_periods;
  int m_firstYear = 0;
  int m_lastYear = -1;
};

}  // namespace orbisol

// The public days of the calendars against those of independent lists. Every difference is told, with its
// reason and source, in resources/holidays/DIFFERENCES.md, whose head says how its rows are read.

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <sstream>

#include "core/date.h"
#include "core/easter.h"
#include "tests/files/shipped_calendars.h"
#include "tests/support/test_data.h"

namespace orbisol {
namespace {

constexpr int kFirstYear = 2000, kLastYear = 2040;
using Days = std::set<PackedDate>;

// Returns the pieces of a text between separators, without the blanks around them.
std::vector<std::string> Pieces(const std::string& text, char separator) {
  std::vector<std::string> pieces;
  std::istringstream rest(text);
  for (std::string piece; std::getline(rest, piece, separator);) {
    const std::size_t begin = piece.find_first_not_of(' ');
    const std::size_t end = piece.find_last_not_of(' ');
    pieces.push_back(begin == std::string::npos ? "" : piece.substr(begin, end + 1 - begin));
  }
  return pieces;
}

// Returns the place of a word, counted from 1; 0 for none.
template <std::size_t N>
int PlaceIn(const std::array<const char*, N>& words, const std::string& word) {
  const auto found = std::find(words.begin(), words.end(), word);
  return found == words.end() ? 0 : static_cast<int>(found - words.begin()) + 1;
}
int MonthOf(const std::string& word) {
  return PlaceIn<12>({"January", "February", "March", "April", "May", "June", "July", "August", "September",
                      "October", "November", "December"},
                     word);
}
int WeekdayOf(const std::string& word) {
  return PlaceIn<7>({"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"}, word);
}

int Weekday(const Date& date) { return WeekdayOfDayNumber(date.DayNumber()); }  // 0 Sunday .. 6

// Days as a row names them: "15-21 February Monday", "Easter -47", "2002-06-04".
class DayPattern {
 public:
  explicit DayPattern(const std::string& text) : m_words(Pieces(text, ' ')) {
    m_weekday = WeekdayOf(m_words.back());
    if (m_weekday != 0) m_words.pop_back();
    if (m_words.size() == 1) return;
    m_month = MonthOf(m_words[1]);
    m_first = std::stoi(m_words[m_month == 0 ? 1 : 0]);
    const std::size_t dash = m_words[0].find('-');
    m_last = m_month != 0 && dash != std::string::npos ? std::stoi(m_words[0].substr(dash + 1)) : m_first;
  }

  bool HasWeekday() const { return m_weekday != 0; }
  bool Matches(PackedDate ymd) const {
    const Date date(ymd);
    if (m_weekday != 0 && Weekday(date) != m_weekday % 7) return false;
    if (m_words.size() == 1) {
      std::string digits = m_words[0];
      digits.erase(std::remove(digits.begin(), digits.end(), '-'), digits.end());
      return std::stoi(digits) == ymd;
    }
    if (m_month != 0) return date.month == m_month && date.day >= m_first && date.day <= m_last;
    if (m_words[0] == "Orthodox") return OrthodoxEaster(date.year, m_first) == ymd;
    Date easter(date.year, 1, 1);
    RomanEaster(easter);
    return date.DayNumber() - easter.DayNumber() == m_first;
  }

 private:
  std::vector<std::string> m_words;
  int m_weekday = 0;            // 1 Monday .. 7, 0 any
  int m_month = 0;              // 0 for an Easter or a single date
  int m_first = 0, m_last = 0;  // days of the month, or distance from Easter
};

// One row of the table, and the days that its patterns have told so far.
struct ToldDifference {
  std::vector<std::string> calendars;
  bool isOurs = false;  // ours marks the days
  std::vector<std::string> days;
  int firstYear = kFirstYear, lastYear = kLastYear;
  bool hasYears = false;
  std::map<std::string, Days> told;  // the differences, by calendar and pattern

  // Returns whether a pattern's differences reach from the first to the last of the row's years in which it
  // matches a day from Monday to Saturday, so that a law is told to the year. Weekdays are not held to it.
  bool EndsWith(const DayPattern& pattern, const Days& differences, int lastOfList) const {
    if (!hasYears || pattern.HasWeekday()) return true;
    Days all;
    const int last = Date(std::min(lastYear, lastOfList), 12, 31).DayNumber();
    for (int n = Date(firstYear, 1, 1).DayNumber(); n <= last; ++n)
      if (const PackedDate ymd = DateOfDayNumber(n).Packed();
          WeekdayOfDayNumber(n) != 0 && pattern.Matches(ymd))
        all.insert(ymd);
    return *differences.begin() / 10000 == *all.begin() / 10000 &&
           *differences.rbegin() / 10000 == *all.rbegin() / 10000;
  }

  // Tells whether a difference is one of this row, and remembers that it is.
  bool Tells(const std::string& code, bool ours, PackedDate ymd) {
    if (ours != isOurs || ymd / 10000 < firstYear || ymd / 10000 > lastYear) return false;
    if (std::find(calendars.begin(), calendars.end(), code) == calendars.end()) return false;
    bool tells = false;
    for (const std::string& pattern : days) {
      if (!DayPattern(pattern).Matches(ymd)) continue;
      told[code + " " + pattern].insert(ymd);
      tells = true;
    }
    return tells;
  }
};

std::vector<ToldDifference> ToldDifferences() {
  std::vector<ToldDifference> rows;
  std::istringstream lines(BytesOf(ORBISOL_SOURCE_DIR "/resources/holidays/DIFFERENCES.md"));
  for (std::string line; std::getline(lines, line);) {
    const std::vector<std::string> cells = Pieces(line, '|');  // the first one is empty
    if (cells.size() != 7 || (cells[2] != "+" && cells[2] != "-")) continue;
    ToldDifference row;
    row.calendars = Pieces(cells[1], ',');
    row.isOurs = cells[2] == "+";
    row.days = Pieces(cells[3], ',');
    if (const std::size_t dash = cells[4].find('-'); dash != std::string::npos) {
      row.hasYears = true;
      row.firstYear = std::stoi(cells[4]);
      row.lastYear = std::stoi(cells[4].substr(dash + 1));
    }
    EXPECT_FALSE(cells[5].empty() || cells[6].empty()) << line << " has no reason or no source";
    rows.push_back(row);
  }
  return rows;
}

Days WithoutSundays(Days days) {
  std::erase_if(days, [](PackedDate ymd) { return Weekday(Date(ymd)) == 0; });
  return days;
}

TEST(PublicDaysTest, DaysAgreeWithIndependentListsButForWhatIsTold) {
  std::map<std::string, std::string> names;
  for (const HolidaySource& source : HolidaySources())
    for (const std::string& code : source.countries) names[code] = source.name;
  std::vector<ToldDifference> told = ToldDifferences();
  const auto explain = [&](const std::string& code, bool ours, const Days& days, const Days& others) {
    for (const PackedDate ymd : days) {
      if (others.count(ymd) > 0) continue;
      bool isTold = false;
      for (ToldDifference& row : told) isTold |= row.Tells(code, ours, ymd);
      EXPECT_TRUE(isTold) << code << " " << ymd << (ours ? " is marked" : " is not marked");
    }
  };

  std::map<std::string, int> lastYears;
  for (const std::vector<std::string>& row : DataRows("files/public_days.txt")) {
    ASSERT_EQ(names.count(row[0]), 1U) << row[0];
    Days theirs, ours;
    for (std::size_t i = 1; i < row.size(); ++i) theirs.insert(std::stoi(row[i]));
    const CalendarContent content = ContentOfCalendar(names[row[0]]);
    const int lastYear = lastYears[row[0]] = *theirs.rbegin() / 10000;  // 2040 or 2020
    for (const auto& [ymd, rules] : MarkedDays(content, true, kFirstYear, lastYear)) ours.insert(ymd);
    theirs = WithoutSundays(theirs);
    ours = WithoutSundays(ours);
    explain(row[0], true, ours, theirs);
    explain(row[0], false, theirs, ours);
  }
  EXPECT_EQ(lastYears.size(), 109U);
  for (ToldDifference& row : told)
    for (const std::string& code : row.calendars)
      for (const std::string& pattern : row.days) {
        const Days& differences = row.told[code + " " + pattern];
        ASSERT_FALSE(differences.empty()) << code << ": no day differs on " << pattern;
        EXPECT_TRUE(row.EndsWith(DayPattern(pattern), differences, lastYears[code]))
            << code << ": nothing differs in the first or in the last year on " << pattern;
      }
}

}  // namespace
}  // namespace orbisol

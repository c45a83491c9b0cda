#include "core/date_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <sstream>

#include "core/civil_year.h"
#include "core/date_text.h"
#include "core/republican.h"
#include "core/text.h"
#include "tests/support/fakes.h"

namespace orbisol {
namespace {

// The names of DateRefusal in their order.
const auto kRefusalNames = Split(
    u"kNone|kEmpty|kNotADate|kUnknownWord|kContradiction|kNoYearZero|kOutOfBounds|kNoMonth|"
    u"kNoEaster|kNoWeek|kNoDayOfYear|kNoRepublicanYear|kNoDayOfRepublicanMonth|kNoRepublicanDay|kNoDay",
    u'|');

// The state under which the rows from an "@" line on are read.
struct Scene {
  PackedDate today = 20240515;
  PackedDate selected = 20240515;
  FakeLocale locale;
  CalendarRules rules;

  explicit Scene(std::istringstream words) {
    PackedDate reform = kRomanReform;
    RuleOptions options;
    for (std::string name, value; words >> name >> value;) {
      if (name == "today") today = std::stoi(value);
      if (name == "selected") selected = std::stoi(value);
      if (name == "locale") SpeakEnglish();
      if (name == "order") locale.dateOrder = std::stoi(value);
      if (name == "reform") reform = value == "never" ? kNeverGregorian : std::stoi(value);
      if (name == "rows") options.rows = Rows(value);
    }
    rules = RulesWith(reform, options);
  }

 private:
  void SpeakEnglish() {
    locale.months = {u"January", u"February", u"March",     u"April",   u"May",      u"June",
                     u"July",    u"August",   u"September", u"October", u"November", u"December"};
    locale.weekdays = {u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday", u"Sunday"};
  }
  static std::vector<CivilYearStart> Rows(const std::string& text) {
    std::vector<CivilYearStart> rows;
    std::istringstream stream(text);
    for (std::string row; std::getline(stream, row, ',');)
      rows.push_back({std::stoi(row), row.back() == '1'});
    return rows;
  }
};

std::string Shown(const DateReadings& read) {
  std::string text;
  if (read.refusal != DateRefusal::kNone)
    text = "! " + ToUtf8(kRefusalNames[static_cast<std::size_t>(read.refusal)]);
  for (const DateReading& reading : read.refusal == DateRefusal::kNone ? read.readings : read.offers) {
    text += (text.empty() ? "" : " ") + std::to_string(reading.date);
    if (reading.note == DateNote::kMissing) text += 'm';
    if (reading.note == DateNote::kOtherOrder) text += 'o';
    if (reading.note == DateNote::kNearestCentury) text += 'n';
    if (reading.isOtherWeekday) text += 'w';
  }
  return text;
}

// A reading says a day that is read as that day, and a refusal says why.
void CheckSentences(const DateReadings& read, PackedDate selected) {
  EXPECT_EQ(read.reason.empty(), read.refusal == DateRefusal::kNone);
  EXPECT_EQ(read.readings.empty(), read.refusal != DateRefusal::kNone);
  EXPECT_EQ(read.reason.find(u'%'), std::u16string::npos) << ToUtf8(read.reason);
  for (const auto* readings : {&read.readings, &read.offers}) {
    for (const DateReading& reading : *readings) {
      const DateReadings again = ReadDates(ReadingText(reading), selected);
      ASSERT_FALSE(again.readings.empty()) << ToUtf8(ReadingText(reading));
      EXPECT_EQ(again.readings[0].date, reading.date) << ToUtf8(ReadingText(reading));
      EXPECT_EQ(ReadingNote(reading).find(u'%'), std::u16string::npos);
    }
  }
}

TEST(DateReaderTest, TextsHaveTheReadingsOfTheTable) {
  std::ifstream file(ORBISOL_TEST_DATA "/typed_dates.txt");
  ASSERT_TRUE(file.is_open());
  std::unique_ptr<Scene> scene;
  int rows = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    if (line[0] == '@') {
      scene = std::make_unique<Scene>(std::istringstream(line.substr(1)));
      continue;
    }
    const std::size_t equals = line.rfind(" = ");
    ASSERT_NE(equals, std::string::npos) << line;
    SCOPED_TRACE(line);
    const ScopedRules rules(scene->rules);
    const ScopedPlatform platform(scene->locale, FakeClock(Unpack(scene->today)));
    const DateReadings read = ReadDates(FromUtf8(line.substr(0, equals)), scene->selected);
    EXPECT_EQ(Shown(read), line.substr(equals + 3));
    CheckSentences(read, scene->selected);
    ++rows;
  }
  EXPECT_GE(rows, 300);
}

#ifndef __has_feature
#define __has_feature(name) 0
#endif
#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer)
constexpr int kStep = 97;
#else
constexpr int kStep = 1;
#endif

bool HasDay(const DateReadings& read, PackedDate date) {
  return std::any_of(read.readings.begin(), read.readings.end(),
                     [=](const DateReading& reading) { return reading.date == date; });
}

// A text that the program prints for a day, and whether it names no other day.
struct Printed {
  std::u16string text;
  bool isAlone;
};

std::u16string IsoText(const Date& date) {
  std::u16string year = DecimalText(date.year < 0 ? -date.year : date.year);
  year.insert(0, year.size() < 4 ? 4 - year.size() : 0, u'0');
  return (date.year < 0 ? u"-" : u"") + year + FormatText(u"-%d-%d", {date.month, date.day});
}

std::vector<Printed> PrintedTexts(const Date& date) {
  DateReading marked;
  marked.date = date.Packed();
  marked.isMarked = true;
  std::vector<Printed> texts = {
      {LongDate(date, false), false},
      {JulianLongDate(date, false), false},
      {IsoText(date), false},
      {ReadingText(marked), true},
  };
  const bool sharesNumber = date.Packed() == -80229 && !Rules().proleptic;
  if (!sharesNumber) texts.push_back({FormatText(u"Jour julien n° %d", {date.DayNumber()}), true});
  const std::u16string republican = RepublicanText(date);
  if (!republican.empty() && ToRepublican(date).year <= kLastRepublicanYear)
    texts.push_back({republican, false});
  return texts;
}

void CheckDays(const CalendarRules& calendar, int order, int step, PackedDate from = kFirstDateShown,
               PackedDate to = kLastDateShown) {
  const ScopedRules rules(calendar);
  FakeLocale locale;
  locale.dateOrder = order;
  const ScopedPlatform platform(locale, FakeClock({2024, 5, 15}));
  const int last = Date(to).DayNumber();
  for (int n = Date(from).DayNumber(); n <= last; n += step) {
    const Date date = DateOfDayNumber(n);
    for (const Printed& printed : PrintedTexts(date)) {
      const DateReadings read = ReadDates(printed.text, 20240515);
      ASSERT_TRUE(HasDay(read, date.Packed())) << ToUtf8(printed.text) << " of " << date.Packed();
      ASSERT_TRUE(!printed.isAlone || read.readings[0].date == date.Packed()) << ToUtf8(printed.text);
    }
  }
}

// Every text that the program prints for a day is read as that day: each day under the Roman reform, in parts
// that run side by side, and some days under other rules.
class DateReaderPartTest : public testing::TestWithParam<int> {};

TEST_P(DateReaderPartTest, WhatIsPrintedForADayIsReadAsThatDay) {
  constexpr int kYears = 2000;
  const int year = GetParam();
  CheckDays(RulesWith(kRomanReform), 1, kStep, Pack(year, 1, 1),
            Pack(std::min(year + kYears - 1, kLastYearShown), 12, 31));
}

INSTANTIATE_TEST_SUITE_P(From, DateReaderPartTest, testing::Values(-3999, -1999, 1, 2001),
                         [](const auto& part) { return "Part" + std::to_string(part.index); });

TEST(DateReaderTest, DaysAreReadUnderOtherRules) {
  CheckDays(RulesWith(17520914, {.rows = {{17520101, false}, {11550325, false}}}), 1, 101 * kStep);
  CheckDays(RulesWith(kRomanReform, {.rows = {{15000325, true}}}), 0, 101 * kStep);
  CheckDays(RulesWith(19180214, {.proleptic = true}), 2, 101 * kStep);
  CheckDays(RulesWith(kNeverGregorian), 2, 101 * kStep);
  CheckDays(RulesWith(kAlwaysGregorian), 1, 101 * kStep);
}

}  // namespace
}  // namespace orbisol

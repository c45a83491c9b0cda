#include "files/calendar_file.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/support/fakes.h"
#include "tests/support/file_bytes.h"
#include "tests/support/test_data.h"

namespace orbisol {
namespace {

using namespace std::string_view_literals;

std::string KnownFile(const std::string& name) { return BytesOf(ORBISOL_TEST_DATA "/files/" + name); }

std::string Written(const CalendarFile& calendar) { return WriteCalendar(calendar, CalendarForm::kUser); }

const char* Fate(std::string_view bytes) {
  return WouldLoseData(bytes, CalendarForm::kUser) ? "lost" : "whole";
}

TEST(CalendarFileTest, AKnownCalendarIsReadAndWrittenToTheByte) {
  const std::string bytes = KnownFile("whole.xml");
  const CalendarFile calendar = ReadCalendar(bytes);
  CalendarLook look;
  look.backgroundImage = false;
  look.backgroundImagePath.Set(u"/home/ana/photo d'été.jpg"sv);
  look.fontName.Set(u"DejaVu Sans & C'"sv);
  look.fontWeight = 700;
  look.colors = {0x000000, 0x000001, 0x00ff00, 0xff0000, 0x0000ff, 0x123456, 0xabcdef, 0xfedcba,
                 0x010203, 0xffffff, 0xc0c0c0, 0x800000, 0x008000, 0x000080, 0x7f7f7f};
  EXPECT_EQ(calendar.look, look);
  const std::vector<CivilYearStart> years = {{17000101, false}, {11550325, true}};
  EXPECT_EQ(calendar.rules, RulesWith(17520914, {.proleptic = true, .rows = years, .iso8601 = false}));
  ASSERT_EQ(calendar.content.dayEvents.size(), 8u);
  const DayEvent beforeMay24{DayEventType::kWeekdayBefore, false, 5, 24, 1, 1, -440315, 20241231,
                             {u"Lundi avant le 24 mai"sv}};
  EXPECT_EQ(calendar.content.dayEvents[4], beforeMay24);
  EXPECT_EQ(calendar.content.dayEvents[3].name.View(), u"<Mères> & \"fils\" d'ici");
  EXPECT_EQ(calendar.content.vacations,
            (std::vector<HolidayPeriod>{{20240706, 20240901, {u"Été & soleil"sv}}, {-440315, 20241231, {}}}));
  EXPECT_EQ(Written(calendar), bytes);
  EXPECT_STREQ(Fate(bytes), "whole");
  EXPECT_EQ(Written(ReadCalendar("")), KnownFile("nothing_in_it.xml"));
}

TEST(CalendarFileTest, APublicCalendarKeepsItsDescriptionAndHasNoParameters) {
  const std::string bytes = KnownFile("public.xml");
  const CalendarFile calendar = ReadCalendar(bytes);
  EXPECT_EQ(calendar.info, u"Jours fériés de l'île, loi du 1er mai");
  EXPECT_EQ(WriteCalendar(calendar, CalendarForm::kPublic), bytes);
  EXPECT_STREQ(Fate(bytes), "whole");
  EXPECT_TRUE(WouldLoseData(Written(calendar), CalendarForm::kPublic)) << "the parameters would go";
}

TEST(CalendarFileTest, OddFilesAreReadAsFarAsTheyGoAndTheirFaultsAreNoticed) {
  for (const std::vector<std::string>& row : DataRows("files/odd_files.txt")) {
    SCOPED_TRACE(row[0]);
    const std::string bytes = KnownFile(row[0]);
    const CalendarFile calendar = ReadCalendar(bytes);
    EXPECT_EQ(std::to_string(calendar.content.dayEvents.size()), row[1]);
    EXPECT_EQ(std::to_string(calendar.content.vacations.size()), row[2]);
    EXPECT_EQ(Fate(bytes), row[3]);
    const std::string once = Written(calendar);
    EXPECT_EQ(Written(ReadCalendar(once)), once);
    EXPECT_STREQ(Fate(once), "whole");
  }
}

TEST(CalendarFileTest, OnlyWhatWouldBeGoneIsALoss) {
  const ScopedRules others(RulesWith(17520914));  // each file follows its own rules
  for (const std::vector<std::string>& row : DataRows("files/fragments.txt")) {
    std::string fragment;
    for (std::size_t word = 1; word < row.size(); ++word) fragment += row[word] + " ";
    EXPECT_EQ(Fate(fragment), row[0]) << fragment;
  }
}

TEST(CalendarFileTest, WhateverIsCutOffAFileIsNoticed) {
  const std::string whole = KnownFile("whole.xml");
  for (std::size_t length = whole.rfind('>'); length > 0; --length) {
    const std::string part = whole.substr(0, length);
    const std::string_view seen = std::string_view(part).substr(0, part.find_last_not_of("\r\n") + 1);
    const bool isBetweenBlocks = seen.ends_with("?>") || seen.ends_with("</CalendarParams>");
    ASSERT_STREQ(Fate(part), isBetweenBlocks ? "whole" : "lost") << part;
  }
}

// Parameters as they are read and as they are then written.
std::string Rewritten(const std::string& parameter, const std::string& value) {
  const std::string opening = "<" + parameter + ">";
  const std::string closing = "</" + parameter + ">";
  const std::string bytes =
      Written(ReadCalendar("<CalendarParams>" + opening + value + closing + "</CalendarParams>"));
  const std::size_t begin = bytes.find(opening) + opening.size();
  return bytes.substr(begin, bytes.find(closing) - begin);
}

constexpr std::tuple<const char*, const char*, const char*> kParameters[] = {
    {"fontName", " ", " "},
    {"fontName", "<fontName>1<", "&lt;fontName&gt;1&lt;"},
    {"fontName", "&lt &am", "&amp;lt &amp;am"},
    {"fontName", "&amp;lt; &amp;amp;lt;", "&lt; &amp;amp;lt;"},  // On purpose: one pass, and & first
    {"bgImage", "yes", "0"},
    {"fontWeight", "99999999999", "2147483647"},
    {"proleptic", " 1", "0"},
    {"startGregorian", "", "15821015"},
    {"startGregorian", "20230229", "15821015"},
    {"iso8601", "", "0"},  // as in America
    {"iso8601", "-1", "0"},
    {"iso8601", "2", "1"},
    {"firstDayOfYear", ";;15640101;;+11550325", "15640101;+11550325;"},
    {"firstDayOfYear", "5;4;3;2;1;", "5;4;3;2;"},
    {"firstDayOfYear", "15640101;0;11550325;", "15640101;"},
    {"firstDayOfYear", "+;15640101;", ""},
    {"firstDayOfYear", "15821015;11550325;12000101;",
     "15821015;"},                                 // cut before a row not later than the next
    {"firstDayOfYear", "15821016;11550325;", ""},  // and before one after the reform
};

TEST(CalendarFileTest, ParametersAreReadWithPatience) {
  FakeLocale american;
  american.firstDay = 6;
  american.firstWeek = 1;
  const ScopedPlatform inForce(american);
  for (const auto& [parameter, read, written] : kParameters)
    EXPECT_EQ(Rewritten(parameter, read), written) << parameter << " " << read;
}

// Empty pieces of the color table are skipped; malformed ones count as a place.
TEST(CalendarFileTest, ColorsTakeTheirPlaceByCounting) {
  const std::string fresh = Rewritten("colorTable", "");
  EXPECT_EQ(Rewritten("colorTable", "#0000ff;;#ABCdef;"), "#0000ff;#abcdef;" + fresh.substr(16));
  EXPECT_EQ(Rewritten("colorTable", "#12345;123456;#1234567;#00zz11;#000001"),
            fresh.substr(0, 24) + "#000000;#000001;" + fresh.substr(40));
}

TEST(CalendarFileTest, YearsOfOlderReleasesBecomeDates) {
  constexpr std::tuple<const char*, PackedDate, PackedDate> kValidities[] = {
      {"<yFrom>1990</yFrom><yTo>2000</yTo>", 19900101, 20001231},
      {"<yFrom>1990</yFrom><ymdFrom>20010101</ymdFrom>", 19900101, kAlwaysTo},
      {"<yFrom>0</yFrom><yTo>2000</yTo>", kAlwaysFrom, 20001231},
      {"<yFrom>-44</yFrom>", -439899, kAlwaysTo},  // On purpose: a date of the year that follows
  };
  for (const auto& [fields, from, to] : kValidities) {
    SCOPED_TRACE(fields);
    const std::string event = "<event><day>1</day><name>A</name>" + std::string(fields) + "</event>";
    const CalendarFile calendar = ReadCalendar("<dayEvents>" + event + "</dayEvents>");
    ASSERT_EQ(calendar.content.dayEvents.size(), 1u);
    EXPECT_EQ(calendar.content.dayEvents[0].ymdFrom, from);
    EXPECT_EQ(calendar.content.dayEvents[0].ymdTo, to);
  }
}

TEST(CalendarFileTest, AWrittenCalendarIsReadBackEqualInEveryField) {
  std::mt19937 random(20240501);
  const auto between = [&](int low, int high) {
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
  };
  const auto text = [&] {
    constexpr std::u16string_view kUnits = u"aé&<>\"' ;№/\t\r\n-";
    std::u16string units(random() % (kMaxNameUnits + 10), u' ');  // longer ones are cut in the record
    for (char16_t& unit : units) unit = kUnits[random() % kUnits.size()];
    return units;
  };
  constexpr PackedDate kStarts[] = {kRomanReform, 17520914, 19180214, 40115};
  for (int round = 0; round < 300; ++round) {
    CalendarFile calendar;
    calendar.info = text();
    calendar.look.backgroundImage = between(0, 1) == 1;
    calendar.look.backgroundImagePath.Set(text());
    calendar.look.fontName.Set(text());
    calendar.look.fontWeight = static_cast<int>(random());
    for (Color& color : calendar.look.colors) color = random() & 0xFFFFFF;
    RuleOptions options{.proleptic = between(0, 1) == 1, .iso8601 = between(0, 1) == 1};
    const PackedDate start = kStarts[between(0, 3)];
    PackedDate from = start;
    for (int row = between(0, 4); row > 0; --row, from -= between(1, 9) * 10000)
      options.rows.push_back({from, between(0, 1) == 1});
    calendar.rules = RulesWith(start, options);

    const ScopedRules inForce(calendar.rules);
    for (int i = between(0, 20); i > 0; --i) {
      const DayEvent event{DayEventType{between(0, 7)},
                           between(0, 1) == 1,
                           between(0, 12),
                           between(-99, 31),
                           between(1, 7),
                           between(1, 5),
                           between(-39991231, 0),
                           between(1, 39991231),
                           {text()}};
      if (IsAcceptableDayEvent(event)) calendar.content.dayEvents.push_back(event);
      HolidayPeriod period{Pack(between(-3999, 2000), between(1, 12), between(1, 31)), 0, {text()}};
      period.ymdTo = period.ymdFrom + between(0, 90000);
      if (IsAcceptablePeriod(period)) calendar.content.vacations.push_back(period);
    }
    const std::string bytes = Written(calendar);
    ASSERT_TRUE(ReadCalendar(bytes) == calendar) << bytes;
    ASSERT_STREQ(Fate(bytes), "whole") << bytes;
  }
}

}  // namespace
}  // namespace orbisol

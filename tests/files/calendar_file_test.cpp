#include "files/calendar_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

#include "tests/support/fakes.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

using namespace std::string_view_literals;

std::string KnownFile(const std::string& name) {
  std::ifstream file(std::string(ORBISOL_TEST_DATA) + "/files/" + name, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << name;
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string Written(const CalendarFile& calendar) { return WriteCalendar(calendar, CalendarForm::kUser); }

CalendarFile WithParams(const std::string& elements) {
  return ReadCalendar("<CalendarParams>" + elements + "</CalendarParams>");
}

CalendarContent WithEvents(const std::string& elements) {
  return ReadCalendar("<CalendarEvents>" + elements + "</CalendarEvents>").content;
}

std::string EventText(const std::string& fields) {
  return "<dayEvents><event><day>1</day><name>A</name>" + fields + "</event></dayEvents>";
}

// All fields are set to something else than their defaults.
CalendarFile WholeCalendar() {
  CalendarFile calendar;
  calendar.display.backgroundImage = false;
  calendar.display.backgroundImagePath.Set(u"/home/ana/photo d'été.jpg"sv);
  calendar.display.fontName.Set(u"DejaVu Sans & C'"sv);
  calendar.display.fontWeight = 700;
  calendar.display.colors = {0x000000, 0x000001, 0x00ff00, 0xff0000, 0x0000ff, 0x123456, 0xabcdef, 0xfedcba,
                             0x010203, 0xffffff, 0xc0c0c0, 0x800000, 0x008000, 0x000080, 0x7f7f7f};
  calendar.rules = RulesWith(
      17520914, {.proleptic = true, .rows = {{17000101, false}, {11550325, true}}, .iso8601 = false});
  calendar.content.dayEvents = {
      {0, true, 7, 14, 0, 0, 18800706, 39991231, {u"Fête nationale"sv}},
      {1, true, 0, 39, 0, 0, kAlwaysFrom, kAlwaysTo, {u"Ascension"sv}},
      {2, false, 0, -48, 0, 0, kAlwaysFrom, kAlwaysTo, {u"Καθαρά Δευτέρα"sv}},
      {3, false, 5, 0, 7, 5, kAlwaysFrom, kAlwaysTo, {u"<Mères> & \"fils\" d'ici"sv}},
      {4, false, 5, 24, 1, 1, -440315, 20241231, {u"Lundi avant le 24 mai"sv}},
      {5, false, 11, 16, 3, 1, 101, 39991231, {u"𝄞 🎂"sv}},
      {6, true, 12, 25, 0, 0, kAlwaysFrom, kAlwaysTo, {u"Bank Holiday"sv}},
      {7, true, 5, 1, 0, 0, kAlwaysFrom, kAlwaysTo, {u"Sauf dimanche"sv}},
  };
  calendar.content.holidays = {{20240706, 20240901, {u"Été & soleil"sv}}, {-440315, 20241231, {u""sv}}};
  return calendar;
}

TEST(CalendarFileTest, AKnownCalendarIsReadAndWrittenToTheByte) {
  const std::string bytes = KnownFile("whole.xml");
  EXPECT_EQ(Written(WholeCalendar()), bytes);
  EXPECT_TRUE(ReadCalendar(bytes) == WholeCalendar());
  EXPECT_FALSE(HoldsMore(bytes, CalendarForm::kUser));

  const std::string nothing = KnownFile("nothing_in_it.xml");
  EXPECT_EQ(Written(ReadCalendar("")), nothing);
  EXPECT_TRUE(ReadCalendar(nothing) == ReadCalendar(""));
}

TEST(CalendarFileTest, APublicCalendarKeepsItsDescriptionAndHasNoParameters) {
  const std::string bytes = KnownFile("public.xml");
  const CalendarFile calendar = ReadCalendar(bytes);
  EXPECT_EQ(calendar.info, u"Jours fériés de l'île, loi du 1er mai");
  EXPECT_EQ(WriteCalendar(calendar, CalendarForm::kPublic), bytes);

  const std::string asUser = Written(calendar);
  EXPECT_EQ(asUser.find("<info>Jours f"), bytes.find("<info>Jours f"));
  EXPECT_NE(asUser.find("<bgImage>"), std::string::npos);
  EXPECT_FALSE(HoldsMore(bytes, CalendarForm::kUser));
  EXPECT_TRUE(HoldsMore(asUser, CalendarForm::kPublic)) << "the parameters would go";
}

constexpr struct {
  const char* file;
  std::size_t rules;    // each file has two good ones,
  std::size_t periods;  // and one good period
  bool holdsMore;
} kOddFiles[] = {
    {"empty_event.xml", 1, 1, true},
    {"event_not_closed.xml", 1, 1, true},
    {"event_of_unknown_kind.xml", 2, 1, true},
    {"event_with_far_numbers.xml", 2, 1, true},
    {"event_without_name.xml", 2, 1, true},
    {"one_day_period.xml", 2, 1, true},
    {"period_of_30_february.xml", 2, 1, true},
    {"unknown_parameter.xml", 2, 1, true},
    {"unknown_field.xml", 2, 1, true},
    {"unknown_block.xml", 2, 1, true},
    {"text_between_blocks.xml", 2, 1, true},
    {"comment.xml", 2, 1, true},
    {"second_block.xml", 2, 1, true},
    {"switch_is_true.xml", 2, 1, true},
    {"start_on_no_day.xml", 2, 1, true},
    {"sixteen_colors.xml", 2, 1, true},
    {"five_civil_years.xml", 2, 1, true},
    {"name_of_255.xml", 3, 1, true},
    {"name_cut_in_a_pair.xml", 3, 1, true},
    {"tag_in_name.xml", 3, 1, true},
    {"truncated.xml", 0, 0, true},
    {"latin1.xml", 3, 1, true},
    {"utf16.xml", 0, 0, true},
    {"byte_order_mark.xml", 2, 1, false},
    {"line_feeds.xml", 2, 1, false},
    {"blocks_in_reverse.xml", 2, 1, false},
    {"fields_in_reverse.xml", 2, 1, false},
    {"years_of_older_releases.xml", 2, 1, false},
    {"no_parameters.xml", 2, 1, false},
    {"info_between_events.xml", 2, 1, false},
};

TEST(CalendarFileTest, OddFilesAreReadAsFarAsTheyGoAndTheirFaultsAreNoticed) {
  for (const auto& odd : kOddFiles) {
    SCOPED_TRACE(odd.file);
    const std::string bytes = KnownFile(odd.file);
    const CalendarFile calendar = ReadCalendar(bytes);
    EXPECT_EQ(calendar.content.dayEvents.size(), odd.rules);
    EXPECT_EQ(calendar.content.holidays.size(), odd.periods);
    EXPECT_EQ(HoldsMore(bytes, CalendarForm::kUser), odd.holdsMore);

    const std::string once = Written(calendar);
    EXPECT_EQ(Written(ReadCalendar(once)), once);
    EXPECT_FALSE(HoldsMore(once, CalendarForm::kUser));
  }
}

TEST(CalendarFileTest, WhateverIsCutOffAFileIsNoticed) {
  const std::string whole = KnownFile("whole.xml");
  const std::size_t end = whole.rfind("</CalendarEvents>") + std::string_view("</CalendarEvents>").size();
  for (std::size_t length = end - 1; length > 60; --length) {
    const std::string part = whole.substr(0, length);
    const bool isBetweenBlocks =
        part.substr(0, part.find_last_not_of("\r\n") + 1).ends_with("</CalendarParams>");
    ASSERT_NE(HoldsMore(part, CalendarForm::kUser), isBetweenBlocks) << part;
    const std::string once = Written(ReadCalendar(part));
    ASSERT_EQ(Written(ReadCalendar(once)), once) << part;
  }
}

TEST(CalendarFileTest, NothingInForceIsTouched) {
  const ScopedRules inForce(RulesWith(19180214));
  const CalendarRules before = Rules();
  ReadCalendar(KnownFile("whole.xml"));
  HoldsMore(KnownFile("whole.xml"), CalendarForm::kUser);
  EXPECT_EQ(Rules(), before);
}

TEST(CalendarFileTest, WhatNoFileSetsIsKeptAndTheRestIsReset) {
  DisplaySettings before;
  before.grid = false;
  before.calendarName.Set(u"Famille"sv);
  before.mainLayout.rect.left = 7;
  before.fontName.Set(u"Serif"sv);
  before.colors[0] = 0x123456;
  DisplaySettings expected = before;
  expected.ResetToDefaults();
  EXPECT_TRUE(ReadCalendar(KnownFile("nothing_in_it.xml"), before).display == expected);
  EXPECT_FALSE(expected.grid);
}

TEST(CalendarFileTest, ColorsTakeTheirPlaceByCounting) {
  const auto colors = [](const std::string& table) {
    return WithParams("<colorTable>" + table + "</colorTable>").display.colors;
  };
  const auto fresh = DisplaySettings().colors;
  const auto two = colors("#0000ff;;#ABCdef;");
  EXPECT_EQ(two[0], 0x0000ffu);
  EXPECT_EQ(two[1], 0xabcdefu) << "an empty piece is none";
  EXPECT_TRUE(std::equal(two.begin() + 2, two.end(), fresh.begin() + 2));

  const auto malformed = colors("#12345;123456;#1234567;#00zz11;#zz0011;#000001");
  EXPECT_TRUE(std::equal(malformed.begin(), malformed.begin() + 3, fresh.begin()));
  EXPECT_EQ(malformed[3], 0u);
  EXPECT_EQ(malformed[4], 0u);
  EXPECT_EQ(malformed[5], 1u);

  CalendarFile calendar;
  calendar.display.colors[14] = 0xFF010203;
  EXPECT_NE(Written(calendar).find(";#010203;</colorTable>"), std::string::npos);
}

TEST(CalendarFileTest, CivilYearsEndWithFourRowsOrTheFirstThatIsNoDate) {
  const struct {
    const char* text;
    std::vector<CivilYearStart> rows;
  } kTables[] = {
      {"", {}},
      {"+17520101;", {{17520101, true}}},
      {"17520101", {{17520101, false}}},
      {";;17520101;;+11550325;", {{17520101, false}, {11550325, true}}},
      {"5;4;3;2;1;", {{5, false}, {4, false}, {3, false}, {2, false}}},
      {"17520101;0;11550325;", {{17520101, false}}},
      {"+;17520101;", {}},
      {"+-440315;99999999999;", {{-440315, true}, {2147483647, false}}},
  };
  for (const auto& table : kTables) {
    SCOPED_TRACE(table.text);
    const CalendarFile calendar =
        WithParams(std::string("<firstDayOfYear>") + table.text + "</firstDayOfYear>");
    EXPECT_EQ(calendar.rules, RulesWith(kRomanReform, {.rows = table.rows}));
    EXPECT_EQ(ReadCalendar(Written(calendar)).rules, calendar.rules);
  }
}

TEST(CalendarFileTest, ParametersAreNumbersAndSwitches) {
  const auto start = [](const char* text) {
    return WithParams(std::string("<startGregorian>") + text + "</startGregorian>").rules.startGregorian;
  };
  EXPECT_EQ(start("17520914"), 17520914);
  EXPECT_EQ(start(" 19180214 or so"), 19180214);
  for (const char* text : {"0", "", "5", "20230229", "-99999999999", "99999999999", "then"})
    EXPECT_EQ(start(text), kRomanReform) << text;

  EXPECT_TRUE(WithParams("<proleptic>1</proleptic>").rules.proleptic);
  for (const char* text : {"0", "true", " 1", "01", "2"})
    EXPECT_FALSE(WithParams(std::string("<proleptic>") + text + "</proleptic>").rules.proleptic) << text;
  EXPECT_FALSE(WithParams("<bgImage>yes</bgImage>").display.backgroundImage);
  EXPECT_EQ(WithParams("<fontWeight>99999999999</fontWeight>").display.fontWeight, 2147483647);

  FakeLocale american;
  american.firstDay = 6;
  american.firstWeek = 1;
  const ScopedPlatform inForce(american);
  EXPECT_FALSE(WithParams("").rules.iso8601);
  EXPECT_FALSE(WithParams("<iso8601>-1</iso8601>").rules.iso8601);
  EXPECT_TRUE(WithParams("<iso8601>2</iso8601>").rules.iso8601);
  EXPECT_FALSE(WithParams("<iso8601>no</iso8601>").rules.iso8601);
}

TEST(CalendarFileTest, YearsOfOlderReleasesBecomeDates) {
  const struct {
    const char* fields;
    PackedDate from;
    PackedDate to;
  } kValidities[] = {
      {"<yFrom>1990</yFrom><yTo>2000</yTo>", 19900101, 20001231},
      {"<yFrom>1990</yFrom>", 19900101, kAlwaysTo},
      {"<yFrom>0</yFrom><yTo>2000</yTo>", kAlwaysFrom, 20001231},
      {"<yFrom></yFrom>", kAlwaysFrom, kAlwaysTo},
      {"<yFrom>-44</yFrom>", -439899, kAlwaysTo},
      {"<yFrom>1990</yFrom><ymdFrom>20010101</ymdFrom>", 19900101, kAlwaysTo},
      {"<yTo>1990</yTo>", 0, 0},  // without the other it is no older form
  };
  for (const auto& row : kValidities) {
    SCOPED_TRACE(row.fields);
    const CalendarContent content = WithEvents(EventText(row.fields));
    ASSERT_EQ(content.dayEvents.size(), 1u);
    EXPECT_EQ(content.dayEvents[0].ymdFrom, row.from);
    EXPECT_EQ(content.dayEvents[0].ymdTo, row.to);
  }
  for (const char* far : {"<yFrom>4000</yFrom>", "<yFrom>214749</yFrom>", "<yFrom>-99999999999</yFrom>"})
    EXPECT_TRUE(WithEvents(EventText(far)).dayEvents.empty()) << far;
}

// 29 February 1700 was a day in England, wherever in the file England is named.
TEST(CalendarFileTest, RecordsAreJudgedByTheRulesOfTheirOwnFile) {
  const std::string england = "<CalendarParams><startGregorian>17520914</startGregorian></CalendarParams>";
  const std::string period =
      "<CalendarEvents><holidays><period><ymdFrom>17000228</ymdFrom><ymdTo>17000229</ymdTo></period></"
      "holidays>"
      "</CalendarEvents>";
  EXPECT_EQ(ReadCalendar(england + period).content.holidays.size(), 1u);
  EXPECT_EQ(ReadCalendar(period + england).content.holidays.size(), 1u);
  const ScopedRules inForce(RulesWith(17520914));
  EXPECT_EQ(ReadCalendar(period).content.holidays.size(), 0u);
}

TEST(CalendarFileTest, AWalkEndsWithAnEmptyRecordAndNotWithABlankOne) {
  const std::string good = "<event><day>1</day><name>A</name></event>";
  EXPECT_EQ(WithEvents("<dayEvents>" + good + "<event> </event>" + good + "</dayEvents>").dayEvents.size(),
            2u);
  EXPECT_EQ(WithEvents("<dayEvents>" + good + "<event></event>" + good + "</dayEvents>").dayEvents.size(),
            1u);
}

// What is lost and what is not, beyond the known files.
constexpr struct {
  const char* bytes;
  bool holdsMore;
} kLosses[] = {
    {"", false},
    {"\r\n \t", false},
    {"<?xml version='1.0'?>", false},
    {"<?xml version='1.0'", true},
    {"<?xml version='1.0'?>x", true},
    {"<CalendarParams></CalendarParams>", false},
    {"<CalendarParams><fontName> Serif </fontName><iso8601></iso8601></CalendarParams>", false},
    {"<CalendarParams><fontName>A</fontName><fontName>B</fontName></CalendarParams>", true},
    {"<CalendarParams><fontName></fontName><fontName>B</fontName></CalendarParams>", true},
    {"<CalendarParams><fontName>d'A &amp; B</fontName></CalendarParams>", false},
    {"<CalendarParams><fontName><b>A</b></fontName></CalendarParams>", true},
    {"<CalendarParams><b><fontName>A</fontName></b></CalendarParams>", true},
    {"<CalendarParams><fontName>A</CalendarParams>", true},
    {"<CalendarParams><fontWeight>bold</fontWeight></CalendarParams>", true},
    {"<CalendarEvents><event><name>A</name></event></CalendarEvents>", true},
    {"<CalendarEvents><dayEvents><event><yTo>1990</yTo><day>1</day><name>A</name></event></dayEvents>"
     "</CalendarEvents>",
     true},
    {"<CalendarEvents><dayEvents><event><yFrom>1990 BC</yFrom><day>1</day><name>A</name></event></dayEvents>"
     "</CalendarEvents>",
     true},
    {"<CalendarEvents><dayEvents><event><yFrom>1990</yFrom><yFrom>1995</yFrom><day>1</day><name>A</name></"
     "event>"
     "</dayEvents></CalendarEvents>",
     true},
    {"<CalendarParams><yFrom>1990</yFrom></CalendarParams>", true},
    {"<info>A</info>", false},
    {"<info>A</info><info>A</info>", true},
    {"<info>\xEF\xBF\xBD</info>", false},  // U+FFFD itself, well formed
    {"<info>\xFF</info>", true},
    {"<a", true},
    {"a>", true},
    {"<><>", true},
};

TEST(CalendarFileTest, OnlyWhatWouldBeGoneIsALoss) {
  for (const auto& row : kLosses)
    EXPECT_EQ(HoldsMore(row.bytes, CalendarForm::kUser), row.holdsMore) << row.bytes;
}

std::u16string AnyText(std::mt19937& random, std::size_t maxUnits) {
  constexpr std::u16string_view kPieces[] = {u"a",  u"é",    u"&",       u"<",      u">", u"\"",
                                             u"'",  u" ",    u"</name>", u";",      u"№", u"🎂",
                                             u"\t", u"\r\n", u"-->",     u"<event>"};
  std::u16string text;
  const std::size_t wanted = random() % (maxUnits + 1);
  for (;;) {
    const std::u16string_view piece = kPieces[random() % std::size(kPieces)];
    if (text.size() + piece.size() > wanted) return text;
    text += piece;
  }
}

TEST(CalendarFileTest, EveryCalendarComesBackEqualInEveryField) {
  std::mt19937 random(20240501);
  const auto between = [&](int low, int high) {
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
  };
  constexpr PackedDate kStarts[] = {kRomanReform, 17520914, 19180214, 40115};
  for (int round = 0; round < 300; ++round) {
    CalendarFile calendar;
    calendar.info = AnyText(random, 40);
    calendar.display.backgroundImage = between(0, 1) == 1;
    calendar.display.backgroundImagePath.Set(AnyText(random, kMaxPathUnits));
    calendar.display.fontName.Set(AnyText(random, kMaxPathUnits));
    calendar.display.fontWeight = static_cast<int>(random());
    for (Color& color : calendar.display.colors) color = random() & 0xFFFFFF;
    RuleOptions options{.proleptic = between(0, 1) == 1, .rows = {}, .iso8601 = between(0, 1) == 1};
    for (int row = between(0, 4); row > 0; --row)
      options.rows.push_back({between(1, 9) * 1000000 + 101, between(0, 1) == 1});
    calendar.rules = RulesWith(kStarts[between(0, 3)], options);

    const ScopedRules inForce(calendar.rules);
    for (int i = between(0, 20); i > 0; --i) {
      DayEvent event{between(0, 7),         between(0, 1) == 1,   between(0, 12),
                     between(-99, 31),      between(1, 7),        between(1, 5),
                     between(-39991231, 0), between(1, 39991231), {}};
      event.name.Set(AnyText(random, kMaxNameUnits), kMaxNameUnits);
      if (AcceptDayEvent(event)) calendar.content.dayEvents.push_back(event);
      HolidayPeriod period{Pack(between(-3999, 2000), between(1, 12), between(1, 31)), 0, {}};
      period.ymdTo = period.ymdFrom + between(0, 90000);
      period.title.Set(AnyText(random, kMaxNameUnits), kMaxNameUnits);
      if (AcceptPeriod(period)) calendar.content.holidays.push_back(period);
    }
    const std::string bytes = Written(calendar);
    ASSERT_TRUE(ReadCalendar(bytes) == calendar) << bytes;
    ASSERT_FALSE(HoldsMore(bytes, CalendarForm::kUser)) << bytes;
  }
}

}  // namespace
}  // namespace orbisol

#include "settings/settings_persistence.h"

#include <gtest/gtest.h>

#include "tests/support/file_bytes.h"
#include "tests/support/memory_calendars.h"
#include "tests/support/memory_store.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

constexpr Rect kScreen{0, 0, 1920, 1080};
constexpr char kNamed[] = "\"CalendarName\"=\"Calendar\"\n";
const std::u16string kOwnPath = u"/user/Calendar.xml";

class SettingsTest : public testing::Test, protected MemoryCalendars {
 protected:
  ~SettingsTest() override {
    EXPECT_EQ(Display(), DisplaySettings()) << "nothing in force is touched";
    EXPECT_EQ(Rules(), CalendarRules());
    EXPECT_TRUE(Content().dayEvents.empty());
  }

  CMemoryStore store{kNamed};

  void PutCalendar(const std::u16string& path, const CalendarFile& calendar) {
    files.Put(path, WriteCalendar(calendar, CalendarForm::kUser));
  }
  void PutShipped(const std::u16string& name) {
    files.Put(u"/share/Legals/" + name + u".xml", WriteCalendar(CalendarWith(name), CalendarForm::kPublic));
  }
  static std::string Known(const std::string& file) { return BytesOf(ORBISOL_TEST_DATA "/settings/" + file); }
  StoredSettings Read() { return ReadSettings(store, calendars, publicCalendars, {u"fr", u"FR"}, kScreen); }
  // Returns the part of the settings that a calendar's file holds.
  static CalendarFile Session(const StoredSettings& stored) {
    return {stored.display.Look(), stored.rules, stored.content, u""};
  }
};

TEST_F(SettingsTest, WhatIsMissingOrMalformedTakesItsDefault) {
  DisplaySettings expected;
  expected.calendarName.Set(u"Calendar");
  expected.calendarPath = kOwnPath;
  store.text.reset();
  EXPECT_FALSE(Read().keyFound);
  EXPECT_EQ(Read().display, expected) << "as constructed";

  expected.showWeekNumber = expected.magnetMouse = true;
  expected.printLayout.rect = {50, 50, 800, 600};
  for (const char* name : {"hex(1):", "\"../x\""}) {
    store = CMemoryStore("\"CalendarName\"=" + std::string(name) + "\n");
    EXPECT_TRUE(Read().keyFound);
    EXPECT_EQ(Read().display, expected);
  }
  for (const Rect& noRoom : {Rect{50, 50, 50, 90}, Rect{50, 50, 90, 50}}) {
    store.Write({{"WindowLayout", BinaryValue(LayoutToBytes({.rect = noRoom}))}});
    EXPECT_EQ(Read().display, expected);
  }
  store.written.clear();
  store.text = Known("wrong_types.reg");
  EXPECT_EQ(Read().display, expected);
  EXPECT_TRUE(store.written.empty()) << "a name that can be read is no reason to migrate";
  EXPECT_TRUE(files.files.empty());
}

TEST_F(SettingsTest, StoredValuesReachTheirFields) {
  store.text = Known("export.reg");
  DisplaySettings expected;
  expected.calendarName.Set(u"Calendar");  // its own has a backslash
  expected.calendarPath = kOwnPath;
  expected.collapseCells = expected.grid = expected.tipsForEventsOnly = false;
  expected.circleTheDay = expected.fullCellBackground = true;
  expected.circleWidth = 3;
  expected.backgroundAlpha = -1;
  expected.mainLayout = {{60, 70, 900, 450}, true, false, 7, false, 300};
  expected.printLayout.rect = {0, 10, 800, 500};  // moved in; 16 bytes hold no more
  EXPECT_EQ(Read().display, expected);
}

TEST_F(SettingsTest, AFirstStartShowsTheBestCalendarThatShipsAndWritesNothing) {
  const auto first = [&](const UserLocale& locale) {
    return NamesIn(ReadSettings(store, calendars, publicCalendars, locale, kScreen).content);
  };
  files.Put(u"/user/fr_public.xml", "");  // a copy that an older release made is no calendar of the user's
  EXPECT_EQ(first({u"sv", u"SE"}), "");
  PutShipped(u"France");
  PutShipped(u"de_public");
  EXPECT_EQ(first({u"fr", u"FR"}), "France");
  EXPECT_EQ(first({u"de", u"DE"}), "de_public") << "the language, where that of the country is missing";
  EXPECT_EQ(first({u"de", u"FR"}), "France") << "the country decides before the language";
  for (const UserLocale& unknown :
       {UserLocale{u"sv", u"SE"}, UserLocale{u"../x", u"/"}, UserLocale{u"", u""}})
    EXPECT_EQ(first(unknown), "") << "no foreign holidays";
  EXPECT_EQ(files.files.size(), 3u);
  for (const char16_t* name : {u"/user/Autre.xml", u"/user/mes_public.xml"}) {
    PutCalendar(name, {});
    EXPECT_EQ(first({u"fr", u"FR"}), "") << "whoever has calendars meets none they did not make";
    files.files.erase(name);
  }
}

TEST_F(SettingsTest, OldValuesMoveIntoTheFileOfANewCalendar) {
  store.text = Known("legacy.reg");  // its name cannot be read
  PutShipped(u"France");
  Put(u"fr_public", u"Noël");
  Put(u"mes_public", u"three letters");
  CalendarFile own = CalendarWith(u"a name like that of a copy");
  own.content.vacations = {{20240706, 20240901, {}}};
  PutCalendar(u"/user/my_public.xml", own);
  own = CalendarWith(u"Ana");
  own.content.dayEvents[0].isPublic = false;
  PutCalendar(u"/user/to_public.xml", own);
  files.Put(u"/user/xx_public.xml", "<not>understood</not>");
  const CalendarFile calendar = Session(Read());
  EXPECT_EQ(files.trash.size(), 1u) << "the calendars of the user stay";
  EXPECT_EQ(files.trash.count(u"/user/fr_public.xml"), 1u);
  EXPECT_EQ(files.files[kOwnPath].bytes, Known("migrated.xml"));
  EXPECT_EQ(*store.text, Known("migrated.reg"));
  store.written.clear();
  EXPECT_EQ(Session(Read()), calendar) << "the next start reads what this one wrote";
  EXPECT_TRUE(store.written.empty());
}

// On purpose: the file may hold later choices of the user, while the key may have lost only its name.
TEST_F(SettingsTest, AMigrationKeepsWhatAnExistingFileHolds) {
  CalendarFile own = CalendarWith(u"Anniversaire");
  own.look.colors[kHolidayText] = 0x123456;
  own.look.backgroundImagePath.Set(u"/mine.png");
  own.rules = RulesWith(19180214, {.proleptic = true, .rows = {{17000101, false}}});
  PutCalendar(kOwnPath, own);
  PutShipped(u"France");
  std::string old = Known("legacy.reg");  // an old export dropped in
  old.replace(old.find("ProlepticJulian\"=dword:1"), 24, "ProlepticJulian\"=dword:0");
  store.text = old;
  const CalendarFile read = Session(Read());
  EXPECT_EQ(read.content, own.content);
  EXPECT_EQ(read.look.fontName.View(), u"Georgia");
  own.look.colors[kHeaderTextColor] = 0x010203;
  EXPECT_EQ(read.look.colors, own.look.colors) << "those chosen in this calendar, and no old defaults";
  EXPECT_EQ(read.look.backgroundImagePath.View(), u"/mine.png");
  EXPECT_EQ(read.rules, own.rules);
  EXPECT_EQ(ReadCalendar(files.files[kOwnPath].bytes), read);
}

TEST_F(SettingsTest, WhereOldValuesCannotBeDeletedLaterChangesStay) {
  store.text = Known("legacy.reg");
  store.readOnly = true;
  StoredSettings session = Read();
  EXPECT_EQ(session.display.fontName.View(), u"Georgia") << "this session has the old settings";
  EXPECT_FALSE(files.Exists(kOwnPath)) << "and keeps them nowhere but where they were";
  session.display.fontName.Set(u"Chosen since");
  session.display.colors[kHeaderTextColor] = 0x445566;
  SaveSettings(store, calendars, session.display, session.rules, session.content);
  EXPECT_EQ(Session(Read()), Session(session));
  store.readOnly = false;
  EXPECT_EQ(Session(Read()), Session(session)) << "also once the key can be written again";
  EXPECT_EQ(store.Read()->count("FontName"), 0u);
}

}  // namespace
}  // namespace orbisol

#include "settings/settings_persistence.h"

#include <gtest/gtest.h>

#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "tests/support/rules.h"

namespace orbisol {
namespace {

constexpr Rect kScreen{0, 0, 1920, 1080};
const UserLocale kFrench{u"fr", u"FR"};
const std::u16string kOwnPath = u"/user/Calendar.xml";

CalendarFile WithRule(std::u16string_view name) {
  CalendarFile made;
  made.content.dayEvents = {{0, true, 1, 1, 0, 0, kAlwaysFrom, kAlwaysTo, {name}}};
  return made;
}

class SettingsTest : public testing::Test {
 protected:
  CMemoryFiles files;
  CCalendarStore calendars{files};
  CMemoryStore store{""};

  void PutCalendar(const std::u16string& path, const CalendarFile& calendar) {
    files.Put(path, WriteCalendar(calendar, CalendarForm::kUser));
  }
  void PutShipped(const std::u16string& name) {
    files.Put(u"/share/Legals/" + name + u".xml", WriteCalendar(WithRule(name), CalendarForm::kPublic));
  }
  StoredSettings Read() { return ReadSettings(store, calendars, kScreen, kFrench); }
  static std::u16string FirstRule(const CalendarContent& content) {
    return content.dayEvents.empty() ? u"(none)" : std::u16string(content.dayEvents[0].name.View());
  }
};

class ReadSettingsTest : public SettingsTest {};
class SaveSettingsTest : public SettingsTest {};
class MigrationTest : public SettingsTest {};

TEST_F(ReadSettingsTest, AnEmptyNameAloneGivesTheDefaultsOfTheKey) {
  store = CMemoryStore("\"CalendarName\"=hex(1):\n");
  const StoredSettings stored = Read();
  const DisplaySettings& display = stored.calendar.display;
  EXPECT_TRUE(stored.keyFound);
  EXPECT_EQ(display.mainLayout.rect, (Rect{50, 50, 900, 450}));
  EXPECT_EQ(display.printLayout.rect, (Rect{50, 50, 800, 600}));
  EXPECT_EQ(display.calendarName.View(), u"Calendar");
  EXPECT_EQ(display.calendarPath, kOwnPath);
  EXPECT_TRUE(display.showWeekNumber && display.collapseCells && display.grid && display.tipsForEventsOnly &&
              display.magnetMouse);
  EXPECT_FALSE(display.circleTheDay || display.fullCellBackground);
  EXPECT_EQ(display.circleWidth, 2);
  EXPECT_EQ(display.backgroundAlpha, 128);
  EXPECT_TRUE(store.written.empty()) << "a name that can be read is no reason to migrate";
  EXPECT_TRUE(files.files.empty());
}

TEST_F(ReadSettingsTest, WithoutAKeyTheRecordIsAsConstructed) {
  store.text.reset();
  PutCalendar(kOwnPath, WithRule(u"Own"));
  const StoredSettings stored = Read();
  EXPECT_FALSE(stored.keyFound);
  EXPECT_FALSE(stored.calendar.display.showWeekNumber);
  EXPECT_EQ(stored.calendar.display.printLayout.rect, WindowLayout().rect);
  EXPECT_EQ(FirstRule(stored.calendar.content), u"Own");
}

TEST_F(ReadSettingsTest, StoredValuesReachTheirFields) {
  store = CMemoryStore(
      "\"CalendarName\"=\"Famille\"\n"
      "\"ShowWeekNumber\"=dword:00000000\n\"CollapseCells\"=dword:0\n\"Grid\"=dword:0\n"
      "\"TipsEvtOnly\"=dword:0\n\"MagnetMouse\"=dword:0\n\"CircleTheDay\"=dword:80000000\n"
      "\"FullCellBkgnd\"=dword:2\n\"CircleWidth\"=dword:00010003\n\"BkgndAlpha\"=dword:ffffffff\n"
      "\"WindowLayout\"=hex:3c,00,00,00,46,00,00,00,84,03,00,00,c2,01,00,00,01,00,07,00,2c,01,00,00,ff\n"
      "\"PrintWindowLayout\"=hex:9c,ff,ff,ff,0a,00,00,00,bc,02,00,00,f4,01,00,00\n");
  const DisplaySettings display = Read().calendar.display;
  EXPECT_EQ(display.calendarName.View(), u"Famille");
  EXPECT_FALSE(display.showWeekNumber || display.collapseCells || display.grid || display.tipsForEventsOnly ||
               display.magnetMouse);
  EXPECT_TRUE(display.circleTheDay && display.fullCellBackground);
  EXPECT_EQ(display.circleWidth, 3);
  EXPECT_EQ(display.backgroundAlpha, -1);
  EXPECT_EQ(display.mainLayout, (WindowLayout{{60, 70, 900, 450}, 1, 0, 7, 0, 300}));
  EXPECT_EQ(display.printLayout, (WindowLayout{{0, 10, 800, 500}})) << "moved in; 16 bytes hold no more";
}

TEST_F(ReadSettingsTest, ValuesOfAnotherTypeOrLengthTakeTheirDefaults) {
  store = CMemoryStore(
      "\"CalendarName\"=\"A\"\n\"Grid\"=\"0\"\n\"ShowWeekNumber\"=hex(4):00\n\"MagnetMouse\"=hex:00,00,00,"
      "00\n"
      "\"CircleWidth\"=hex(b):05,00,00,00,00,00,00,00\n\"BkgndAlpha\"=dword:123456789\n"
      "\"WindowLayout\"=\"50,50\"\n\"PrintWindowLayout\"=hex(7):00,00,00,00\n");
  const DisplaySettings display = Read().calendar.display;
  EXPECT_TRUE(display.grid && display.showWeekNumber && display.magnetMouse);
  EXPECT_EQ(display.circleWidth, 2);
  EXPECT_EQ(display.backgroundAlpha, 128);
  EXPECT_EQ(display.mainLayout.rect, (Rect{50, 50, 900, 450}));
  EXPECT_EQ(display.printLayout.rect, (Rect{50, 50, 800, 600}));
}

TEST_F(ReadSettingsTest, ANameThatIsNoFileNameReadsAsTheDefault) {
  for (const char* name : {"../x", "a/b", ".", "..", "a\\\\b"}) {
    store = CMemoryStore("\"CalendarName\"=\"" + std::string(name) + "\"\n");
    EXPECT_EQ(Read().calendar.display.calendarName.View(), u"Calendar") << name;
    EXPECT_TRUE(store.written.empty());
  }
}

TEST_F(ReadSettingsTest, NothingInForceIsTouched) {
  const DisplaySettings display = Display();
  const CalendarRules rules = Rules();
  CalendarFile calendar = WithRule(u"Own");
  calendar.display.fontWeight = 700;
  calendar.rules = RulesWith(17520914, {.proleptic = true, .iso8601 = false});
  PutCalendar(kOwnPath, calendar);
  store = CMemoryStore("\"CalendarName\"=\"Calendar\"\n");
  const StoredSettings stored = Read();
  EXPECT_EQ(stored.calendar.display.fontWeight, 700);
  EXPECT_EQ(stored.calendar.rules, calendar.rules);
  EXPECT_EQ(Display(), display);
  EXPECT_EQ(Rules(), rules);
  EXPECT_TRUE(Content().dayEvents.empty());
}

TEST_F(ReadSettingsTest, AFirstStartShowsTheHolidaysAgainAndAgainWithoutWriting) {
  store = CMemoryStore("\"CalendarName\"=\"Calendar\"\n");
  PutShipped(u"France");
  files.Put(u"/user/fr_public.xml", "");  // a copy that an older release made is no calendar of the user's
  const std::size_t count = files.files.size();
  for (int start = 0; start < 2; ++start) {
    const StoredSettings stored = Read();
    EXPECT_EQ(FirstRule(stored.calendar.content), u"France");
    EXPECT_EQ(stored.file, LoadResult::kMissing);
    EXPECT_EQ(stored.calendar.info, u"");
  }
  EXPECT_EQ(files.files.size(), count);

  PutCalendar(u"/user/Autre.xml", {});
  EXPECT_EQ(FirstRule(Read().calendar.content), u"(none)")
      << "whoever has calendars meets none they did not make";
}

TEST_F(ReadSettingsTest, TheFirstStartTakesTheBestCalendarThatShips) {
  const auto first = [&](std::u16string language, std::u16string country) {
    return FirstRule(FirstStartContent(calendars, {std::move(language), std::move(country)}));
  };
  EXPECT_EQ(first(u"fr", u"FR"), u"(none)");
  PutShipped(u"fr_public");
  EXPECT_EQ(first(u"sv", u"SE"), u"fr_public");
  PutShipped(u"France");
  PutShipped(u"de_public");
  EXPECT_EQ(first(u"fr", u"FR"), u"France");
  EXPECT_EQ(first(u"fr", u""), u"fr_public") << "the language alone";
  EXPECT_EQ(first(u"de", u"AT"), u"de_public") << "the language, where the country has no calendar";
  EXPECT_EQ(first(u"de", u"FR"), u"France") << "the country decides before the language";
  EXPECT_EQ(first(u"sv", u"SE"), u"France");
  EXPECT_EQ(first(u"../x", u"/"), u"France");
}

TEST_F(SaveSettingsTest, TheCalendarIsWrittenFirstAndTheKeyInItsOrder) {
  store = CMemoryStore("\"CalendarName\"=\"Calendar\"\n\"Unknown\"=hex(9):01\n");
  StoredSettings stored = Read();
  DisplaySettings& display = stored.calendar.display;
  display.changed = true;
  display.circleWidth = 3;
  display.backgroundAlpha = -1;
  const SaveOutcome outcome = SaveSettings(store, calendars, display, {}, WithRule(u"New").content);
  EXPECT_EQ(outcome.calendar, WriteResult::kWritten);
  EXPECT_TRUE(outcome.key);
  EXPECT_FALSE(display.changed);
  EXPECT_EQ(FirstRule(ReadCalendar(files.files[kOwnPath].bytes).content), u"New");

  std::string order;
  for (const StoreChange& change : store.written) order += change.name + " ";
  EXPECT_EQ(
      order,
      "CalendarName CircleTheDay CircleWidth Grid TipsEvtOnly ShowWeekNumber CollapseCells FullCellBkgnd "
      "BkgndAlpha MagnetMouse ");
  EXPECT_NE(store.text->find("\"Unknown\"=hex(9):01\n"), std::string::npos);
  EXPECT_EQ(Read().calendar.display, display);
}

TEST_F(SaveSettingsTest, ANewNameIsSwitchedToOnlyAfterTheOldCalendarIsSaved) {
  store = CMemoryStore("\"CalendarName\"=\"Calendar\"\n");
  StoredSettings stored = Read();
  DisplaySettings& display = stored.calendar.display;
  const CalendarContent content = WithRule(u"Old").content;
  display.changed = true;

  files.failingWrites.insert(kOwnPath);
  SaveOutcome outcome =
      SaveSettings(store, calendars, display, {}, content, WhenChanged::kRefuse, u"Famille");
  EXPECT_EQ(outcome.calendar, WriteResult::kFailed);
  EXPECT_TRUE(outcome.key) << "the switches are stored all the same";
  EXPECT_TRUE(display.changed);
  EXPECT_EQ(display.calendarName.View(), u"Calendar");
  EXPECT_EQ(TextOf(*store.Read(), "CalendarName", 260), u"Calendar");

  files.failingWrites.clear();
  outcome = SaveSettings(store, calendars, display, {}, content, WhenChanged::kRefuse, u"../x");
  EXPECT_EQ(outcome.calendar, WriteResult::kFailed);

  store.readOnly = true;  // the key cannot be written: the session goes on under the new name
  outcome = SaveSettings(store, calendars, display, {}, content, WhenChanged::kRefuse, u"Famille");
  EXPECT_EQ(outcome.calendar, WriteResult::kWritten);
  EXPECT_FALSE(outcome.key);
  EXPECT_FALSE(display.changed);
  EXPECT_EQ(display.calendarName.View(), u"Famille");
  EXPECT_EQ(display.calendarPath, u"/user/Famille.xml");
  EXPECT_EQ(FirstRule(ReadCalendar(files.files[kOwnPath].bytes).content), u"Old");
  EXPECT_FALSE(files.Exists(u"/user/Famille.xml"));
}

TEST_F(SaveSettingsTest, AFileThatSomebodyElseChangedIsAskedAbout) {
  store = CMemoryStore("\"CalendarName\"=\"Calendar\"\n");
  PutCalendar(kOwnPath, WithRule(u"Read"));
  StoredSettings stored = Read();
  DisplaySettings& display = stored.calendar.display;
  const CalendarContent mine = WithRule(u"Mine").content;
  display.changed = true;
  PutCalendar(kOwnPath, WithRule(u"Theirs"));

  EXPECT_EQ(SaveSettings(store, calendars, display, {}, mine).calendar, WriteResult::kChanged);
  EXPECT_TRUE(display.changed);
  EXPECT_TRUE(store.written.empty());

  EXPECT_EQ(SaveSettings(store, calendars, display, {}, mine, WhenChanged::kKeepBoth).calendar,
            WriteResult::kWritten);
  EXPECT_EQ(display.calendarName.View(), u"Calendar (2)");
  EXPECT_EQ(TextOf(*store.Read(), "CalendarName", 260), u"Calendar (2)");
  EXPECT_EQ(FirstRule(ReadCalendar(files.files[kOwnPath].bytes).content), u"Theirs");
  EXPECT_EQ(FirstRule(ReadCalendar(files.files[display.calendarPath].bytes).content), u"Mine");

  PutCalendar(display.calendarPath, WithRule(u"Theirs"));
  EXPECT_EQ(SaveSettings(store, calendars, display, {}, mine, WhenChanged::kOverwrite).calendar,
            WriteResult::kWritten);
  EXPECT_EQ(FirstRule(ReadCalendar(files.files[display.calendarPath].bytes).content), u"Mine");
}

TEST_F(SaveSettingsTest, ACalendarThatCannotBeReadIsNoTrap) {
  store = CMemoryStore("\"CalendarName\"=\"Calendar\"\n");
  files.unreadable.insert(kOwnPath);
  StoredSettings stored = Read();
  DisplaySettings& display = stored.calendar.display;
  const CalendarContent mine = WithRule(u"Mine").content;
  const auto save = [&](WhenChanged whenChanged, std::optional<std::u16string_view> newName = {}) {
    return SaveSettings(store, calendars, display, {}, mine, whenChanged, newName).calendar;
  };
  EXPECT_EQ(save(WhenChanged::kRefuse, u"Famille"), WriteResult::kFailed);
  EXPECT_EQ(save(WhenChanged::kOverwrite), WriteResult::kFailed) << "nobody has seen what would be lost";
  EXPECT_EQ(save(WhenChanged::kKeepBoth, u"Famille"), WriteResult::kWritten);
  EXPECT_EQ(display.calendarName.View(), u"Famille");
  EXPECT_EQ(FirstRule(ReadCalendar(files.files[u"/user/Calendar (2).xml"].bytes).content), u"Mine");

  display = stored.calendar.display = Read().calendar.display;
  files.unreadable.insert(display.calendarPath);
  EXPECT_EQ(save(WhenChanged::kKeepBoth), WriteResult::kWritten);
  EXPECT_EQ(display.calendarName.View(), u"Famille (2)");
  EXPECT_FALSE(files.files.count(kOwnPath) > 0) << "what cannot be read is left alone";
}

TEST_F(SaveSettingsTest, AClosingWindowStoresItsRectangleWithThePane) {
  const WindowLayout before{{50, 50, 900, 450}, 0, 1, 9, 1, 0};
  const struct {
    const char* what;
    ClosingFrame frame;
    WindowLayout stored;
  } kRows[] = {
      {"pane shown",
       {{100, 80, 1000, 580}, false, false, true, 250},
       {{100, 80, 1000, 580}, 0, 1, 9, 1, 250}},
      {"pane hidden",
       {{100, 80, 750, 580}, false, false, false, 250},
       {{100, 80, 1000, 580}, 0, 1, 9, 0, 250}},
      {"maximized", {{100, 80, 1000, 580}, true, false, true, 250}, {{100, 80, 1000, 580}, 1, 1, 9, 1, 250}},
      {"maximized since the start", {{}, true, false, true, 250}, {{50, 50, 900, 450}, 1, 1, 9, 1, 250}},
      {"half outside",
       {{1500, 900, 2400, 1300}, false, false, true, 250},
       {{1020, 680, 1920, 1080}, 0, 1, 9, 1, 250}},
      {"pane outside",
       {{0, 0, 2147483647, 400}, false, false, false, 250},
       {{0, 0, 1920, 400}, 0, 1, 9, 0, 250}},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    WindowLayout layout = before;
    EXPECT_TRUE(SaveMainWindowLayout(store, layout, row.frame, kScreen));
    EXPECT_EQ(layout, row.stored);
    WindowLayout read;
    LayoutFromBytes(*BinaryOf(*store.Read(), "WindowLayout"), read);
    EXPECT_EQ(read, row.stored);
  }

  WindowLayout layout = before;
  store.written.clear();
  EXPECT_FALSE(SaveMainWindowLayout(store, layout, {{0, 0, 160, 30}, false, true, true, 250}, kScreen));
  EXPECT_EQ(layout, before);
  EXPECT_TRUE(store.written.empty()) << "a minimized window stores nothing";
  EXPECT_TRUE(SavePrintWindowLayout(store, layout, {{10, 10, 500, 400}, false, false, true, 0}, kScreen));
  EXPECT_EQ(store.written.at(0).name, "PrintWindowLayout");
}

const char kOldValues[] =
    "\"FontName\"=\"Georgia\"\n\"BoldFont\"=dword:000002bc\n\"HeaderTextColor\"=dword:ff010203\n"
    "\"EventFgColor\"=\"red\"\n\"ColorWeekNumber\"=dword:00000001\n\"BackgroundImage\"=dword:0\n"
    "\"BgImagePath\"=hex(2):2f,00,61,00,00,00\n\"Iso8601\"=dword:00000000\n\"ProlepticJulian\"=dword:1\n"
    "\"GregorianStart\"=dword:010b5912\n\"FirstDayOfYear\"=\"15640101;;11550325+;+-440315;\"\n\"Grid\"=dword:"
    "0\n";

TEST_F(MigrationTest, OldValuesMoveIntoTheFileOfANewCalendar) {
  store = CMemoryStore(kOldValues);
  PutShipped(u"France");
  const StoredSettings stored = Read();
  const CalendarFile& calendar = stored.calendar;
  EXPECT_EQ(calendar.display.fontName.View(), u"Georgia");
  EXPECT_EQ(calendar.display.fontWeight, 700);
  EXPECT_EQ(calendar.display.ColorAt(kHeaderTextColor), 0x010203u);
  EXPECT_EQ(calendar.display.ColorAt(kEventFgColor), Rgb(255, 0, 0))
      << "another type: the default of older releases";
  EXPECT_EQ(calendar.display.ColorAt(kHolidayBgColor), Rgb(192, 192, 192));
  EXPECT_EQ(calendar.display.ColorAt(kColorWeekNumber), kGreyTextColor) << "never taken over";
  EXPECT_FALSE(calendar.display.backgroundImage);
  EXPECT_EQ(calendar.display.backgroundImagePath.View(), u"/a");
  EXPECT_FALSE(calendar.display.grid);
  EXPECT_TRUE(calendar.rules.iso8601) << "the locale decides";
  CalendarRules rules = RulesWith(
      17520914, {.proleptic = true, .rows = {{15640101, false}, {11550325, true}, {-440315, true}}});
  EXPECT_EQ(calendar.rules, rules);
  EXPECT_EQ(FirstRule(calendar.content), u"France") << "never an empty list";

  CalendarFile written = ReadCalendar(files.files[kOwnPath].bytes, calendar.display);
  EXPECT_EQ(written, calendar);
  const StoredValues values = *store.Read();
  EXPECT_EQ(values.size(), 10u) << "nothing but the name and the nine numbers";
  EXPECT_EQ(TextOf(values, "CalendarName", 260), u"Calendar");
  EXPECT_EQ(DwordOf(values, "Grid"), 0u);

  store.written.clear();
  EXPECT_EQ(Read().calendar, calendar) << "the next start reads what this one wrote";
  EXPECT_TRUE(store.written.empty());
}

TEST_F(MigrationTest, ANameThatCannotBeReadStartsIt) {
  const std::string tooLong = std::string(261, 'a');
  for (const std::string& value :
       {std::string("dword:1"), std::string("hex(1):41,00,42,00"), std::string("hex(1):41,00,00"),
        std::string("hex:41,00,00,00"), "\"" + tooLong + "\""}) {
    files.files.clear();
    store = CMemoryStore("\"CalendarName\"=" + value + "\n\"WindowLayout\"=hex:\n");
    EXPECT_EQ(Read().calendar.display.calendarName.View(), u"Calendar");
    EXPECT_TRUE(files.Exists(kOwnPath)) << value;
    EXPECT_EQ(TextOf(*store.Read(), "CalendarName", 260), u"Calendar") << value;
  }
}

TEST_F(MigrationTest, WhatAnExistingFileHoldsIsKept) {
  CalendarFile own = WithRule(u"Anniversaire");
  own.display.colors[kHolidayFontColor] = 0x123456;
  own.display.backgroundImagePath.Set(u"/mine.png");
  own.rules = RulesWith(19180214);
  PutCalendar(kOwnPath, own);
  PutShipped(u"France");

  store = CMemoryStore("\"Grid\"=dword:0\n");  // a key that lost its name, and no old value
  StoredSettings stored = Read();
  EXPECT_EQ(stored.calendar.content, own.content);
  EXPECT_EQ(stored.calendar.display.colors, own.display.colors);
  EXPECT_EQ(stored.calendar.rules, own.rules);

  store =
      CMemoryStore(kOldValues + std::string("\"HolidayFontColor\"=dword:1\n"));  // an old export dropped in
  stored = Read();
  EXPECT_EQ(stored.calendar.content, own.content);
  EXPECT_EQ(stored.calendar.display.fontName.View(), u"Georgia");
  EXPECT_EQ(stored.calendar.display.ColorAt(kHeaderTextColor), 0x010203u);
  EXPECT_EQ(stored.calendar.display.ColorAt(kHolidayFontColor), 0x123456u) << "chosen in this calendar";
  EXPECT_EQ(stored.calendar.display.ColorAt(kHolidayBgColor), own.display.ColorAt(kHolidayBgColor));
  EXPECT_EQ(stored.calendar.display.backgroundImagePath.View(), u"/mine.png");
  EXPECT_EQ(stored.calendar.rules.startGregorian, 19180214);
  EXPECT_TRUE(stored.calendar.rules.proleptic);
  EXPECT_EQ(ReadCalendar(files.files[kOwnPath].bytes, stored.calendar.display), stored.calendar);
}

TEST_F(MigrationTest, NothingIsDeletedBeforeTheFileIsWritten) {
  PutShipped(u"France");
  files.Put(u"/user/fr_public.xml", "old copy");
  files.Put(u"/user/xy_public.xml", "old copy");
  PutCalendar(u"/user/le_publics.xml", {});
  files.failingWrites.insert(kOwnPath);
  store = CMemoryStore(kOldValues);
  const std::string before = *store.text;
  for (int start = 0; start < 2; ++start) {
    EXPECT_EQ(Read().calendar.display.fontName.View(), u"Georgia") << "this session has the old settings";
    EXPECT_EQ(*store.text, before);
    EXPECT_TRUE(files.Exists(u"/user/fr_public.xml"));
  }

  files.failingWrites.clear();
  EXPECT_EQ(FirstRule(Read().calendar.content), u"France");
  EXPECT_EQ(files.trash.size(), 2u);
  EXPECT_EQ(files.trash[u"/user/fr_public.xml"].bytes, "old copy");
  EXPECT_TRUE(files.Exists(u"/user/le_publics.xml"));
  EXPECT_TRUE(files.Exists(u"/share/Legals/France.xml"));
}

TEST_F(MigrationTest, AFileThatCannotBeReadIsLeftAlone) {
  files.unreadable.insert(kOwnPath);
  store = CMemoryStore(kOldValues);
  const std::string before = *store.text;
  EXPECT_EQ(Read().file, LoadResult::kUnreadable);
  EXPECT_EQ(*store.text, before);
  EXPECT_TRUE(files.files.empty());
}

TEST_F(MigrationTest, WhereTheKeyCannotBeWrittenLaterChangesStay) {
  store = CMemoryStore(kOldValues);
  store.readOnly = true;
  files.trashFails = true;
  files.Put(u"/user/fr_public.xml", "old copy");
  StoredSettings stored = Read();
  EXPECT_EQ(stored.calendar.display.fontName.View(), u"Georgia") << "this session has the old settings";
  EXPECT_FALSE(files.Exists(kOwnPath)) << "and keeps them nowhere but where they were";
  stored.calendar.display.fontName.Set(u"Chosen since");
  stored.calendar.display.colors[kHeaderTextColor] = 0x445566;
  EXPECT_EQ(
      SaveSettings(store, calendars, stored.calendar.display, stored.calendar.rules, stored.calendar.content)
          .calendar,
      WriteResult::kWritten);
  EXPECT_EQ(Read().calendar, stored.calendar);
  EXPECT_TRUE(files.Exists(u"/user/fr_public.xml"));

  store.readOnly = false;
  EXPECT_EQ(Read().calendar, stored.calendar) << "also once the key can be written again";
  EXPECT_EQ(ReadCalendar(files.files[kOwnPath].bytes, stored.calendar.display), stored.calendar);
  EXPECT_EQ(store.Read()->count("FontName"), 0u);
}

}  // namespace
}  // namespace orbisol

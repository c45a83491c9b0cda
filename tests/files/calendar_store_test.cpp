#include "files/calendar_store.h"

#include <gtest/gtest.h>

#include "tests/support/memory_files.h"

namespace orbisol {
namespace {

using namespace std::string_view_literals;

const std::string kUnknownElement = "<CalendarNotes>keep me</CalendarNotes>";

class CalendarStoreTest : public testing::Test {
 protected:
  CMemoryFiles files;
  CCalendarStore store{files};
  CalendarFile calendar;

  static CalendarFile WithRule(std::u16string_view name) {
    CalendarFile made;
    made.content.dayEvents = {{0, true, 1, 1, 0, 0, kAlwaysFrom, kAlwaysTo, {name}}};
    return made;
  }
  static std::string BytesWithRule(std::u16string_view name) {
    return WriteCalendar(WithRule(name), CalendarForm::kUser);
  }
  std::string Bytes(const std::u16string& path) const {
    const auto found = files.files.find(path);
    return found == files.files.end() ? "(no file)" : found->second.bytes;
  }
};

TEST_F(CalendarStoreTest, ANameIsOneFileName) {
  const std::u16string longest = std::u16string(198, u'a') + u"é";  // 200 bytes
  for (std::u16string_view name :
       {std::u16string_view(u"A"), std::u16string_view(u"Été 2024 (2)"), std::u16string_view(u"…"),
        std::u16string_view(u"..."), std::u16string_view(u"a.b"), std::u16string_view(longest)})
    EXPECT_TRUE(IsCalendarName(name));

  const std::u16string tooLong = longest + u"a";
  const std::u16string zero(1, u'\0');
  const std::u16string halfAPair(1, u'\xD83C');
  for (std::u16string_view name :
       {std::u16string_view(u""), std::u16string_view(u"."), std::u16string_view(u".."),
        std::u16string_view(u"../x"), std::u16string_view(u"a/b"), std::u16string_view(u"/etc/passwd"),
        std::u16string_view(u"a\\b"), std::u16string_view(u"a\nb"), std::u16string_view(u"a\x7F"),
        std::u16string_view(u"\x85"), std::u16string_view(zero), std::u16string_view(halfAPair),
        std::u16string_view(tooLong)}) {
    EXPECT_FALSE(IsCalendarName(name)) << testing::PrintToString(name);
    EXPECT_EQ(CalendarNameOrDefault(name), u"Calendar");
    EXPECT_EQ(store.PathOf(name), u"");
    EXPECT_EQ(store.Load(name, {}, calendar), LoadResult::kMissing);
    EXPECT_EQ(store.Save(name, calendar, IfChanged::kOverwrite), WriteResult::kFailed);
    EXPECT_FALSE(store.Exists(name));
    EXPECT_FALSE(store.Delete(name));
  }
  EXPECT_TRUE(files.files.empty());
}

TEST_F(CalendarStoreTest, CalendarsAreListedByNameAndDeletedToTheTrash) {
  files.Put(u"/user/A.xml", "");
  files.Put(u"/user/famille.xml", "");
  files.Put(u"/user/Famille.xml", "");
  files.Put(u"/user/Été.xml", "");
  files.Put(u"/user/A.xml.bak", "");
  files.Put(u"/user/.xml", "");
  files.Put(u"/user/Legals/B.xml", "");
  EXPECT_EQ(store.Names(), (std::vector<std::u16string>{u"A", u"Été", u"Famille", u"famille"}));

  files.trashFails = true;
  EXPECT_FALSE(store.Delete(u"A"));
  EXPECT_TRUE(store.Exists(u"A"));
  files.trashFails = false;
  EXPECT_TRUE(store.Delete(u"A"));
  EXPECT_EQ(store.Names().front(), u"Été");
  EXPECT_EQ(files.trash.count(u"/user/A.xml"), 1u);
  EXPECT_FALSE(store.Delete(u"A"));
}

TEST_F(CalendarStoreTest, ACalendarIsLoadedChangedAndSavedAgainAndAgain) {
  EXPECT_EQ(store.Load(u"A", {}, calendar), LoadResult::kMissing);
  EXPECT_TRUE(calendar == ReadCalendar(""));
  for (const char16_t* name : {u"one", u"two"}) {
    EXPECT_EQ(store.Save(u"A", WithRule(name), IfChanged::kRefuse), WriteResult::kWritten);
    EXPECT_EQ(Bytes(u"/user/A.xml"), BytesWithRule(name));
  }
  CCalendarStore later(files);
  EXPECT_EQ(later.Load(u"A", {}, calendar), LoadResult::kLoaded);
  EXPECT_TRUE(calendar.content == WithRule(u"two").content);
  EXPECT_EQ(later.Save(u"A", WithRule(u"three"), IfChanged::kRefuse), WriteResult::kWritten);
  EXPECT_EQ(files.files.size(), 1u) << "nothing was lost, so no copy was made";
}

TEST_F(CalendarStoreTest, AFileChangedBySomebodyElseIsLeftAlone) {
  files.Put(u"/user/A.xml", BytesWithRule(u"mine"));
  EXPECT_EQ(store.Save(u"A", WithRule(u"new"), IfChanged::kRefuse), WriteResult::kChanged) << "never loaded";
  store.Load(u"A", {}, calendar);

  files.Put(u"/user/A.xml", BytesWithRule(u"mine"));  // the same bytes, copied back
  EXPECT_EQ(store.Save(u"A", WithRule(u"ours"), IfChanged::kRefuse), WriteResult::kWritten);

  files.Put(u"/user/A.xml", BytesWithRule(u"theirs"));
  EXPECT_EQ(store.Save(u"A", WithRule(u"ours again"), IfChanged::kRefuse), WriteResult::kChanged);
  EXPECT_EQ(Bytes(u"/user/A.xml"), BytesWithRule(u"theirs"));

  std::u16string beside;
  EXPECT_EQ(store.SaveBeside(u"A", WithRule(u"ours again"), beside), WriteResult::kWritten);
  EXPECT_EQ(beside, u"A (2)");
  EXPECT_EQ(Bytes(u"/user/A (2).xml"), BytesWithRule(u"ours again"));
  EXPECT_EQ(store.Save(beside, WithRule(u"next"), IfChanged::kRefuse), WriteResult::kWritten);

  EXPECT_EQ(store.Save(u"A", WithRule(u"ours again"), IfChanged::kOverwrite), WriteResult::kWritten);
  EXPECT_EQ(Bytes(u"/user/A.xml"), BytesWithRule(u"ours again"));
}

TEST_F(CalendarStoreTest, WhoWritesInTheLastMomentIsFoundToo) {
  files.Put(u"/user/A.xml", BytesWithRule(u"mine"));
  store.Load(u"A", {}, calendar);
  files.beforeReplace = [&] { files.Put(u"/user/A.xml", BytesWithRule(u"theirs")); };
  EXPECT_EQ(store.Save(u"A", WithRule(u"ours"), IfChanged::kOverwrite), WriteResult::kChanged);
  EXPECT_EQ(Bytes(u"/user/A.xml"), BytesWithRule(u"theirs"));

  store.Load(u"B", {}, calendar);
  files.beforeReplace = [&] { files.Put(u"/user/B.xml", BytesWithRule(u"theirs")); };
  EXPECT_EQ(store.Save(u"B", WithRule(u"ours"), IfChanged::kRefuse), WriteResult::kChanged);
}

TEST_F(CalendarStoreTest, AFileThatSomebodyDeletedIsWrittenAgain) {
  files.Put(u"/user/A.xml", BytesWithRule(u"mine"));
  store.Load(u"A", {}, calendar);
  files.files.clear();
  EXPECT_EQ(store.Save(u"A", WithRule(u"mine"), IfChanged::kRefuse), WriteResult::kWritten);
}

TEST_F(CalendarStoreTest, AFileThatCannotBeReadIsNotOverwritten) {
  files.Put(u"/user/A.xml", BytesWithRule(u"mine"));
  files.unreadable.insert(u"/user/A.xml");
  EXPECT_EQ(store.Load(u"A", {}, calendar), LoadResult::kUnreadable);
  EXPECT_EQ(store.Save(u"A", WithRule(u"ours"), IfChanged::kOverwrite), WriteResult::kFailed);
  files.unreadable.clear();
  EXPECT_EQ(store.Save(u"A", WithRule(u"ours"), IfChanged::kRefuse), WriteResult::kChanged);
  EXPECT_EQ(Bytes(u"/user/A.xml"), BytesWithRule(u"mine"));
}

TEST_F(CalendarStoreTest, WhatTheReaderDroppedIsCopiedFirst) {
  const std::string first = BytesWithRule(u"mine") + kUnknownElement;
  files.Put(u"/user/A.xml", first);
  store.Load(u"A", {}, calendar);

  files.failingWrites = {u"/user/A.xml.bak"};
  EXPECT_EQ(store.Save(u"A", calendar, IfChanged::kRefuse), WriteResult::kFailed);
  EXPECT_EQ(Bytes(u"/user/A.xml"), first) << "no copy, no change";

  files.failingWrites = {u"/user/A.xml"};
  EXPECT_EQ(store.Save(u"A", calendar, IfChanged::kRefuse), WriteResult::kFailed);
  EXPECT_EQ(Bytes(u"/user/A.xml"), first);
  EXPECT_EQ(Bytes(u"/user/A.xml.bak"), first);

  files.failingWrites.clear();
  EXPECT_EQ(store.Save(u"A", calendar, IfChanged::kRefuse), WriteResult::kWritten);
  EXPECT_EQ(Bytes(u"/user/A.xml"), BytesWithRule(u"mine"));
  EXPECT_EQ(store.Save(u"A", WithRule(u"two"), IfChanged::kRefuse), WriteResult::kWritten);
  EXPECT_EQ(Bytes(u"/user/A.xml.bak"), first) << "the file of now has lost nothing";
  EXPECT_EQ(files.files.size(), 2u);
}

TEST_F(CalendarStoreTest, AnOlderCopyMakesPlaceAndIsKept) {
  const std::string odd[] = {"<x>0</x>", "<x>1</x>", "<x>2</x>"};
  for (const std::string& bytes : odd) {
    files.Put(u"/user/A.xml", bytes);
    store.Load(u"A", {}, calendar);
    EXPECT_EQ(store.Save(u"A", calendar, IfChanged::kRefuse), WriteResult::kWritten);
  }
  EXPECT_EQ(Bytes(u"/user/A.xml.bak"), odd[2]);
  EXPECT_EQ(Bytes(u"/user/A.xml.bak.1"), odd[0]);
  EXPECT_EQ(Bytes(u"/user/A.xml.bak.2"), odd[1]);

  files.Put(u"/user/A.xml", "<x>3</x>");
  store.Load(u"A", {}, calendar);
  files.failingWrites = {u"/user/A.xml.bak.3"};
  EXPECT_EQ(store.Save(u"A", calendar, IfChanged::kRefuse), WriteResult::kFailed);
  files.failingWrites.clear();
  files.unreadable = {u"/user/A.xml.bak"};
  EXPECT_EQ(store.Save(u"A", calendar, IfChanged::kRefuse), WriteResult::kFailed);
  EXPECT_EQ(Bytes(u"/user/A.xml"), "<x>3</x>");
}

TEST_F(CalendarStoreTest, TheDescriptionOfAFileSurvivesASave) {
  files.Put(u"/user/A.xml", "<info>d'ici</info>" + BytesWithRule(u"mine"));
  store.Load(u"A", {}, calendar);
  EXPECT_EQ(store.Save(u"A", WithRule(u"two"), IfChanged::kRefuse), WriteResult::kWritten);
  EXPECT_EQ(store.Description(u"/user/A.xml"), u"d'ici");
  std::u16string beside;
  store.SaveBeside(u"A", WithRule(u"three"), beside);
  EXPECT_EQ(store.Description(store.PathOf(beside)), u"d'ici");
  CalendarFile other = WithRule(u"four");
  other.info = u"de là";
  EXPECT_EQ(store.Save(u"A", other, IfChanged::kRefuse), WriteResult::kWritten);
  EXPECT_EQ(store.Description(u"/user/A.xml"), u"de là");
}

TEST_F(CalendarStoreTest, AFreeNameCountsOnFromTheName) {
  EXPECT_EQ(store.FreeName(u"A"), u"A (2)");
  files.Put(u"/user/A (2).xml", "");
  files.Put(u"/user/A (3).xml", "");
  EXPECT_EQ(store.FreeName(u"A"), u"A (4)");
  EXPECT_EQ(store.FreeName(u"A (3)"), u"A (4)");
  EXPECT_EQ(store.FreeName(u"A (b)"), u"A (b) (2)");
  EXPECT_EQ(store.FreeName(u"(7)"), u"(7) (2)");
  EXPECT_EQ(store.FreeName(u"../x"), u"Calendar (2)");
  const std::u16string longest = std::u16string(196, u'a') + u"🎂";
  EXPECT_EQ(store.FreeName(longest), std::u16string(196, u'a') + u" (2)");
}

TEST_F(CalendarStoreTest, PublicCalendarsOfBothFoldersStandInOneList) {
  for (const char16_t* name : {u"Zambie", u"États-Unis", u"France", u"Espagne", u"fr_public"})
    files.Put(std::u16string(u"/share/Legals/") + name + u".xml", "<info>shipped</info>");
  files.Put(u"/user/Legals/France.xml", "<info>mine</info>");
  files.Put(u"/user/Legals/de_public.xml", "");

  std::vector<std::u16string> paths;
  for (const PublicCalendar& listed : store.PublicCalendars()) paths.push_back(listed.path);
  EXPECT_EQ(paths, (std::vector<std::u16string>{u"/user/Legals/de_public.xml", u"/share/Legals/Espagne.xml",
                                                u"/share/Legals/États-Unis.xml", u"/user/Legals/France.xml",
                                                u"/share/Legals/Zambie.xml"}));
  EXPECT_EQ(store.PublicPathOf(u"France"), u"/user/Legals/France.xml");
  EXPECT_EQ(store.PublicPathOf(u"fr_public"), u"/share/Legals/fr_public.xml");
  EXPECT_EQ(store.PublicPathOf(u"Suisse"), u"");
  EXPECT_EQ(store.PublicPathOf(u"../A"), u"");
  EXPECT_EQ(store.Description(u"/user/Legals/France.xml"), u"mine");
  EXPECT_EQ(store.Description(u"/nowhere.xml"), u"");
  EXPECT_FALSE(store.LoadPublic(u"/nowhere.xml").has_value());
}

TEST(ImportHolidaysTest, PublicRulesAreAddedOrReplacedAndPersonalOnesStay) {
  const auto rule = [](std::u16string_view name, bool isPublic) {
    return DayEvent{0, isPublic, 1, 1, 0, 0, kAlwaysFrom, kAlwaysTo, {name}};
  };
  const auto names = [](const CalendarContent& content) {
    std::u16string out;
    for (const DayEvent& event : content.dayEvents) out.append(event.name.View()).append(u" ");
    for (const HolidayPeriod& period : content.holidays) out.append(period.title.View()).append(u" ");
    return out;
  };
  const CalendarContent mine{{rule(u"old"sv, true), rule(u"me"sv, false), rule(u"both"sv, true)},
                             {{20240101, 20240107, {u"winter"sv}}}};
  const CalendarContent theirs{{rule(u"new"sv, true), rule(u"both"sv, true), rule(u"feast"sv, false)},
                               {{20240101, 20240107, {u"winter"sv}}, {20240701, 20240831, {u"summer"sv}}}};

  CalendarContent added = mine;
  ImportHolidays(added, theirs, false);
  EXPECT_EQ(names(added), u"old me both new feast winter summer ");
  CalendarContent replaced = mine;
  ImportHolidays(replaced, theirs, true);
  EXPECT_EQ(names(replaced), u"me new both feast winter summer ");
  const CalendarContent once = replaced;
  ImportHolidays(replaced, theirs, false);
  EXPECT_TRUE(replaced == once) << "a second import adds nothing";

  CalendarContent kept = mine;
  ImportHolidays(kept, {}, true);
  EXPECT_TRUE(kept == mine) << "an empty calendar takes nothing away";
}

}  // namespace
}  // namespace orbisol

#include "files/calendar_store.h"

#include <gtest/gtest.h>

#include "tests/support/memory_calendars.h"

namespace orbisol {
namespace {

using namespace std::literals;

const std::u16string kPath = u"/user/A.xml";

class CalendarStoreTest : public testing::Test, protected MemoryCalendars {
 protected:
  CalendarFile calendar;

  std::string Bytes(const std::u16string& path) { return files.Read(path).value_or(FileBytes()).bytes; }
  WriteResult Save(std::u16string_view rule, IfChanged ifChanged = IfChanged::kRefuse) {
    return MemoryCalendars::Save(u"A", rule, ifChanged);
  }
};

TEST_F(CalendarStoreTest, ANameIsOneFileName) {
  const std::u16string longest = std::u16string(198, u'a') + u"é";  // 200 bytes
  for (const std::u16string& name : {u"Été 2024 (2)"s, u"…"s, u"..."s, u"a.b"s, longest})
    EXPECT_TRUE(IsCalendarName(name));
  for (const std::u16string& name : {u""s, u"."s, u".."s, u"../x"s, u"a/b"s, u"a\\b"s, u"a\nb"s, u"a\x7F"s,
                                     u"\x85"s, u"\0"s, u"\xD83C"s, longest + u"a"}) {
    EXPECT_FALSE(IsCalendarName(name)) << testing::PrintToString(name);
    EXPECT_EQ(CalendarNameOrDefault(name), u"Calendar");
    EXPECT_EQ(calendars.Load(name, calendar), LoadResult::kMissing);
    EXPECT_EQ(calendars.Save(name, calendar, IfChanged::kOverwrite).result, WriteResult::kFailed);
    EXPECT_FALSE(calendars.Delete(name));
  }
  EXPECT_TRUE(files.files.empty());
}

TEST_F(CalendarStoreTest, ANewNameIsVisibleAndNobodyElses) {
  const std::u16string names[] = {u"Famille", u"ÉTÉ", u"Дом"};
  using enum NameFault;
  const std::pair<std::u16string_view, NameFault> kRows[] = {
      {u"Travail", kNone},       {u"\u3000 \u00A0", kBlank}, {u"Fa\u200Bmille", kInvisible},
      {u"my_public", kReserved}, {u" été", kNone},           {u"\u202Etravail", kInvisible},
      {u"famille", kTaken},      {u"été", kTaken},           {u"../x", kNoFileName},
      {u"дом", kTaken},
  };
  for (const auto& [name, fault] : kRows)
    EXPECT_EQ(FaultOfNewName(name, names), fault) << testing::PrintToString(name);
  for (const char16_t* name : {u"fr_public", u"é🎂_public"}) EXPECT_TRUE(IsFirstStartName(name));
  for (const char16_t* name : {u"🎂_public", u"mes_public", u"fr_publics"})
    EXPECT_FALSE(IsFirstStartName(name));
}

TEST_F(CalendarStoreTest, CalendarsAreListedByNameAndDeletedToTheTrash) {
  for (const char16_t* name : {u"A.xml", u"famille.xml", u"Famille.xml", u"Été.xml", u"A.xml.bak", u".xml"})
    files.Put(u"/user/"s + name, "");
  files.Put(u"/user/Legals/B.xml", "");
  EXPECT_EQ(calendars.Names(), (std::vector<std::u16string>{u"A", u"Été", u"Famille", u"famille"}));
  EXPECT_TRUE(calendars.Delete(u"A"));
  EXPECT_EQ(files.trash.count(kPath), 1u);
  EXPECT_FALSE(calendars.Delete(u"A"));
}

TEST_F(CalendarStoreTest, AFileChangedBySomebodyElseIsLeftAlone) {
  EXPECT_EQ(Save(u"one"), WriteResult::kWritten);
  EXPECT_EQ(Save(u"two"), WriteResult::kWritten);
  EXPECT_FALSE(files.Exists(kPath + u".bak")) << "nothing was lost, so no copy was made";

  CCalendarStore later(files, kMemoryFolders);
  EXPECT_EQ(later.Save(u"A", CalendarWith(u"new"), IfChanged::kRefuse).result, WriteResult::kChanged)
      << "never loaded";
  Put(u"A", u"two");  // the same bytes, copied back
  EXPECT_EQ(Save(u"three"), WriteResult::kWritten);

  Put(u"A", u"theirs");
  EXPECT_EQ(Save(u"ours"), WriteResult::kChanged);
  const SavedCalendar beside = calendars.Save(u"A", CalendarWith(u"ours"), IfChanged::kKeepBoth);
  EXPECT_EQ(beside.result, WriteResult::kWritten);
  EXPECT_EQ(beside.name, u"A (2)");
  EXPECT_EQ(files.lastModel, kPath) << "it takes the rights of the calendar beside which it is made";
  EXPECT_EQ(OnDisk(), "A=theirs A (2)=ours ");
  EXPECT_EQ(MemoryCalendars::Save(beside.name, u"next"), WriteResult::kWritten);
  EXPECT_EQ(Save(u"ours", IfChanged::kOverwrite), WriteResult::kWritten);
  EXPECT_EQ(OnDisk(), "A=ours A.bak=theirs A (2)=next ");

  files.beforeReplace = [&] { Put(u"A", u"at the last moment"); };
  EXPECT_EQ(Save(u"ours again", IfChanged::kOverwrite), WriteResult::kChanged);
  EXPECT_EQ(Save(u"ours", IfChanged::kOverwrite), WriteResult::kWritten);
  files.syncFails = true;
  EXPECT_EQ(Save(u"next"), WriteResult::kNotSynced);
  files.syncFails = false;
  EXPECT_EQ(Save(u"next"), WriteResult::kWritten) << "the new bytes were ours";
  files.unreadable = {kPath};
  EXPECT_EQ(calendars.Load(u"A", calendar), LoadResult::kUnreadable);
  EXPECT_EQ(Save(u"ours", IfChanged::kOverwrite), WriteResult::kFailed)
      << "nobody has seen what would be lost";
  files.unreadable.clear();
  files.files.clear();
  EXPECT_EQ(Save(u"ours"), WriteResult::kWritten) << "what somebody deleted is written again";
}

TEST_F(CalendarStoreTest, WhatTheReaderDroppedIsCopiedAndAnOlderCopyMakesPlace) {
  const std::string odd[] = {"<x>0</x>", "<x>1</x>", "<x>2</x>", "<x>3</x>"};
  for (int i = 0; i < 3; ++i) {
    files.Put(kPath, odd[i]);
    calendars.Load(u"A", calendar);
    EXPECT_EQ(Save(u"new"), WriteResult::kWritten);
    EXPECT_EQ(Save(u"newer"), WriteResult::kWritten) << "the file of now loses nothing";
  }
  const auto backups = [&] {
    return Bytes(kPath + u".bak") + Bytes(kPath + u".bak.1") + Bytes(kPath + u".bak.2") +
           Bytes(kPath + u".bak.3");
  };
  EXPECT_EQ(backups(), odd[2] + odd[0] + odd[1]);

  files.Put(kPath, odd[2]);
  calendars.Load(u"A", calendar);
  EXPECT_EQ(Save(u"new"), WriteResult::kWritten);
  EXPECT_EQ(backups(), odd[2] + odd[0] + odd[1]) << "those bytes are backed up already";

  files.Put(kPath, odd[3]);
  calendars.Load(u"A", calendar);
  files.beforeLock = [&] { Put(u"A", u"theirs"); };
  EXPECT_EQ(Save(u"new"), WriteResult::kChanged);
  EXPECT_EQ(backups(), odd[2] + odd[0] + odd[1]) << "nothing was replaced, so nothing is backed up";

  files.Put(kPath, odd[3]);
  files.failingWrites = {kPath + u".bak.3"};
  EXPECT_EQ(Save(u"new"), WriteResult::kFailed);
  files.failingWrites.clear();
  files.unreadable = {kPath + u".bak"};
  EXPECT_EQ(Save(u"new"), WriteResult::kFailed);
  EXPECT_EQ(Bytes(kPath), odd[3]) << "no copy, no change";
}

TEST_F(CalendarStoreTest, TheDescriptionOfAFileSurvivesASave) {
  files.Put(kPath, "<info>d'ici</info>" + BytesWith(u"mine"));
  calendars.Load(u"A", calendar);
  EXPECT_EQ(Save(u"two"), WriteResult::kWritten);
  EXPECT_EQ(ReadCalendar(Bytes(kPath)).info, u"d'ici");
  files.Put(kPath, "<info>d'ailleurs</info>" + BytesWith(u"theirs"));
  const std::u16string beside = calendars.Save(u"A", CalendarWith(u"three"), IfChanged::kKeepBoth).name;
  EXPECT_EQ(ReadCalendar(Bytes(calendars.PathOf(beside))).info, u"d'ailleurs");
}

TEST_F(CalendarStoreTest, AFreeNameCountsOnFromTheName) {
  EXPECT_EQ(calendars.FreeName(u"A"), u"A (2)");
  files.Put(u"/user/A (2).xml", "");
  files.Put(u"/user/A (3).xml", "");
  EXPECT_EQ(calendars.FreeName(u"A (3)"), u"A (4)");
  EXPECT_EQ(calendars.FreeName(u"A (b)"), u"A (b) (2)");
  files.isClosed = true;
  EXPECT_EQ(Save(u"one", IfChanged::kKeepBoth), WriteResult::kFailed) << "and does not look for ever";
  files.isClosed = false;
  EXPECT_EQ(calendars.FreeName(std::u16string(196, u'a') + u"🎂"), std::u16string(196, u'a') + u" (2)");
}

TEST_F(CalendarStoreTest, PublicCalendarsOfBothFoldersStandInOneList) {
  for (const char16_t* name : {u"Zambie", u"États-Unis", u"France", u"Espagne", u"fr_public"})
    files.Put(std::u16string(u"/share/Legals/") + name + u".xml", "<info>shipped</info>");
  files.Put(u"/user/Legals/France.xml", "<info>mine</info>");
  for (const char16_t* name : {u"de_public", u"../Mien"})
    files.Put(std::u16string(u"/user/Legals/") + name + u".xml", "");
  std::vector<std::u16string> paths;
  for (const PublicCalendar& listed : publicCalendars.List()) paths.push_back(listed.path);
  EXPECT_EQ(paths, (std::vector<std::u16string>{u"/user/Legals/de_public.xml", u"/share/Legals/Espagne.xml",
                                                u"/share/Legals/États-Unis.xml", u"/user/Legals/France.xml",
                                                u"/share/Legals/Zambie.xml"}));
  EXPECT_EQ(publicCalendars.PathOf(u"France"), u"/user/Legals/France.xml");
  for (const char16_t* none : {u"Suisse", u"../Mien"}) EXPECT_EQ(publicCalendars.PathOf(none), u"");
  EXPECT_EQ(publicCalendars.Load(u"/user/Legals/France.xml")->info, u"mine");
  EXPECT_FALSE(publicCalendars.Load(u"/nowhere.xml").has_value());
}

}  // namespace
}  // namespace orbisol

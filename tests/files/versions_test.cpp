#include "files/versions.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "tests/support/fakes.h"
#include "tests/support/memory_calendars.h"

namespace orbisol {
namespace {

using namespace std::literals;

class VersionsTest : public testing::Test {
 protected:
  CMemoryFiles files;
  CVersions versions{files, kMemoryFolders.versions};

  std::vector<std::string> Kept(std::u16string_view name) {
    std::vector<std::string> bytes;
    for (const CalendarVersion& version : versions.List(name))
      bytes.push_back(versions.Read(name, version).value_or("gone"));
    return bytes;
  }
};

TEST_F(VersionsTest, AFileIsNamedByTimeCountAndHash) {
  files.Put(u"/versions/A/2026-05-13 14.05.09 000017 85944171f73967e8.xml", "foobar");
  for (const char16_t* stray : {u"2026-05-13 14.05.09 000099 85944171f73967e8.xml.tmp", u"notes.xml",
                                u"2026-05-13 14.05.09 000099 85944171F73967E8.xml"})
    files.Put(u"/versions/A/"s + stray, "x");
  EXPECT_TRUE(versions.Keep(u"A", "", {{2026, 5, 13}, 7, 8, 9}));
  EXPECT_EQ(files.files.count(u"/versions/A/2026-05-13 07.08.09 000018 cbf29ce484222325.xml"), 1u)
      << "newer by its count, whatever the clock says";
  EXPECT_EQ(versions.List(u"A"),
            (std::vector<CalendarVersion>{{{{2026, 5, 13}, 7, 8, 9}, 18, 0xCBF29CE484222325, 0},
                                          {{{2026, 5, 13}, 14, 5, 9}, 17, 0x85944171F73967E8, 6}}));
  EXPECT_EQ(files.files.size(), 5u) << "what is no version is left alone";
  files.Put(u"/versions/B/2026-05-13 14.05.09 999999 85944171f73967e8.xml", "foobar");
  EXPECT_TRUE(versions.Keep(u"B", "last", {{2026, 5, 14}, 0, 0, 0}));
  EXPECT_EQ(Kept(u"B"), (std::vector<std::string>{"last", "foobar"}))
      << "the count ends, the versions do not";
}

TEST_F(VersionsTest, EachCalendarHasAFolderOfItsOwn) {
  const std::u16string longest(200, u'x');
  const std::u16string names[] = {u"famille", u"Famille", u"...", u" ", u"a.b", u".x", u"🎂 שלום", longest};
  for (const std::u16string& name : names) EXPECT_TRUE(versions.Keep(name, ToUtf8(name), {}));
  for (const std::u16string& name : names) EXPECT_EQ(Kept(name), std::vector<std::string>{ToUtf8(name)});
  for (const std::u16string& name : {u""s, u".."s, u"../user"s, longest + u"x"})
    EXPECT_FALSE(versions.Keep(name, "", {}));
  EXPECT_EQ(files.files.size(), std::size(names));
  EXPECT_FALSE(CVersions(files, {}).Keep(u"A", "", {})) << "there is no folder for versions";
}

TEST_F(VersionsTest, AtMostFiftyMillionBytesOfACalendarAreKept) {
  const auto big = [](char letter) {
    std::string bytes;
    bytes.resize(kMostVersionBytes * 2 / 5, letter);
    return bytes;
  };
  for (const char letter : {'a', 'b', 'c'}) versions.Keep(u"A", big(letter), {});
  EXPECT_EQ(Kept(u"A"), (std::vector<std::string>{big('c'), big('b')}));
  EXPECT_FALSE(versions.Keep(u"A", std::string(kMostVersionBytes + 1, 'd'), {}));
  EXPECT_EQ(versions.List(u"A").size(), 2u) << "what never fits costs no other its place";
}

// Saves at random, of few contents so that many repeat. The list of all of them in their true order says what
// must be there; where the clock is also set back nobody can say which days are earlier ones.
TEST_F(VersionsTest, WhateverTheClockSaysTheNewestAreKeptAndTheLastOfEarlierDays) {
  for (const bool isSetBack : {false, true}) {
    std::mt19937 random(1);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    files.files.clear();
    std::vector<std::pair<int, std::string>> saves;  // the newest first: day, bytes
    int day = 2000;
    for (int save = 0; save < 2000; ++save) {
      if (const int step = below(20); step < 8) day += step < 7 || !isSetBack ? step / 3 : -below(day + 1);
      const std::string bytes(1, static_cast<char>('A' + below(30)));
      const LocalMoment now{{2000 + day / 336, 1 + day / 28 % 12, 1 + day % 28}, below(24), 0, 0};
      ASSERT_TRUE(versions.Keep(u"A", bytes, now));
      saves.insert(saves.begin(), {day, bytes});

      std::set<std::string> newest;
      std::set<int> days;
      std::vector<std::string> expected;
      for (const auto& [savedDay, saved] : saves) {
        const bool isNewest = newest.size() < 10 && newest.insert(saved).second;
        const bool isLast = savedDay != day && days.size() < 7 && days.insert(savedDay).second;
        if (isNewest || (isLast && !isSetBack)) expected.push_back(saved);
      }
      std::vector<std::string> kept = Kept(u"A");
      ASSERT_LE(kept.size(), kNewestVersions + kVersionDays);
      if (isSetBack) {
        const auto isSpare = [&](const std::string& one) { return newest.erase(one) == 0; };
        std::erase_if(kept, isSpare);
      }
      ASSERT_EQ(kept, expected) << save;
    }
  }
}

class SavedVersionsTest : public testing::Test, protected MemoryCalendars {
 protected:
  const ScopedPlatform clock{FakeLocale(), FakeClock({2026, 5, 13})};

  WriteResult Save(std::u16string_view rule, IfChanged ifChanged = IfChanged::kRefuse) {
    return MemoryCalendars::Save(u"A", rule, ifChanged);
  }
};

TEST_F(SavedVersionsTest, ASaveKeepsTheBytesThatItReplaces) {
  for (const char16_t* rule : {u"one", u"two", u"two"}) EXPECT_EQ(Save(rule), WriteResult::kWritten);
  EXPECT_EQ(Versions(u"A"), "one ") << "the same bytes again replace nothing";
  EXPECT_EQ(Save(u"three"), WriteResult::kWritten);
  EXPECT_EQ(Versions(u"A"), "two one ");
  Put(u"A", u"theirs");
  EXPECT_EQ(Save(u"four"), WriteResult::kChanged);
  files.failingWrites = {u"/user/A.xml"};
  EXPECT_EQ(Save(u"four", IfChanged::kOverwrite), WriteResult::kFailed);
  EXPECT_EQ(Versions(u"A"), "two one ") << "nothing was replaced";
  EXPECT_EQ(files.files.count(u"/user/A.xml.bak"), 0u) << "and nothing is made in vain";

  files.failingWrites = {u"/versions/A"};
  EXPECT_EQ(Save(u"four", IfChanged::kOverwrite), WriteResult::kWritten) << "versions never stop a save";
  EXPECT_EQ(Versions(u"A"), "two one ");
  files.failingWrites = {u"/user/A.xml.bak.1"};
  Put(u"A", u"theirs again");
  EXPECT_EQ(Save(u"five", IfChanged::kOverwrite), WriteResult::kFailed);
  EXPECT_EQ(Versions(u"A"), "two one ") << "the backup comes first";
}

TEST_F(SavedVersionsTest, AVersionIsRestoredByteByByteAndCanBeTakenBack) {
  files.Put(u"/user/A.xml", "<odd>1</odd>" + BytesWith(u"one"));
  CalendarFile calendar;
  calendars.Load(u"A", calendar);
  Save(u"bad");
  const std::string bytes = *calendars.Versions().Read(u"A", calendars.Versions().List(u"A").at(0));
  EXPECT_EQ(calendars.Restore(u"A", bytes, IfChanged::kRefuse).result, WriteResult::kWritten);
  EXPECT_EQ(calendars.BytesOf(u"A"), "<odd>1</odd>" + BytesWith(u"one"))
      << "also what the program does not know";
  EXPECT_EQ(Versions(u"A"), "bad one ");
  EXPECT_TRUE(calendars.KeepVersion(u"A", CalendarWith(u"unsaved")));
  EXPECT_EQ(Versions(u"A"), "unsaved bad one ");
  Put(u"A", u"theirs");
  EXPECT_EQ(calendars.Restore(u"A", bytes, IfChanged::kRefuse).result, WriteResult::kChanged);
}

TEST_F(SavedVersionsTest, VersionsFollowTheirCalendar) {
  for (const char16_t* rule : {u"one", u"two"}) Save(rule);
  Put(u"B", u"theirs");
  EXPECT_FALSE(calendars.AddName(u"A", u"B"));
  EXPECT_FALSE(calendars.AddName(u"A", u"../C"));
  ASSERT_TRUE(calendars.AddName(u"A", u"a"));
  EXPECT_EQ(calendars.BytesOf(u"A"), calendars.BytesOf(u"a")) << "a crash here loses nothing";
  ASSERT_TRUE(calendars.DropName(u"A", u"a"));
  files.Put(u"/versions/a/2026-05-13 14.05.09 000017 85944171f73967e8.xml", "of an older calendar");
  calendars.MoveVersions(u"A", u"a");
  EXPECT_FALSE(calendars.Exists(u"A"));
  EXPECT_EQ(Versions(u"a"), "one ");
  EXPECT_EQ(Versions(u"A"), "");
  EXPECT_EQ(MemoryCalendars::Save(u"a", u"three"), WriteResult::kWritten)
      << "the file is still the one that was last saved";

  ASSERT_TRUE(calendars.AddName(u"a", u"C"));
  Put(u"a", u"of another program");
  EXPECT_FALSE(calendars.DropName(u"a", u"C"));
  files.unreadable = {u"/user/a.xml"};
  EXPECT_FALSE(calendars.DropName(u"a", u"C"));
  files.unreadable.clear();
  EXPECT_TRUE(calendars.Exists(u"a") && calendars.Exists(u"C")) << "nobody's bytes are lost";

  EXPECT_TRUE(calendars.Delete(u"a"));
  EXPECT_EQ(Versions(u"a"), "");
  EXPECT_EQ(files.trash.size(), 4u) << "the calendar, its two versions and the one of an older calendar";
}

TEST_F(SavedVersionsTest, ANewCalendarOfAnOldNameBeginsWithout) {
  for (const char16_t* rule : {u"one", u"two"}) Save(rule);
  files.files.erase(u"/user/A.xml");
  EXPECT_EQ(Save(u"three"), WriteResult::kWritten);
  EXPECT_EQ(Versions(u"A"), "one ") << "it was known, and somebody deleted its file";
  files.files.erase(u"/user/A.xml");
  CCalendarStore later(files, kMemoryFolders);
  EXPECT_EQ(later.Save(u"A", CalendarWith(u"new"), IfChanged::kRefuse).result, WriteResult::kWritten);
  EXPECT_EQ(Versions(u"A"), "");
  EXPECT_EQ(files.trash.size(), 1u);

  for (const char16_t* rule : {u"four", u"five"}) MemoryCalendars::Save(u"A (2)", rule);
  files.files.erase(u"/user/A (2).xml");
  EXPECT_EQ(calendars.Save(u"A", CalendarWith(u"six"), IfChanged::kKeepBoth).name, u"A (2)");
  EXPECT_EQ(Versions(u"A (2)"), "") << "a copy kept beside is a new calendar";
}

}  // namespace
}  // namespace orbisol

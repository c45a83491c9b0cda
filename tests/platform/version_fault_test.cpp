// Versions and renaming with a fault at each system call: a calendar never suffers for its versions.

#include "platform/path_text.h"
#include "platform/posix_file.h"
#include "tests/platform/each_fault.h"
#include "tests/platform/test_folders.h"
#include "tests/support/calendar_builder.h"

namespace orbisol {
namespace {

namespace fs = std::filesystem;

// A version is written before the calendar, and prunes: whatever fails there, the calendar is the old one or
// the new one, and what a save says it did it did.
TEST(VersionFaultTest, ASaveKeepsAVersionAndNeverFailsForIt) {
  const CTestFolder folder;
  const Folders folders = folder.ProgramFolders();
  const std::string path = folders.calendars + "/Calendar.xml";
  const std::string kept = folders.versions + "/Calendar";
  const std::string before = BytesWith(u"before");
  const std::string after = BytesWith(u"after");
  const auto prepare = [&] {
    fs::remove_all(folders.versions);
    PutFile(path, before);
    for (const char i : std::string("0123456789"))  // the oldest has to go
      PutFile(kept + "/2026-05-13 14.05.09 00000" + i + " 000000000000000" + i + ".xml", "older");
  };
  const auto check = [&](const Outcome& outcome) {
    const std::string bytes = BytesOf(path);
    EXPECT_TRUE(bytes == after || (bytes == before && !outcome.isDone));
    std::set<std::string> versions;
    for (const auto& entry : fs::directory_iterator(kept))
      if (entry.path().extension() == ".xml") versions.insert(BytesOf(entry.path()));
    versions.erase("older");
    EXPECT_TRUE(versions.empty() || versions == std::set<std::string>{before}) << "half a version";
    const bool isSound = !outcome.isKilled && std::string_view(outcome.failed) == "-";
    EXPECT_TRUE(!isSound || (versions.size() == 1 && FileCount(kept) == 10));
    EXPECT_TRUE(outcome.MayLeave() || FileCount(kept) <= 11u) << "a temporary file is left";
  };
  const Step step = [&] { return SaveCalendar(folders, CalendarWith(u"after")); };
  ForEachFault({EIO, ENOSPC, EACCES, kShortFault, kKillFault}, 4, step, prepare, check);

  prepare();
  fs::remove_all(kept);
  PutFile(kept, "a file in the place of the folder");
  EXPECT_TRUE(Taken(step).isDone);
}

TEST(VersionFaultTest, ARenamedCalendarHasAFileUnderTheNameThatIsRemembered) {
  const CTestFolder folder;
  const Folders folders = folder.ProgramFolders();
  const std::string bytes = BytesWith(u"mine");
  const std::string remembered = folder / "name";
  const auto prepare = [&] {
    fs::remove_all(folders.calendars);
    fs::remove_all(folders.versions);
    PutFile(folders.calendars + "/A.xml", bytes);
    PutFile(folders.versions + "/A/version", "kept");
    PutFile(remembered, "A");
  };
  bool isNamedTwice = false;
  const auto check = [&](const Outcome& outcome) {
    EXPECT_TRUE(isNamedTwice || outcome.MayLeave() || FileCount(folders.calendars) == 1u)
        << "a name that was refused is left";
    EXPECT_EQ(BytesOf(folders.calendars + "/" + BytesOf(remembered) + ".xml"), bytes);
    EXPECT_TRUE(BytesOf(folders.versions + "/A/version") == "kept" ||
                BytesOf(folders.versions + "/B/version") == "kept");
    EXPECT_TRUE(!outcome.isDone || FileCount(folders.calendars) == 1u);
  };
  CDesktopFiles files(folders.trash);
  const Step step = [&] {
    CCalendarStore calendars(files, CalendarFoldersOf(folders));
    isNamedTwice = calendars.AddName(u"A", u"B");
    if (!isNamedTwice) return false;
    if (ReplaceFile(remembered, "B", nullptr, nullptr) != WriteResult::kWritten) return false;
    if (!calendars.DropName(u"A", u"B")) return false;
    calendars.MoveVersions(u"A", u"B");
    return true;
  };
  ForEachFault({EIO, EPERM, kKillFault}, 1, step, prepare, check);
}

// The second folder aside is tried where the first fails, and nothing leaves it before it has another place.
TEST(VersionFaultTest, WhatIsPutAsideIsWholeAndStaysUntilItIsTakenBack) {
  const CTestFolder folder;
  const Folders folders = folder.ProgramFolders();
  CalendarFolders places = CalendarFoldersOf(folders);
  places.asides = {PathText(folder / "aside"), PathText(folder / "elsewhere")};
  const std::string before = BytesWith(u"before");
  const std::string mine = BytesWith(u"mine");
  CDesktopFiles files(folders.trash);
  bool isPut = false;
  const Step step = [&] {
    CCalendarStore calendars(files, places);
    isPut = calendars.PutAside(u"A", CalendarWith(u"mine"));
    const std::vector<TakenBack> taken = calendars.TakeBack();
    return taken.size() == 1 && taken[0].newName == u"A (2)";
  };
  const auto prepare = [&] {
    for (const std::string& place : {folders.calendars, folder / "aside", folder / "elsewhere"})
      fs::remove_all(place);
    PutFile(folders.calendars + "/A.xml", before);
  };
  const auto check = [&](const Outcome& outcome) {
    std::multiset<std::string> found;
    for (const std::string& place : {folders.calendars, folder / "aside", folder / "elsewhere"})
      for (const std::u16string& name : files.List(PathText(place), u".xml"))
        found.insert(BytesOf(place + "/" + ToUtf8(name)));
    EXPECT_EQ(found.count(before), 1U);
    EXPECT_EQ(found.count(before) + found.count(mine), found.size()) << "half a calendar";
    EXPECT_TRUE(outcome.isKilled || (isPut && found.count(mine) > 0));
    const bool isConfirmed = !outcome.MayLeave() && std::string_view(outcome.failed) != "fsync";
    EXPECT_TRUE(!outcome.isDone || !isConfirmed || found.size() == 2) << "still aside";
  };
  ForEachFault({EIO, ENOSPC, EACCES, kShortFault, kKillFault}, 4, step, prepare, check);
}

}  // namespace
}  // namespace orbisol

// Every step that changes files, with a fault at each of its system calls: a file always has its old or its
// new bytes, and the new ones if the step reports success.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <set>

#include "platform/desktop_files.h"
#include "platform/desktop_store.h"
#include "platform/path_text.h"
#include "platform/posix_file.h"
#include "platform/trash.h"
#include "settings/settings_persistence.h"
#include "tests/platform/each_fault.h"
#include "tests/platform/test_folders.h"

namespace orbisol {
namespace {

namespace fs = std::filesystem;

bool SaveFile(const std::string& path, std::string_view bytes) {
  const FileStamp expected = ReadWholeFile(path).value_or(FileBytes()).stamp;
  return ReplaceFile(path, bytes, &expected, nullptr) == WriteResult::kWritten;
}

TEST(FaultTest, ASavedFileIsTheOldOneOrTheNewOne) {
  const CTestFolder folder;
  const std::string file = folder / "real/file.xml";
  const std::string link = folder / "link.xml";
  const bool isSuperuser = geteuid() == 0;
  fs::create_symlink("real/file.xml", link);
  const auto prepare = [&] {
    fs::remove_all(folder / "real");
    PutFile(file, kOld);
    chmod(file.c_str(), 0640);
    EXPECT_TRUE(!isSuperuser || chown(file.c_str(), 12345, 54321) == 0);
  };
  const auto check = [&](const Outcome& outcome) {
    const std::string bytes = BytesOf(file);
    EXPECT_TRUE(bytes == kNew || (bytes == kOld && !outcome.isDone));
    EXPECT_FALSE(outcome.isDone && outcome.isWriteLost);
    struct stat status;
    EXPECT_TRUE(stat(file.c_str(), &status) == 0 && (status.st_mode & 07777) == 0640);
    EXPECT_TRUE(!isSuperuser || (status.st_uid == 12345 && status.st_gid == 54321));
    EXPECT_TRUE(outcome.MayLeave() || FileCount(folder / "real") == 1u) << "a temporary file is left";
    if (!outcome.isKilled) return;
    EXPECT_TRUE(Taken([&] { return SaveFile(link, "after"); }).isDone) << "and all goes on";
    EXPECT_EQ(BytesOf(file), "after");
  };
  const Step step = [&] { return SaveFile(link, kNew); };
  ForEachFault({EIO, ENOSPC, EDQUOT, EACCES, EINTR, EINVAL, kShortFault, kKillFault}, 2, step, prepare,
               check);
}

// Another program that writes the file while a save goes on, in place or as a new file.
std::string meddled;

TEST(FaultTest, NothingThatAnotherProgramWritesIsOverwrittenUnseen) {
  const CTestFolder folder;
  meddled = folder / "file.xml";
  const auto inPlace = [] { PutFile(meddled, "theirs"); };
  const auto asANewFile = [] {
    PutFile(meddled + ".new", "theirs");
    fs::rename(meddled + ".new", meddled);
  };
  for (const bool wasThere : {true, false}) {
    const Step save = [&] {
      const FileStamp expected = ReadWholeFile(meddled).value_or(FileBytes()).stamp;
      return ReplaceFile(meddled, kNew, &expected, nullptr) == WriteResult::kWritten;
    };
    const auto prepare = [&] {
      fs::remove(meddled);
      if (wasThere) PutFile(meddled, kOld);
    };
    prepare();
    // The first calls read the file, so a write during them is known to the save.
    const int known = Taken([&] { return ReadWholeFile(meddled).has_value() || !wasThere; }).calls;
    prepare();
    const int calls = Taken(save).calls;
    for (void (*const meddle)() : {+inPlace, +asANewFile}) {
      for (int call = known + 1; call <= calls; ++call) {
        prepare();
        const Outcome outcome = Taken(save, call, kMeddleFault, meddle);
        EXPECT_EQ(BytesOf(meddled), "theirs") << "before " << outcome.failed << ", call " << call;
        EXPECT_EQ(FileCount(folder / ""), 1u) << "a temporary file is left";
      }
    }
  }
}

TEST(FaultTest, TheStoreIsTheOldOneOrTheNewOne) {
  const CTestFolder folder;
  const std::string file = folder / "config/Calendar.reg";
  const std::string before = KeyText("\"Grid\"=dword:00000001\n\"BoldFont\"=dword:000002bc\n");
  const std::string after = KeyText("\"Grid\"=dword:00000007\n");
  CDesktopFiles files({});
  const Step step = [&] {
    return CDesktopStore(files, {file}).Write({{"Grid", DwordValue(7)}, {"BoldFont", {}}});
  };
  const auto prepare = [&] {
    fs::remove_all(folder / "config");
    PutFile(file, before);
    chmod(file.c_str(), 0600);
  };
  const auto check = [&](const Outcome& outcome) {
    // Some file systems have one mode for all files and refuse every change.
    EXPECT_STRNE(outcome.failed, "fchmod") << "rights that are right are not set again";
    const std::string bytes = BytesOf(file);
    EXPECT_TRUE(bytes == after || (bytes == before && !outcome.isDone));
    EXPECT_TRUE(Taken(step).isDone) << "nobody holds the lock any more";
    EXPECT_EQ(BytesOf(file), after);
  };
  ForEachFault({EIO, ENOSPC, EACCES, EPERM, EINTR, kShortFault, kKillFault}, 2, step, prepare, check);
}

// Moves files, or a folder of them, to the trash: with every fault all of it is in its place or in the trash.
void CheckTrash(const std::string& moved, const std::vector<std::string>& files, const std::string& trash,
                const std::vector<int>& faults, int syncs) {
  const std::string name = fs::path(moved).filename();
  const auto isWhole = [&](const std::string& place) {
    return std::all_of(files.begin(), files.end(),
                       [&](const std::string& file) { return BytesOf(place + file) == kOld + file; });
  };
  const auto prepare = [&] {
    fs::remove_all(trash);
    for (const std::string& file : files) PutFile(moved + file, kOld + file);
  };
  const auto check = [&](const Outcome& outcome) {
    const bool inTrash = isWhole(trash + "/files/" + name);
    EXPECT_TRUE(inTrash || isWhole(moved));
    EXPECT_TRUE(outcome.isDone == inTrash || outcome.isKilled);
    EXPECT_FALSE(outcome.isDone && FileCount(trash + "/files") != 1);
    const bool isFolder = files.size() > 1;  // one that was copied may be left in part
    EXPECT_FALSE(outcome.isDone && !isFolder && fs::exists(moved));
    EXPECT_TRUE(inTrash == fs::exists(trash + "/info/" + name + ".trashinfo") || outcome.MayLeave());
  };
  const Step step = [&] { return MoveToTrashFolder(moved, trash, {{2024, 5, 1}, 7, 8, 9}); };
  ForEachFault(faults, syncs, step, prepare, check);
}

TEST(FaultTest, AFileIsInItsPlaceOrInTheTrash) {
  const CTestFolder folder;
  CheckTrash(folder / "file.xml", {""}, folder / "Trash", {EXDEV, EIO, ENOSPC, EINTR, kKillFault}, 5);
}

// The versions of a calendar go as a folder. On most machines the two folders lie on different file systems,
// so that it is copied.
TEST(FaultTest, AFolderIsWholeInItsPlaceOrInTheTrash) {
  const CTestFolder onDisk(std::getenv("TMPDIR"));
  const CTestFolder inMemory;
  CheckTrash(onDisk / "versions/A", {"/1.xml", "/2.xml"}, inMemory / "Trash", {EIO, ENOSPC, kKillFault}, 4);
}

TEST(FaultTest, WhatASaveDropsStandsInACopy) {
  const CTestFolder folder;
  const Folders folders = folder.ProgramFolders();
  const std::string path = folders.calendars + "/Calendar.xml";
  const std::string clean = WriteCalendar({}, CalendarForm::kUser);
  const std::string before = clean + "<unknown>kept</unknown>\n";
  const auto prepare = [&] {
    fs::remove_all(folders.calendars);
    PutFile(folders.versions, "in the place of a folder: no versions are kept, and nobody asks for them");
    PutFile(path, before);
    PutFile(path + ".bak", "older copy");
  };
  const auto check = [&](const Outcome& outcome) {
    const std::set<std::string> all = {BytesOf(path), BytesOf(path + ".bak"), BytesOf(path + ".bak.1"),
                                       BytesOf(path + ".bak.2")};
    EXPECT_EQ(all.count(before), 1u) << "what the reader dropped";
    EXPECT_EQ(all.count("older copy"), 1u);
    EXPECT_TRUE(BytesOf(path) == clean || (BytesOf(path) == before && !outcome.isDone));
    EXPECT_FALSE(outcome.isDone && outcome.isWriteLost);
  };
  const Step step = [&] { return SaveCalendar(folders, {}); };
  ForEachFault({EIO, ENOSPC, kShortFault, kKillFault}, 4, step, prepare, check);
}

void CheckMigration(bool hasFile) {
  const CTestFolder folder;
  const Folders folders = folder.ProgramFolders();
  const std::string path = folders.calendars + "/Calendar.xml";
  const std::string copy = folders.calendars + "/fr_public.xml";
  const std::string trashed = folders.trash + "/files/fr_public.xml";
  CalendarFile shared;
  shared.info = u"old copy";
  const std::string oldCopy = WriteCalendar(shared, CalendarForm::kPublic);
  CalendarFile migrated;
  const std::string before = hasFile ? WriteCalendar(migrated, CalendarForm::kUser) : "(none)";
  migrated.look.fontName.Set(u"Georgia");
  for (const ColorInfo& row : ColorTable())
    if (!hasFile) migrated.look.colors[static_cast<std::size_t>(row.index)] = row.migrated;
  const std::string after = WriteCalendar(migrated, CalendarForm::kUser);
  CDesktopFiles files(folders.trash);
  CDesktopStore store(files, folders.stores);
  const auto prepare = [&] {
    fs::remove_all(folder / "");
    PutFile(folders.stores[0], KeyText("\"FontName\"=\"Georgia\"\n"));
    if (hasFile) PutFile(path, before);
    PutFile(copy, oldCopy);
  };
  const Step step = [&] {
    CCalendarStore calendars(files, CalendarFoldersOf(folders));
    const CPublicCalendars publicCalendars(files, CalendarFoldersOf(folders));
    return ReadSettings(store, calendars, publicCalendars, {u"fr", u"FR"}, {0, 0, 1920, 1080}).keyFound;
  };
  const auto check = [&](const Outcome& outcome) {
    const bool isOld =
        BytesOf(path) == before && BytesOf(copy) == oldCopy && store.Read()->count("FontName") == 1;
    EXPECT_TRUE(isOld || BytesOf(path) == after) << "something was deleted before all was saved";
    ASSERT_TRUE(Taken(step).isDone);
    EXPECT_EQ(BytesOf(path), after);
    EXPECT_EQ(store.Read()->count("FontName"), 0u);
    EXPECT_TRUE(outcome.isKilled || std::string_view(outcome.failed) != "-" || BytesOf(trashed) == oldCopy);
  };
  ForEachFault({kKillFault, EIO, EROFS}, 4, step, prepare, check);
}

TEST(FaultTest, AnInterruptedMigrationIsFinishedByTheNextStart) { CheckMigration(true); }
TEST(FaultTest, SoIsOneThatMakesTheFirstCalendar) { CheckMigration(false); }

TEST(FaultTest, ProcessesThatWriteAtOnceLoseNothingOfEachOther) {
  const CTestFolder folder;
  const std::string key = folder / "Calendar.reg";
  const std::string file = folder / "file.xml";
  const std::u16string kept = PathText(folder / "versions");
  CDesktopFiles files({});
  PutFile(key, "");
  PutFile(file, std::string(50000, '-'));  // long enough to be read while it is replaced
  const auto write = [&](char letter) {
    CDesktopStore store(files, {key}, std::chrono::hours(1));
    CVersions versions(files, kept);
    for (int count = 0; count < 100;) {
      const auto lock = files.LockFolderOf(PathText(file));
      const FileBytes seen = ReadWholeFile(file).value_or(FileBytes());
      const WriteResult result = ReplaceFile(file, seen.bytes + letter, &seen.stamp, nullptr);
      if (result == WriteResult::kFailed) return false;
      if (result == WriteResult::kWritten) ++count;
    }
    bool done = true;
    for (int i = 0; i < 40; ++i) {
      const std::string name = letter + std::to_string(i);
      done = store.Write({{name, DwordValue(1)}}) && done;
      done = versions.Keep(u"A", name, {{2026, 5, 1 + i / 3}, 0, 0, 0}) && done;
    }
    return done;
  };
  RunThreeAtOnce(write);
  EXPECT_EQ(CDesktopStore(files, {key}).Read()->size(), 120u);
  const std::string bytes = BytesOf(file);
  for (const char letter : {'A', 'B', 'C'}) EXPECT_EQ(std::count(bytes.begin(), bytes.end(), letter), 100);
  CVersions versions(files, kept);
  versions.Keep(u"A", "last", {{2026, 5, 21}, 0, 0, 0});
  EXPECT_GE(versions.List(u"A").size(), kNewestVersions);
  EXPECT_LE(versions.List(u"A").size(), kNewestVersions + kVersionDays);
  for (const CalendarVersion& version : versions.List(u"A"))
    EXPECT_TRUE(versions.Read(u"A", version).has_value());
}

}  // namespace
}  // namespace orbisol

#include "platform/desktop_files.h"

#include <gtest/gtest.h>
#include <sys/socket.h>

#include <map>
#include <set>

#include "platform/desktop_store.h"
#include "platform/path_text.h"
#include "platform/posix_file.h"
#include "platform/trash.h"
#include "settings/settings_persistence.h"
#include "tests/platform/test_folders.h"

namespace orbisol {
namespace {

namespace fs = std::filesystem;

TEST(PathTextTest, EveryFileHasAPath) {
  EXPECT_EQ(PathText("/home/\xC3\xA9va/\xF0\x9F\x8C\x95"), u"/home/éva/🌕");
  EXPECT_EQ(PathText("/\xE9t\xE9"), u"/\xDCE9t\xDCE9");
  std::string bytes;
  for (int first = 1; first < 256; ++first)
    for (int second : {0x2F, 0x80, 0xBF, 0xC3, 0xED, 0xF0, 0xFF})
      bytes += {static_cast<char>(first), static_cast<char>(second)};
  EXPECT_EQ(PathBytes(PathText(bytes)), bytes);
}

TEST(FoldersTest, FollowTheDesktopsVariables) {
  const auto find = [](const std::map<std::string, std::string>& set) {
    const auto variable = [&](const char* name) {
      const auto found = set.find(name);
      return found == set.end() ? std::string() : found->second;
    };
    return FindFolders(variable, "/account", "/opt/o/bin/orbisol");
  };
  Folders folders = find({{"HOME", "/home/eva"}});
  EXPECT_EQ(folders.calendars, "/home/eva/.local/share/Corvalen/orbisol");
  EXPECT_EQ(folders.userLegals, "/home/eva/.local/share/Corvalen/orbisol/Legals");
  EXPECT_EQ(folders.shippedLegals, "/opt/o/share/orbisol/Legals");
  EXPECT_EQ(folders.trash, "/home/eva/.local/share/Trash");
  EXPECT_EQ(folders.stores, (std::vector<std::string>{"/home/eva/.config/Corvalen/Calendar.reg",
                                                      "/etc/xdg/Corvalen/Calendar.reg",
                                                      "/opt/o/share/orbisol/Calendar.reg"}));

  folders = find({{"HOME", "relative"},
                  {"XDG_DATA_HOME", "/d"},
                  {"XDG_CONFIG_HOME", "c"},
                  {"XDG_CONFIG_DIRS", "/a:b::/c"}});
  EXPECT_EQ(folders.calendars, "/d/Corvalen/orbisol");
  EXPECT_EQ(folders.stores,
            (std::vector<std::string>{"/account/.config/Corvalen/Calendar.reg", "/a/Corvalen/Calendar.reg",
                                      "/c/Corvalen/Calendar.reg", "/opt/o/share/orbisol/Calendar.reg"}));

  const auto shipped = [](const std::string& executable) {
    return FindFolders([](const char*) { return std::string(); }, "/account", executable).shippedLegals;
  };
  EXPECT_EQ(shipped("/bin/orbisol"), "/share/orbisol/Legals");
  EXPECT_EQ(shipped(""), "/share/orbisol/Legals") << "never a folder of wherever the program was started";
}

class DesktopFilesTest : public testing::Test {
 protected:
  CTestFolder root;
  Folders folders = TestFolders(root.Path());
  CDesktopFiles files{folders};

  std::u16string Own(std::u16string_view name) const {
    return files.CalendarFolder() + u"/" + std::u16string(name);
  }
};

TEST_F(DesktopFilesTest, ListsOrdinaryFilesAlone) {
  EXPECT_TRUE(files.List(files.CalendarFolder(), u".xml").empty());
  for (const char* name : {"zoo.xml", "Été.xml", "avril.xml", "Avent.xml", "œuvre.xml", "a.XML", "b.xml.bak"})
    PutFile(folders.calendars + "/" + name, "");
  fs::create_directories(folders.calendars + "/Folder.xml");
  fs::create_symlink("zoo.xml", folders.calendars + "/link.xml");
  fs::create_symlink("nowhere", folders.calendars + "/broken.xml");
  const std::vector<std::u16string> names = files.List(files.CalendarFolder(), u".xml");
  EXPECT_EQ(std::set<std::u16string>(names.begin(), names.end()),
            (std::set<std::u16string>{u"Avent.xml", u"avril.xml", u"Été.xml", u"link.xml", u"œuvre.xml",
                                      u"zoo.xml"}));
}

TEST_F(DesktopFilesTest, WhatIsNoFileIsNotRead) {
  EXPECT_FALSE(files.Read(Own(u"missing")));
  fs::create_directories(folders.calendars + "/folder");
  EXPECT_FALSE(files.Read(Own(u"folder")));
  ASSERT_EQ(mkfifo((folders.calendars + "/pipe").c_str(), 0600), 0);
  EXPECT_FALSE(files.Read(Own(u"pipe"))) << "and it is not waited for";
  EXPECT_TRUE(files.Exists(Own(u"pipe")));
  EXPECT_EQ(files.Replace(Own(u"pipe"), "x", nullptr, nullptr), WriteResult::kFailed);
  EXPECT_EQ(files.Replace(Own(u"folder"), "x", nullptr, nullptr), WriteResult::kFailed);
  PutFile(folders.calendars + "/huge", "");
  fs::resize_file(folders.calendars + "/huge", kMaxFileBytes + 1);
  EXPECT_FALSE(files.Read(Own(u"huge")));
}

TEST_F(DesktopFilesTest, ReplacesOnlyTheFileThatWasExpected) {
  const std::u16string path = Own(u"A.xml");
  const FileStamp missing;
  FileStamp stamp;
  ASSERT_EQ(files.Replace(path, "one", &missing, &stamp), WriteResult::kWritten);
  EXPECT_EQ(files.Read(path)->stamp, stamp);
  EXPECT_EQ(files.Replace(path, "two", &missing, nullptr), WriteResult::kChanged) << "it is there now";
  EXPECT_EQ(files.Replace(path, "two", &stamp, &stamp), WriteResult::kWritten);
  EXPECT_EQ(files.Read(path)->stamp, stamp);

  const std::string bytesPath = PathBytes(path);
  const auto time = fs::last_write_time(bytesPath);
  PutFile(bytesPath, "TWO");
  fs::last_write_time(bytesPath, time);
  EXPECT_EQ(files.Replace(path, "three", &stamp, nullptr), WriteResult::kChanged)
      << "as long and as old as before, with other bytes";
  EXPECT_EQ(BytesOf(bytesPath), "TWO");
  EXPECT_EQ(files.Replace(path, "TWO", &stamp, nullptr), WriteResult::kWritten)
      << "what is wanted stands there";
  fs::remove(bytesPath);
  EXPECT_EQ(files.Replace(path, "three", &stamp, nullptr), WriteResult::kChanged);
  EXPECT_EQ(files.Replace(path, "three", nullptr, nullptr), WriteResult::kWritten);
  EXPECT_EQ(FileCount(folders.calendars), 1u);
}

TEST_F(DesktopFilesTest, FollowsLinksToTheirEnd) {
  const std::string away = root / "away/real.xml";
  fs::create_directories(folders.calendars);
  fs::create_symlink("B.xml", folders.calendars + "/A.xml");
  fs::create_symlink(away, folders.calendars + "/B.xml");
  EXPECT_FALSE(files.Exists(Own(u"A.xml")));
  const FileStamp missing;
  EXPECT_EQ(files.Replace(Own(u"A.xml"), "new", &missing, nullptr), WriteResult::kWritten);
  EXPECT_EQ(BytesOf(away), "new");
  EXPECT_TRUE(fs::is_symlink(folders.calendars + "/A.xml"));

  fs::create_symlink("loop", folders.calendars + "/loop");
  EXPECT_EQ(files.Replace(Own(u"loop"), "new", nullptr, nullptr), WriteResult::kFailed);
}

TEST_F(DesktopFilesTest, KeepsRightsAndSharesNothingNew) {
  PutFile(folders.calendars + "/A.xml", "old");
  fs::permissions(folders.calendars + "/A.xml", fs::perms(0604));
  EXPECT_EQ(files.Replace(Own(u"A.xml"), "new", nullptr, nullptr), WriteResult::kWritten);
  EXPECT_EQ(RightsOf(folders.calendars + "/A.xml"), 0604u);
  EXPECT_EQ(files.Replace(u"" + PathText(root / "fresh/folder/A.xml"), "new", nullptr, nullptr),
            WriteResult::kWritten);
  EXPECT_EQ(RightsOf(root / "fresh/folder"), 0700u);
}

TEST_F(DesktopFilesTest, ClearsAwayWhatKilledRunsLeft) {
  const std::string old = folders.calendars + "/.orbisol-1-1-1.tmp";
  const std::string fresh = folders.calendars + "/.orbisol-2-2-2.tmp";
  const std::string others = folders.calendars + "/.other.tmp";
  for (const std::string& path : {old, fresh, others}) PutFile(path, "half a calend");
  for (const std::string& path : {old, others})
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(48));
  EXPECT_EQ(files.Replace(Own(u"A.xml"), "new", nullptr, nullptr), WriteResult::kWritten);
  EXPECT_FALSE(fs::exists(old));
  EXPECT_TRUE(fs::exists(fresh) && fs::exists(others));
}

TEST_F(DesktopFilesTest, AFileStandingInPlaceOfTheFolderHarmsNothing) {
  PutFile(root / "data/Corvalen", "in the way");
  EXPECT_TRUE(files.List(files.CalendarFolder(), u".xml").empty());
  EXPECT_EQ(files.Replace(Own(u"A.xml"), "new", nullptr, nullptr), WriteResult::kFailed);
  EXPECT_EQ(BytesOf(root / "data/Corvalen"), "in the way");
}

TEST_F(DesktopFilesTest, TheTrashSaysWhereAFileWas) {
  const std::string path = folders.calendars + "/Été 100%.xml";
  const TrashTime when{{2024, 5, 1}, 7, 8, 9};
  for (const char* bytes : {"first", "second", "third"}) {
    PutFile(path, bytes);
    EXPECT_TRUE(MoveToTrashFolder(path, folders.trash, when));
    EXPECT_FALSE(fs::exists(path));
  }
  EXPECT_EQ(BytesOf(folders.trash + "/files/Été 100%.xml"), "first");
  EXPECT_EQ(BytesOf(folders.trash + "/files/Été 100% 3.xml"), "third");
  EXPECT_EQ(BytesOf(folders.trash + "/info/Été 100% 2.xml.trashinfo"),
            "[Trash Info]\nPath=" + folders.calendars +
                "/%C3%89t%C3%A9%20100%25.xml\nDeletionDate=2024-05-01T07:08:09\n");

  // A stray file without a note is not written over.
  PutFile(folders.trash + "/files/A.xml", "stray");
  PutFile(folders.calendars + "/A.xml", "mine");
  EXPECT_TRUE(files.MoveToTrash(Own(u"A.xml")));
  EXPECT_EQ(BytesOf(folders.trash + "/files/A.xml"), "stray");
  EXPECT_EQ(BytesOf(folders.trash + "/files/A 2.xml"), "mine");
  EXPECT_FALSE(files.MoveToTrash(Own(u"A.xml")));

  fs::remove_all(folders.trash);
  PutFile(folders.trash, "in the way");
  PutFile(folders.calendars + "/A.xml", "mine");
  EXPECT_FALSE(files.MoveToTrash(Own(u"A.xml")));
  EXPECT_EQ(BytesOf(folders.calendars + "/A.xml"), "mine");
}

class DesktopStoreTest : public DesktopFilesTest {
 protected:
  CDesktopStore store{folders.stores, std::chrono::milliseconds(20)};

  static std::string Key(const std::string& lines) {
    return "[HKEY_CURRENT_USER\\SOFTWARE\\Corvalen\\Calendar]\n" + lines;
  }
};

TEST_F(DesktopStoreTest, TheFirstFileThatExistsIsTheWholeKey) {
  EXPECT_FALSE(store.Read());
  EXPECT_FALSE(store.Write({{"Grid", DwordValue(1)}})) << "the installation brings the key";
  EXPECT_FALSE(fs::exists(folders.stores[0]));

  PutFile(folders.stores[2], Key("\"CalendarName\"=\"Calendar\"\n\"Grid\"=dword:2\n"));
  EXPECT_EQ(DwordOf(*store.Read(), "Grid"), 2u);
  PutFile(folders.stores[1], Key("; of the machine\n\"Alpha\"=dword:1\n"));
  EXPECT_EQ(DwordOf(*store.Read(), "Grid"), std::nullopt) << "files are not mixed";

  EXPECT_TRUE(store.Write({{"Grid", DwordValue(3)}}));
  EXPECT_EQ(BytesOf(folders.stores[0]),
            Key("; of the machine\n\"Alpha\"=dword:1\n\"Grid\"=dword:00000003\n"));
  EXPECT_EQ(BytesOf(folders.stores[1]), Key("; of the machine\n\"Alpha\"=dword:1\n"));
}

TEST_F(DesktopStoreTest, AKeyThatCannotBeReadIsNotReplaced) {
  PutFile(folders.stores[2], Key("\"FontName\"=\"Georgia\"\n"));
  fs::create_directories(folders.stores[0]);
  const auto values = store.Read();
  ASSERT_TRUE(values) << "and the program goes on without it";
  EXPECT_EQ(values->size(), 1u);
  EXPECT_EQ(TextOf(*values, "CalendarName", 260), u"Calendar") << "so that nothing is migrated";
  EXPECT_FALSE(store.Write({{"Grid", DwordValue(1)}}));
  EXPECT_TRUE(fs::is_directory(folders.stores[0]));
  EXPECT_EQ(FileCount(root / "config/Corvalen"), 2u) << "the key and its lock";
}

TEST_F(DesktopStoreTest, BytesThatCannotBeWrittenAgainAreKeptBeside) {
  const std::string own = folders.stores[0];
  std::string utf16 = "\xFF\xFE";
  for (const char c : Key("\"A\"=dword:1\n")) utf16 += {c, '\0'};
  const std::string latin = Key("\"A\"=\"\xE9t\xE9\"\n");
  const std::string half = utf16 + std::string("\x3C\xD8", 2);
  const std::string odd = utf16 + ";";
  for (const std::string& bytes : {Key("\"A\"=\"été\"\r\n"), utf16}) {
    PutFile(own, bytes);
    EXPECT_TRUE(store.Write({{"Grid", DwordValue(1)}}));
    EXPECT_FALSE(fs::exists(own + ".bak")) << "nothing of it is lost";
  }
  for (const std::string& bytes : {latin, latin, half, odd}) {
    PutFile(own, bytes);
    EXPECT_TRUE(store.Write({}));
    EXPECT_EQ(BytesOf(own), bytes) << "a mere trial alters nothing";
    EXPECT_TRUE(store.Write({{"Grid", DwordValue(1)}}));
    EXPECT_EQ(DwordOf(*store.Read(), "Grid"), 1u);
  }
  EXPECT_EQ(BytesOf(own + ".bak"), odd);
  EXPECT_EQ(BytesOf(own + ".bak.1"), latin);
  EXPECT_EQ(BytesOf(own + ".bak.2"), half);
  EXPECT_FALSE(fs::exists(own + ".bak.3"));

  fs::remove(own + ".bak");
  fs::create_directories(own + ".bak");
  PutFile(own, latin);
  EXPECT_FALSE(store.Write({{"Grid", DwordValue(1)}})) << "no copy can be made";
  EXPECT_EQ(BytesOf(own), latin);
}

TEST_F(DesktopStoreTest, NothingIsWrittenPastALock) {
  PutFile(folders.stores[0], Key(""));
  {
    const CFileLock lock(folders.stores[0] + ".lock", std::chrono::milliseconds(0));
    ASSERT_TRUE(lock.IsHeld());
    EXPECT_FALSE(store.Write({{"Grid", DwordValue(1)}}));
    EXPECT_EQ(BytesOf(folders.stores[0]), Key(""));
    EXPECT_TRUE(store.Read()) << "reading never waits";
  }
  EXPECT_TRUE(store.Write({{"Grid", DwordValue(1)}}));
}

TEST_F(DesktopStoreTest, AllChangesOfAWriteAreMadeOrNone) {
  PutFile(folders.stores[0], Key(""));
  EXPECT_FALSE(store.Write({{"Grid", DwordValue(1)}, {"a\nb", DwordValue(1)}}));
  EXPECT_EQ(BytesOf(folders.stores[0]), Key(""));
}

// The whole way of an old export, dropped in as it came, on a disk that first refuses the calendar.
TEST_F(DesktopStoreTest, AnOldExportMigratesAsSoonAsTheCalendarCanBeWritten) {
  std::string bytes = "\xFF\xFE";
  for (const char c : "Windows Registry Editor Version 5.00\r\n\r\n" +
                          Key("\"FontName\"=\"Georgia\"\r\n\"Grid\"=dword:00000000\r\n"))
    bytes += {c, '\0'};
  PutFile(folders.stores[0], bytes);
  PutFile(folders.shippedLegals + "/France.xml", BytesOf(ORBISOL_SOURCE_DIR "/resources/legals/France.xml"));
  PutFile(root / "data/Corvalen", "in the way");

  const auto start = [&] {
    CCalendarStore calendars(files);
    return ReadSettings(store, calendars, {0, 0, 1920, 1080}, {u"fr", u"FR"});
  };
  StoredSettings stored = start();
  EXPECT_EQ(stored.calendar.display.fontName.View(), u"Georgia");
  EXPECT_GT(stored.calendar.content.dayEvents.size(), 10u);
  EXPECT_EQ(BytesOf(folders.stores[0]), bytes) << "nothing is deleted before the calendar is safe";

  fs::remove(root / "data/Corvalen");
  stored = start();
  EXPECT_EQ(DwordOf(*store.Read(), "Grid"), 0u);
  EXPECT_EQ(store.Read()->count("FontName"), 0u);
  const StoredSettings again = start();
  EXPECT_EQ(again.file, LoadResult::kLoaded);
  EXPECT_EQ(again.calendar, stored.calendar);
}

}  // namespace
}  // namespace orbisol

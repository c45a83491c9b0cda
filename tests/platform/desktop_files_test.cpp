#include "platform/desktop_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <algorithm>
#include <map>

#include "files/versions.h"
#include "platform/desktop_store.h"
#include "platform/path_text.h"
#include "platform/posix_file.h"
#include "platform/trash.h"
#include "settings/registry_text.h"
#include "tests/platform/test_folders.h"

namespace orbisol {
namespace {

namespace fs = std::filesystem;

TEST(PathTextTest, EveryFileHasAPath) {
  EXPECT_EQ(PathText("/home/\xC3\xA9va/\xF0\x9F\x8C\x95/\xE9"), u"/home/éva/🌕/\xDCE9");
  std::string bytes;
  for (int first = 1; first < 256; ++first)
    for (int second : {0x2F, 0x80, 0xBF, 0xC3, 0xED, 0xF0, 0xFF})
      bytes += {static_cast<char>(first), static_cast<char>(second)};
  EXPECT_EQ(PathBytes(PathText(bytes)), bytes);
}

TEST(FoldersTest, FollowTheDesktopsVariables) {
  const auto find = [](std::map<std::string, std::string> set, const std::string& executable) {
    const auto folders = FindFolders([&](const char* name) { return set[name]; }, "/account", executable);
    std::string all = folders.userLegals + " " + folders.shippedLegals + " " + folders.trash;
    for (const std::string& store : folders.stores) all += " " + store;
    return all;
  };
  EXPECT_EQ(
      find({{"HOME", "/eva"}}, "/opt/o/bin/orbisol"),
      "/eva/.local/share/Corvalen/orbisol/Legals /opt/o/share/orbisol/Legals /eva/.local/share/Trash "
      "/eva/.config/Corvalen/Calendar.reg /etc/xdg/Corvalen/Calendar.reg /opt/o/share/orbisol/Calendar.reg");
  EXPECT_EQ(
      find({{"HOME", "eva"},
            {"XDG_DATA_HOME", "/d"},
            {"XDG_CONFIG_HOME", "c"},
            {"XDG_CONFIG_DIRS", "/a:b::/c"}},
           ""),
      "/d/Corvalen/orbisol/Legals /share/orbisol/Legals /d/Trash /account/.config/Corvalen/Calendar.reg "
      "/a/Corvalen/Calendar.reg /c/Corvalen/Calendar.reg /share/orbisol/Calendar.reg")
      << "never a folder of wherever the program was started";
}

class DesktopFilesTest : public testing::Test {
 protected:
  CTestFolder root;
  Folders folders = root.ProgramFolders();
  CDesktopFiles files{folders.trash};
  CDesktopStore store{files, folders.stores, std::chrono::milliseconds(20)};
  const std::string own = folders.stores[0];

  std::string Own(const std::string& name) const { return folders.calendars + "/" + name; }
  std::u16string Path(const std::string& name) const { return PathText(Own(name)); }
  WriteResult Replace(const std::string& path, std::string_view bytes, const FileStamp* expected = nullptr,
                      FileStamp* stamp = nullptr) {
    return files.Replace(PathText(path), bytes, expected, stamp, {});
  }
};

TEST_F(DesktopFilesTest, OnlyOrdinaryFilesAreListedReadAndReplaced) {
  EXPECT_TRUE(files.List(PathText(folders.calendars), u".xml").empty());
  for (const char* name : {"zoo.xml", "Été.xml", "a.XML", "b.xml.bak"}) PutFile(Own(name), "");
  fs::create_directories(Own("folder.xml"));
  fs::create_symlink("zoo.xml", Own("link.xml"));
  fs::create_symlink("nowhere", Own("broken.xml"));
  ASSERT_EQ(mkfifo(Own("pipe.xml").c_str(), 0600), 0);
  std::vector<std::u16string> names = files.List(PathText(folders.calendars), u".xml");
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::u16string>{u"link.xml", u"zoo.xml", u"Été.xml"}));

  for (const char* name : {"missing.xml", "folder.xml", "pipe.xml"})
    EXPECT_FALSE(files.Read(Path(name))) << name;
  fs::create_symlink("loop.xml", Own("loop.xml"));
  EXPECT_TRUE(files.Exists(Path("loop.xml"))) << "nobody can look";
  EXPECT_FALSE(files.Exists(Path("zoo.xml/below")) || files.Exists(Path("missing.xml")));
  for (const char* name : {"folder.xml", "pipe.xml", "zoo.xml/below", "loop.xml"}) {
    EXPECT_FALSE(files.MayReplace(Path(name))) << name << ", as is told beforehand";
    EXPECT_EQ(Replace(Own(name), "x"), WriteResult::kFailed) << name;
  }
  EXPECT_TRUE(files.MayReplace(Path("zoo.xml")) && files.MayReplace(Path("new folder/below/new.xml")));
  fs::resize_file(Own("zoo.xml"), kMaxFileBytes + 1);
  EXPECT_FALSE(files.Read(Path("zoo.xml")));
}

TEST_F(DesktopFilesTest, ReplacesOnlyTheFileThatWasExpected) {
  const std::string path = Own("A.xml");
  const FileStamp missing;
  FileStamp stamp;
  ASSERT_EQ(Replace(path, "one", &missing, &stamp), WriteResult::kWritten);
  EXPECT_EQ(Replace(path, "two", &missing), WriteResult::kChanged) << "it is there now";
  EXPECT_EQ(Replace(path, "two", &stamp, &stamp), WriteResult::kWritten);
  EXPECT_EQ(files.Read(PathText(path))->stamp, stamp);

  const auto time = fs::last_write_time(path);
  PutFile(path, "TWO");
  fs::last_write_time(path, time);
  EXPECT_EQ(Replace(path, "three", &stamp), WriteResult::kChanged) << "as long and as old, with other bytes";
  EXPECT_EQ(Replace(path, "TWO", &stamp), WriteResult::kWritten) << "what is wanted stands there";
  fs::remove(path);
  EXPECT_EQ(Replace(path, "three", &stamp), WriteResult::kChanged);
  EXPECT_EQ(Replace(path, "three"), WriteResult::kWritten);
}

TEST_F(DesktopFilesTest, FollowsLinksToTheirEnd) {
  fs::create_directories(folders.calendars);
  fs::create_symlink("B.xml", Own("A.xml"));
  fs::create_symlink(root / "away/real.xml", Own("B.xml"));
  EXPECT_EQ(Replace(Own("A.xml"), "new"), WriteResult::kWritten);
  EXPECT_EQ(BytesOf(root / "away/real.xml"), "new");
  EXPECT_TRUE(fs::is_symlink(Own("A.xml")));
  EXPECT_EQ(fs::status(root / "away").permissions(), fs::perms::owner_all) << "nothing new is shared";
}

TEST_F(DesktopFilesTest, ClearsAwayWhatKilledRunsLeft) {
  const auto madeAgo = [](std::chrono::nanoseconds age) {
    const std::chrono::nanoseconds now = std::chrono::system_clock::now().time_since_epoch();
    return ".orbisol-1-" + std::to_string((now - age).count()) + "-1.tmp";
  };
  const std::string stale = madeAgo(std::chrono::hours(25));
  for (const std::string& name : {stale, madeAgo(std::chrono::hours(1)), std::string(".other.tmp")})
    PutFile(Own(name), "half a calend");
  EXPECT_EQ(Replace(Own("A.xml"), "new"), WriteResult::kWritten);
  EXPECT_FALSE(fs::exists(Own(stale)));
  EXPECT_EQ(FileCount(folders.calendars), 3u) << "the others stay";
}

// Returns an access list in the system's form: the owner and one more user may write, within `mask`.
std::string AccessList(char group, char mask) {
  std::string list("\2\0\0\0", 4);
  for (const auto& [tag, rights] :
       {std::pair('\x01', '\6'), {'\x02', '\6'}, {'\x04', group}, {'\x10', mask}, {'\x20', '\0'}}) {
    list += {tag, '\0', rights, '\0'};
    list += tag == '\x02' ? std::string_view("\x39\x30\0\0", 4) : "\xFF\xFF\xFF\xFF";
  }
  return list;
}

TEST_F(DesktopFilesTest, RightsAndAttributesGoOverToTheNewBytesAndToCopies) {
  constexpr char kList[] = "system.posix_acl_access";
  const std::string path = Own("A.xml");
  const std::string list = AccessList(4, 6);
  PutFile(path, "one");
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  ASSERT_EQ(files.Replace(PathText(path + ".bak"), "one", nullptr, nullptr, PathText(path)),
            WriteResult::kWritten);
  EXPECT_EQ(fs::status(path + ".bak").permissions(), fs::status(path).permissions());
  ASSERT_EQ(files.Replace(Path("B.xml"), "one", nullptr, nullptr, u"/nowhere"), WriteResult::kWritten);
  EXPECT_EQ(fs::status(Own("B.xml")).permissions(), fs::status(path).permissions())
      << "of nobody: for the user";
  // Whichever of the two this file system knows is carried over.
  const std::pair<const char*, std::string> kAttributes[] = {{kList, list}, {"user.note", "mine"}};
  std::map<std::string, std::string> known;
  for (const auto& [name, value] : kAttributes)
    if (setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0) known[name] = value;
  for (const std::string& copy : {path, path + ".bak"}) {
    ASSERT_EQ(files.Replace(PathText(copy), "two", nullptr, nullptr, PathText(path)), WriteResult::kWritten);
    EXPECT_EQ(BytesOf(copy), "two");
    EXPECT_EQ(fs::status(copy).permissions(), fs::status(path).permissions());
    for (const auto& [name, expected] : known) {
      std::string value(100, '\0');
      const ssize_t length = getxattr(copy.c_str(), name.c_str(), value.data(), value.size());
      EXPECT_EQ(value.substr(0, static_cast<std::size_t>(std::max<ssize_t>(length, 0))), expected) << copy;
    }
  }
}

TEST_F(DesktopFilesTest, TheTrashSaysWhereAFileWas) {
  const std::string path = Own("Été 100%.xml");
  PutFile(folders.trash + "/files/Été 100%.xml", "stray");  // without a note
  PutFile(path, "first");
  EXPECT_TRUE(MoveToTrashFolder(path, folders.trash, {{2024, 5, 1}, 7, 8, 9}));
  PutFile(path, "second");
  EXPECT_TRUE(files.MoveToTrash(PathText(path)));
  EXPECT_EQ(BytesOf(folders.trash + "/files/Été 100%.xml"), "stray");
  EXPECT_EQ(BytesOf(folders.trash + "/files/Été 100% 3.xml"), "second");
  EXPECT_EQ(BytesOf(folders.trash + "/info/Été 100% 2.xml.trashinfo"),
            "[Trash Info]\nPath=" + folders.calendars +
                "/%C3%89t%C3%A9%20100%25.xml\nDeletionDate=2024-05-01T07:08:09\n");
}

TEST_F(DesktopFilesTest, VersionsAreForTheUserAloneWhateverTheMask) {
  const auto mode = [](const std::string& path) {
    return static_cast<unsigned>(fs::status(path).permissions());
  };
  const std::u16string name = u"Été";
  const std::string folder = folders.versions + "/Été";
  for (const mode_t mask : {0000U, 0022U, 0777U}) {
    fs::remove_all(folders.versions);
    const mode_t before = umask(mask);
    const bool isKept = CVersions(files, PathText(folders.versions)).Keep(name, "old", LocalNow());
    umask(before);
    ASSERT_TRUE(isKept);
    EXPECT_EQ(mode(folders.versions), 0700u);
    EXPECT_EQ(mode(folder), 0700u);
    EXPECT_EQ(mode(fs::directory_iterator(folder)->path().string()), 0600u);
  }
  fs::permissions(folder, fs::perms::all);
  EXPECT_TRUE(CVersions(files, PathText(folders.versions)).Keep(name, "new", LocalNow()));
  EXPECT_EQ(mode(folder), 0700u) << "an open folder is closed";

  // Where all users make their folders, somebody else may have laid a link of this name.
  const std::string trap = root / "trap";
  fs::create_directory(trap);
  fs::remove_all(folder);
  fs::create_directory_symlink(trap, folder);
  EXPECT_TRUE(CVersions(files, PathText(folders.versions)).Keep(name, "mine", LocalNow()));
  fs::permissions(folders.versions, fs::perms::all | fs::perms::sticky_bit);
  EXPECT_FALSE(CVersions(files, PathText(folders.versions)).Keep(name, "yours", LocalNow()));
  EXPECT_EQ(FileCount(trap), 1U);
}

TEST_F(DesktopFilesTest, AFileHasTwoNamesWhileItIsRenamed) {
  PutFile(Own("A.xml"), "bytes");
  fs::create_symlink("A.xml", Own("link.xml"));
  EXPECT_TRUE(files.AddName(Path("link.xml"), Path("other.xml")));
  EXPECT_TRUE(fs::is_symlink(Own("other.xml"))) << "a link stays a link";
  EXPECT_TRUE(files.AddName(Path("A.xml"), Path("a.xml")));
  EXPECT_FALSE(files.AddName(Path("A.xml"), Path("link.xml"))) << "that is somebody else's";
  EXPECT_FALSE(files.AddName(Path("none.xml"), Path("new.xml")));
  EXPECT_TRUE(files.Remove(Path("A.xml")) && files.Remove(Path("A.xml")));
  EXPECT_EQ(BytesOf(Own("a.xml")), "bytes");

  PutFile(folders.versions + "/A/1.xml", "one");
  PutFile(folders.versions + "/B/2.xml", "two");
  const auto folder = [&](const char* name) { return PathText(folders.versions + "/" + name); };
  EXPECT_FALSE(files.MoveFolder(folder("A"), folder("B")) || files.MoveFolder(folder("C"), folder("D")));
  EXPECT_TRUE(files.MoveFolder(folder("A"), folder("C")));
  EXPECT_EQ(BytesOf(folders.versions + "/C/1.xml"), "one");
  EXPECT_TRUE(files.MoveToTrash(folder("C")));
  EXPECT_EQ(BytesOf(folders.trash + "/files/C/1.xml"), "one") << "a folder goes with what it holds";
  EXPECT_FALSE(files.Exists(folder("C")));
}

TEST_F(DesktopFilesTest, TheFirstStoreThatExistsIsTheWholeKey) {
  EXPECT_FALSE(store.Read());
  EXPECT_FALSE(store.Write({{"Grid", DwordValue(1)}})) << "the installation brings the key";
  PutFile(folders.stores[2], KeyText("\"Grid\"=dword:2\n"));
  PutFile(folders.stores[1], KeyText("; of the machine\n"));
  EXPECT_TRUE(store.Read()->empty()) << "files are not mixed";
  EXPECT_FALSE(store.Write({{"Grid", DwordValue(1)}, {"a\nb", DwordValue(1)}})) << "all changes or none";
  EXPECT_FALSE(fs::exists(own));
  {
    const auto lock = LockFolder(FolderOf(own), std::chrono::milliseconds(0));
    EXPECT_TRUE(store.Write({{"Grid", DwordValue(3)}})) << "who holds a lock for long is not waited for";
  }
  EXPECT_EQ(FileCount(FolderOf(own)), 1u) << "no lock is left there";
  EXPECT_EQ(BytesOf(own), KeyText("\"Grid\"=dword:00000003\n; of the machine\n"));
  EXPECT_EQ(BytesOf(folders.stores[1]), KeyText("; of the machine\n"));

  const std::string endless = KeyText("\"Grid\"=dword:1\n" + std::string(kMaxKeyBytes, '\n'));
  PutFile(own, endless);
  EXPECT_EQ(store.Read()->count("Grid"), 0u) << "a key that cannot be read";
  EXPECT_FALSE(store.Write({{"Grid", DwordValue(2)}}));
  EXPECT_EQ(BytesOf(own), endless);
}

TEST_F(DesktopFilesTest, BytesOfAKeyThatCannotBeWrittenAgainAreKeptBeside) {
  std::string utf16 = "\xFF\xFE";
  for (const char c : KeyText("")) utf16 += {c, '\0'};
  const std::string latin = KeyText("\"A\"=\"\xE9t\xE9\"\n");
  const std::string half = utf16 + std::string("\x3C\xD8", 2);
  for (const std::string& bytes : {KeyText("\"A\"=\"été\"\r\n"), utf16, latin, half, utf16 + ";"}) {
    PutFile(own, bytes);
    EXPECT_TRUE(store.Write({}));
    EXPECT_EQ(BytesOf(own), bytes) << "a mere trial alters nothing";
    EXPECT_TRUE(store.Write({{"Grid", DwordValue(1)}}));
  }
  EXPECT_EQ(BytesOf(own + ".bak"), utf16 + ";");
  EXPECT_EQ(BytesOf(own + ".bak.1"), latin) << "nothing of the first two was lost";
}

}  // namespace
}  // namespace orbisol

// Every step that changes files, with a fault at each of its system calls: no name of a file ever holds
// anything but its old or its new bytes, and who is told "written" has the new ones.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <sstream>

#include "files/calendar_file.h"
#include "platform/desktop_store.h"
#include "platform/posix_file.h"
#include "settings/registry_text.h"
#include "tests/platform/test_folders.h"

namespace orbisol {
namespace {

namespace fs = std::filesystem;

struct Outcome {
  std::string word;  // "ok", "failed", "changed", or "killed"
  int calls = 0;
  std::string failed;    // the name of the call that failed
  bool isError = false;  // the fault is one that a program must report
};

class CHelper {
 public:
  // Starts the helper; `fault` as the shim reads it.
  CHelper(std::vector<std::string> arguments, const std::string& fault) {
    arguments.insert(arguments.begin(), ORBISOL_FAULT_HELPER);
    // The sanitizers' own library wants to be the first; behind the shim it works as well.
    std::vector<std::string> environment = {std::string("LD_PRELOAD=") + ORBISOL_FAULT_SHIM,
                                            "ORBISOL_FAULT=" + fault,
                                            "ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0"};
    for (char** variable = environ; *variable != nullptr; ++variable)
      if (!std::string_view(*variable).starts_with("ASAN_OPTIONS=")) environment.emplace_back(*variable);
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    if (posix_spawn(&m_process, ORBISOL_FAULT_HELPER, &actions, nullptr, Pointers(arguments).data(),
                    Pointers(environment).data()) != 0)
      m_process = -1;
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    m_output = ends[0];
  }

  Outcome Wait() {
    std::string text;
    char buffer[256];
    for (ssize_t count; (count = read(m_output, buffer, sizeof buffer)) > 0;)
      text.append(buffer, static_cast<std::size_t>(count));
    close(m_output);
    int status = 0;
    waitpid(m_process, &status, 0);
    Outcome outcome;
    std::istringstream(text) >> outcome.word >> outcome.calls >> outcome.failed;
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) outcome.word = "killed";
    return outcome;
  }

 private:
  static std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
  }

  pid_t m_process = -1;
  int m_output = -1;
};

// Runs a step again and again, each time with the next of its calls failing, until there is no further one.
// `prepare` makes the state before, `check` judges the state after.
void ForEachFault(const std::vector<std::string>& faults, const std::vector<std::string>& step,
                  const std::function<void()>& prepare, const std::function<void(const Outcome&)>& check) {
  prepare();
  const Outcome sound = CHelper(step, "0 -").Wait();
  ASSERT_EQ(sound.word, "ok");
  ASSERT_GT(sound.calls, 5) << "the shim does not see the calls";
  check(sound);
  for (const std::string& fault : faults) {
    for (int call = 1; call < 500; ++call) {
      prepare();
      Outcome outcome = CHelper(step, std::to_string(call) + " " + fault).Wait();
      outcome.isError = fault[0] == 'E' && fault != "EINTR" && fault != "EXDEV";
      SCOPED_TRACE(fault + " at call " + std::to_string(call) + ", " + outcome.failed + ": " + outcome.word);
      if (outcome.failed == "-") break;  // the step was over before
      if (fault == "EINTR" || fault == "short") {
        EXPECT_EQ(outcome.word, "ok");
      }
      check(outcome);
      if (testing::Test::HasFailure()) return;
    }
  }
}

const std::vector<std::string> kFaults = {"EIO", "ENOSPC", "EDQUOT", "EACCES", "EINTR", "short", "kill"};
const std::string kOld(5000, 'o');
const std::string kNew(9000, 'n');

bool IsPartOfWriting(const std::string& call) {
  return call == "write" || call == "fsync" || call == "rename" || call == "fchmod" || call == "fchown";
}

TEST(FaultTest, ASavedFileIsTheOldOneOrTheNewOne) {
  const CTestFolder folder;
  const std::string file = folder / "real/file.xml";
  const std::string link = folder / "link.xml";
  fs::create_symlink("real/file.xml", link);
  const auto prepare = [&] {
    fs::remove_all(folder / "real");
    PutFile(file, kOld);
    chmod(file.c_str(), 0640);
    if (geteuid() == 0) {
      EXPECT_EQ(chown(file.c_str(), 12345, 54321), 0);
    }
  };
  const auto check = [&](const Outcome& outcome) {
    const std::string bytes = BytesOf(file);
    EXPECT_TRUE(bytes == kNew || (bytes == kOld && outcome.word != "ok"));
    if (IsPartOfWriting(outcome.failed) && outcome.isError) {
      EXPECT_EQ(outcome.word, "failed");
    }
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(RightsOf(file), 0640u);
    struct stat status;
    EXPECT_EQ(stat(file.c_str(), &status), 0);
    if (geteuid() == 0) {
      EXPECT_TRUE(status.st_uid == 12345 && status.st_gid == 54321);
    }
    if (outcome.word != "killed") {
      EXPECT_EQ(FileCount(folder / "real"), 1u) << "a temporary file is left";
    } else {
      EXPECT_EQ(CHelper({"save", link, "after"}, "0 -").Wait().word, "ok") << "and all goes on";
      EXPECT_EQ(BytesOf(file), "after");
    }
  };
  ForEachFault(kFaults, {"save", link, kNew}, prepare, check);
}

// Some file systems have rights of their own for all files and refuse every change.
TEST(FaultTest, RightsThatAreRightAreNotSetAgain) {
  const CTestFolder folder;
  const std::string file = folder / "file.xml";
  ForEachFault(
      {"EPERM"}, {"save", file, kNew},
      [&] {
        PutFile(file, kOld);
        chmod(file.c_str(), 0600);
      },
      [&](const Outcome& outcome) { EXPECT_NE(outcome.failed, "fchmod"); });
}

TEST(FaultTest, AFileThatIsNewIsWholeOrMissing) {
  const CTestFolder folder;
  const std::string file = folder / "a/b/file.xml";
  ForEachFault(
      kFaults, {"save", file, kNew}, [&] { fs::remove_all(folder / "a"); },
      [&](const Outcome& outcome) {
        const std::string bytes = BytesOf(file);
        EXPECT_TRUE(bytes == kNew || (bytes == "(none)" && outcome.word != "ok"));
      });
}

TEST(FaultTest, TheStoreIsTheOldOneOrTheNewOne) {
  const CTestFolder folder;
  const std::string file = folder / "Calendar.reg";
  const std::string before =
      "[HKEY_CURRENT_USER\\SOFTWARE\\Corvalen\\Calendar]\n\"Grid\"=dword:00000001\n\"BoldFont\"=dword:"
      "000002bc\n";
  const std::string after = "[HKEY_CURRENT_USER\\SOFTWARE\\Corvalen\\Calendar]\n\"Grid\"=dword:00000007\n";
  ForEachFault(
      kFaults, {"store", file}, [&] { PutFile(file, before); },
      [&](const Outcome& outcome) {
        const std::string bytes = BytesOf(file);
        EXPECT_TRUE(bytes == after || (bytes == before && outcome.word != "ok"));
        if (outcome.word == "killed") {
          EXPECT_EQ(CHelper({"store", file}, "0 -").Wait().word, "ok") << "nobody holds the lock any more";
          EXPECT_EQ(BytesOf(file), after);
        }
      });
}

TEST(FaultTest, AFileIsInItsPlaceOrInTheTrash) {
  const CTestFolder folder;
  const std::string file = folder / "file.xml";
  std::vector<std::string> faults = {"EXDEV", "EIO", "ENOSPC", "kill"};
  ForEachFault(
      faults, {"trash", file, folder / "Trash"},
      [&] {
        fs::remove_all(folder / "Trash");
        PutFile(file, kOld);
      },
      [&](const Outcome& outcome) {
        const bool inPlace = BytesOf(file) == kOld;
        const bool inTrash = BytesOf(folder / "Trash/files/file.xml") == kOld;
        EXPECT_TRUE(inPlace || inTrash);
        if (outcome.word == "ok") {
          EXPECT_TRUE(inTrash && !fs::exists(file));
        }
        if (outcome.word == "failed") {
          EXPECT_TRUE(inPlace && !inTrash);
        }
        if (outcome.failed == "rename" && outcome.word == "ok") {
          EXPECT_EQ(FileCount(folder / "Trash/files"), 1u) << "the copy from another file system";
        }
      });
}

TEST(FaultTest, WhatASaveDropsStandsInACopy) {
  const CTestFolder folder;
  const std::string path = TestFolders(folder.Path()).calendars + "/Calendar.xml";
  CalendarFile own;
  own.content.dayEvents = {{0, false, 3, 2, 0, 0, kAlwaysFrom, kAlwaysTo, {u"Anniversaire"}}};
  const std::string clean = WriteCalendar(own, CalendarForm::kUser);
  const std::string before = clean + "<unknown>kept</unknown>\n";
  const auto prepare = [&] {
    fs::remove_all(folder / "data");
    PutFile(path, before);
    PutFile(path + ".bak", "older copy");
  };
  const auto stands = [&](const std::string& bytes) {
    for (const char* ending : {"", ".bak", ".bak.1"})
      if (BytesOf(path + ending) == bytes) return true;
    return false;
  };
  const auto check = [&](const Outcome& outcome) {
    const std::string calendar = BytesOf(path);
    EXPECT_TRUE(calendar == before || calendar == clean);
    EXPECT_TRUE(stands(before)) << "what the reader dropped";
    EXPECT_TRUE(stands("older copy"));
    if (outcome.word == "ok") {
      EXPECT_EQ(calendar, clean);
    }
    if (IsPartOfWriting(outcome.failed) && outcome.isError) {
      EXPECT_EQ(outcome.word, "failed");
    }
  };
  ForEachFault({"EIO", "ENOSPC", "short", "kill"}, {"keep", folder.Path()}, prepare, check);
}

// `own` is the calendar before, if there is one, `expected` the one after.
void CheckMigration(const std::vector<std::string>& faults, const CalendarFile* own,
                    const CalendarFile& expected) {
  const CTestFolder folder;
  const Folders folders = TestFolders(folder.Path());
  const std::string calendarPath = folders.calendars + "/Calendar.xml";
  const std::string copyPath = folders.calendars + "/fr_public.xml";
  const std::string trashed = folders.trash + "/files/fr_public.xml";
  const std::string oldCalendar = own != nullptr ? WriteCalendar(*own, CalendarForm::kUser) : "(none)";
  const std::string newCalendar = WriteCalendar(expected, CalendarForm::kUser);

  const auto prepare = [&] {
    fs::remove_all(folder / "data");
    fs::remove_all(folder / "config");
    PutFile(
        folders.stores[0],
        "[HKEY_CURRENT_USER\\SOFTWARE\\Corvalen\\Calendar]\n\"FontName\"=\"Georgia\"\n\"Mine\"=hex(7):01\n");
    if (own != nullptr) PutFile(calendarPath, oldCalendar);
    PutFile(copyPath, "old copy");
  };
  const auto check = [&](const Outcome& outcome) {
    const std::string calendar = BytesOf(calendarPath);
    EXPECT_TRUE(calendar == oldCalendar || calendar == newCalendar);
    const auto values = CDesktopStore(folders.stores).Read();
    ASSERT_TRUE(values);
    if (values->count("FontName") == 0) {
      EXPECT_EQ(calendar, newCalendar) << "deleted before it was saved";
    }
    if (calendar == oldCalendar) {
      EXPECT_EQ(BytesOf(copyPath), "old copy") << "gone before all was saved";
    }
    if (outcome.word == "ok" && outcome.failed == "-") {
      EXPECT_EQ(BytesOf(trashed), "old copy");
    }

    ASSERT_EQ(CHelper({"start", folder.Path()}, "0 -").Wait().word, "ok");
    EXPECT_EQ(BytesOf(calendarPath), newCalendar);
    EXPECT_EQ(CDesktopStore(folders.stores).Read()->count("FontName"), 0u);
    EXPECT_EQ(CDesktopStore(folders.stores).Read()->count("Mine"), 1u);
  };
  ForEachFault(faults, {"start", folder.Path()}, prepare, check);
}

TEST(FaultTest, AnInterruptedMigrationIsFinishedByTheNextStart) {
  CalendarFile own;
  own.content.dayEvents = {{0, false, 3, 2, 0, 0, kAlwaysFrom, kAlwaysTo, {u"Anniversaire"}}};
  CalendarFile expected = own;
  expected.display.fontName.Set(u"Georgia");
  CheckMigration({"EIO", "EROFS", "kill"}, &own, expected);
}

TEST(FaultTest, SoIsOneThatMakesTheFirstCalendar) {
  CalendarFile expected;
  expected.display.fontName.Set(u"Georgia");
  for (const ColorInfo& row : ColorTable())
    expected.display.colors[static_cast<std::size_t>(row.index)] = row.migrated;
  CheckMigration({"EROFS", "kill"}, nullptr, expected);
}

// Several processes that write at once, each with changes of its own.
void RunAtOnce(const std::vector<std::vector<std::string>>& steps) {
  std::vector<CHelper> helpers;
  for (const auto& step : steps) helpers.emplace_back(step, "0 -");
  for (CHelper& helper : helpers) EXPECT_EQ(helper.Wait().word, "ok");
}

TEST(ConcurrencyTest, ProcessesThatWriteTheStoreAtOnceLoseNothing) {
  const CTestFolder folder;
  const std::string file = folder / "Calendar.reg";
  PutFile(file, "");
  RunAtOnce({{"fill", file, "A", "40"}, {"fill", file, "B", "40"}, {"fill", file, "C", "40"}});
  EXPECT_EQ(CDesktopStore({file}).Read()->size(), 120u);
}

TEST(ConcurrencyTest, AFileIsNotReplacedByWhoHasNotSeenItsLastBytes) {
  const CTestFolder folder;
  const std::string file = folder / "file.xml";
  PutFile(file, "");
  RunAtOnce({{"append", file, "a", "40"}, {"append", file, "b", "40"}, {"append", file, "c", "40"}});
  const std::string bytes = BytesOf(file);
  for (const char word : {'a', 'b', 'c'}) EXPECT_EQ(std::count(bytes.begin(), bytes.end(), word), 40);
}

}  // namespace
}  // namespace orbisol

// One step of the program on real files, in a process of its own that a test may let fail or kill.
//
//   fault_helper save FILE BYTES        replaces FILE, expected to be as it is
//   fault_helper store FILE             sets Grid to 7 and deletes BoldFont
//   fault_helper trash FILE FOLDER      moves FILE to the trash FOLDER
//   fault_helper start FOLDER           reads the settings in the folders below FOLDER, as a start does
//   fault_helper keep FOLDER            loads the calendar "Calendar" below FOLDER and saves it again
//   fault_helper fill FILE NAME COUNT   sets NAME0, NAME1 … one after the other
//   fault_helper append FILE WORD COUNT adds WORD so often, again where somebody else was faster
//
// Prints "ok", "failed" or "changed", the number of calls on files, and the name of the one that failed.

#include <dlfcn.h>

#include <cstdio>
#include <string>

#include "platform/desktop_files.h"
#include "platform/desktop_store.h"
#include "platform/posix_file.h"
#include "platform/trash.h"
#include "settings/settings_persistence.h"
#include "tests/platform/test_folders.h"

namespace orbisol {
namespace {

const char* Word(WriteResult result) {
  return result == WriteResult::kWritten ? "ok" : result == WriteResult::kChanged ? "changed" : "failed";
}
const char* Word(bool done) { return done ? "ok" : "failed"; }

const char* Append(const std::string& path, const std::string& word, int count) {
  for (int i = 0; i < count;) {
    const std::optional<FileBytes> file = ReadWholeFile(path);
    if (!file) return "failed";
    const WriteResult result = ReplaceFile(path, file->bytes + word, &file->stamp, nullptr);
    if (result == WriteResult::kFailed) return "failed";
    if (result == WriteResult::kWritten) ++i;
  }
  return "ok";
}

const char* Run(const std::vector<std::string>& arguments) {
  const std::string& step = arguments[0];
  const std::string& path = arguments[1];
  if (step == "save") {
    const std::optional<FileBytes> old = ReadWholeFile(path);
    const FileStamp expected = old ? old->stamp : FileStamp();
    return Word(ReplaceFile(path, arguments[2], &expected, nullptr));
  }
  if (step == "store") {
    CDesktopStore store({path});
    return Word(store.Write({{"Grid", DwordValue(7)}, {"BoldFont", {}}}));
  }
  if (step == "trash") return Word(MoveToTrashFolder(path, arguments[2], {{2024, 5, 1}, 7, 8, 9}));
  if (step == "start") {
    CDesktopStore store(TestFolders(path).stores);
    CDesktopFiles files(TestFolders(path));
    CCalendarStore calendars(files);
    return Word(ReadSettings(store, calendars, {0, 0, 1920, 1080}, {u"fr", u"FR"}).keyFound);
  }
  if (step == "keep") {
    CDesktopFiles files(TestFolders(path));
    CCalendarStore calendars(files);
    CalendarFile calendar;
    if (calendars.Load(kDefaultCalendarName, {}, calendar) != LoadResult::kLoaded) return "failed";
    return Word(calendars.Save(kDefaultCalendarName, calendar, IfChanged::kRefuse));
  }
  if (step == "append") return Append(path, arguments[2], std::stoi(arguments[3]));
  if (step == "fill") {
    CDesktopStore store({path}, std::chrono::hours(1));
    for (int i = 0; i < std::stoi(arguments[3]); ++i)
      if (!store.Write({{arguments[2] + std::to_string(i), DwordValue(1)}})) return "failed";
    return "ok";
  }
  return "failed";
}

}  // namespace
}  // namespace orbisol

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (arguments.size() < 2) return 1;
  const auto begin = reinterpret_cast<void (*)()>(dlsym(RTLD_DEFAULT, "FaultShimBegin"));
  const auto end = reinterpret_cast<int (*)(const char**)>(dlsym(RTLD_DEFAULT, "FaultShimEnd"));
  if (begin != nullptr) begin();
  const char* const word = orbisol::Run(arguments);
  const char* failed = "-";
  const int count = end != nullptr ? end(&failed) : 0;
  std::printf("%s %d %s\n", word, count, failed);
  return 0;
}

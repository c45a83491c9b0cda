// The main() of every test program. It gives the process a home, settings, data and temporary folder
// of its own, so that tests run in any order, side by side, on any account, and never touch the
// calendars of the user who runs them. A test that crashes leaves its folder behind for inspection.
// Compiled once without Qt and once with a QApplication.

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#ifdef QT_WIDGETS_LIB
#include <QApplication>
#endif

namespace {

namespace fs = std::filesystem;

void SetVariable(const char* name, const std::string& value) { setenv(name, value.c_str(), 1); }

// The offscreen platform's own screen is 800 x 800, into which the main window does not fit. The second one
// stands right of the first and has another ratio.
constexpr char kScreens[] = R"({"screens": [{"name": "one", "x": 0, "y": 0, "width": 1920, "height": 1080,
  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}, {"name": "two", "x": 1920, "y": 0, "width": 1920,
  "height": 1080, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1.5}]})";

// Makes the folders and points the environment to them. Returns their root, empty when that failed.
std::string MakePrivateFolders() {
  std::error_code error;
  std::string root = fs::temp_directory_path(error) / "orbisol-test-XXXXXX";
  if (mkdtemp(root.data()) == nullptr) return {};
  constexpr const char* kFolders[][2] = {
      {"HOME", "home"},
      {"XDG_CONFIG_HOME", "home/.config"},
      {"XDG_DATA_HOME", "home/.local/share"},
      {"XDG_CACHE_HOME", "home/.cache"},
      {"XDG_STATE_HOME", "home/.local/state"},
      {"XDG_RUNTIME_DIR", "run"},
      {"XDG_CONFIG_DIRS", "etc"},
      {"XDG_DATA_DIRS", "share"},
      {"TMPDIR", "tmp"},
  };
  for (const auto& [variable, folder] : kFolders) {
    fs::create_directories(root + "/" + folder, error);
    if (error) return {};
    SetVariable(variable, root + "/" + folder);
  }
  fs::permissions(root + "/run", fs::perms::owner_all, error);  // Qt asks for 0700.
  SetVariable("QT_QPA_PLATFORM", "offscreen:configfile=" + root + "/screens.json");
  return std::ofstream(root + "/screens.json") << kScreens ? root : std::string();
}

// Variables of a desktop session, which a test must not depend on.
void ForgetTheDesktop() {
  for (const char* name :
       {"DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "LANG", "LANGUAGE", "LC_CTYPE", "LC_TIME",
        "LC_MESSAGES", "LC_NUMERIC", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "QT_SCALE_FACTOR",
        "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI", "QT_PLUGIN_PATH"})
    unsetenv(name);
  SetVariable("LC_ALL", "C");
  SetVariable("TZ", "UTC0");
}

int RunTests([[maybe_unused]] int& argc, [[maybe_unused]] char** argv) {
#ifdef QT_WIDGETS_LIB
  const QApplication application(argc, argv);
#endif
  return RUN_ALL_TESTS();
}

}  // namespace

// Answers the address sanitizer, which asks before main(). Its search for leaks can
// crash on the thread-local storage of a pool's threads, of which it would otherwise keep a record.
extern "C" const char* __asan_default_options();  // NOLINT: the sanitizer's own name
extern "C" const char* __asan_default_options() { return "intercept_tls_get_addr=0"; }  // NOLINT

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();  // no test runs, so nothing is prepared

  ForgetTheDesktop();
  const std::string root = MakePrivateFolders();
  if (root.empty()) {
    std::fputs("No private folder could be made for this test.\n", stderr);
    return EXIT_FAILURE;
  }
  const int result = RunTests(argc, argv);
  std::error_code error;
  fs::remove_all(root, error);
  return result;
}

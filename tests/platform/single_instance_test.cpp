#include "platform/single_instance.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>
#include <thread>

#include "platform/runtime_folder.h"

namespace orbisol {
namespace {

using std::chrono::milliseconds;

// Starts a second program while the first one's loop runs. `heard` takes the tokens that the first receives.
InstanceRole RoleOfSecond(CSingleInstance& first, const InstancePlace& place,
                          std::optional<std::string>& heard) {
  std::atomic<bool> isOver = false;
  std::thread loop([&] {
    pollfd calls{first.Descriptor(), POLLIN, 0};
    while (!isOver)
      if (poll(&calls, 1, 1) > 0) heard = first.TakeCall();
  });
  const InstanceRole role = CSingleInstance(place).Role();
  isOver = true;
  loop.join();
  return role;
}

TEST(SingleInstanceTest, TheFirstHearsTheSecondUntilItEnds) {
  const InstancePlace place{RuntimeFolder(), "one", "a token", {}};
  ASSERT_FALSE(place.folder.empty());
  std::ofstream(place.folder + "/orbisol-one.socket") << "left over by a process that was killed";
  {
    CSingleInstance first(place);
    EXPECT_EQ(first.Role(), InstanceRole::kFirst);
    ASSERT_GE(first.Descriptor(), 0);
    EXPECT_EQ(first.TakeCall(), std::nullopt);
    for (const std::string token : {"", "a token"}) {
      std::optional<std::string> heard;
      EXPECT_EQ(RoleOfSecond(first, {place.folder, "one", token}, heard), InstanceRole::kRaised);
      EXPECT_EQ(heard, token);
    }
    EXPECT_EQ(CSingleInstance({place.folder, "other", {}}).Role(), InstanceRole::kFirst);
    EXPECT_EQ(CSingleInstance({place.folder, "one", {}, milliseconds(30)}).Role(), InstanceRole::kSilent);
    EXPECT_EQ(first.TakeCall(), std::nullopt) << "who has given up is not answered";
    EXPECT_NE(std::filesystem::status(place.folder + "/orbisol-one.lock").permissions() &
                  std::filesystem::perms::sticky_bit,
              std::filesystem::perms::none);
  }
  EXPECT_EQ(CSingleInstance(place).Role(), InstanceRole::kFirst);
}

// The first hangs, is called, and is killed before it answers: the caller takes its place.
TEST(SingleInstanceTest, ACallerOutlivesAFirstThatIsKilled) {
  const InstancePlace place{RuntimeFolder(), "killed", {}, std::chrono::minutes(1)};
  for (int delay = 0; delay < 40; ++delay) {
    int made[2];
    ASSERT_EQ(pipe(made), 0);
    const pid_t process = fork();
    if (process == 0) {
      const CSingleInstance first(place);
      if (write(made[1], "", 1) == 1) pause();
      _exit(1);
    }
    char byte = 1;
    ASSERT_EQ(read(made[0], &byte, 1), 1);
    for (const int end : made) close(end);
    std::thread killer([&] {
      std::this_thread::sleep_for(milliseconds(delay));
      kill(process, SIGKILL);
    });
    EXPECT_EQ(CSingleInstance(place).Role(), InstanceRole::kFirst) << "killed after " << delay << " ms";
    killer.join();
    waitpid(process, nullptr, 0);
  }
}

TEST(SingleInstanceTest, WithoutAFolderOrALockOfItsOwnTheProgramRunsAlone) {
  const std::string longName(200, 'x');
  const std::string base = RuntimeFolder();
  std::filesystem::create_directory(base + "/" + longName);
  std::filesystem::create_directory(base + "/links");
  std::filesystem::create_symlink("elsewhere", base + "/links/orbisol.lock");
  for (const std::string& folder :
       {std::string(), std::string("/nowhere/at/all"), base + "/" + longName, base + "/links"}) {
    const CSingleInstance alone({folder, {}, {}});
    EXPECT_EQ(alone.Role(), InstanceRole::kFirst);
    EXPECT_EQ(alone.Descriptor(), -1);
  }
  EXPECT_FALSE(std::filesystem::exists(base + "/links/elsewhere"));
}

// Two users never meet: each has a folder that the other cannot reach into.
TEST(RuntimeFolderTest, IsTheUsersOwnAndClosedToOthers) {
  namespace fs = std::filesystem;
  const std::string base = RuntimeFolder();
  for (const char* const name : {"/open", "/closed"}) fs::create_directory(base + name);
  fs::permissions(base + "/open", fs::perms::owner_all | fs::perms::group_read);
  fs::permissions(base + "/closed", fs::perms::owner_all);
  const auto found = [&](const std::string& given, unsigned user) {
    return FindRuntimeFolder([&](const char* name) { return std::string(name) == "TMPDIR" ? base : given; },
                             user);
  };
  const std::string own = base + "/orbisol-" + std::to_string(getuid());
  EXPECT_EQ(found(base + "/closed", getuid()), base + "/closed");
  EXPECT_EQ(found(base + "/open", getuid()), own);
  EXPECT_EQ(found("relative", getuid()), own);
  EXPECT_EQ(found(base + "/closed", getuid() + 1), "");  // what stands there is not that user's
}

TEST(RuntimeFolderTest, TheScreensOfADisplayAreOnePlace) {
  const auto name = [](std::map<std::string, std::string> set) {
    return FindDisplayName([&](const char* variable) { return set[variable]; });
  };
  EXPECT_EQ(name({}), "");
  EXPECT_EQ(name({{"DISPLAY", ":0.1"}}), "_0");
  EXPECT_EQ(name({{"DISPLAY", "a.host:10.0"}}), "a_host_10");
  EXPECT_EQ(name({{"DISPLAY", ":0"}, {"WAYLAND_DISPLAY", "wayland-1"}}), "wayland-1");
}

}  // namespace
}  // namespace orbisol

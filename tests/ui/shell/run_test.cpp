// Start-up: the settings key, and one program for each user.

#include "ui/shell/run.h"

#include <QTimer>

#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/single_instance.h"
#include "tests/ui/shell/frame_fixture.h"

namespace orbisol {
namespace {

class RunTest : public FrameTest {
 protected:
  RunTest() : place{RuntimeFolder(), "run", {}} {}

  static QWidget* Window() {
    for (QWidget* const widget : QApplication::topLevelWidgets())
      if (qobject_cast<CCalendarFrame*>(widget)) return widget;
    return nullptr;
  }

  InstancePlace place;
};

TEST_F(RunTest, WithoutASettingsKeyTheInstallationIsBroken) {
  store.text.reset();
  EXPECT_EQ(orbisol::Run({store, files, {u"fr", u"FR"}, place}), 0);
  ASSERT_EQ(messages.errors.size(), 1U);
  EXPECT_EQ(messages.errors[0], QString::fromUtf8("Installation incorrecte - réinstallez le programme."));
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(RunTest, ASecondStartRaisesTheWindowOfTheFirstAndEnds) {
  int second = -1;
  bool wasMinimized = false;
  bool wasRaised = false;
  QTimer::singleShot(0, qApp, [&] {
    Window()->showMinimized();
    wasMinimized = Window()->isMinimized();
    second = orbisol::Run({store, files, {u"fr", u"FR"}, place});  // gets to no window or loop of its own
    // The call has arrived; the loop of the first deals with it in its next turn.
    QTimer::singleShot(100, qApp, [&] {
      wasRaised = !Window()->isMinimized();
      Window()->close();
    });
  });
  EXPECT_EQ(orbisol::Run({store, files, {u"fr", u"FR"}, place}), 0);
  EXPECT_EQ(second, 0);
  EXPECT_TRUE(wasMinimized);
  EXPECT_TRUE(wasRaised);
  EXPECT_TRUE(messages.errors.empty());
}

TEST(SingleInstanceTest, TheFirstHearsTheSecondUntilItEnds) {
  const InstancePlace place{RuntimeFolder(), "one", "a token"};
  ASSERT_FALSE(place.folder.empty());
  std::ofstream(place.folder + "/orbisol-one.socket") << "left over by a process that was killed";
  {
    CSingleInstance first(place);
    EXPECT_FALSE(first.IsSecond());
    ASSERT_GE(first.Descriptor(), 0);
    EXPECT_EQ(first.TakeCall(), std::nullopt);
    EXPECT_TRUE(CSingleInstance({place.folder, "one", {}}).IsSecond());
    EXPECT_EQ(first.TakeCall(), "");
    EXPECT_TRUE(CSingleInstance(place).IsSecond());
    EXPECT_EQ(first.TakeCall(), "a token");
    EXPECT_EQ(first.TakeCall(), std::nullopt);
    EXPECT_FALSE(CSingleInstance({place.folder, "other", {}}).IsSecond());
  }
  EXPECT_FALSE(CSingleInstance(place).IsSecond());
}

TEST(SingleInstanceTest, WithoutAFolderTheProgramRunsOnItsOwn) {
  const std::string longName(200, 'x');
  std::filesystem::create_directory(RuntimeFolder() + "/" + longName);
  for (const std::string& folder :
       {std::string(), std::string("/nowhere/at/all"), RuntimeFolder() + "/" + longName}) {
    const CSingleInstance alone({folder, {}, {}});
    EXPECT_FALSE(alone.IsSecond());
    EXPECT_EQ(alone.Descriptor(), -1);
  }
}

// Two users never meet: each has a folder that the other cannot reach into.
TEST(SingleInstanceTest, TheFolderIsTheUsersOwnAndClosedToOthers) {
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

}  // namespace
}  // namespace orbisol

// Start-up: the settings key, and one program for each user.

#include "ui/shell/run.h"

#include <QTimer>

#include <filesystem>
#include <fstream>

#include "platform/single_instance.h"
#include "tests/ui/shell/frame_fixture.h"

namespace orbisol {
namespace {

class RunTest : public FrameTest {
 protected:
  RunTest() : folder(RuntimeFolder()) {}

  static QWidget* Window() {
    for (QWidget* const widget : QApplication::topLevelWidgets())
      if (qobject_cast<CCalendarFrame*>(widget)) return widget;
    return nullptr;
  }

  std::string folder;
};

TEST_F(RunTest, WithoutASettingsKeyTheInstallationIsBroken) {
  store.text.reset();
  EXPECT_EQ(orbisol::Run({store, files, {u"fr", u"FR"}, folder}), 0);
  ASSERT_EQ(messages.errors.size(), 1U);
  EXPECT_EQ(messages.errors[0], QString::fromUtf8("Installation incorrecte - réinstallez le programme."));
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(RunTest, ASecondStartRaisesTheWindowOfTheFirstAndEnds) {
  int second = -1;
  bool wasMinimized = false;
  QTimer::singleShot(0, qApp, [&] {
    Window()->showMinimized();
    wasMinimized = Window()->isMinimized();
    second = orbisol::Run(
        {store, files, {u"fr", u"FR"}, folder});  // it never gets to a window or a loop of its own
    // The call is dealt with in the loop of the first.
    QTimer::singleShot(0, qApp, [] {
      while (Window()->isMinimized()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
      Window()->close();
    });
  });
  EXPECT_EQ(orbisol::Run({store, files, {u"fr", u"FR"}, folder}), 0);
  EXPECT_EQ(second, 0);
  EXPECT_TRUE(wasMinimized);
  EXPECT_TRUE(messages.errors.empty());
}

TEST(SingleInstanceTest, TheFirstHearsTheSecondUntilItEnds) {
  const std::string folder = RuntimeFolder();
  ASSERT_FALSE(folder.empty());
  {
    CSingleInstance first(folder);
    EXPECT_FALSE(first.IsSecond());
    ASSERT_GE(first.Descriptor(), 0);
    EXPECT_FALSE(first.TakeCalls());
    EXPECT_TRUE(CSingleInstance(folder).IsSecond());
    EXPECT_TRUE(CSingleInstance(folder).IsSecond());
    EXPECT_TRUE(first.TakeCalls());
    EXPECT_FALSE(first.TakeCalls());
  }
  EXPECT_FALSE(CSingleInstance(folder).IsSecond());
}

TEST(SingleInstanceTest, WhatAKilledProcessLeftIsNoHindrance) {
  const std::string folder = RuntimeFolder();
  std::ofstream(folder + "/orbisol.socket") << "left over";
  const CSingleInstance first(folder);
  EXPECT_FALSE(first.IsSecond());
  EXPECT_GE(first.Descriptor(), 0);
}

TEST(SingleInstanceTest, WithoutAFolderTheProgramRunsOnItsOwn) {
  const std::string longName(200, 'x');
  for (const std::string& folder :
       {std::string(), std::string("/nowhere/at/all"), RuntimeFolder() + "/" + longName}) {
    std::error_code error;
    if (!folder.empty() && folder[1] != 'n') std::filesystem::create_directory(folder, error);
    const CSingleInstance alone(folder);
    EXPECT_FALSE(alone.IsSecond());
    EXPECT_EQ(alone.Descriptor(), -1);
  }
}

}  // namespace
}  // namespace orbisol

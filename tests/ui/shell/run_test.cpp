// Start-up: the settings key, and one program for each user.

#include "ui/shell/run.h"

#include <QTimer>

#include <thread>

#include "platform/runtime_folder.h"
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
  EXPECT_EQ(orbisol::Run({store, files, kMemoryFolders, {u"fr", u"FR"}, place}), 0);
  ASSERT_EQ(messages.errors.size(), 1U);
  EXPECT_EQ(messages.errors[0], QString::fromUtf8("Installation incorrecte - réinstallez le programme."));
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(RunTest, ASecondStartRaisesTheWindowOfTheFirst) {
  InstanceRole role = InstanceRole::kFirst;
  std::thread second;
  QTimer::singleShot(0, qApp, [&] {
    Window()->showMinimized();
    ASSERT_TRUE(Window()->isMinimized());
    second = std::thread([&] { role = CSingleInstance(place).Role(); });
  });
  QTimer raised;
  raised.callOnTimeout([&] {
    if (second.joinable() && !Window()->isMinimized()) Window()->close();
  });
  raised.start(1);
  EXPECT_EQ(orbisol::Run({store, files, kMemoryFolders, {u"fr", u"FR"}, place}), 0);
  second.join();
  EXPECT_EQ(role, InstanceRole::kRaised);
}

TEST_F(RunTest, WhereTheFirstIsSilentTheUserDecidesWhetherToOpenAnother) {
  const CSingleInstance first(place);  // hears nothing
  place.patience = std::chrono::milliseconds(1);
  int windows = 0;
  QTimer shown;
  shown.callOnTimeout([&] {
    if (Window() == nullptr || !Window()->isVisible()) return;
    ++windows;
    Window()->close();
  });
  shown.start(1);
  for (const int choice : {-1, 0}) {
    messages.choice = choice;
    EXPECT_EQ(orbisol::Run({store, files, kMemoryFolders, {u"fr", u"FR"}, place}), 0);
    EXPECT_EQ(windows, choice + 1);
  }
  EXPECT_EQ(messages.questions.size(), 2U);
}

}  // namespace
}  // namespace orbisol

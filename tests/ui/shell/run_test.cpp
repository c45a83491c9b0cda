// Start-up: the settings key, and one program for each user.

#include "ui/shell/run.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <sstream>
#include <thread>

#include "platform/runtime_folder.h"
#include "platform/single_instance.h"
#include "tests/ui/shell/frame_fixture.h"
#include "ui/shell/command_line.h"

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

// The whole of it, in an empty home: the program speaks French, dates are those of the desktop.
TEST_F(RunTest, TheProgramSpeaksFrenchAndItsDatesAreThoseOfTheDesktop) {
  setenv("LC_ALL", "de_DE.UTF-8", 1);
  EXPECT_EQ(orbisol::Run(*qApp), 0) << "there is no settings key";
  EXPECT_EQ(messages.errors.at(0), QString::fromUtf8("Installation incorrecte - réinstallez le programme."));
  EXPECT_EQ(Window(), nullptr);
  EXPECT_EQ(CurrentPlatform().locale->MonthName(1), u"Januar");
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Annuler"));
  EXPECT_FALSE(QApplication::windowIcon().isNull());
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

// The session, a terminal or another program ends this one, while an event is being typed.
TEST_F(RunTest, AnEndFromOutsideLosesNothingAndAsksNothing) {
  void (*const kEnds[])() = {
      [] { std::raise(SIGTERM); },
      [] { std::raise(SIGHUP); },
      [] { std::raise(SIGINT); },
      [] {
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &quit);
      },
      [] {
        std::atomic<bool> isSaid = false;
        std::thread toolkit([&] {
          qWarning("The Wayland connection broke. Did the Wayland compositor die?");
          isSaid = true;
        });
        while (!isSaid) QCoreApplication::processEvents();
        toolkit.join();
        Window()->close();
        qApp->exit();
      },
      [] {
        alignas(void*) char session[sizeof(void*)] = {};  // answers nothing, and is asked nothing
        emit qApp->commitDataRequest(reinterpret_cast<QSessionManager&>(session));
        Window()->hide();  // as the display is gone
        qApp->exit();
      },
  };
  for (const auto end : kEnds) {
    StoreLayout({.rect = {50, 50, 900, 650}});
    files.files.clear();
    QTimer::singleShot(0, qApp, [&] {
      Window()->setGeometry(100, 80, 1100, 720);
      QTimer::singleShot(0, qApp, [&] {
        QApplication::activeModalWidget()->findChild<QLineEdit*>(QStringLiteral("name"))->setText("typed");
        end();
      });
      static_cast<CCalendarFrame*>(Window())->RunCommand(kCmdEditEvents);
    });
    EXPECT_EQ(orbisol::Run({store, files, kMemoryFolders, {u"fr", u"FR"}, place}), 0);
    EXPECT_GT(Stored().rect.Height(), 720);
    const CalendarContent kept = ReadCalendar(files.files[u"/user/Calendar.xml"].bytes).content;
    EXPECT_EQ(kept.dayEvents.at(0).name.View(), u"typed");
    EXPECT_TRUE(messages.shown.isEmpty());
  }
}

// Nothing but the folder aside takes a file any more. A title that was typed without its dates is kept too.
TEST_F(RunTest, WhatAFullDiskTakesNowhereIsTakenBackAtTheNextStart) {
  CalendarFolders folders = kMemoryFolders;
  folders.asides = {u"/full", u"/aside"};
  const auto run = [&] { return orbisol::Run({store, files, folders, {u"fr", u"FR"}, place}); };
  files.failingWrites = {u"/user/Calendar.xml", u"/user/Calendar (2).xml", u"/full"};
  QTimer::singleShot(0, qApp, [] {
    QTimer::singleShot(0, qApp, [] {
      QApplication::activeModalWidget()->findChild<QLineEdit*>(QStringLiteral("title"))->setText("typed");
      std::raise(SIGTERM);
    });
    static_cast<CCalendarFrame*>(Window())->RunCommand(kCmdEditVacations);
  });
  run();
  EXPECT_EQ(files.files.count(u"/aside/Calendar.xml"), 1U);
  for (const bool isFull : {true, false}) {
    if (!isFull) files.failingWrites.clear();
    QTimer::singleShot(0, qApp, [] { QTimer::singleShot(0, qApp, [] { Window()->close(); }); });
    run();
    EXPECT_TRUE(messages.errors.back().contains(isFull ? "/aside/Calendar.xml"
                                                       : "parmi vos calendriers, sous le nom"));
    EXPECT_EQ(files.files.count(u"/aside/Calendar.xml"), isFull ? 1U : 0U);
  }
  EXPECT_EQ(Content().dayEvents.back().name.View(), u"typed") << "it is the calendar in use";
  EXPECT_EQ(messages.errors.size(), 2);
}

TEST(CommandLineTest, ItAsksForATextOrIsRefusedInOneLine) {
  const struct {
    std::vector<std::string_view> words;  // words after the program's name
    std::optional<int> code;              // nothing if the program is to run
    std::string_view out, errors;         // beginnings of what is printed
  } kRows[] = {
      {{}, {}, "", ""},
      {{"--help"}, 0, "Utilisation : orbisol", ""},
      {{"--version", "--blue"}, 0, "Orbisol " ORBISOL_VERSION, ""},
      {{"--blue", "--version"}, 2, "", "orbisol : « --blue » n'est pas"},
      {{"calendar.xml"}, 2, "", "orbisol : « calendar.xml » n'est pas"},
      {{"-platform", "--help", "--style=x", "-reverse"}, {}, "", ""},  // the toolkit's, with their values
      {{"-platform=x", "--help"}, 0, "Utilisation", ""},
  };
  for (const auto& row : kRows) {
    std::vector<std::string_view> words{"orbisol"};
    words.insert(words.end(), row.words.begin(), row.words.end());
    SCOPED_TRACE(words.back());
    std::ostringstream out, errors;
    EXPECT_EQ(AnswerCommandLine(words, out, errors), row.code);
    EXPECT_EQ(out.str().substr(0, row.out.size()), row.out);
    EXPECT_EQ(errors.str().substr(0, row.errors.size()), row.errors);
    const std::string lines = errors.str();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), row.errors.empty() ? 0 : 1);
    EXPECT_EQ(out.str().empty(), row.out.empty());
  }
}

}  // namespace
}  // namespace orbisol

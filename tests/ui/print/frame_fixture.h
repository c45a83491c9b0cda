// A print frame of its own for each test, on May 2024 with a holiday and an event, and answers to its
// dialogs.
#pragma once

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

#include "content/calendar_content.h"
#include "settings/display_settings.h"
#include "tests/content/rule_builder.h"
#include "tests/support/fakes.h"
#include "tests/support/memory_store.h"
#include "tests/support/rules.h"
#include "tests/support/spy_messages.h"
#include "ui/print/print_frame.h"

namespace orbisol {

class PrintFrameTest : public ::testing::Test {
 protected:
  PrintFrameTest() {
    Display() = DisplaySettings();
    Display().backgroundImage = false;
    Display().printLayout.rect = {50, 60, 850, 660};
    DayEvent event = Rule(kFixedDate, {.month = 5, .day = 23, .name = u"Anniversaire"});
    event.isPublic = false;
    Content() = {{Rule(kFixedDate, {.month = 5, .day = 1, .name = u"Fête du Travail"}), event}, {}};
    frame = new CPrintFrame(store, 2024, 5);
    frame->Open();
    Settle();
  }
  ~PrintFrameTest() override {
    if (frame) frame->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  static void Settle() { QApplication::processEvents(); }
  void Choose(CommandId command) { frame->Commands().Action(command)->trigger(); }
  bool IsEnabled(CommandId command) { return frame->Commands().Action(command)->isEnabled(); }
  bool IsChecked(CommandId command) { return frame->Commands().Action(command)->isChecked(); }
  void Press(int key) {
    QTest::keyClick(frame->windowHandle(), static_cast<Qt::Key>(key));
    Settle();
  }
  QImage Shown() { return frame->View().viewport()->grab(frame->View().PaperRect()).toImage(); }

  // Runs a command and hands the dialog that it opens to `answer`, which ends it.
  template <class Dialog>
  void ChooseAndAnswer(CommandId command, const std::function<void(Dialog&)>& answer) {
    bool isAnswered = false;
    QTimer::singleShot(0, qApp, [&] {
      auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      isAnswered = true;
      answer(*dialog);
    });
    Choose(command);
    EXPECT_TRUE(isAnswered);
  }

  static QString PathOf(const char* name) { return QDir::temp().filePath(QString::fromUtf8(name)); }
  // Returns the number of pages of a PDF file; 0 where there is none.
  static qsizetype PagesIn(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().count("/Type /Page\n") : 0;
  }

  ScopedPlatform platform{FakeLocale(), FakeClock({2024, 5, 15})};
  ScopedRules rules{RulesWith(kRomanReform)};
  SpyMessages messages;
  ScopedMessages scope{messages};
  CMemoryStore store{"\"CalendarName\"=\"Calendar\"\n"};
  QPointer<CPrintFrame> frame;
};

}  // namespace orbisol

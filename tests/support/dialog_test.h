// What tests of windows share: French, a day that is today and selected, the rules of the Roman reform, the
// first settings, an empty calendar, and a user who answers.
//
//   class EditorTest : public DialogTest {};
//   InDialog<CEventsDialog>([](CEventsDialog& dialog) { dialog.accept(); });  // the next to be opened
#pragma once

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "content/calendar_content.h"
#include "content/selected_date.h"
#include "settings/display_settings.h"
#include "tests/content/rule_builder.h"
#include "tests/support/fakes.h"
#include "tests/support/spy_messages.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

class DialogTest : public testing::Test {
 protected:
  explicit DialogTest(PackedDate today = 20240515)
      : m_platform(FakeLocale(), FakeClock(Unpack(today))),
        m_rules(RulesWith(kRomanReform)),
        m_messages(messages) {
    Display() = DisplaySettings();
    Content() = CalendarContent();
    Select(today);
  }
  ~DialogTest() override { EXPECT_FALSE(m_untilOpen && m_untilOpen->isActive()) << "no dialog was opened"; }

  static void Select(PackedDate date) { Selected().SetPacked(date); }
  static PackedDate Now() { return Selected().Packed(); }
  // Delivers what was posted and paints what was asked for.
  static void Settle() { QApplication::processEvents(); }
  static void Activate(QWidget& window) {
    window.show();
    window.activateWindow();
    Settle();
  }

  // Hands the dialog that opens next to `act`, and then leaves it if it is still there.
  template <class Dialog>
  void InDialog(const std::function<void(Dialog&)>& act) {
    m_untilOpen = std::make_unique<QTimer>();
    m_untilOpen->callOnTimeout([this, act] {
      const QPointer<Dialog> dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog.isNull()) return;
      m_untilOpen->stop();
      act(*dialog);
      if (dialog && dialog->isVisible()) dialog->reject();
    });
    m_untilOpen->start(0);
  }

  void ExpectSaid(const char* words) const {
    ASSERT_FALSE(messages.shown.isEmpty()) << words;
    EXPECT_TRUE(messages.shown.last().contains(QString::fromUtf8(words)))
        << qPrintable(messages.shown.last());
  }

  SpyMessages messages;

 private:
  std::unique_ptr<QTimer> m_untilOpen;
  ScopedPlatform m_platform;
  ScopedRules m_rules;
  ScopedMessages m_messages;
};

}  // namespace orbisol

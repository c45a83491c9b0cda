// A main frame of its own for each test, on a store and a folder of calendars in memory.
#pragma once

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

#include "content/selected_date.h"
#include "tests/support/fakes.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "tests/support/rules.h"
#include "ui/shell/calendar_frame.h"
#include "ui/toolkit/messages.h"

namespace orbisol {

struct SpyMessages : UserMessages {
  std::vector<QString> errors, questions;
  int choice = -1;  // answer to every question
  int beeps = 0;

  void ShowError(QWidget*, const QString& text) override { errors.push_back(text); }
  int Choose(QWidget*, const QString& text, const QStringList&) override {
    questions.push_back(text);
    return choice;
  }
  void Beep() override { ++beeps; }
};

class FrameTest : public ::testing::Test {
 protected:
  FrameTest()
      : m_platform(FakeLocale(), FakeClock({2024, 5, 15})),
        m_rules(RulesWith(kRomanReform)),
        m_messages(messages),
        store("\"CalendarName\"=\"Calendar\"\n"),
        calendars(files, kMemoryFolders),
        publicCalendars(files, kMemoryFolders) {
    Select(20240515);
    WindowLayout layout;
    layout.rightPaneShown = true;
    StoreLayout(layout);
  }
  ~FrameTest() override {
    frame.reset();
    Display() = DisplaySettings();
    Content() = CalendarContent();
  }

  static void Select(PackedDate date) { Selected().SetPacked(date); }
  static PackedDate Now() { return Selected().Packed(); }
  static void Settle() { QApplication::processEvents(); }

  void Open() {
    frame =
        std::make_unique<CCalendarFrame>(FrameServices{store, calendars, publicCalendars, {u"fr", u"FR"}});
    frame->Open();
    frame->activateWindow();
    Settle();
  }
  CMainDlg& Dialog() { return frame->Dialog(); }

  // Shows a date as if a view had changed it.
  void Show(PackedDate date) {
    Select(date);
    Dialog().Refresh();
  }

  // Returns a control of the pane by its class and its text without "&".
  template <class Widget>
  Widget* Control(const char* text) {
    for (Widget* const widget : Dialog().Pane().template findChildren<Widget*>())
      if (widget->text().remove(u'&') == QString::fromUtf8(text)) return widget;
    ADD_FAILURE() << "no control " << text;
    return nullptr;
  }
  template <class Widget>
  Widget* Named(const char* accessibleName) {
    for (Widget* const widget : Dialog().Pane().template findChildren<Widget*>())
      if (widget->accessibleName() == QString::fromUtf8(accessibleName)) return widget;
    ADD_FAILURE() << "no control named " << accessibleName;
    return nullptr;
  }

  void StoreLayout(const WindowLayout& layout) {
    store.Write({{"WindowLayout", BinaryValue(LayoutToBytes(layout))}});
  }
  WindowLayout Stored() {
    WindowLayout layout;
    if (const auto bytes = BinaryOf(*store.Read(), "WindowLayout")) LayoutFromBytes(*bytes, layout);
    return layout;
  }

  ScopedPlatform m_platform;
  ScopedRules m_rules;
  SpyMessages messages;
  ScopedMessages m_messages;
  CMemoryStore store;
  CMemoryFiles files;
  CCalendarStore calendars;
  CPublicCalendars publicCalendars;
  std::unique_ptr<CCalendarFrame> frame;
};

}  // namespace orbisol

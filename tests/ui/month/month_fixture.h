// A month window of its own for each test, with a host that writes down what it hears.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <memory>
#include <string>
#include <vector>

#include "content/calendar_content.h"
#include "content/selected_date.h"
#include "settings/display_settings.h"
#include "tests/support/fakes.h"
#include "tests/support/rules.h"
#include "ui/month/month_window.h"

namespace orbisol {

struct SpyHost : MonthHost {
  int changes = 0;
  std::vector<PackedDate> opened;  // days
  std::vector<std::pair<PackedDate, PackedDate>> openedRanges;

  void OnMonthDateChanged() override { ++changes; }
  void OpenPeriodEditor(const Date& from, const Date& to) override {
    openedRanges.emplace_back(from.Packed(), to.Packed());
  }
  void OpenEventsEditor(const Date& date) override { opened.push_back(date.Packed()); }
};

// Warnings of the toolkit while it lives.
class CWarnings {
 public:
  CWarnings() : m_before(qInstallMessageHandler(Take)) { Texts().clear(); }
  ~CWarnings() { qInstallMessageHandler(m_before); }

  static std::vector<std::string>& Texts() {
    static std::vector<std::string> texts;
    return texts;
  }

 private:
  static void Take(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type != QtDebugMsg && type != QtInfoMsg) Texts().push_back(text.toStdString());
  }

  QtMessageHandler m_before;
};

class MonthWindowTest : public ::testing::Test {
 protected:
  MonthWindowTest() : m_platform(FakeLocale(), FakeClock({2024, 5, 15})), m_rules(RulesWith(kRomanReform)) {
    Display() = DisplaySettings();
    Display().backgroundImage = false;
    Content() = CalendarContent();
    Select(20240515);
    Open();
  }

  ~MonthWindowTest() override {
    window.reset();
    Display() = DisplaySettings();
    Content() = CalendarContent();
  }

  static void Select(PackedDate date) { Selected().SetPacked(date); }
  static PackedDate Now() { return Selected().Packed(); }

  void Open() {
    window = std::make_unique<CMonthWindow>(&host);
    window->resize(700, 420);
    window->show();
    window->activateWindow();
    window->setFocus();
    Settle();
    host = SpyHost();
  }

  // What was posted is delivered, what was asked for is painted.
  static void Settle() { QApplication::processEvents(); }

  bool Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(window.get(), &event);
    return event.isAccepted();
  }

  void Mouse(QEvent::Type type, QPoint at, Qt::MouseButtons buttons = Qt::LeftButton,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, window->mapToGlobal(at), button, buttons, modifiers);
    QApplication::sendEvent(window.get(), &event);
  }
  void Down(QPoint at, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Mouse(QEvent::MouseButtonPress, at, Qt::LeftButton, modifiers);
  }
  void Drag(QPoint at) { Mouse(QEvent::MouseMove, at); }
  void Up(QPoint at) { Mouse(QEvent::MouseButtonRelease, at, Qt::NoButton); }
  void Click(QPoint at, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Down(at, modifiers);
    Up(at);
  }

  void Turn(int eighths, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWheelEvent event(QPointF(350, 200), window->mapToGlobal(QPointF(350, 200)), QPoint(), QPoint(0, eighths),
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(window.get(), &event);
  }

  // The middle of the cell of a day that is in view.
  QPoint At(int month, int day) {
    const int cell = window->Month().CellOf(month, day);
    EXPECT_NE(cell, kNoCell) << day << "/" << month;
    const Rect rect = window->Places().CellRect(cell);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  }

  Color PixelAt(QPoint at) {
    const QColor color = window->grab().toImage().pixelColor(at);
    return Rgb(static_cast<unsigned>(color.red()), static_cast<unsigned>(color.green()),
               static_cast<unsigned>(color.blue()));
  }

  ScopedPlatform m_platform;
  ScopedRules m_rules;
  SpyHost host;
  std::unique_ptr<CMonthWindow> window;
};

}  // namespace orbisol

// The fixture of the tests of the month's window.
#pragma once

#include <QMouseEvent>
#include <QWheelEvent>

#include "tests/support/dialog_test.h"
#include "ui/month/month_window.h"
#include "ui/toolkit/geometry.h"

namespace orbisol {

using Ranges = std::vector<std::pair<PackedDate, PackedDate>>;

// A month window, and a record of its signals. The 1st is a holiday in a vacation.
class MonthWindowTest : public DialogTest {
 protected:
  MonthWindowTest() {
    Display().backgroundImage = false;
    Content() = {{EveryYear(5, 1, u"Fête <b>du</b> travail")}, {Period(20240429, 20240501, u"Vacances")}};
    window = std::make_unique<CMonthWindow>();
    QObject::connect(window.get(), &CMonthWindow::dateMoved, window.get(), [this] { ++moves; });
    QObject::connect(window.get(), &CMonthWindow::dateDragged, window.get(), [this] { ++drags; });
    QObject::connect(window.get(), &CMonthWindow::dayOpened, window.get(),
                     [this](const Date& date) { opened.push_back(date.Packed()); });
    QObject::connect(
        window.get(), &CMonthWindow::periodChosen, window.get(),
        [this](const Date& from, const Date& to) { openedRanges.emplace_back(from.Packed(), to.Packed()); });
    window->resize(700, 420);
    window->setFocus();
    Activate(*window);
  }

  bool Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(window.get(), &event);
    return event.isAccepted();
  }

  void Mouse(QEvent::Type type, QPoint at, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, window->mapToGlobal(at), button, held, modifiers);
    QApplication::sendEvent(window.get(), &event);
  }
  // Turns the wheel by eighths of a degree, 120 for a notch away from the user.
  void Wheel(QPoint turned, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
             Qt::ScrollPhase phase = Qt::NoScrollPhase, quint64 time = 0) {
    QWheelEvent event({350, 200}, {350, 200}, {}, turned, {}, modifiers, phase, false);
    event.setTimestamp(time);
    QApplication::sendEvent(window.get(), &event);
  }
  void Down(QPoint at) { Mouse(QEvent::MouseButtonPress, at); }
  void Drag(QPoint at) { Mouse(QEvent::MouseMove, at); }
  void Up(QPoint at) { Mouse(QEvent::MouseButtonRelease, at); }

  QRect CellOf(int month, int day) {
    const int cell = window->Month().CellOf(month, day);
    EXPECT_NE(cell, kNoCell) << day << "/" << month;
    return ToQRect(window->Places().CellRect(cell));
  }
  // Returns a point inside the cell of a day that is in view.
  QPoint At(int month, int day) { return CellOf(month, day).center(); }

  int moves = 0;
  int drags = 0;
  std::vector<PackedDate> opened;  // days
  Ranges openedRanges;
  std::unique_ptr<CMonthWindow> window;
};

}  // namespace orbisol

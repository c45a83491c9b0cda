// A main frame of its own for each test, on a store and a folder of calendars in memory.
#pragma once

#include <set>

#include "tests/support/calendar_folder_test.h"
#include "ui/shell/calendar_frame.h"
#include "ui/toolkit/geometry.h"

namespace orbisol {

// Returns the colors that a part of a widget is painted in.
inline std::set<QRgb> ColorsIn(QWidget& widget, const QRect& place) {
  const QImage picture = widget.grab(place).toImage();
  std::set<QRgb> colors;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) colors.insert(picture.pixel(x, y));
  return colors;
}

class FrameTest : public CalendarFolderTest {
 protected:
  FrameTest() { StoreLayout({.rightPaneShown = true}); }

  void Open() {
    frame =
        std::make_unique<CCalendarFrame>(FrameServices{store, calendars, publicCalendars, {u"fr", u"FR"}});
    frame->Open();
    frame->activateWindow();
    Settle();
  }
  CMainDlg& Dialog() { return frame->Dialog(); }
  QAction& Action(CommandId command) { return *frame->Commands().Action(command); }
  static void Click(QWidget& widget, const Rect& place, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(&widget, Qt::LeftButton, modifiers, ToQRect(place).center());
  }

  // Shows a date as if a view had changed it.
  void Show(PackedDate date) {
    Select(date);
    Dialog().Refresh();
  }
  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(frame->windowHandle(), static_cast<Qt::Key>(key), modifiers);
    Settle();  // what a key does is reported after it
  }
  std::string Status() const { return frame->StatusText().toStdString(); }

  // Returns a control of the pane by its text without "&", or by its accessible name.
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
  WindowLayout Stored(const char* name = "WindowLayout") {
    WindowLayout layout;
    if (const auto bytes = BinaryOf(*store.Read(), name)) LayoutFromBytes(*bytes, layout);
    return layout;
  }

  std::unique_ptr<CCalendarFrame> frame;
};

}  // namespace orbisol

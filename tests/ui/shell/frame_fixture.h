// A main frame of its own for each test, on a store and a folder of calendars in memory.
#pragma once

#include <QTest>

#include <set>

#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "tests/support/spy_messages.h"
#include "tests/ui/month/month_fixture.h"
#include "ui/shell/calendar_frame.h"

namespace orbisol {

// Returns the colors that a part of a widget is painted in.
inline std::set<QRgb> ColorsIn(QWidget& widget, const QRect& place) {
  const QImage picture = widget.grab(place).toImage();
  std::set<QRgb> colors;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) colors.insert(picture.pixel(x, y));
  return colors;
}

class FrameTest : public SelectedDateTest {
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

  SpyMessages messages;
  ScopedMessages m_messages{messages};
  CMemoryStore store{"\"CalendarName\"=\"Calendar\"\n"};
  CMemoryFiles files;
  CCalendarStore calendars{files, kMemoryFolders};
  CPublicCalendars publicCalendars{files, kMemoryFolders};
  std::unique_ptr<CCalendarFrame> frame;
};

}  // namespace orbisol

// Two calendars and what is in force, with what can be done with them.
#pragma once

#include "tests/support/calendar_folder_test.h"
#include "ui/calendars/calendar_actions.h"

namespace orbisol {

class CalendarsTest : public CalendarFolderTest {
 protected:
  CalendarsTest() : CalendarFolderTest(20260513) {
    store.Write({{"CalendarName", TextValue(u"Maison")}});
    Put(u"Maison", u"mine");
    Put(u"Travail", u"work");
    StoredSettings stored = ReadSettings(store, calendars, publicCalendars, {u"fr", u"FR"}, {});
    Display() = stored.display;
    Rules() = stored.rules;
    Content() = stored.content;
  }

  // As an editor does it that could not save.
  static void Edit(std::u16string_view rule) {
    Content() = CalendarWith(rule).content;
    Display().changed = true;
  }
  // Returns the calendar in force, as the display and as the key have it, and its rule.
  std::string InUse() const {
    return ToUtf8(Display().calendarName.View()) + " " + ToUtf8(Display().calendarPath) + " " +
           ToUtf8(*TextOf(*store.Read(), "CalendarName", 200)) + " " + NamesIn(Content());
  }

  CCalendarActions actions{{store, calendars}, {Display(), Rules(), Content()}, nullptr};
};

}  // namespace orbisol

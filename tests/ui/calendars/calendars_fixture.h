// Calendars, a settings key and what is in force, all in memory, with the answers of a user.
#pragma once

#include <string>
#include <vector>

#include "tests/support/calendar_builder.h"
#include "tests/support/dialog_test.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "ui/calendars/calendar_actions.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

class CalendarsTest : public DialogTest {
 protected:
  CalendarsTest() : DialogTest({2026, 5, 13}) {
    Put(u"Maison", u"mine");
    Put(u"Travail", u"work");
    StoredSettings stored = ReadSettings(store, calendars, {files, kMemoryFolders}, {u"fr", u"FR"}, {});
    Display() = stored.display;
    Rules() = stored.rules;
    Content() = stored.content;
  }
  ~CalendarsTest() override {
    Display() = DisplaySettings();
    Content() = CalendarContent();
  }

  void Put(const std::u16string& name, std::u16string_view rule) {
    files.Put(u"/user/" + name + u".xml", BytesWith(rule));
  }
  // As an editor does it that could not save.
  static void Edit(std::u16string_view rule) {
    Content() = CalendarWith(rule).content;
    Display().changed = true;
  }
  static std::string NamesIn(const CalendarContent& content) {
    std::u16string all;
    for (const DayEvent& rule : content.dayEvents) all.append(rule.name.View()).append(u" ");
    return ToUtf8(all.substr(0, all.empty() ? 0 : all.size() - 1));
  }
  // The rule of each calendar, in the order of their names: "Maison=mine Travail=work ".
  std::string OnDisk() const {
    std::string all;
    for (const std::u16string& name : calendars.Names())
      all += ToUtf8(name) + "=" + NamesIn(ReadCalendar(*calendars.BytesOf(name)).content) + " ";
    return all;
  }
  std::string Versions(std::u16string_view name) const {
    std::string all;
    for (const CalendarVersion& version : calendars.Versions().List(name))
      all += NamesIn(ReadCalendar(*calendars.Versions().Read(name, version)).content) + " ";
    return all;
  }
  // The calendar in force, as the display and as the key have it, and its rule.
  std::string InUse() const {
    return ToUtf8(Display().calendarName.View()) + " " + ToUtf8(Display().calendarPath) + " " +
           ToUtf8(*TextOf(*store.Read(), "CalendarName", 200)) + " " + NamesIn(Content());
  }
  void ExpectSaid(const char* words) const {
    ASSERT_FALSE(messages.shown.isEmpty()) << words;
    EXPECT_TRUE(messages.shown.last().contains(QString::fromUtf8(words)))
        << qPrintable(messages.shown.last());
  }

  CMemoryFiles files;
  CMemoryStore store{"\"CalendarName\"=\"Maison\"\n"};
  CCalendarStore calendars{files, kMemoryFolders};
  CCalendarActions actions{{store, calendars}, {Display(), Rules(), Content()}, nullptr};
};

}  // namespace orbisol

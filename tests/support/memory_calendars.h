// A folder of calendars in memory, and words for what is in it.
//
//   Put(u"Travail", u"work");
//   EXPECT_EQ(OnDisk(), "Calendar=mine Travail=work ");
#pragma once

#include "files/calendar_store.h"
#include "files/public_calendars.h"
#include "tests/support/calendar_builder.h"
#include "tests/support/memory_files.h"

namespace orbisol {

struct MemoryCalendars {
  CMemoryFiles files;
  CCalendarStore calendars{files, kMemoryFolders};
  CPublicCalendars publicCalendars{files, kMemoryFolders};

  // Writes a calendar with one rule, like another program.
  void Put(const std::u16string& name, std::u16string_view rule) {
    files.Put(u"/user/" + name + u".xml", BytesWith(rule));
  }
  WriteResult Save(std::u16string_view name, std::u16string_view rule,
                   IfChanged ifChanged = IfChanged::kRefuse) {
    return calendars.Save(name, CalendarWith(rule), ifChanged).result;
  }
  CalendarContent ContentOf(std::u16string_view name) const {
    return ReadCalendar(calendars.BytesOf(name).value_or("")).content;
  }
  // Returns the names of the rules: "one two".
  static std::string NamesIn(const CalendarContent& content) {
    std::u16string all;
    for (const DayEvent& rule : content.dayEvents)
      all.append(all.empty() ? u"" : u" ").append(rule.name.View());
    return ToUtf8(all);
  }
  // Returns each calendar with its rules, and each backup: "Maison=mine Maison.bak=theirs Travail=work ".
  std::string OnDisk() const {
    std::string all;
    for (const std::u16string& name : calendars.Names()) {
      all += ToUtf8(name) + "=" + NamesIn(ContentOf(name)) + " ";
      if (const auto backup = files.Read(calendars.PathOf(name) + u".bak"))
        all += ToUtf8(name) + ".bak=" + NamesIn(ReadCalendar(backup->bytes).content) + " ";
    }
    return all;
  }
  // Returns the rules of the versions of a calendar, the newest first: "two one ".
  std::string Versions(std::u16string_view name) const {
    std::string all;
    for (const CalendarVersion& version : calendars.Versions().List(name))
      all += NamesIn(ReadCalendar(calendars.Versions().Read(name, version).value_or("")).content) + " ";
    return all;
  }
};

}  // namespace orbisol

// The user's calendars by name, and the public calendars from which holidays are taken.
//
//   CCalendarStore store(files);
//   CalendarFile calendar;
//   store.Load(u"Famille", calendar);
//   …
//   switch (store.Save(u"Famille", calendar, IfChanged::kRefuse)) …   // kChanged: ask, then save again with
//                                                                     // kOverwrite, or SaveBeside
//
// A calendar's name is its file's name without ".xml". Nothing outside the calendars' folder is written, and
// nothing that a file holds is lost: what the program would not write again is first copied to
// "<name>.xml.bak".
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/calendar_file.h"
#include "files/file_system.h"

namespace orbisol {

constexpr std::u16string_view kDefaultCalendarName = u"Calendar";
constexpr std::size_t kMaxCalendarNameBytes = 200;  // in UTF-8

// Whether a text can name a calendar: one file name, not too long, without separators and control characters.
bool IsCalendarName(std::u16string_view name);

// The name itself, or "Calendar" for one that cannot be.
std::u16string CalendarNameOrDefault(std::u16string_view name);

// Whether a public calendar is meant for the first start in some language, not for a list: two characters of
// any kind and "_public". Older releases gave each user copies of them.
bool IsFirstStartName(std::u16string_view name);

enum class LoadResult {
  kLoaded,
  kMissing,     // there is no such file; the calendar is empty, with defaults
  kUnreadable,  // there is one and it cannot be read; likewise, and saving will not touch it
};

enum class IfChanged {
  kRefuse,     // leave a file alone that is not the one last loaded or saved
  kOverwrite,  // the user said so
};

// A public calendar, wherever it stands.
struct PublicCalendar {
  std::u16string name;
  std::u16string path;
};

class CCalendarStore {
 public:
  explicit CCalendarStore(Files& files) : m_files(files) {}

  // The user's calendars, by the alphabet.
  std::vector<std::u16string> Names() const;

  // Where a calendar's file lies; empty when the name cannot be.
  std::u16string PathOf(std::u16string_view name) const;

  bool Exists(std::u16string_view name) const;

  // A name that no file bears yet: "Famille (2)" for "Famille" and for "Famille (1)".
  std::u16string FreeName(std::u16string_view name) const;

  // Sets the whole of `calendar`.
  LoadResult Load(std::u16string_view name, CalendarFile& calendar);

  // kChanged: the file was changed by somebody else since it was last loaded or saved here, or was never
  // loaded and stands there already; it is as it was. kFailed: it is as it was, or already new where only the
  // sync of its folder failed. A file that somebody deleted is written again; what somebody else wrote or the
  // reader had to drop is first copied to "<name>.xml.bak". An `info` text of the file replaced is kept when
  // the calendar has none.
  WriteResult Save(std::u16string_view name, const CalendarFile& calendar, IfChanged ifChanged);

  // Saves under a free name next to the file, which stays as it is: both are kept. `newName` is set after
  // success.
  WriteResult SaveBeside(std::u16string_view name, const CalendarFile& calendar, std::u16string& newName);

  // Moves the file to the trash. False when it is still there, or when there is none.
  bool Delete(std::u16string_view name);

  // The user's own and the shipped ones in one list by the alphabet; on equal names the user's. Shipped ones
  // for first starts are left out.
  std::vector<PublicCalendar> PublicCalendars() const;

  // Where the public calendar of that name stands, the user's before the shipped one; empty when nowhere.
  std::u16string PublicPathOf(std::u16string_view name) const;

  // Nothing when the file cannot be read.
  std::optional<CalendarFile> LoadPublic(std::u16string_view path) const;

  // What a public calendar says about itself, possibly nothing.
  std::u16string Description(std::u16string_view path) const;

 private:
  Files& m_files;
  std::map<std::u16string, FileStamp> m_stamps;  // by path: the files as they were last loaded or saved
};

}  // namespace orbisol

// The user's calendars by name.
//
//   CCalendarStore store(files, folders);
//   CalendarFile calendar;
//   store.Load(u"Famille", calendar);
//   …
//   SavedCalendar saved = store.Save(u"Famille", calendar, IfChanged::kRefuse);
//   if (saved.result == WriteResult::kChanged) …  // ask, then save again with kOverwrite or kKeepBoth
//
// Nothing outside the calendars' folder is written, and nothing that a file holds is lost: what the program
// would not write again is first backed up to "<name>.xml.bak".
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/calendar_file.h"
#include "files/calendar_name.h"
#include "files/file_system.h"

namespace orbisol {

enum class LoadResult {
  kLoaded,
  kMissing,     // there is no such file; the calendar is empty, with defaults
  kUnreadable,  // the file cannot be read; the calendar is empty too, and saving will not touch the file
};

// The choice for a file that is not the one last loaded or saved here.
enum class IfChanged {
  kRefuse,     // leave it alone and say so: the program asks
  kOverwrite,  // replace it, at the user's wish, after backing it up
  kKeepBoth,   // leave it alone and save under a free name
};

struct SavedCalendar {
  WriteResult result = WriteResult::kFailed;
  std::u16string name;  // name under which it was saved, or was to be saved
};

class CCalendarStore {
 public:
  // `files` outlives the store.
  CCalendarStore(FileSystem& files, const CalendarFolders& folders)
      : m_files(files), m_folder(folders.calendars) {}

  // Returns the user's calendars, by the alphabet.
  std::vector<std::u16string> Names() const;

  // Returns where a calendar's file lies; empty for a name that cannot be.
  std::u16string PathOf(std::u16string_view name) const;

  bool Exists(std::u16string_view name) const;

  // Returns a name that no file bears yet: "Famille (2)" for "Famille" and for "Famille (1)".
  std::u16string FreeName(std::u16string_view name) const;

  // Returns the bytes of a calendar's file; nothing when it is missing or cannot be read. Saving remembers
  // nothing of this look.
  std::optional<std::string> BytesOf(std::u16string_view name) const;

  // Sets the whole of `calendar`.
  LoadResult Load(std::u16string_view name, CalendarFile& calendar);

  // Writes the calendar to its file.
  //
  // kChanged: the file was changed by somebody else since it was last loaded or saved here, or was never
  // loaded and stands there already. kFailed: also for a name that cannot be, and for a file that cannot be
  // read. After both the file is as it was. A file that somebody deleted is written again. Bytes that
  // somebody else wrote, or that hold more than the reader took, are first backed up. An `info` text of the
  // file replaced is kept when the calendar has none.
  //
  // kKeepBoth also helps where the file cannot be written, or cannot be read and is therefore not replaced:
  // without it such a calendar could be neither saved nor left for another one.
  SavedCalendar Save(std::u16string_view name, const CalendarFile& calendar, IfChanged ifChanged);

  // Moves the file to the trash. Returns false when it is still there, or when there is none.
  bool Delete(std::u16string_view name);

 private:
  WriteResult Replace(std::u16string_view name, const CalendarFile& calendar, bool overwrites,
                      std::u16string_view model = {});

  FileSystem& m_files;
  std::u16string m_folder;
  std::map<std::u16string, FileStamp> m_stamps;  // by path: the files as they were last loaded or saved
};

}  // namespace orbisol

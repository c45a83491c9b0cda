// The user's calendars by name.
//
//   CCalendarStore store(files, folders);
//   CalendarFile calendar;
//   store.Load(u"Famille", calendar);
//   …
//   SavedCalendar saved = store.Save(u"Famille", calendar, IfChanged::kRefuse);
//   if (saved.result == WriteResult::kChanged) …  // ask, then save again with kOverwrite or kKeepBoth
//
// Nothing that a file holds is lost: before other bytes take their place, its own are kept as an earlier
// version (versions.h), and what the program would not write again is first backed up to "<name>.xml.bak".
// The two have nothing to do with each other: a backup that fails stops the save, a version never does.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/calendar_file.h"
#include "files/calendar_name.h"
#include "files/file_system.h"
#include "files/versions.h"

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

// A calendar that was put aside.
struct TakenBack {
  std::u16string name;     // name under which it was to be saved
  std::u16string newName;  // name under which it is saved now; empty where that fails and it stays aside
  std::u16string path;     // file that it was put into
};

class CCalendarStore {
 public:
  // `files` outlives the store.
  CCalendarStore(FileSystem& files, const CalendarFolders& folders)
      : m_files(files),
        m_folder(folders.calendars),
        m_asides(folders.asides),
        m_versions(files, folders.versions) {}

  // Returns the user's calendars, by the alphabet.
  std::vector<std::u16string> Names() const;

  // Returns where a calendar's file lies; empty for a name that cannot be.
  std::u16string PathOf(std::u16string_view name) const;

  bool Exists(std::u16string_view name) const;

  // Returns a name that no file bears yet: "Famille (2)" for "Famille" and for "Famille (1)". Where that
  // cannot be found out it is any name, and no file can be made.
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
  // A calendar that is new here has no earlier versions: those of an older one of its name go to the trash.
  //
  // kKeepBoth also helps where the file cannot be written, or cannot be read and is therefore not replaced:
  // without it such a calendar could be neither saved nor left for another one.
  SavedCalendar Save(std::u16string_view name, const CalendarFile& calendar, IfChanged ifChanged);

  // Writes bytes to the file as they are, of an earlier version; else like Save().
  SavedCalendar Restore(std::u16string_view name, std::string_view bytes, IfChanged ifChanged);

  // Keeps a calendar that is not saved as an earlier version of itself. Returns true when that is safe.
  bool KeepVersion(std::u16string_view name, const CalendarFile& calendar);

  // Puts a calendar that cannot be saved into the first of the folders for that which has room, beside what
  // lies there already. Returns true when it is safe.
  bool PutAside(std::u16string_view name, const CalendarFile& calendar);

  // Saves all calendars that were put aside, under their names where these are free, else under free names,
  // and removes them there. A calendar that the user has already, byte for byte, is removed and not named.
  std::vector<TakenBack> TakeBack();

  const CVersions& Versions() const { return m_versions; }

  // Rename a calendar in two steps; whoever remembers its name takes the new one between them. Wherever that
  // ends, the calendar has a file under the name that is remembered:
  //
  //   if (store.AddName(u"Famille", u"Maison")) {
  //     …  // the settings say "Maison" from now on
  //     if (store.DropName(u"Famille", u"Maison")) store.MoveVersions(u"Famille", u"Maison");
  //   }
  //
  // AddName() gives the file a second name. Returns false when there is no such file, or one of the new name.
  // DropName() removes a name. Returns false when the two no longer have the same bytes, because somebody
  // saves under the first, or when that cannot be found out; both stay. MoveVersions() moves the backups and,
  // to a calendar that has none of its own, the versions.
  bool AddName(std::u16string_view name, std::u16string_view newName);
  bool DropName(std::u16string_view name, std::u16string_view otherName);
  void MoveVersions(std::u16string_view name, std::u16string_view newName);

  // Writes bytes to a file outside the calendars' folder, in the place of one that may stand there. Returns
  // false when that is as it was.
  bool Export(std::u16string_view path, std::string_view bytes);

  // Moves the file to the trash, and its backups and versions after it. Returns false when the file is still
  // there, or when there is none.
  bool Delete(std::u16string_view name);

 private:
  // Makes the bytes to write, from those of the file that they replace or stand beside.
  using BytesMaker = std::function<std::string(std::string_view disk)>;

  SavedCalendar Write(std::u16string_view name, const BytesMaker& make, IfChanged ifChanged);
  WriteResult Replace(std::u16string_view name, const BytesMaker& make, bool overwrites);
  WriteResult Create(std::u16string_view name, std::string_view bytes, std::u16string_view model);
  bool HasBytes(std::string_view bytes) const;

  FileSystem& m_files;
  std::u16string m_folder;
  std::vector<std::u16string> m_asides;
  CVersions m_versions;
  std::map<std::u16string, FileStamp> m_stamps;  // by path: the files as they were last loaded or saved
};

}  // namespace orbisol

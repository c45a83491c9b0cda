// The public calendars, from which holidays are taken: those that came with the program and those that the
// user added. They are only read.
//
//   const CPublicCalendars publicCalendars(files, folders);
//   publicCalendars.Load(publicCalendars.PathOf(u"France"));
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/calendar_file.h"
#include "files/file_system.h"

namespace orbisol {

// A public calendar, in either of the two folders.
struct PublicCalendar {
  std::u16string name;
  std::u16string path;
};

class CPublicCalendars {
 public:
  // `files` outlives this object.
  CPublicCalendars(const FileSystem& files, const CalendarFolders& folders)
      : m_files(files), m_user(folders.userLegals), m_shipped(folders.shippedLegals) {}

  // Returns the user's own and the shipped ones in one list by the alphabet; on equal names the user's.
  // Shipped ones for first starts (IsFirstStartName) are left out.
  std::vector<PublicCalendar> List() const;

  // Returns the path of the public calendar of that name, the user's before the shipped one; empty if there
  // is none.
  std::u16string PathOf(std::u16string_view name) const;

  // Returns a calendar; nothing if the file cannot be read. Its `info` says what the calendar is, or is
  // empty.
  std::optional<CalendarFile> Load(std::u16string_view path) const;

 private:
  const FileSystem& m_files;
  std::u16string m_user;
  std::u16string m_shipped;
};

}  // namespace orbisol

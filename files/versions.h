// Earlier versions of calendars: the bytes that saves took out of their files.
//
//   CVersions versions(files, folders.versions);
//   versions.Keep(u"Famille", oldBytes, now);
//   for (const CalendarVersion& version : versions.List(u"Famille"))  // the newest first
//     versions.Read(u"Famille", version);
//
// Each calendar has a folder of its name, each version a file "2026-05-13 14.05.09 000017
// 85944171f73967e8.xml": when it was kept, by the local time, the how manieth it is, and the hash of its
// bytes. The count alone says which is newer: clocks go wrong and are set back.
//
// Versions are best effort. What fails here fails silently, and programs that keep and remove at the same
// time do not mind each other.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform.h"
#include "files/file_system.h"

namespace orbisol {

struct CalendarVersion {
  LocalMoment kept = {};
  int count = 0;           // from 1, higher for a newer one
  std::uint64_t hash = 0;  // ByteHash of its bytes
  std::uint64_t size = 0;  // in bytes

  bool operator==(const CalendarVersion&) const = default;
};

constexpr std::size_t kNewestVersions = 10;              // number of those kept that differ
constexpr std::size_t kVersionDays = 7;                  // before the day of the newest, one version each
constexpr std::uint64_t kMostVersionBytes = 50'000'000;  // size of all those of one calendar

// Returns those versions that are to be removed. Kept are the newest ten that differ, and the last of each of
// the seven latest days before the day of the newest; of these, from the newest on, as many as fit into the
// bytes. `versions` stand with the newest first.
std::vector<CalendarVersion> SurplusVersions(std::span<const CalendarVersion> versions);

class CVersions {
 public:
  // `files` outlives this object. Nothing is kept where `folder` is empty.
  CVersions(FileSystem& files, std::u16string_view folder) : m_files(files), m_folder(folder) {}

  // Keeps the bytes as the newest version of a calendar, then removes what is surplus. Returns true when the
  // bytes are safe.
  bool Keep(std::u16string_view name, std::string_view bytes, const LocalMoment& now);

  // Returns the versions of a calendar, the newest first.
  std::vector<CalendarVersion> List(std::u16string_view name) const;

  // Returns the bytes of a version; nothing when it is gone.
  std::optional<std::string> Read(std::u16string_view name, const CalendarVersion& version) const;

  // Gives a renamed calendar its versions. Those that an older calendar of the new name left behind go to the
  // trash.
  void Rename(std::u16string_view name, std::u16string_view newName);

  // Moves all versions of a calendar to the trash.
  void MoveToTrash(std::u16string_view name);

 private:
  std::u16string FolderOf(std::u16string_view name) const;
  std::u16string PathOf(std::u16string_view name, const CalendarVersion& version) const;

  FileSystem& m_files;
  std::u16string m_folder;
};

}  // namespace orbisol

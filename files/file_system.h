// What calendar files ask of the machine: folders, and files read and replaced whole. platform/ answers for
// the desktop, tests with a folder of their own. Paths are UTF-16 with '/' between the parts, absolute.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orbisol {

// What tells whether a file still holds what was read. A file rewritten with the same bytes has the same
// stamp.
struct FileStamp {
  bool exists = false;
  std::uint64_t size = 0;
  std::uint64_t hash = 0;  // of the bytes, FNV-1a or another of 64 bits

  bool operator==(const FileStamp&) const = default;
};

struct FileBytes {
  std::string bytes;
  FileStamp stamp;
};

enum class WriteResult {
  kWritten,  // the new bytes are on the disk
  kChanged,  // the file is not the expected one; nothing was written
  kFailed,   // the file is as it was, or already new where only the sync of its folder failed
};

struct Files {
  virtual ~Files() = default;

  virtual std::u16string CalendarFolder() const = 0;       // of the user's calendars
  virtual std::u16string UserLegalsFolder() const = 0;     // public calendars that the user added
  virtual std::u16string ShippedLegalsFolder() const = 0;  // public calendars that came with the program

  // Names of the files (no folders) in a folder that end with `ending`, in any order; empty for a folder that
  // does not exist.
  virtual std::vector<std::u16string> List(std::u16string_view folder, std::u16string_view ending) const = 0;

  virtual bool Exists(std::u16string_view path) const = 0;

  // Nothing when the file is missing or cannot be read whole.
  virtual std::optional<FileBytes> Read(std::u16string_view path) const = 0;

  // Replaces the file in one step, or makes it with its folders: afterwards it holds the old bytes or the new
  // ones, also after a crash. Links are followed, permissions kept. With `expected` the file must still be
  // that one (or still be missing, when it was). `stamp` is set to the new file's after success.
  virtual WriteResult Replace(std::u16string_view path, std::string_view bytes, const FileStamp* expected,
                              FileStamp* stamp) = 0;

  // False when the file is still where it was.
  virtual bool MoveToTrash(std::u16string_view path) = 0;
};

}  // namespace orbisol

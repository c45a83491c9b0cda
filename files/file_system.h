// The operations on files that calendars and their backups need: files are listed, read and replaced whole.
// platform/ answers for the desktop, tests in memory. Paths are UTF-16 with '/' between the parts, absolute.
//
//   const auto lock = files.LockFolderOf(path);
//   std::optional<FileBytes> file = files.Read(path);
//   …
//   switch (files.Replace(path, bytes, &file->stamp, nullptr)) …
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orbisol {

// The folders of calendars, which need not exist.
struct CalendarFolders {
  std::u16string calendars;      // folder of the user's calendars
  std::u16string userLegals;     // folder of public calendars that the user added
  std::u16string shippedLegals;  // folder of public calendars that came with the program
  std::u16string versions;       // folder of earlier versions, with one folder a calendar
  // Folders for calendars that the folder of calendars has no room for, in the order in which they are tried.
  std::vector<std::u16string> asides = {};
};

// Tells whether a file still holds the bytes that were read. A file rewritten with the same bytes has the
// same stamp.
struct FileStamp {
  bool exists = false;
  std::uint64_t size = 0;
  std::uint64_t hash = 0;  // ByteHash of the bytes

  bool operator==(const FileStamp&) const = default;
};

struct FileBytes {
  std::string bytes;
  FileStamp stamp;
};

enum class WriteResult {
  kWritten,    // the new bytes are on the disk
  kNotSynced,  // the new bytes are in place, but a loss of power may still undo that
  kChanged,    // the file is not the expected one; it is as it was
  kFailed,     // the file is as it was
};

// Returns whether a reader finds the new bytes now.
constexpr bool IsInPlace(WriteResult result) {
  return result == WriteResult::kWritten || result == WriteResult::kNotSynced;
}

// Lock that is held until it is destroyed, or the process ends.
struct FileLock {
  virtual ~FileLock() = default;
};

struct FileSystem {
  virtual ~FileSystem() = default;

  // Returns the names of the files (no folders) in a folder that end with `ending`, in any order; none for a
  // folder that does not exist.
  virtual std::vector<std::u16string> List(std::u16string_view folder, std::u16string_view ending) const = 0;

  // Returns whether a path exists; true also if that cannot be found out.
  virtual bool Exists(std::u16string_view path) const = 0;

  // Returns the bytes of a file; nothing if it is missing or cannot be read whole.
  virtual std::optional<FileBytes> Read(std::u16string_view path) const = 0;

  // Returns the number of bytes of a file; nothing when it is missing.
  virtual std::optional<std::uint64_t> SizeOf(std::u16string_view path) const = 0;

  // Returns whether Replace() would be allowed to put other bytes at `path`. Only a full disk and the like
  // show later.
  virtual bool MayReplace(std::u16string_view path) const = 0;

  // Keeps other copies of the program from saving in the folder of `path`, which is made if it is missing.
  // Waits for one that does; after two seconds, or where there are no locks, it goes on without one. Other
  // programs are not kept from anything.
  virtual std::unique_ptr<FileLock> LockFolderOf(std::u16string_view path) = 0;

  // Replaces the file in one step, or makes it with its folders: afterwards it holds the old bytes or the new
  // ones, also after a crash. Links are followed, permissions kept. With `expected` the file must still be
  // that one (or still be missing, when it was). `stamp` is set to the new file's where that is in place.
  // Both may be null. Whoever may read and write the file `model`, where that is given, may do so here: for
  // copies.
  virtual WriteResult Replace(std::u16string_view path, std::string_view bytes, const FileStamp* expected,
                              FileStamp* stamp, std::u16string_view model = {}) = 0;

  // Makes a file in one step, together with its folder, for the user alone whatever else is set up for new
  // files. A folder that others could look into is closed to them. Returns true when the bytes are on the
  // disk.
  virtual bool MakePrivate(std::u16string_view path, std::string_view bytes) = 0;

  // Gives a file a second name in its folder; as a copy where files have one name only. Returns false when
  // something stands there already.
  virtual bool AddName(std::u16string_view path, std::u16string_view newPath) = 0;

  // Removes a file for good. Returns true when there is none afterwards.
  virtual bool Remove(std::u16string_view path) = 0;

  // Moves a folder with all it holds to a name beside it. Returns false when it stays, as where something
  // stands there already.
  virtual bool MoveFolder(std::u16string_view folder, std::u16string_view newFolder) = 0;

  // Moves a file, or a folder with all it holds. Returns false when it is still where it was.
  virtual bool MoveToTrash(std::u16string_view path) = 0;
};

}  // namespace orbisol

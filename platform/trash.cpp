#include "platform/trash.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/file_names.h"
#include "platform/posix_file.h"

namespace orbisol {
namespace {

constexpr int kMaxClashes = 10000;  // names tried before giving up

// Returns a path in the form of the note: bytes outside kPlain are written as %XX.
std::string Quoted(std::string_view path) {
  constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
  std::string text;
  for (const char byte : path) {
    char escaped[4];
    std::snprintf(escaped, sizeof escaped, "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
    text += kPlain.find(byte) == std::string_view::npos ? escaped : std::string(1, byte);
  }
  return text;
}

std::string Note(std::string_view path, const LocalMoment& when) {
  char date[96];
  std::snprintf(date, sizeof date, "%04d-%02d-%02dT%02d:%02d:%02d", when.day.year, when.day.month,
                when.day.day, when.hour, when.minute, when.second);
  return "[Trash Info]\nPath=" + Quoted(path) + "\nDeletionDate=" + date + "\n";
}

// Returns "Travail.xml" for 1, "Travail 2.xml" for 2 and so on.
std::string NumberedName(const std::string& name, int number) {
  if (number == 1) return name;
  const std::size_t dot = name.rfind('.');
  const std::size_t stem = dot == std::string::npos || dot == 0 ? name.size() : dot;
  return name.substr(0, stem) + " " + std::to_string(number) + name.substr(stem);
}

bool WriteNote(CDescriptor& file, std::string_view note) {
  const bool isWritten = WriteAll(file.Get(), note) && Repeat([&] { return fsync(file.Get()); }) == 0;
  return file.Close() && isWritten;
}

// Takes the first free name by making its note, and returns the name; empty if no note could be made.
std::string TakeName(const std::string& trash, const std::string& name, std::string_view note) {
  for (int number = 1; number <= kMaxClashes; ++number) {
    const std::string candidate = NumberedName(name, number);
    const std::string info = trash + "/info/" + candidate + ".trashinfo";
    CDescriptor file = Open(info, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, 0600);
    if (!file.IsOpen()) {
      if (errno == EEXIST) continue;
      return {};
    }
    struct stat status;
    const std::string place = trash + "/files/" + candidate;
    const bool clashes = Repeat([&] { return lstat(place.c_str(), &status); }) == 0;
    const bool free = !clashes && errno == ENOENT;
    // A name is taken too if there is a file of that name without a note.
    const bool written = WriteNote(file, free ? note : "");
    if (free && written) return candidate;
    unlink(info.c_str());
    if (!clashes) return {};  // any other name would fail likewise
  }
  return {};
}

bool CopyFile(const std::string& from, const std::string& to) {
  const std::optional<FileBytes> file = ReadWholeFile(from);
  return file && ReplaceFile(to, file->bytes, nullptr, nullptr, from) == WriteResult::kWritten;
}

bool CopyFolder(const std::string& from, const std::string& to) {
  const std::optional<std::vector<std::string>> names = NamesIn(from);
  return names && MakeFolders(to) && std::all_of(names->begin(), names->end(), [&](const std::string& name) {
           return CopyFile(from + "/" + name, to + "/" + name);
         });
}

// Moves a file or a folder to a name that is not in use. rename() cannot leave a file system: there all is
// copied, and removed only when the copies are on the disk. What of a folder cannot be removed then stays
// beside its copy: the copy is whole, and what is left may not be.
bool Move(const std::string& from, const std::string& to, bool isFolder) {
  if (Repeat([&] { return rename(from.c_str(), to.c_str()); }) == 0) return true;
  if (errno != EXDEV) return false;
  std::error_code error;
  if (isFolder) {
    const bool isCopied = CopyFolder(from, to);
    std::filesystem::remove_all(isCopied ? from : to, error);
    return isCopied;
  }
  if (CopyFile(from, to) && unlink(from.c_str()) == 0) return true;
  unlink(to.c_str());
  return false;
}

}  // namespace

bool MoveToTrashFolder(const std::string& path, const std::string& trash, const LocalMoment& when) {
  struct stat status;
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos || Repeat([&] { return lstat(path.c_str(), &status); }) != 0) return false;
  if (!MakeFolders(trash + "/info") || !MakeFolders(trash + "/files")) return false;

  const std::string name = TakeName(trash, path.substr(slash + 1), Note(path, when));
  if (name.empty()) return false;
  // The note must be on the disk before the file is moved.
  if (SyncFolder(trash + "/info") && Move(path, trash + "/files/" + name, S_ISDIR(status.st_mode)))
    return true;
  unlink((trash + "/info/" + name + ".trashinfo").c_str());
  return false;
}

}  // namespace orbisol

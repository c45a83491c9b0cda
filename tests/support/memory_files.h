// A folder of calendars in memory, with faults on demand.
//
//   CMemoryFiles files;
//   files.Put(u"/user/A.xml", "…");     // writes like another program
//   files.failingWrites.insert(u"/user/A.xml.bak");
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "files/byte_hash.h"
#include "files/file_system.h"

namespace orbisol {

inline const CalendarFolders kMemoryFolders{u"/user", u"/user/Legals", u"/share/Legals", u"/versions"};

class CMemoryFiles : public FileSystem {
 public:
  struct File {
    std::string bytes;
    FileStamp stamp;
  };
  std::map<std::u16string, File> files;  // files by path
  std::map<std::u16string, File> trash;
  std::set<std::u16string> unreadable;     // paths that exist and cannot be read
  std::set<std::u16string> failingWrites;  // paths that cannot be written; also folders
  std::function<void()> beforeLock;        // act of another copy of the program, before the lock; called once
  std::function<void()> beforeReplace;     // act of another program, at the last moment; called once
  std::u16string lastModel;                // path of the file whose rights the file last written was to take
  bool isClosed = false;  // whether the folders are closed: nothing can be found out, read or written
  bool trashFails = false;
  bool syncFails = false;  // whether the sync fails once the new bytes are in place

  void Put(const std::u16string& path, std::string_view bytes) {
    File& file = files[path];
    file.bytes = bytes;
    file.stamp = {true, bytes.size(), ByteHash(bytes)};
  }

  std::vector<std::u16string> List(std::u16string_view folder, std::u16string_view ending) const override {
    std::vector<std::u16string> names;
    for (const auto& [path, file] : files) {
      const std::size_t slash = path.rfind(u'/');
      if (path.substr(0, slash) == folder && path.ends_with(ending)) names.push_back(path.substr(slash + 1));
    }
    return names;
  }

  bool Exists(std::u16string_view path) const override {
    return isClosed || files.count(std::u16string(path)) > 0 || unreadable.count(std::u16string(path)) > 0 ||
           HoldsFiles(path);
  }

  std::optional<FileBytes> Read(std::u16string_view path) const override {
    const auto found = files.find(std::u16string(path));
    if (isClosed || found == files.end() || unreadable.count(found->first) > 0) return std::nullopt;
    return FileBytes{found->second.bytes, found->second.stamp};
  }

  std::optional<std::uint64_t> SizeOf(std::u16string_view path) const override {
    const auto found = files.find(std::u16string(path));
    if (found == files.end()) return std::nullopt;
    return found->second.bytes.size();
  }

  bool MayReplace(std::u16string_view path) const override {
    return failingWrites.count(std::u16string(path)) == 0;
  }

  std::unique_ptr<FileLock> LockFolderOf(std::u16string_view /*path*/) override {
    if (beforeLock) std::exchange(beforeLock, nullptr)();
    return nullptr;
  }

  WriteResult Replace(std::u16string_view path, std::string_view bytes, const FileStamp* expected,
                      FileStamp* stamp, std::u16string_view model) override {
    if (beforeReplace) std::exchange(beforeReplace, nullptr)();
    lastModel = model;
    const std::u16string key(path);
    if (isClosed || failingWrites.count(key) > 0) return WriteResult::kFailed;
    const auto found = files.find(key);
    if (expected != nullptr && *expected != (found == files.end() ? FileStamp() : found->second.stamp))
      return WriteResult::kChanged;
    Put(key, bytes);
    if (stamp != nullptr) *stamp = files[key].stamp;
    return syncFails ? WriteResult::kNotSynced : WriteResult::kWritten;
  }

  bool MakePrivate(std::u16string_view path, std::string_view bytes) override {
    if (failingWrites.count(std::u16string(path.substr(0, path.rfind(u'/')))) > 0) return false;
    Put(std::u16string(path), bytes);
    return true;
  }

  bool AddName(std::u16string_view path, std::u16string_view newPath) override {
    if (!MayReplace(newPath) || !SizeOf(path) || Exists(newPath)) return false;
    files[std::u16string(newPath)] = files[std::u16string(path)];
    return true;
  }

  bool Remove(std::u16string_view path) override {
    files.erase(std::u16string(path));
    return true;
  }

  bool MoveFolder(std::u16string_view folder, std::u16string_view newFolder) override {
    if (!HoldsFiles(folder) || Exists(newFolder)) return false;
    MoveAll(folder, newFolder, files);
    return true;
  }

  bool MoveToTrash(std::u16string_view path) override {
    if (!Exists(path) || trashFails) return false;
    MoveAll(path, path, trash);
    return true;
  }

 private:
  bool HoldsFiles(std::u16string_view folder) const {
    return std::any_of(files.begin(), files.end(),
                       [&](const auto& file) { return IsBelow(file.first, folder); });
  }

  static bool IsBelow(std::u16string_view path, std::u16string_view folder) {
    return path.size() > folder.size() && path.starts_with(folder) && path[folder.size()] == u'/';
  }

  // Moves the file of a path and those below it.
  void MoveAll(std::u16string_view from, std::u16string_view to, std::map<std::u16string, File>& target) {
    std::vector<std::u16string> paths;
    for (const auto& [path, file] : files)
      if (path == from || IsBelow(path, from)) paths.push_back(path);
    for (const std::u16string& path : paths) {
      const File file = files[path];
      files.erase(path);
      target[std::u16string(to) + path.substr(from.size())] = file;
    }
  }
};

}  // namespace orbisol

// The names of files and folders: given, taken away, moved. Paths are in the bytes of the machine.
//
//   AddFileName("/home/eva/A.xml", "/home/eva/B.xml");  // one file, two names
//   RemoveFile("/home/eva/A.xml");                      // a renamed one
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orbisol {

// Returns the names of all that a folder holds, in any order; nothing where that cannot be read to its end.
std::optional<std::vector<std::string>> NamesIn(const std::string& folder);

// Returns the number of bytes of a file; nothing when it is missing.
std::optional<std::uint64_t> FileSize(const std::string& path);

// Gives a file, or a link as such, a second name on the same file system. Where files have one name only the
// file is copied with its rights. Returns false when that is not sure, as where something has the new
// name already; the new name is then not left behind.
bool AddFileName(const std::string& path, const std::string& newPath);

// Removes a name of a file. Returns true when there is none afterwards.
bool RemoveFile(const std::string& path);

// Moves a folder with all it holds on the same file system. Returns false when it stays, as where something
// has the new name already.
bool MoveWholeFolder(const std::string& folder, const std::string& newFolder);

}  // namespace orbisol

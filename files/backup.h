// The backup that is made of a file before something of it is lost.
#pragma once

#include <string_view>

#include "files/file_system.h"

namespace orbisol {

// Writes the bytes to "<path>.bak". An older backup with other bytes moves on to "<path>.bak.1", or to the
// next number that is free. Returns false when the backup is not safely on the disk.
bool BackUp(FileSystem& files, std::u16string_view path, std::string_view bytes);

// Gives the backups of a renamed file its new name. One that would take the name of another stays.
void RenameBackups(FileSystem& files, std::u16string_view path, std::u16string_view newPath);

// Moves the backups of a deleted file to the trash. One that cannot be moved stays.
void TrashBackups(FileSystem& files, std::u16string_view path);

}  // namespace orbisol

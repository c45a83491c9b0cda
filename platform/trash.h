// The trash of the desktop, after the "Trash specification" of freedesktop.org, version 1.0: the file moves
// to files/ of the trash folder, a note in info/ says where it was and when it went, and file managers can
// put it back.
//
// QFile::moveToTrash does much the same, and was tried. It syncs neither the note nor its folder, so that a
// loss of power can leave a file in the trash that nobody can put back, it makes the folders readable for
// everybody, and it would bring Qt into the library that writes files. What it has beyond this one, a trash
// folder on every other device, is not worth that: from there a calendar is copied.
#pragma once

#include <string>

#include "core/platform.h"

namespace orbisol {

// Returns true when the file is in the trash and no more where it was. `trash` is the trash folder itself and
// is made when missing. A link goes as a link. From another file system the file, or the one that a link
// points to, is copied with its rights, and removed only when the copy is on the disk. A folder goes with the
// files in it; from another file system it stays where it holds folders of its own, and of the files that
// were copied those stay too that cannot be removed.
bool MoveToTrashFolder(const std::string& path, const std::string& trash, const LocalMoment& when);

}  // namespace orbisol

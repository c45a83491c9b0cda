// The trash of the desktop, after the "Trash specification" of freedesktop.org, version 1.0: the file moves
// to files/ of the trash folder, a note in info/ says where it was and when it went, and file managers can
// put it back.
#pragma once

#include <string>

#include "core/packed_date.h"

namespace orbisol {

struct TrashTime {
  YearMonthDay day;
  int hour, minute, second;  // local time
};

// True when the file is in the trash and no more where it was. `trash` is the trash folder itself and is made
// when missing. A
// link goes as a link. From another file system the file, or the one that a link points to, is copied, and
// removed only when the copy is on the disk.
bool MoveToTrashFolder(const std::string& path, const std::string& trash, const TrashTime& when);

// The moment, by the system's clock.
TrashTime TrashTimeNow();

}  // namespace orbisol

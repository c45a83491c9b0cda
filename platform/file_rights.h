// The rights to a file, carried over from the file that it replaces or copies: owner, group,
// permissions, access list and the attributes that programs and users have attached to it (user.*).
#pragma once

#include <sys/stat.h>

#include <string>

namespace orbisol {

// Gives an open file the rights of the file at `path`, whose state is `old`. The group never gets more than
// it had: where the owner, the group or the access list cannot be set, its permissions fall to those of
// everybody. Returns false when the file cannot have the permissions or the attributes, so that it should not
// take the old one's place.
bool CopyRights(int descriptor, const std::string& path, const struct stat& old);

}  // namespace orbisol

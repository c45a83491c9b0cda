// The copy that is made of a file before something of it is lost.
#pragma once

#include <string_view>

#include "files/file_system.h"

namespace orbisol {

// Puts the bytes into "<path>.bak". An older copy with other bytes is not lost for it: it moves on to
// "<path>.bak.1", or the next number that is free. False when the copy could not be made.
bool KeepCopy(Files& files, std::u16string_view path, std::string_view bytes);

}  // namespace orbisol

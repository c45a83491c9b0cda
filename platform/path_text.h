// Paths of the machine are bytes, those of the program UTF-16.
//
// The bytes are usually UTF-8. A byte that is not is carried as the lone surrogate U+DC00 + byte, so that
// every file of the machine has a path here and both conversions undo one another.
//
//   PathText("/home/\xC3\xA9va");  // u"/home/éva"
#pragma once

#include <string>
#include <string_view>

namespace orbisol {

std::u16string PathText(std::string_view bytes);
std::string PathBytes(std::u16string_view path);

// Returns the folder in which a path ends: "." for a mere name, "/" for "/file" and for "/" itself.
std::string FolderOf(const std::string& path);

}  // namespace orbisol

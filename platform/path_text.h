// Paths of the machine are bytes, those of the program UTF-16.
//
// Usually the bytes are UTF-8. A byte that is not is carried as the lone surrogate U+DC00 + byte, so that
// every file of the machine has a path here and both conversions undo one another.
//
//   PathText("/home/\xC3\xA9va");  // u"/home/éva"
#pragma once

#include <string>
#include <string_view>

namespace orbisol {

std::u16string PathText(std::string_view bytes);
std::string PathBytes(std::u16string_view path);

// The folder in which a path ends: "." of a mere name, "/" of "/file" and of "/" itself.
std::string FolderOf(const std::string& path);

}  // namespace orbisol

#include "platform/path_text.h"

#include <filesystem>

#include "core/text.h"

namespace orbisol {
namespace {

constexpr char16_t kEscape = 0xDC00;  // base to which a byte, 0x80..0xFF, is added

bool IsEscape(char16_t unit) { return unit >= kEscape + 0x80 && unit <= kEscape + 0xFF; }

// Returns the length of the well-formed character at the beginning; 0 if there is none.
std::size_t CharacterLength(std::string_view bytes) {
  const auto first = static_cast<unsigned char>(bytes[0]);
  const std::size_t length = first < 0x80   ? 1
                             : first < 0xC2 ? 0
                             : first < 0xE0 ? 2
                             : first < 0xF0 ? 3
                             : first < 0xF5 ? 4
                                            : 0;
  if (length == 0 || length > bytes.size()) return 0;
  const std::string_view character = bytes.substr(0, length);
  return ToUtf8(FromUtf8(character)) == character ? length : 0;
}

}  // namespace

std::u16string PathText(std::string_view bytes) {
  std::u16string text;
  while (!bytes.empty()) {
    const std::size_t length = CharacterLength(bytes);
    if (length == 0)
      text += static_cast<char16_t>(kEscape + static_cast<unsigned char>(bytes[0]));
    else
      text += FromUtf8(bytes.substr(0, length));
    bytes.remove_prefix(length == 0 ? 1 : length);
  }
  return text;
}

std::string PathBytes(std::u16string_view path) {
  std::string bytes;
  std::size_t begin = 0;  // beginning of the part not yet converted
  for (std::size_t i = 0; i < path.size(); ++i) {
    if (IsHighSurrogate(path[i]) && i + 1 < path.size() && IsLowSurrogate(path[i + 1])) {
      ++i;
    } else if (IsEscape(path[i])) {
      bytes += ToUtf8(path.substr(begin, i - begin));
      bytes += static_cast<char>(path[i] - kEscape);
      begin = i + 1;
    }
  }
  return bytes += ToUtf8(path.substr(begin));
}

std::string FolderOf(const std::string& path) {
  const std::string folder = std::filesystem::path(path).parent_path().string();
  return folder.empty() ? "." : folder;
}

}  // namespace orbisol

// A row of the table of texts.
#pragma once

#include <string_view>

#include "resources/command_ids.h"
#include "resources/strings.h"

namespace orbisol {

struct TextEntry {
  int id;  // a TextId or a command
  std::u16string_view text;
};

}  // namespace orbisol

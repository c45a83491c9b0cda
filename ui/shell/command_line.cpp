#include "ui/shell/command_line.h"

#include <algorithm>
#include <iterator>
#include <ostream>

#include "core/text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

constexpr int kMisused = 2;  // exit code for bad usage, as that of the system's tools

// Options that the toolkit takes off before a program sees them, without their one or two dashes.
struct ToolkitOption {
  std::string_view name;
  bool hasValue;  // whether a value follows, in the next word or after "="
};
constexpr ToolkitOption kToolkitOptions[] = {
    {"display", true},       {"dograb", false},      {"geometry", true},      {"icon", true},
    {"name", true},          {"nograb", false},      {"platform", true},      {"platformpluginpath", true},
    {"platformtheme", true}, {"plugin", true},       {"qmljsdebugger", true}, {"qwindowgeometry", true},
    {"qwindowicon", true},   {"qwindowtitle", true}, {"reverse", false},      {"session", true},
    {"style", true},         {"stylesheet", true},   {"sync", false},         {"testability", false},
    {"title", true},         {"widgetcount", false},
};

const ToolkitOption* ToolkitOptionOf(std::string_view word) {
  if (!word.starts_with('-')) return nullptr;
  word.remove_prefix(word.starts_with("--") ? 2 : 1);
  const auto* const found =
      std::find_if(std::begin(kToolkitOptions), std::end(kToolkitOptions),
                   [&](const ToolkitOption& row) { return row.name == word.substr(0, word.find('=')); });
  return found == std::end(kToolkitOptions) ? nullptr : found;
}

}  // namespace

std::optional<int> AnswerCommandLine(const std::vector<std::string_view>& words, std::ostream& out,
                                     std::ostream& errors) {
  for (std::size_t i = 1; i < words.size(); ++i) {
    if (const ToolkitOption* const option = ToolkitOptionOf(words[i])) {
      if (option->hasValue && words[i].find('=') == std::string_view::npos) ++i;
    } else if (words[i] == "--help") {
      out << ToUtf8(StringText(kTextUsage)) << '\n';
      return 0;
    } else if (words[i] == "--version") {
      out << ToUtf8(StringText(kTextProgramName)) << ' ' << ORBISOL_VERSION << '\n';
      return 0;
    } else {
      errors << ToUtf8(FormatText(StringText(kTextUnknownWord), {FromUtf8(words[i])})) << '\n';
      return kMisused;
    }
  }
  return std::nullopt;
}

}  // namespace orbisol

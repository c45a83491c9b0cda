#include "ui/shell/openings.h"

#include <algorithm>
#include <iterator>

namespace orbisol {
namespace {

// clang-format off: a row each, so that windows made side by side change lines of their own.
constexpr Opening kOpenings[] = {
    {kCmdChooseCalendar, nullptr}, {kCmdPrint, nullptr},       {kCmdEditEvents, nullptr},
    {kCmdEditVacations, nullptr},  {kCmdPreferences, nullptr}, {kCmdHelpContents, nullptr},
    {kCmdHelpIndex, nullptr},      {kCmdAbout, nullptr},
};
// clang-format on

}  // namespace

const Opening* OpeningOf(CommandId command) {
  const auto* const found = std::find_if(std::begin(kOpenings), std::end(kOpenings),
                                         [&](const Opening& row) { return row.command == command; });
  return found == std::end(kOpenings) ? nullptr : found;
}

}  // namespace orbisol

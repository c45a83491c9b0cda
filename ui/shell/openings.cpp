#include "ui/shell/openings.h"

#include <algorithm>
#include <iterator>

#include "ui/shell/about.h"
#include "ui/shell/calendar_frame.h"
#include "ui/window/help.h"

namespace orbisol {
namespace {

void OpenHelpContents(const OpeningRequest&) { ShowHelpContents(); }
void OpenHelpIndex(const OpeningRequest&) { ShowHelpIndex(); }
void OpenAbout(const OpeningRequest& request) { CAboutBox(&request.frame).exec(); }

// clang-format off: a row each, so that windows made side by side change lines of their own.
constexpr Opening kOpenings[] = {
    {kCmdChooseCalendar, nullptr},  {kCmdPrint, nullptr},       {kCmdEditEvents, nullptr},
    {kCmdEditVacations, nullptr},   {kCmdPreferences, nullptr}, {kCmdHelpContents, OpenHelpContents},
    {kCmdHelpIndex, OpenHelpIndex}, {kCmdAbout, OpenAbout},
};
// clang-format on

}  // namespace

const Opening* OpeningOf(CommandId command) {
  const auto* const found = std::find_if(std::begin(kOpenings), std::end(kOpenings),
                                         [&](const Opening& row) { return row.command == command; });
  return found == std::end(kOpenings) ? nullptr : found;
}

}  // namespace orbisol

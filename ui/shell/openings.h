// The windows that commands open, one row a command. The month asks for some of them too, with the dates that
// the user pointed at.
//
//   if (const Opening* const opening = OpeningOf(kCmdAbout)) opening->open({.frame = frame});
#pragma once

#include "core/packed_date.h"
#include "resources/command_ids.h"

namespace orbisol {

class CCalendarFrame;

struct OpeningRequest {
  CCalendarFrame& frame;
  PackedDate from = 0;  // first date that the window begins with; 0 is "none", as from a menu
  PackedDate to = 0;    // last one, not before `from`; 0 where `from` is 0
};

struct Opening {
  CommandId command;
  // Returns when a modal window is closed, and at once for any other. Null while the window is not made yet:
  // the command is disabled.
  void (*open)(const OpeningRequest& request);
};

// Returns the row of a command; null for one that opens nothing.
const Opening* OpeningOf(CommandId command);

}  // namespace orbisol

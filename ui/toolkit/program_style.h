// The toolkit's own style with three changes: frames of boxes, buttons and fields are seen on dark grounds
// too, where it draws them darker than the ground, and an empty check box on black is black; so are the arrow
// heads behind which a bar keeps what it has no room for; and what is selected has the blue of the calendar,
// unless the desktop has colors of its own.
//
//   SetProgramStyle();  // once, when the application is made; themes may change afterwards
#pragma once

namespace orbisol {

// Does nothing where the user's desktop has a style of its own, unless that draws in colors of its own
// whatever palette a window has: the month and its pane have one. Then the colors are those of that style.
void SetProgramStyle();

}  // namespace orbisol

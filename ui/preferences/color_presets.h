// Sets of colors to begin with.
//
//   settings.colors = PresetColors(kDarkColors);
#pragma once

#include <array>

#include "content/calendar_look.h"

namespace orbisol {

enum ColorPreset { kLightColors, kDarkColors, kHighContrastColors, kColorPresetCount };

// Returns the 15 colors of a set. Those of a fresh calendar are the light ones; in the others every text has
// a contrast of at least 4.5 to 1 with every ground that it may stand on, whatever the transparency.
std::array<Color, kColorCount> PresetColors(ColorPreset preset);

// Returns whether a set suits the built-in picture, which is light.
constexpr bool SuitsPicture(ColorPreset preset) { return preset == kLightColors; }

}  // namespace orbisol

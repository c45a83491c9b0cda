#include <gtest/gtest.h>

#include <vector>

#include "ui/preferences/color_presets.h"
#include "ui/toolkit/colors.h"

namespace orbisol {
namespace {

// A day's text stands on its own ground, on that of a vacation, or on any mixture of a fill with the plain
// ground. Contrast is least at one end of a mixture where the text is lighter than both ends.
TEST(ColorPresetsTest, EveryTextIsLegibleOnEveryGroundItMayStandOn) {
  const struct {
    ColorIndex text;
    std::vector<ColorIndex> grounds;
  } kRows[] = {
      {kHeaderTextColor, {kHeaderBgColor}},
      {kColorCalHeader, {kColorBgCal}},
      {kColorWeekNumber, {kStandardBgColor}},
      {kStandardTextColor, {kStandardBgColor}},
      {kGrayTextColor, {kStandardBgColor, kVacationBack}},
      {kHolidayText, {kStandardBgColor, kHolidayBack, kVacationBack}},
      {kEventText, {kStandardBgColor, kEventBack, kVacationBack}},
      {kVacationText, {kStandardBgColor, kHolidayBack, kEventBack, kVacationBack}},
  };
  for (const ColorPreset preset : {kDarkColors, kHighContrastColors}) {
    const auto colors = PresetColors(preset);
    const auto at = [&](ColorIndex index) { return ToQColor(colors[static_cast<std::size_t>(index)]); };
    for (const auto& row : kRows)
      for (const ColorIndex ground : row.grounds)
        EXPECT_GE(Contrast(at(row.text), at(ground)), 4.5) << preset << " " << row.text << " on " << ground;
    EXPECT_GE(Contrast(at(kCircleColor), at(kStandardBgColor)), 3.0);
  }
  EXPECT_EQ(PresetColors(kLightColors), CalendarLook().colors);
}

}  // namespace
}  // namespace orbisol

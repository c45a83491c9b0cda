#include "content/calendar_look.h"

#include "resources/strings.h"

namespace orbisol {
namespace {

// Names and values of the colors; ColorTable() adds the captions from the table of texts. On purpose: the
// last two columns differ, because settings taken over from an older release keep the look of that release.
constexpr ColorInfo kColorRows[] = {
    {kHeaderTextColor, "HeaderTextColor", {}, kHighlightTextColor, kHighlightTextColor},
    {kHeaderBgColor, "HeaderBgColor", {}, kHighlightColor, kHighlightColor},
    {kStandardTextColor, "StandardTextColor", {}, kWindowTextColor, kWindowTextColor},
    {kStandardBgColor, "StandardBgColor", {}, kWindowColor, kWindowColor},
    {kHolidayText, "HolidayFontColor", {}, Rgb(255, 0, 0), Rgb(128, 0, 0)},
    {kHolidayBack, "HolidayBgColor", {}, kWindowColor, Rgb(192, 192, 192)},
    {kEventText, "EventFgColor", {}, Rgb(192, 0, 64), Rgb(255, 0, 0)},
    {kEventBack, "EventBgColor", {}, kWindowColor, Rgb(255, 255, 128)},
    {kVacationText, "HolidaysFontColor", {}, Rgb(0, 128, 255), Rgb(0, 0, 128)},
    {kVacationBack, "HolidaysBgColor", {}, Rgb(192, 192, 192), kWindowColor},
    {kCircleColor, "CircleColor", {}, Rgb(255, 0, 0), Rgb(255, 0, 0)},
    {kGrayTextColor, "GrayTextColor", {}, kGreyTextColor, kGreyTextColor},
    {kColorCalHeader, "ColorCalHeader", {}, kWindowTextColor, kWindowTextColor},
    {kColorBgCal, "ColorBgCal", {}, kButtonFaceColor, kButtonFaceColor},
    // On purpose: a migration deletes the color that older releases stored and does not take it over.
    {kColorWeekNumber, "ColorWeekNumber", {}, kGreyTextColor, kGreyTextColor},
};
static_assert(std::size(kColorRows) == kColorCount);

constexpr bool RowsAreInOrder() {
  for (int i = 0; i < kColorCount; ++i)
    if (kColorRows[i].index != i) return false;
  return true;
}
static_assert(RowsAreInOrder());

std::array<ColorInfo, kColorCount> RowsWithCaptions() {
  std::array<ColorInfo, kColorCount> rows = std::to_array(kColorRows);
  for (ColorInfo& row : rows) row.text = Piece(StringText(kTextColorCaptions), u'|', row.index);
  return rows;
}

}  // namespace

std::span<const ColorInfo> ColorTable() {
  static const std::array<ColorInfo, kColorCount> table = RowsWithCaptions();
  return table;
}

CalendarLook::CalendarLook() {
  for (std::size_t i = 0; i < colors.size(); ++i) colors[i] = kColorRows[i].fresh;
}

}  // namespace orbisol

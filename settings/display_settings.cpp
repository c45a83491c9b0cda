#include "settings/display_settings.h"

#include "resources/strings.h"

namespace orbisol {
namespace {

constexpr int kTextColorCaptions = 297;  // one piece for each color, in the order of the table

// On purpose: the last two columns differ. Who comes from an older release keeps its look.
// The number of the row is left to the compiler, the caption to the table of texts.
constexpr ColorInfo kColorRows[] = {
    {kHeaderTextColor, "HeaderTextColor", {}, kHighlightTextColor, kHighlightTextColor},
    {kHeaderBgColor, "HeaderBgColor", {}, kHighlightColor, kHighlightColor},
    {kStandardTextColor, "StandardTextColor", {}, kWindowTextColor, kWindowTextColor},
    {kStandardBgColor, "StandardBgColor", {}, kWindowColor, kWindowColor},
    {kHolidayFontColor, "HolidayFontColor", {}, Rgb(255, 0, 0), Rgb(128, 0, 0)},
    {kHolidayBgColor, "HolidayBgColor", {}, kWindowColor, Rgb(192, 192, 192)},
    {kEventFgColor, "EventFgColor", {}, Rgb(192, 0, 64), Rgb(255, 0, 0)},
    {kEventBgColor, "EventBgColor", {}, kWindowColor, Rgb(255, 255, 128)},
    {kHolidaysFontColor, "HolidaysFontColor", {}, Rgb(0, 128, 255), Rgb(0, 0, 128)},
    {kHolidaysBgColor, "HolidaysBgColor", {}, Rgb(192, 192, 192), kWindowColor},
    {kCircleColor, "CircleColor", {}, Rgb(255, 0, 0), Rgb(255, 0, 0)},
    {kGrayTextColor, "GrayTextColor", {}, kGreyTextColor, kGreyTextColor},
    {kColorCalHeader, "ColorCalHeader", {}, kWindowTextColor, kWindowTextColor},
    {kColorBgCal, "ColorBgCal", {}, kButtonFaceColor, kButtonFaceColor},
    // Older releases stored it, but it is not taken over: it keeps what the reset gave it.
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

// Visits the fields of a layout in the order of their bytes.
template <typename Layout, typename Integer, typename Byte>
void VisitFields(Layout& layout, Integer integer, Byte byte) {
  integer(layout.rect.left);
  integer(layout.rect.top);
  integer(layout.rect.right);
  integer(layout.rect.bottom);
  byte(layout.maximized);
  byte(layout.statusBarShown);
  byte(layout.reserved);
  byte(layout.rightPaneShown);
  integer(layout.rightPaneWidth);
}

}  // namespace

std::span<const ColorInfo> ColorTable() {
  static const std::array<ColorInfo, kColorCount> table = RowsWithCaptions();
  return table;
}

std::array<std::uint8_t, kWindowLayoutBytes> LayoutToBytes(const WindowLayout& layout) {
  std::array<std::uint8_t, kWindowLayoutBytes> bytes{};
  std::size_t at = 0;
  VisitFields(
      layout,
      [&](int value) {
        const auto bits = static_cast<std::uint32_t>(value);
        for (int shift = 0; shift < 32; shift += 8) bytes[at++] = static_cast<std::uint8_t>(bits >> shift);
      },
      [&](std::uint8_t value) { bytes[at++] = value; });
  return bytes;
}

void LayoutFromBytes(std::span<const std::uint8_t> bytes, WindowLayout& layout) {
  VisitFields(
      layout,
      [&](int& value) {
        if (bytes.size() < 4) {
          bytes = {};  // a field that is cut off ends the record
          return;
        }
        std::uint32_t bits = 0;
        for (unsigned i = 0; i < 4; ++i) bits |= std::uint32_t{bytes[i]} << (8 * i);
        value = static_cast<int>(bits);
        bytes = bytes.subspan(4);
      },
      [&](std::uint8_t& value) {
        if (bytes.empty()) return;
        value = bytes[0];
        bytes = bytes.subspan(1);
      });
}

void DisplaySettings::ResetToDefaults() {
  changed = false;
  fontWeight = 400;
  fontName.Set(u"");
  backgroundImage = true;
  backgroundImagePath.Set(u"");
  for (std::size_t i = 0; i < colors.size(); ++i) colors[i] = kColorRows[i].fresh;
}

DisplaySettings& Display() {
  static DisplaySettings settings;
  return settings;
}

}  // namespace orbisol

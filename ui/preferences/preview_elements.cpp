#include "ui/preferences/preview_elements.h"

#include <iterator>

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr ElementColors kColors[] = {
    {kHeaderTextColor, kHeaderBgColor},      // header
    {kGrayTextColor, kStandardBgColor},      // other month
    {kStandardTextColor, kStandardBgColor},  // normal day
    {kCircleColor, kStandardBgColor},        // mark
    {kColorWeekNumber, kStandardBgColor},    // week number
    {kEventText, kEventBack},                // event
    {kHolidayText, kHolidayBack},            // holiday
    {kVacationText, kVacationBack},          // vacation
    {kColorCalHeader, kColorBgCal},          // title
};
static_assert(std::size(kColors) == kElementCount);

}  // namespace

ElementColors ColorsOf(PreviewElement element) { return kColors[element]; }

QString ElementName(PreviewElement element) {
  return element == kElementTitle ? TableText(kTextTitleElement) : TablePiece(kTextPreviewElements, element);
}

}  // namespace orbisol

// The look of one calendar: its font, its background picture and its 15 colors, as its file keeps them.
//
//   CalendarLook look;             // a fresh calendar
//   look.ColorAt(kHolidayText);    // 0x0000FF, red
//   ColorTable()[kHolidayText].text;  // u"Couleur du texte du jour férié", for a list of colors
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/text.h"

namespace orbisol {

using Color = std::uint32_t;  // 0x00BBGGRR: red in the low byte, everywhere, also in files

constexpr Color Rgb(unsigned red, unsigned green, unsigned blue) { return red | green << 8 | blue << 16; }

// The colors that a desktop would supply, fixed so that a calendar looks the same on every machine.
constexpr Color kWindowColor = Rgb(0xFF, 0xFF, 0xFF);
constexpr Color kWindowTextColor = Rgb(0x1C, 0x27, 0x33);
constexpr Color kHighlightColor = Rgb(0x22, 0x49, 0x6B);
constexpr Color kHighlightTextColor = Rgb(0xFF, 0xFF, 0xFF);
constexpr Color kGreyTextColor = Rgb(0x5F, 0x6B, 0x78);
constexpr Color kButtonFaceColor = Rgb(0xF1, 0xF3, 0xF5);

// The parts of a calendar that have a color of their own, in the order of files and tables.
enum ColorIndex : int {
  kHeaderTextColor,    // weekday names
  kHeaderBgColor,      // behind them
  kStandardTextColor,  // an ordinary day
  kStandardBgColor,    // the day cells
  kHolidayText,        // a public holiday
  kHolidayBack,
  kEventText,  // a personal event
  kEventBack,
  kVacationText,  // a vacation period
  kVacationBack,
  kCircleColor,     // the mark of the active day
  kGrayTextColor,   // days of the neighboring months
  kColorCalHeader,  // the title of the month
  kColorBgCal,      // behind the calendar
  kColorWeekNumber,
  kColorCount
};

struct ColorInfo {
  ColorIndex index;
  std::string_view name;     // of the value in which older releases stored it
  std::u16string_view text;  // as the preferences name it
  Color fresh;               // in a new calendar
  Color migrated;  // when older settings are taken over and lack it; keeps the look of those releases
};
std::span<const ColorInfo> ColorTable();  // 15 rows, by index

constexpr std::size_t kMaxPathUnits = 260;  // of paths and names, in UTF-16 units

struct CalendarLook {
  std::array<Color, kColorCount> colors;
  int fontWeight = 400;                   // 400 normal, 700 bold; any number, as stored
  FixedText<kMaxPathUnits + 1> fontName;  // empty: the font of the dialogs
  bool backgroundImage = true;
  FixedText<kMaxPathUnits + 1> backgroundImagePath;  // empty: the built-in picture

  CalendarLook();  // the look of a fresh calendar

  Color ColorAt(ColorIndex index) const { return colors[static_cast<std::size_t>(index)]; }

  bool operator==(const CalendarLook&) const = default;
};

}  // namespace orbisol

// How calendars look and where windows stand: one record for the program, plain values, copied whole.
//
//   DisplaySettings settings;                  // a fresh installation
//   settings.ColorAt(kHolidayFontColor);       // 0x0000FF, red
//   WindowLayout layout = settings.mainLayout;
//   layout.rect;                               // screen coordinates, frame included
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/calendar_config.h"
#include "core/rect.h"
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

// What the 15 colors paint, in the order of files and tables.
enum ColorIndex : int {
  kHeaderTextColor,    // weekday names
  kHeaderBgColor,      // behind them
  kStandardTextColor,  // an ordinary day
  kStandardBgColor,    // the day cells
  kHolidayFontColor,   // a public holiday
  kHolidayBgColor,
  kEventFgColor,  // a personal event
  kEventBgColor,
  kHolidaysFontColor,  // a vacation period
  kHolidaysBgColor,
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
  Color fresh;               // after a reset
  Color migrated;  // when older settings are taken over and lack it; keeps the look of those releases
};
std::span<const ColorInfo> ColorTable();  // 15 rows, by index

// Where a top-level window stands, as it is stored in 24 bytes.
struct WindowLayout {
  Rect rect{50, 50, 900, 450};  // screen coordinates with the frame; of the main window always with its pane
  std::uint8_t maximized = 0;
  std::uint8_t statusBarShown = 1;
  std::uint8_t reserved = 1;        // carried along
  std::uint8_t rightPaneShown = 0;  // a fresh window shows the month alone
  int rightPaneWidth = 0;           // pixels; informative, measured anew at every start

  bool operator==(const WindowLayout&) const = default;
};
constexpr std::size_t kWindowLayoutBytes = 24;
// Little-endian: four integers, four bytes, one integer.
std::array<std::uint8_t, kWindowLayoutBytes> LayoutToBytes(const WindowLayout& layout);
// Takes as many whole fields as there are bytes; the others keep their value. Bytes past the 24th are
// ignored.
void LayoutFromBytes(std::span<const std::uint8_t> bytes, WindowLayout& layout);

constexpr std::size_t kMaxPathUnits = 260;  // of paths and names, in UTF-16 units

// The calendar rules, which live beside this record, are not in it (core/calendar_config.h).
struct DisplaySettings {
  WindowLayout mainLayout;
  WindowLayout printLayout;
  bool changed = false;  // edited since the last save
  bool showWeekNumber = false;
  std::array<Color, kColorCount> colors{};
  bool circleTheDay = false;        // mark the active day with a circle, not a rectangle
  int circleWidth = 2;              // 1 thin .. 3 thick; out of range as stored, clamped where used
  bool collapseCells = true;        // backgrounds of neighboring days touch
  bool fullCellBackground = false;  // over the whole cell, not a band
  int backgroundAlpha = 128;        // 16..255, opaque; out of range as stored, clamped where used
  bool grid = true;
  bool tipsForEventsOnly = true;
  int fontWeight = 400;                   // 400 normal, 700 bold
  FixedText<kMaxPathUnits + 1> fontName;  // empty: the font of the dialogs
  bool backgroundImage = true;
  FixedText<kMaxPathUnits + 1> backgroundImagePath;  // empty: the built-in picture
  FixedText<kMaxPathUnits + 1> calendarName;         // empty reads as "Calendar"
  bool magnetMouse = false;                          // the pointer stays on the active cell
  std::u16string calendarPath;                       // the file of the calendar, empty before it is known

  DisplaySettings() { ResetToDefaults(); }

  // What a calendar's file sets: font, picture, colors, and `changed`. Neither layouts nor drawing switches
  // nor the calendar's name; the calendar rules are reset by their owner (DefaultCalendarRules).
  void ResetToDefaults();

  Color ColorAt(ColorIndex index) const { return colors[static_cast<std::size_t>(index)]; }

  int CircleWidth() const { return std::clamp(circleWidth, 1, 3); }
  int BackgroundAlpha() const { return std::clamp(backgroundAlpha, 0, 255); }

  bool operator==(const DisplaySettings&) const = default;
};

// The settings in force.
DisplaySettings& Display();

}  // namespace orbisol

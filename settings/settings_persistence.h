// Settings read at start and written when a change is confirmed.
//
//   StoredSettings stored = ReadSettings(store, calendars, screen, locale);
//   Display() = stored.display;  // reading alone touches nothing that is in force
//   …
//   SaveOutcome outcome = SaveSettings(store, calendars, Display(), Rules(), Content());
//   if (outcome.calendar == WriteResult::kChanged) …  // ask
//
// What belongs to a calendar lies in its file (files/calendar_store.h), all else under the key
// (settings_store.h). Both functions must be given the same CCalendarStore: it remembers the file as it was
// read.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/rect.h"
#include "files/calendar_store.h"
#include "files/first_start.h"
#include "settings/display_settings.h"
#include "settings/settings_store.h"

namespace orbisol {

struct StoredSettings {
  bool keyFound = false;      // without a key the installation is broken
  bool layoutStored = false;  // false until the main window was closed once
  DisplaySettings display;    // with name and path of the calendar
  CalendarRules rules;
  CalendarContent content;
  LoadResult file = LoadResult::kMissing;  // of the calendar, before a migration wrote it
};

// A value that is missing, of another type or malformed takes its default, and so does a rectangle without
// width or height. Windows are moved onto `screen`, the smallest rectangle around all screens. A calendar
// without a file is empty; where the user has none at all it has the content of the first start. Where the
// key holds no calendar name that can be read, older settings are taken over (legacy_settings.h), which
// writes; nothing else here does.
StoredSettings ReadSettings(SettingsStore& store, CCalendarStore& calendars, const Rect& screen,
                            const UserLocale& locale);

enum class WhenChanged {
  kRefuse,     // leave a file alone that somebody else has changed, and say so: the program asks
  kOverwrite,  // the user said so
  kKeepBoth,   // leave it alone and save under a free name, which becomes the calendar's
};

struct SaveOutcome {
  // kChanged, kFailed: the calendar's file is as it was, `changed` stays set and the name is not switched.
  // After kFailed the file may already be new, where only the sync of its folder failed.
  WriteResult calendar = WriteResult::kFailed;
  bool key = false;  // whether the values of the key were stored too
};

// Writes the calendar to its own file, then switches name and path when a new name is given, then writes the
// key, and clears `changed`. The file of the new name is neither read nor written. A new name that is none
// fails. After kFailed the values of the key are written all the same.
//
// kKeepBoth also helps where the file cannot be written, or cannot be read and is therefore not replaced:
// without it such a calendar could be neither saved nor left for another one.
SaveOutcome SaveSettings(SettingsStore& store, CCalendarStore& calendars, DisplaySettings& display,
                         const CalendarRules& rules, const CalendarContent& content,
                         WhenChanged whenChanged = WhenChanged::kRefuse,
                         std::optional<std::u16string_view> newName = {});

// The state of a window that closes.
struct ClosingFrame {
  Rect rect;  // with its frame; of a maximized window where it would stand restored, empty when that is not
              // known
  bool maximized = false;
  bool minimized = false;
  bool paneShown = true;
  int paneWidth = 0;  // of the right pane, in pixels
};

// What a closing window stores: its rectangle with the right pane, also when that is hidden, moved onto the
// screen.
WindowLayout ClosingLayout(WindowLayout layout, const ClosingFrame& frame, const Rect& screen);

// Store the layout, and set `layout` to it. False when nothing was stored; a minimized window stores nothing.
bool SaveMainWindowLayout(SettingsStore& store, WindowLayout& layout, const ClosingFrame& frame,
                          const Rect& screen);
bool SavePrintWindowLayout(SettingsStore& store, WindowLayout& layout, const ClosingFrame& frame,
                           const Rect& screen);

// The values of the key that a save writes, in the order in which it writes them.
std::vector<StoreChange> KeyChanges(const DisplaySettings& display);

}  // namespace orbisol

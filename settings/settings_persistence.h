// Reads the settings at start, and writes them when a change is confirmed.
//
//   StoredSettings stored = ReadSettings(store, calendars, publicCalendars, locale, screen);
//   Display() = stored.display;  // reading alone touches nothing that is in force
//   …
//   SaveOutcome outcome = SaveSettings(store, calendars, Display(), Rules(), Content());
//   if (outcome.calendar == WriteResult::kChanged) …  // ask
//
// All that belongs to a calendar lies in its file (files/calendar_store.h), all else under the key
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
  DisplaySettings display;    // settings, with name and path of the calendar
  CalendarRules rules;
  CalendarContent content;
  LoadResult file = LoadResult::kMissing;  // state of the calendar's file before a migration wrote it
};

// Returns the stored settings. A value that is missing, of another type or malformed takes its default, and
// so does a rectangle without width or height. Windows are moved onto `screen`, the smallest rectangle around
// all screens. A calendar without a file is empty; where the user has none at all it has the content of the
// first start. Where the key holds no calendar name that can be read, older settings are taken over
// (legacy_settings.h), which writes; nothing else here does.
StoredSettings ReadSettings(SettingsStore& store, CCalendarStore& calendars,
                            const CPublicCalendars& publicCalendars, const UserLocale& locale,
                            const Rect& screen);

struct SaveOutcome {
  WriteResult calendar = WriteResult::kFailed;  // result for the calendar's file
  std::u16string name;                          // name under which it was saved, or was to be saved
  bool key = false;                             // whether the values of the key were stored too
};

// Writes the calendar to its own file. Where the new bytes are in place it switches name and path: to
// `newName` where that is given, else to the name that CCalendarStore::Save chose. Then it writes the key,
// also after kFailed, but not after kChanged. `changed` is cleared after kWritten alone, so that a file that
// could not be synced is written again.
//
// The file of `newName` is neither read nor written. kFailed, and nothing is written at all, if `newName` is
// not a valid calendar name.
SaveOutcome SaveSettings(SettingsStore& store, CCalendarStore& calendars, DisplaySettings& display,
                         const CalendarRules& rules, const CalendarContent& content,
                         IfChanged ifChanged = IfChanged::kRefuse,
                         std::optional<std::u16string_view> newName = {});

// Writes an earlier version of the calendar to its file, likewise. What is in force is left alone: the caller
// puts the calendar that the version holds in its place.
SaveOutcome RestoreSettings(SettingsStore& store, CCalendarStore& calendars, DisplaySettings& display,
                            std::string_view version, IfChanged ifChanged = IfChanged::kRefuse);

// The part of the settings that the preferences edit: look, switches and rules.
struct Preferences {
  DisplaySettings display;
  CalendarRules rules;

  bool operator==(const Preferences&) const = default;
};

// Returns the preferences as they are stored: switches from the key, look and rules from the file of the
// calendar in use. What cannot be read, or was taken over from an older release and not stored yet, is as in
// `display` and `rules`, which are in force, and so are the windows, name and path. The switch that
// SaveCellTexts writes is that in force as well, because it may be ahead of a key that cannot be written.
//
// Nothing is written, and `calendars` remembers nothing: a later save still finds that somebody else changed
// the file.
Preferences ReadPreferences(const SettingsStore& store, const CCalendarStore& calendars,
                            const DisplaySettings& display, const CalendarRules& rules);

// Writes the one value that says whether cells show texts. Returns whether it was stored.
bool SaveCellTexts(SettingsStore& store, const DisplaySettings& display);

// Sets name and path of a calendar and writes the key; no calendar's file is read or written. Returns whether
// the key was stored. `name` is a valid name.
bool SwitchCalendar(SettingsStore& store, const CCalendarStore& calendars, DisplaySettings& display,
                    std::u16string_view name);

// Store what a closing window leaves behind (ClosingLayout), and set `layout` to it. Return false when
// nothing was stored; a minimized window stores nothing.
bool SaveMainWindowLayout(SettingsStore& store, WindowLayout& layout, const ClosingFrame& frame,
                          const Rect& screen);
bool SavePrintWindowLayout(SettingsStore& store, WindowLayout& layout, const ClosingFrame& frame,
                           const Rect& screen);

// Returns the values of the key that a save writes, in the order in which it writes them.
std::vector<StoreChange> KeyChanges(const DisplaySettings& display);

}  // namespace orbisol
